#include "desktop/program/other_program.h"

#include "support/wait.h"
#include "support/windows.h"

namespace program {

using namespace support;

OtherProgram::OtherProgram()
    : window_(CreateWindowExW(0, L"EDIT", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 800, 600, 300, 100,
                              nullptr, nullptr, GetModuleHandleW(nullptr), nullptr)) {}

OtherProgram::~OtherProgram() {
  DestroyWindow(window_);
}

void OtherProgram::comeToFront() {
  await("another program in front", [this] {
    SetForegroundWindow(window_);
    SetFocus(window_);
    work();
    return GetForegroundWindow() == window_;
  });
}

void OtherProgram::work() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN)
      keys_ += static_cast<wchar_t>(message.wParam);
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

std::wstring OtherProgram::text() const {
  return textOf(window_);
}

}  // namespace program
