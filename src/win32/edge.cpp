#include "win32/edge.h"

namespace win32 {

void endAfter(const char* error) noexcept {
  MessageBoxA(nullptr, error, "Tallyrex has met an error and must end",
              MB_OK | MB_ICONERROR | MB_TASKMODAL);
  TerminateProcess(GetCurrentProcess(), 1);
  __builtin_unreachable();
}

}  // namespace win32
