#include <exception>

#include "win32/edge.h"

// What ends the program when an exception is caught by nobody.
namespace {

[[noreturn]] void endUncaught() {
  try {
    if (const auto exception = std::current_exception()) std::rethrow_exception(exception);
  } catch (const std::exception& error) {
    win32::endAfter(error.what());
  } catch (...) {
    win32::endAfter("unknown error");
  }
  win32::endAfter("unknown error");
}

}  // namespace

#ifdef __GLIBCXX__
// In the place of the library's own, which brings a decoder of names and the printing of text
// along.
namespace __cxxabiv1 {
extern std::terminate_handler __terminate_handler;
std::terminate_handler __terminate_handler = endUncaught;
}  // namespace __cxxabiv1
#else
namespace {
const std::terminate_handler kLibrarys = std::set_terminate(endUncaught);
}
#endif
