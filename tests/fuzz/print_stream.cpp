#include <cstdio>
#include <cstdlib>
#include <random>

#include "fuzz/command_stream.h"

// Prints a random stream of the driver's commands with a snapshot after each: print_stream SEED
// LENGTH. Both kinds of controls must answer it alike.
int main(int count, char** arguments) {
  if (count != 3) {
    std::fputs("print_stream SEED LENGTH\n", stderr);
    return 2;
  }
  std::mt19937 random(static_cast<unsigned>(std::atoi(arguments[1])));
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(std::atoi(arguments[2])));
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
  for (const std::string& command : fuzz::commandStream(bytes.data(), bytes.size()))
    std::printf("%s\nsnapshot\n", command.c_str());
}
