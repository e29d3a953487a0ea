#include "annuity/configurations.h"

#include <gtest/gtest.h>

namespace {

using annuity::configurationOf;
using annuity::nextConfiguration;
using common::AnnuityKind;

TEST(Configurations, EachMatchesItsKind) {
  for (const AnnuityKind kind : {AnnuityKind::Investment, AnnuityKind::Standard, AnnuityKind::Loan})
    EXPECT_EQ(configurationOf(kind).kind, kind);
}

TEST(Configurations, RotateInACycle) {
  const auto next = [](AnnuityKind kind) { return nextConfiguration(configurationOf(kind)).kind; };
  EXPECT_EQ(next(AnnuityKind::Investment), AnnuityKind::Standard);
  EXPECT_EQ(next(AnnuityKind::Standard), AnnuityKind::Loan);
  EXPECT_EQ(next(AnnuityKind::Loan), AnnuityKind::Investment);
}

}  // namespace
