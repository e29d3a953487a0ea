// What takes the place of Notepad in a test. TALLYREX_NOTEPAD says what it does:
//   slow 8000  shows an empty text, but only after so many milliseconds
//   vanishing  shows a window that closes at once
//   tabbed     shows a window with an old note in it; started a second time, it brings that window
//              to the front and ends. Ctrl+N opens an empty text beside the note.
#include <windows.h>

#include <iterator>
#include <string>

namespace {

constexpr wchar_t kClassName[] = L"Notepad";
constexpr wchar_t kSlow[] = L"slow ";

std::wstring environment(const wchar_t* name) {
  wchar_t text[MAX_PATH] = L"";
  GetEnvironmentVariableW(name, text, MAX_PATH);
  return text;
}

HWND addText(HWND window, const wchar_t* text) {
  const HWND edit =
      CreateWindowExW(0, L"EDIT", text, WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_AUTOVSCROLL, 0, 0,
                      500, 300, window, nullptr, GetModuleHandleW(nullptr), nullptr);
  SetWindowPos(edit, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  SetFocus(edit);
  return edit;
}

LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SETFOCUS) SetFocus(GetWindow(window, GW_CHILD));
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

HWND showWindow() {
  WNDCLASSW definition = {};
  definition.lpfnWndProc = receive;
  definition.hInstance = GetModuleHandleW(nullptr);
  definition.lpszClassName = kClassName;
  RegisterClassW(&definition);
  const HWND window =
      CreateWindowExW(0, kClassName, L"A stand-in", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 300, 300, 520,
                      340, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  SetForegroundWindow(window);
  return window;
}

void edit(const wchar_t* text) {
  const HWND window = showWindow();
  addText(window, text);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (message.message == WM_KEYDOWN && message.wParam == 'N' && GetKeyState(VK_CONTROL) < 0) {
      addText(window, L"");
      continue;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void runTabbed() {
  if (const HWND running = FindWindowW(kClassName, nullptr)) {
    SetForegroundWindow(running);
    return;
  }
  edit(L"an old note");
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  const std::wstring kind = environment(L"TALLYREX_NOTEPAD");
  if (kind.rfind(kSlow, 0) == 0) {
    Sleep(std::stoul(kind.substr(std::size(kSlow) - 1)));
    edit(L"");
  }
  if (kind == L"vanishing") DestroyWindow(showWindow());
  if (kind == L"tabbed") runTabbed();
  return 0;
}
