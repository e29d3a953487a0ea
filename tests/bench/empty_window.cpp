#include <windows.h>

// A program that opens an empty window: the minimum cost of a start.
int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  WNDCLASSW definition = {};
  definition.lpfnWndProc = DefWindowProcW;
  definition.hInstance = instance;
  definition.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  definition.lpszClassName = L"EmptyWindow";
  RegisterClassW(&definition);
  CreateWindowW(definition.lpszClassName, L"Empty", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 460,
                260, nullptr, nullptr, instance, nullptr);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
