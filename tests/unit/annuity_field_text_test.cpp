#include "annuity/field_text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

struct Row {
  std::string_view name;
  std::string_view typed;
  std::string_view shown;
};

class GroupThousands : public testing::TestWithParam<Row> {};

TEST_P(GroupThousands, Reads) {
  EXPECT_EQ(annuity::groupThousands(GetParam().typed), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Amounts, GroupThousands,
    testing::Values(
        Row{"Nothing", "", ""}, Row{"BelowAThousand", "123", "123"},
        Row{"AMillion", "1234567", "1,234,567"},
        Row{"SeparatorsInOtherPlaces", "12,34,5", "12,345"}, Row{"ZerosInFront", "007", "7"},
        Row{"DecimalsAsTyped", "1234.50", "1,234.50"},
        Row{"ManyDecimals", "1234.123456789", "1,234.123456789"},
        Row{"APointAtTheEnd", "1234.", "1,234."}, Row{"APointAtTheFront", ".5", ".5"},
        Row{"APointAlone", ".", "."}, Row{"BelowZero", "-1234", "-1,234"},
        Row{"BelowZeroWithDecimals", "-1234.50", "-1,234.50"}, Row{"AMinusAlone", "-", "-"},
        Row{"AMinusAndAPoint", "-.5", "-.5"}, Row{"ZeroBelowZero", "-0", "-0"},
        Row{"ZeroBelowZeroWithDecimals", "-0.5", "-0.5"},
        Row{"ZeroBelowZeroWithAPoint", "-0.", "-0."}, Row{"AWord", "abc", "abc"},
        Row{"AWordWithDecimals", "abc.56", "abc.56"}, Row{"TwoPoints", "1234.5.6", "1,234.5.6"},
        Row{"AnExponentBehindThePoint", "1234.5E3", "1,234.5E3"},
        Row{"AnAmountInParentheses", "(1,234)", "-1,234"}, Row{"ASeparatorAlone", ",", ","}),
    [](const testing::TestParamInfo<Row>& row) { return std::string(row.param.name); });

}  // namespace
