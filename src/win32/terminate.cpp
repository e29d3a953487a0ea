#include <exception>

#include "win32/edge.h"

// Ends the program when an exception is not caught.
#ifdef __GLIBCXX__
// Replaces the library's own handler, which would link a name demangler and text output.
void __gnu_cxx::__verbose_terminate_handler() {
  win32::endAfterException();
}
#else
namespace {
const std::terminate_handler kReplaced = std::set_terminate(win32::endAfterException);
}
#endif
