#include "common/settings_store.h"

#include <gtest/gtest.h>

#include <string>

#include "inmemory/settings.h"

namespace common {
namespace {

class StoredValue : public testing::Test {
 protected:
  double number(std::string_view text, double fallback = 77) {
    store_.write("Settings", "key", text);
    return readNumber(store_, "Settings", "key", fallback);
  }
  bool truth(std::string_view text, bool fallback) {
    store_.write("Settings", "key", text);
    return readTruth(store_, "Settings", "key", fallback);
  }

  inmemory::Settings store_;
};

TEST_F(StoredValue, FallsBackWhenAbsent) {
  EXPECT_EQ(readNumber(store_, "Settings", "key", 77), 77);
  EXPECT_TRUE(readTruth(store_, "Settings", "key", true));
  EXPECT_FALSE(readTruth(store_, "Settings", "key", false));
  EXPECT_EQ(readText(store_, "Settings", "key", "as designed"), "as designed");
}

TEST_F(StoredValue, FallsBackInAnotherSection) {
  store_.write("Annuity", "key", "5");
  EXPECT_EQ(readNumber(store_, "Settings", "key", 77), 77);
  EXPECT_EQ(readNumber(store_, "Annuity", "key", 77), 5);
}

TEST_F(StoredValue, ReadsANumber) {
  EXPECT_EQ(number("0"), 0);
  EXPECT_EQ(number("-60"), -60);
  EXPECT_EQ(number("16777088"), 16777088);
  EXPECT_EQ(number("1,234.5"), 1234.5);
  EXPECT_EQ(number(" 5 "), 5);
}

TEST_F(StoredValue, FallsBackWhenNotANumber) {
  for (const char* text : {"", "abc", "5x", "-", "1E999", "True", "5\r\n", "\xFF\xFE"}) {
    EXPECT_EQ(number(text), 77) << text;
  }
}

TEST_F(StoredValue, ReadsTrueAndFalseInAnyCase) {
  for (const char* text : {"True", "true", "TRUE", "tRuE"}) EXPECT_TRUE(truth(text, false)) << text;
  for (const char* text : {"False", "false", "FALSE"}) EXPECT_FALSE(truth(text, true)) << text;
}

TEST_F(StoredValue, ReadsNonzeroNumbersAsTrue) {
  for (const char* text : {"1", "-1", "2", "0.5", "1E3"}) EXPECT_TRUE(truth(text, false)) << text;
  for (const char* text : {"0", "-0", "0.00"}) EXPECT_FALSE(truth(text, true)) << text;
}

TEST_F(StoredValue, FallsBackWhenNotATruthValue) {
  for (const char* text : {"", "Truea", "Tru", "Yes", "No", "Wahr", " True", "\xFF", "1E999"}) {
    EXPECT_TRUE(truth(text, true)) << text;
    EXPECT_FALSE(truth(text, false)) << text;
  }
}

TEST_F(StoredValue, ReadsTextsOfAnySize) {
  for (const char filler : {'0', '9', 'T', ',', '\0', '\xFF'}) {
    const std::string text(65536, filler);
    const bool zero = filler == '0';
    EXPECT_EQ(number(text), zero ? 0 : 77);
    EXPECT_EQ(truth(text, true), !zero);
    EXPECT_EQ(readText(store_, "Settings", "key", ""), text);
  }
}

TEST_F(StoredValue, ReadsTextUnchanged) {
  store_.write("Annuity", "key", " 5,x ");
  EXPECT_EQ(readText(store_, "Annuity", "key", "as designed"), " 5,x ");
  store_.write("Annuity", "key", "");
  EXPECT_EQ(readText(store_, "Annuity", "key", "as designed"), "");
}

TEST_F(StoredValue, RoundTripsTruthValues) {
  EXPECT_EQ(truthText(true), "True");
  EXPECT_EQ(truthText(false), "False");
  EXPECT_TRUE(truth(truthText(true), false));
  EXPECT_FALSE(truth(truthText(false), true));
}

}  // namespace
}  // namespace common
