#include "driver/command_loop.h"
#include "driver/in_memory_stage.h"

int main() {
  auto ending = driver::Ending::Reset;
  while (ending == driver::Ending::Reset) {
    driver::InMemoryStage stage;
    ending = driver::runCommands(stage);
  }
}
