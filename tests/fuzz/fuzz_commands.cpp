#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>

#include "driver/in_memory_stage.h"
#include "fuzz/invariants.h"
#include "fuzz/vocabulary.h"

// An input is a scenario: commands of the driver, a line each. So the scenarios are its corpus, and
// a finding is a scenario as it stands.
namespace fuzz {
namespace {

constexpr std::size_t kMostCommands = 150;

using Commands = std::vector<std::string>;

const Vocabulary& vocabulary() {
  static const Vocabulary words(Vocabulary::For::InMemory);
  return words;
}

Commands commandsIn(const std::uint8_t* data, std::size_t size) {
  std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
  Commands commands;
  for (std::string line; std::getline(lines, line) && commands.size() < kMostCommands;)
    if (!line.empty() && line[0] != '#' && !line.starts_with("=>")) commands.push_back(line);
  return commands;
}

std::string textOf(const Commands& commands) {
  std::string text;
  for (const std::string& command : commands) text += command + "\n";
  return text;
}

std::size_t store(const Commands& commands, std::uint8_t* data, std::size_t room) {
  const std::string text = textOf(commands);
  const std::size_t size = std::min(text.size(), room);
  std::memcpy(data, text.data(), size);
  return size;
}

std::size_t placeIn(const Commands& commands, std::mt19937& random) {
  return std::uniform_int_distribution<std::size_t>(0, commands.size())(random);
}

void mutate(Commands& commands, std::mt19937& random) {
  const auto place = static_cast<std::ptrdiff_t>(placeIn(commands, random));
  const auto at = commands.begin() + place;
  const int kind = std::uniform_int_distribution(0, 5)(random);
  if (kind == 0 && at != commands.end()) {
    commands.erase(at);
  } else if (kind == 1 && at != commands.end()) {
    *at = vocabulary().command(random);
  } else if (kind == 2 && at != commands.end()) {
    commands.insert(at, std::string(*at));
  } else {
    for (int i = 0; i < 4 * kind; ++i)
      commands.insert(commands.begin() + place, vocabulary().command(random));
  }
}

void carryOut(const Commands& commands) {
  auto stage = std::make_unique<driver::InMemoryStage>();
  auto driver = std::make_unique<driver::Driver>(*stage);
  auto watch = std::make_unique<Watch>(*driver);
  for (std::size_t i = 0; i < commands.size(); ++i) {
    if (commands[i] == "reset" || commands[i] == "quit") {
      watch.reset();
      driver.reset();
      stage = std::make_unique<driver::InMemoryStage>();
      driver = std::make_unique<driver::Driver>(*stage);
      watch = std::make_unique<Watch>(*driver);
      continue;
    }
    const std::string broken = watch->carryOut(commands[i]);
    if (broken.empty()) continue;
    std::printf(
        "%s# %s\n%s\n",
        textOf({commands.begin(), commands.begin() + static_cast<std::ptrdiff_t>(i) + 1}).c_str(),
        broken.c_str(), driver->answer("snapshot").c_str());
    std::fflush(stdout);
    std::abort();
  }
}

}  // namespace
}  // namespace fuzz

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  for (const std::string_view name : driver::Driver::commandNames())
    if (name != "quit" && !fuzz::vocabulary().covers(name)) {
      std::printf("the vocabulary lacks the command %s\n", std::string(name).c_str());
      std::exit(1);
    }
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::carryOut(fuzz::commandsIn(data, size));
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t room, unsigned seed) {
  std::mt19937 random(seed);
  fuzz::Commands commands = fuzz::commandsIn(data, size);
  if (commands.empty()) commands = {"start"};
  fuzz::mutate(commands, random);
  return fuzz::store(commands, data, room);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* one, std::size_t oneSize,
                                                 const std::uint8_t* other, std::size_t otherSize,
                                                 std::uint8_t* data, std::size_t room,
                                                 unsigned seed) {
  std::mt19937 random(seed);
  fuzz::Commands commands = fuzz::commandsIn(one, oneSize);
  const fuzz::Commands tail = fuzz::commandsIn(other, otherSize);
  commands.resize(fuzz::placeIn(commands, random));
  commands.insert(commands.end(),
                  tail.begin() + static_cast<std::ptrdiff_t>(fuzz::placeIn(tail, random)),
                  tail.end());
  return fuzz::store(commands, data, room);
}
