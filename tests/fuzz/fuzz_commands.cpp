#include <cstdio>
#include <cstdlib>

#include "driver/in_memory_stage.h"
#include "fuzz/command_stream.h"
#include "fuzz/invariants.h"

// Prints what was done, in the driver's own commands: a finding becomes a scenario by copying it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  driver::InMemoryStage stage;
  driver::Driver driver(stage);
  std::string done;
  for (const std::string& command : fuzz::commandStream(data, size)) {
    done += command + "\n";
    driver.answer(command);
    const std::string broken = fuzz::findBroken(driver);
    if (broken.empty()) continue;
    std::printf("%s# %s\n%s\n", done.c_str(), broken.c_str(), driver.answer("snapshot").c_str());
    std::abort();
  }
  return 0;
}
