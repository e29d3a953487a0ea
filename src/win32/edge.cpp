#include "win32/edge.h"

#include <cstdlib>

namespace win32 {

void endAfter(const char* error) noexcept {
  MessageBoxA(nullptr, error, "Tallyrex has met an error and must end",
              MB_OK | MB_ICONERROR | MB_TASKMODAL);
  TerminateProcess(GetCurrentProcess(), 1);
  std::abort();
}

}  // namespace win32
