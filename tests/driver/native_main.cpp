#include <fcntl.h>
#include <io.h>

#include <thread>

#include "driver/command_loop.h"
#include "driver/native_stage.h"
#include "support/retries.h"
#include "support/taken_desktop.h"

namespace {

// The program runs on the main thread, as usual; another thread acts as its user, following
// standard input.
int carryOutCommands() {
  auto ending = driver::Ending::Reset;
  while (ending == driver::Ending::Reset) {
    driver::NativeStage stage;
    std::thread person([&] {
      ending = driver::runCommands(stage);
      stage.end();
    });
    stage.run();
    person.join();
  }
  return support::retriesAreFew() ? 0 : 1;
}

}  // namespace

int main() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  return support::withDesktop(carryOutCommands);
}
