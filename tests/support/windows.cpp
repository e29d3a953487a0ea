#include "support/windows.h"

#include <iterator>

namespace support {
namespace {

constexpr UINT kAnswerLimit = 10'000;

BOOL CALLBACK addWindow(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

std::vector<HWND> visible(std::vector<HWND> windows) {
  std::erase_if(windows, [](HWND window) { return !IsWindowVisible(window); });
  return windows;
}

}  // namespace

LRESULT ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kAnswerLimit, &answer);
  return static_cast<LRESULT>(answer);
}

std::wstring textOf(HWND window) {
  const auto length = static_cast<std::size_t>(ask(window, WM_GETTEXTLENGTH));
  std::wstring text(length + 1, L'\0');
  const LRESULT copied =
      ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(copied));
  return text;
}

std::wstring classOf(HWND window) {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return name;
}

DWORD processOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

std::vector<HWND> allWindows() {
  std::vector<HWND> windows;
  EnumWindows(addWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<HWND> allChildren(HWND window) {
  std::vector<HWND> children;
  EnumChildWindows(window, addWindow, reinterpret_cast<LPARAM>(&children));
  return children;
}

std::vector<HWND> shownWindows() {
  return visible(allWindows());
}

std::vector<HWND> shownChildren(HWND window) {
  return visible(allChildren(window));
}

HWND childOfClass(HWND window, std::wstring_view name) {
  for (HWND child : shownChildren(window))
    if (classOf(child) == name) return child;
  return nullptr;
}

RECT placeOf(HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  return place;
}

POINT middleOf(const RECT& place) {
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

POINT titleOf(const RECT& place) {
  constexpr LONG kBelowTheEdge = 12;
  return {middleOf(place).x, place.top + kBelowTheEdge};
}

GUITHREADINFO inputStateOf(HWND window) {
  GUITHREADINFO state = {};
  state.cbSize = sizeof state;
  GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &state);
  return state;
}

}  // namespace support
