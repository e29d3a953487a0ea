#include "engine/decimal_formats.h"

#include <gtest/gtest.h>

#include <vector>

#include "common/run_time_error.h"

namespace engine {
namespace {

struct FloatingCase {
  const char* whatAUserSees;
  const char* typed;
  const char* shown;
};

TEST(DecimalFormats, FloatingDecimal) {
  const std::vector<FloatingCase> cases = {
      {"an empty entry stays empty", "", ""},
      {"digits are grouped by thousands", "1234", "1,234"},
      {"a grouped entry stays as it is", "1,234", "1,234"},
      {"separators move with the digits", "1,2345", "12,345"},
      {"zeros in front go", "007", "7"},
      {"the zeros typed behind the point stay", "0.000", "0.000"},
      {"decimals stay exactly as typed", "1234.5678901", "1,234.5678901"},
      {"a point that ends the entry stays", "1234.", "1,234."},
      {"a point that begins the entry stays in front", ".5", ".5"},
      {"a lone point stays", ".", "."},
      {"a lone minus stays", "-", "-"},
      {"a minus in front of the point stays", "-.5", "-.5"},
      {"the sign of a zero in front of the point stays", "-0.5", "-0.5"},
      {"the sign of a zero without decimals stays", "-0", "-0"},
      {"the sign of a zero and its point stay", "-0.", "-0."},
      {"a negative number is grouped", "-1234.5", "-1,234.5"},
      {"a tiny result is spelt out", "3.33333333333333E-06", ".00000333333333"},
      {"a tiny negative result is spelt out", "-3.33333333333333E-06", "-.00000333333333"},
      {"a tiny result rounds at the fourteenth place", "1.5E-14", ".00000000000002"},
      {"a huge result with a point is spelt out", "1.5E+16", "15000000000000000.00000000000000"},
      {"a huge result without one is grouped", "1E+16", "10,000,000,000,000,000"},
      {"below a thousand an exponent is spelt out", "999.5E-02", "9.99500000000000"},
      {"from a thousand on it stays", "1000.5E-02", "1,000.5E-02"},
      {"what is no number stays", "Error", "Error"},
      {"two points stay for the next key to report", "0..12", "0..12"},
  };
  for (const FloatingCase& each : cases)
    EXPECT_EQ(formatFloating(each.typed), each.shown) << each.whatAUserSees;
}

TEST(DecimalFormats, TextBeforeThePointIsAnErrorInFloatingDecimal) {
  EXPECT_THROW(formatFloating("5-3.2"), common::RunTimeError);
}

struct PlacesCase {
  const char* whatAUserSees;
  const char* typed;
  int places;
  const char* shown;
};

TEST(DecimalFormats, KeyedPoint) {
  const std::vector<PlacesCase> cases = {
      {"an empty entry stays empty", "", 2, ""},
      {"digits are grouped, and no decimals are added", "1234", 2, "1,234"},
      {"one decimal of two is shown as one", "1234.5", 2, "1,234.5"},
      {"the point just keyed is shown", "1234.", 2, "1,234."},
      {"a zero typed behind the point stays", "1234.50", 2, "1,234.50"},
      {"a number with more decimals is rounded", "1.006", 2, "1.01"},
      {"half a cent is rounded away from zero", "1.005", 2, "1.01"},
      {"with no places there is no point", "12.5", 0, "13"},
      {"nine places are shown", "0.123456789", 9, "0.123456789"},
      {"a point in front gets its zero", ".5", 2, "0.5"},
      {"a lone point stays", ".", 2, "."},
      {"a lone minus stays", "-", 2, "-"},
      {"the sign of a typed zero stays", "-0", 2, "-0"},
      {"the sign of typed zeros stays", "-0.00", 2, "-0.00"},
      {"the sign in front of the point stays", "-.5", 2, "-0.5"},
      {"a total of fifteen nines is shown whole", "999999999999999", 2, "999,999,999,999,999"},
      {"what is no number stays", "Error", 2, "Error"},
  };
  for (const PlacesCase& each : cases)
    EXPECT_EQ(formatKeyed(each.typed, each.places), each.shown) << each.whatAUserSees;
}

TEST(DecimalFormats, StationaryDecimal) {
  const std::vector<PlacesCase> cases = {
      {"5 is five hundredths", "5", 2, "0.05"},
      {"12 is twelve hundredths", "12", 2, "0.12"},
      {"125", "125", 2, "1.25"},
      {"1250 keeps its zero", "1250", 2, "12.50"},
      {"1500 keeps both zeros", "1500", 2, "15.00"},
      {"100000 is a thousand", "100000", 2, "1,000.00"},
      {"12340 with three places", "12340", 3, "12.340"},
      {"10 with three places", "10", 3, "0.010"},
      {"a million hundredths and ten", "1000010", 2, "10,000.10"},
      {"one place", "15", 1, "1.5"},
      {"four places", "15", 4, "0.0015"},
      {"five places", "15", 5, "0.00015"},
      {"six places", "15", 6, "0.000015"},
      {"seven places", "15", 7, "0.0000015"},
      {"eight places", "15", 8, "0.00000015"},
      {"nine places", "1", 9, "0.000000001"},
      {"fifteen digits behind nine places", "123456789012345", 9, "123,456.789012345"},
      {"the point shown is not one of the digits", "0.125", 2, "1.25"},
      {"nor are the separators", "1,000.005", 2, "10,000.05"},
      {"a zero is not scaled", "0", 2, "0"},
      {"a negative number", "-125", 2, "-1.25"},
      {"the sign of typed zeros stays", "-0", 2, "-0"},
      {"the sign of a number smaller than one stays", "-5", 2, "-0.05"},
      {"with no places the digits are a whole number", "10", 0, "10"},
      {"with no places thousands are grouped", "1000", 0, "1,000"},
      {"a lone minus stays", "-", 2, "-"},
      {"an empty entry stays empty", "", 2, ""},
  };
  for (const PlacesCase& each : cases)
    EXPECT_EQ(formatStationary(each.typed, each.places), each.shown) << each.whatAUserSees;
}

TEST(DecimalFormats, NonNumericTextIsAnErrorInStationaryDecimal) {
  EXPECT_THROW(formatStationary("5-3", 2), common::RunTimeError);
}

TEST(DecimalFormats, ValueThatWasNotKeyed) {
  const std::vector<PlacesCase> cases = {
      {"a pasted 12 has both places", "12", 2, "12.00"},
      {"a recalled 1.006 is rounded", "1.006", 2, "1.01"},
      {"an eighth is rounded away from zero", "0.125", 2, "0.13"},
      {"thousands are grouped", "1234.5", 2, "1,234.50"},
      {"with no places there is no point", "12.5", 0, "13"},
      {"the sign of a zero waits for digits", "-0", 2, "-0.00"},
      {"an empty entry stays empty", "", 2, ""},
  };
  for (const PlacesCase& each : cases)
    EXPECT_EQ(formatValue(each.typed, each.places), each.shown) << each.whatAUserSees;
}

TEST(DecimalFormats, TotalPatternHasAllPlaces) {
  EXPECT_EQ(decimalsPattern(0), "###,###,###,###,##0");
  EXPECT_EQ(decimalsPattern(1), "###,###,###,###,##0.0");
  EXPECT_EQ(decimalsPattern(2), "###,###,###,###,##0.00");
  EXPECT_EQ(decimalsPattern(9), "###,###,###,###,##0.000000000");
}

}  // namespace
}  // namespace engine
