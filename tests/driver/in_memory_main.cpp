#include <iostream>
#include <string>

#include "driver/driver.h"
#include "driver/in_memory_stage.h"

int main() {
  driver::InMemoryStage stage;
  driver::Driver driver(stage);
  std::string line;
  while (!driver.quitting() && std::getline(std::cin, line)) {
    const std::string answer = driver.answer(line);
    if (!answer.empty()) std::cout << answer << std::endl;
  }
}
