#include "annuity/field_text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

struct FieldCase {
  std::string_view name;
  std::string_view typed;
  std::string_view shown;
};

class GroupThousands : public testing::TestWithParam<FieldCase> {};

TEST_P(GroupThousands, Reads) {
  EXPECT_EQ(annuity::groupThousands(GetParam().typed), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Amounts, GroupThousands,
    testing::Values(
        FieldCase{"Nothing", "", ""}, FieldCase{"BelowAThousand", "123", "123"},
        FieldCase{"AMillion", "1234567", "1,234,567"},
        FieldCase{"SeparatorsInOtherPlaces", "12,34,5", "12,345"},
        FieldCase{"ZerosInFront", "007", "7"}, FieldCase{"DecimalsAsTyped", "1234.50", "1,234.50"},
        FieldCase{"ManyDecimals", "1234.123456789", "1,234.123456789"},
        FieldCase{"APointAtTheEnd", "1234.", "1,234."}, FieldCase{"APointAtTheFront", ".5", ".5"},
        FieldCase{"APointAlone", ".", "."}, FieldCase{"BelowZero", "-1234", "-1,234"},
        FieldCase{"BelowZeroWithDecimals", "-1234.50", "-1,234.50"},
        FieldCase{"AMinusAlone", "-", "-"}, FieldCase{"AMinusAndAPoint", "-.5", "-.5"},
        FieldCase{"ZeroBelowZero", "-0", "-0"},
        FieldCase{"ZeroBelowZeroWithDecimals", "-0.5", "-0.5"},
        FieldCase{"ZeroBelowZeroWithAPoint", "-0.", "-0."}, FieldCase{"AWord", "abc", "abc"},
        FieldCase{"AWordWithDecimals", "abc.56", "abc.56"},
        FieldCase{"TwoPoints", "1234.5.6", "1,234.5.6"},
        FieldCase{"AnExponentBehindThePoint", "1234.5E3", "1,234.5E3"},
        FieldCase{"AnAmountInParentheses", "(1,234)", "-1,234"},
        FieldCase{"ASeparatorAlone", ",", ","}),
    [](const testing::TestParamInfo<FieldCase>& row) { return std::string(row.param.name); });

}  // namespace
