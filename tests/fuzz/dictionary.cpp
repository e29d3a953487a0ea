#include "fuzz/dictionary.h"

#include <array>
#include <string_view>

namespace fuzz {

namespace {

constexpr auto kAmounts = std::to_array<std::string_view>({"0",
                                                           "-0",
                                                           "0.00",
                                                           ".5",
                                                           "5.",
                                                           "1",
                                                           "0.01",
                                                           "1.005",
                                                           "12.50",
                                                           "99.99",
                                                           "100",
                                                           "1,234.50",
                                                           "-1234.56",
                                                           "0.1",
                                                           "0.333333333333333",
                                                           "999999999999999",
                                                           "-999999999999999",
                                                           "99999999999.99",
                                                           "123456789012345",
                                                           "1234567890123456",
                                                           "0.000000000000001",
                                                           "1E+15",
                                                           "1E-15",
                                                           "2E307",
                                                           "8E307",
                                                           "1E+308",
                                                           "-1E400",
                                                           "(5)",
                                                           "($1,234.50)",
                                                           "$12",
                                                           "5-",
                                                           "12,50",
                                                           "1,23",
                                                           "7.5",
                                                           "360",
                                                           "30",
                                                           "100000",
                                                           "699.2145085527766",
                                                           "-699.21",
                                                           "12.345",
                                                           "1e-7"});

constexpr auto kOperators =
    std::to_array<std::string_view>({"", "+", "-", "*", "/", "=", "n", "p", "s", "\r"});

constexpr auto kTexts = std::to_array<std::string_view>({"",
                                                         " ",
                                                         "abc",
                                                         "-",
                                                         "+",
                                                         ".",
                                                         ",",
                                                         "1\r\n2",
                                                         "1\r\n",
                                                         "12 34",
                                                         "\t5",
                                                         "1-2",
                                                         "--5",
                                                         "1.2.3",
                                                         "True",
                                                         "False",
                                                         "\xC3\xA9",
                                                         "\xF0\x9F\x98\x80",
                                                         "\xE2\x88\x9A",
                                                         "1E",
                                                         "&",
                                                         "Error"});

constexpr auto kDoubles =
    std::to_array<std::string_view>({"0", "1", "-1", "0.1", "0.00625", "1e-10", "360", "-100000",
                                     "699.21", "1e300", "-0.999999999", "12", "-12.5", "1e-300"});

template <class Words>
std::string oneOf(const Words& words, std::mt19937& random) {
  return std::string(
      words[std::uniform_int_distribution<std::size_t>(0, words.size() - 1)(random)]);
}

int number(std::mt19937& random, int low, int high) {
  return std::uniform_int_distribution(low, high)(random);
}

}  // namespace

std::string randomAmount(std::mt19937& random) {
  if (number(random, 0, 1) == 0) return oneOf(kAmounts, random);
  std::string amount = std::to_string(number(random, 0, 99999));
  if (number(random, 0, 1) == 0) amount += "." + std::to_string(number(random, 0, 99));
  return amount;
}

std::string randomOperator(std::mt19937& random) {
  return oneOf(kOperators, random);
}

std::string randomText(std::mt19937& random) {
  return oneOf(kTexts, random);
}

std::string randomPaste(std::mt19937& random) {
  constexpr std::size_t kMegabytes = 10'000'000;
  const int kind = number(random, 0, 2000);
  if (kind == 0) return std::string(kMegabytes, '7');
  if (kind < 20) return std::string(static_cast<std::size_t>(number(random, 1, 5000)), '9');
  return randomText(random);
}

std::string randomDouble(std::mt19937& random) {
  return oneOf(kDoubles, random);
}

}  // namespace fuzz
