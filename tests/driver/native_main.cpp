#include <fcntl.h>
#include <io.h>

#include <thread>

#include "driver/command_loop.h"
#include "driver/native_stage.h"
#include "support/retries.h"

// The program has the first thread, as ever; the person in front of it does what standard input
// says.
int main() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
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
