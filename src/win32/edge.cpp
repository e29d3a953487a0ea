#include "win32/edge.h"

#include <cstdlib>
#include <exception>
#include <string>

namespace win32 {

namespace {

std::string presentError() noexcept {
  try {
    if (const auto exception = std::current_exception()) std::rethrow_exception(exception);
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
  }
  return "unknown error";
}

}  // namespace

void endAfterException() noexcept {
  MessageBoxA(nullptr, presentError().c_str(), "Tallyrex has met an error and must end",
              MB_OK | MB_ICONERROR | MB_TASKMODAL);
  TerminateProcess(GetCurrentProcess(), 1);
  std::abort();
}

}  // namespace win32
