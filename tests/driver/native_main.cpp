#include <fcntl.h>
#include <io.h>

#include <iostream>
#include <string>
#include <thread>

#include "driver/driver.h"
#include "driver/native_stage.h"

namespace {

// The person in front of the program does what standard input says.
void readCommands(driver::NativeStage& stage) {
  driver::Driver driver(stage);
  std::string line;
  while (!driver.quitting() && std::getline(std::cin, line)) {
    const std::string answer = driver.answer(line);
    if (!answer.empty()) std::cout << answer << std::endl;
  }
  stage.end();
}

}  // namespace

int main() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  driver::NativeStage stage;
  std::thread person(readCommands, std::ref(stage));
  stage.run();
  person.join();
}
