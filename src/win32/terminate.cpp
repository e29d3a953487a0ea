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
void __gnu_cxx::__verbose_terminate_handler() {
  endUncaught();
}
#else
namespace {
const std::terminate_handler kReplaced = std::set_terminate(endUncaught);
}
#endif
