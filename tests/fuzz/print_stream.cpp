#include <cstdio>
#include <cstdlib>

#include "fuzz/vocabulary.h"

// Prints a random stream of the driver's commands with a snapshot after each:
//   tallyrex-print-stream SEED LENGTH
int main(int count, char** arguments) {
  if (count != 3) {
    std::fputs("tallyrex-print-stream SEED LENGTH\n", stderr);
    return 2;
  }
  std::mt19937 random(static_cast<unsigned>(std::atoi(arguments[1])));
  const fuzz::Vocabulary vocabulary(fuzz::Vocabulary::For::BothKinds);
  std::puts("start");
  for (int i = 0; i < std::atoi(arguments[2]); ++i)
    std::printf("%s\nsnapshot\n", vocabulary.command(random).c_str());
}
