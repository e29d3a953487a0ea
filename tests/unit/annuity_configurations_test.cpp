#include "annuity/configurations.h"

#include <gtest/gtest.h>

namespace {

using annuity::configurationBefore;
using annuity::configurationOf;
using annuity::requestedConfiguration;

TEST(RequestedConfiguration, IsThatOfTheMenuItem) {
  EXPECT_EQ(requestedConfiguration(1).code, annuity::kLoan);
  EXPECT_EQ(requestedConfiguration(2).code, annuity::kInvestment);
  EXPECT_EQ(requestedConfiguration(3).code, annuity::kStandard);
}

TEST(RequestedConfiguration, IsInvestmentWithoutARequest) {
  EXPECT_EQ(requestedConfiguration(0).code, annuity::kInvestment);
  EXPECT_EQ(requestedConfiguration(4).code, annuity::kInvestment);
}

TEST(Configurations, FollowEachOtherRoundAndRound) {
  for (const int code : {annuity::kInvestment, annuity::kStandard, annuity::kLoan}) {
    EXPECT_EQ(configurationOf(code).code, code);
    EXPECT_EQ(configurationBefore(configurationOf(code).nextCode).code, code);
  }
  EXPECT_EQ(configurationOf(annuity::kInvestment).nextCode, annuity::kStandard);
  EXPECT_EQ(configurationOf(annuity::kStandard).nextCode, annuity::kLoan);
  EXPECT_EQ(configurationOf(annuity::kLoan).nextCode, annuity::kInvestment);
}

}  // namespace
