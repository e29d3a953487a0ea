#include "driver/command_loop.h"

#include <iostream>
#include <string>

namespace driver {

Ending runCommands(Stage& stage) {
  Driver driver(stage);
  std::string line;
  while (driver.ending() == Ending::None && std::getline(std::cin, line)) {
    const std::string answer = driver.answer(line);
    if (!answer.empty()) std::cout << answer << std::endl;
  }
  return std::cin ? driver.ending() : Ending::Quit;
}

}  // namespace driver
