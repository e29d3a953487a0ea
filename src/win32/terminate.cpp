#include <exception>

#include "win32/edge.h"

// What ends the program when an exception is caught by nobody.
#ifdef __GLIBCXX__
// In the place of the library's own, which brings a decoder of names and the printing of text
// along.
void __gnu_cxx::__verbose_terminate_handler() {
  win32::endAfterException();
}
#else
namespace {
const std::terminate_handler kReplaced = std::set_terminate(win32::endAfterException);
}
#endif
