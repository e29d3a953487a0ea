#include "support/windows.h"

#include <iterator>

namespace support {
namespace {

constexpr UINT kAnswerLimit = 10'000;

BOOL CALLBACK addShown(HWND window, LPARAM list) {
  if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
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

std::vector<HWND> shownWindows() {
  std::vector<HWND> windows;
  EnumWindows(addShown, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<HWND> shownChildren(HWND window) {
  std::vector<HWND> children;
  EnumChildWindows(window, addShown, reinterpret_cast<LPARAM>(&children));
  return children;
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

}  // namespace support
