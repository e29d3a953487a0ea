#include <cstdio>
#include <cstdlib>

#include "driver/in_memory_stage.h"
#include "fuzz/command_stream.h"
#include "fuzz/invariants.h"

namespace {

// Declined notes and the driver's own settings are added to the stored fields.
bool isReplaced(const driver::Json& fields, driver::Driver& driver, const std::string& command) {
  if (fields.is_null() || command.starts_with("store ")) return false;
  const driver::Json now = fuzz::storedFields(driver);
  for (const auto& [key, text] : now.items())
    if (key.starts_with("txt") && (!fields.contains(key) || fields[key] != text)) return true;
  return false;
}

}  // namespace

// Prints the driver commands, ready to be copied into a scenario.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  driver::InMemoryStage stage;
  driver::Driver driver(stage);
  std::string done;
  for (const std::string& command : fuzz::commandStream(data, size)) {
    done += command + "\n";
    const driver::Json fields = fuzz::fieldsAtRest(driver);
    driver.answer(command);
    std::string broken = fuzz::findBroken(driver);
    if (isReplaced(fields, driver, command))
      broken = "a stored field is replaced by what was not restored";
    if (broken.empty()) continue;
    std::printf("%s# %s\n%s\n", done.c_str(), broken.c_str(), driver.answer("snapshot").c_str());
    std::abort();
  }
  return 0;
}
