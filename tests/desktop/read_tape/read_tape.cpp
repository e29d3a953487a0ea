// Prints the tape of the Tallyrex that is open, as any other program can read it: the window text
// of the tape's control. Ends with 1 while there is no such window.
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

BOOL CALLBACK takeTape(HWND window, LPARAM found) {
  wchar_t name[32] = L"";
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  if (std::wstring(name) != L"TallyrexTape") return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

BOOL CALLBACK takeTapeOfWindow(HWND window, LPARAM found) {
  if (!IsWindowVisible(window)) return TRUE;
  EnumChildWindows(window, takeTape, found);
  return *reinterpret_cast<HWND*>(found) == nullptr;
}

std::wstring textOf(HWND window) {
  const auto length = SendMessageW(window, WM_GETTEXTLENGTH, 0, 0);
  std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1);
  const auto copied =
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  return {text.data(), static_cast<std::size_t>(copied)};
}

std::string toUtf8(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  const int bytes =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), bytes, nullptr, nullptr);
  return result;
}

}  // namespace

int main() {
  HWND tape = nullptr;
  EnumWindows(takeTapeOfWindow, reinterpret_cast<LPARAM>(&tape));
  if (tape == nullptr) return 1;
  const std::string text = toUtf8(textOf(tape));
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}
