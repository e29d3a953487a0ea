#include "annuity/configurations.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <iterator>

namespace annuity {

using common::AnnuityKind;

namespace {

constexpr std::array kConfigurations = {
    Configuration{
        .kind = AnnuityKind::Investment,
        .windowCaption = "Investment Annuities",
        .termLabel = "Length of &Time:",
        .paymentLabel = "Monthly &Investment:",
        .presentValueLabel = "&Dollars Invested Today:",
        .futureValueLabel = "&Future Value:",
        .hintsAtBalloon = false,
        .signPV = -1,
        .signPmt = -1,
        .signFV = 1,
        .termResult = "Length of Time equals:",
        .paymentResult = "Monthly Investment equals:",
        .presentValueResult = "Dollars Invested Today =",
        .futureValueResult = "Future Value equals:",
        .noteTitle = "Investment Annuity Information",
        .noteKey = "MsgInv",
        .note = "Note: The Monthly Investment amount and the "
                "Dollars Invested Today are set to be negatively "
                "signed in the background.\r\r"
                "Do you wish to see this message again?",
    },
    Configuration{
        .kind = AnnuityKind::Standard,
        .windowCaption = "Standard Annuity Calc",
        .termLabel = "&Term:",
        .paymentLabel = "Monthly P&ayment:",
        .presentValueLabel = "&Present Value:",
        .futureValueLabel = "&Future Value:",
        .hintsAtBalloon = false,
        .signPV = 1,
        .signPmt = 1,
        .signFV = 1,
        .termResult = "Term equals:",
        .paymentResult = "Monthly Payment equals:",
        .presentValueResult = "Present Value equals:",
        .futureValueResult = "Future Value equals:",
        .noteTitle = "Standard Annuity Information",
        .noteKey = "MsgStandard",
        .note = "Note: \r"
                "Each cash OUTFLOW amount needs to be entered as "
                "a negative number.  Examples include: payments, monthly "
                "deposits, monthly investments, or initial cash outlays. \r\r"
                "Each cash INFLOW amount needs to entered as a positive "
                "number. Examples include:  loan amounts, dividend checks, and "
                "future available account balances.\r\r"
                "Do you wish to see this message again?",
    },
    Configuration{
        .kind = AnnuityKind::Loan,
        .windowCaption = "Loan Annuities",
        .termLabel = "Length of &Time:",
        .paymentLabel = "Monthly P&ayment:",
        .presentValueLabel = "&Loan Amount:",
        .futureValueLabel = "&Balloon Payment:",
        .hintsAtBalloon = true,
        .signPV = 1,
        .signPmt = -1,
        .signFV = -1,
        .termResult = "Length of Time equals:",
        .paymentResult = "Monthly Payment equals:",
        .presentValueResult = "Loan Amount equals:",
        .futureValueResult = "Balloon Payment equals:",
        .noteTitle = "Loan Annuity Information",
        .noteKey = "MsgLoan",
        .note = "Note: The Monthly Payment amount and the "
                "Balloon Payment amount (if any) are set to be negatively "
                "signed in the background.\r\r"
                "Do you wish to see this message again?",
    },
};

auto find(AnnuityKind kind) {
  const auto found = std::ranges::find(kConfigurations, kind, &Configuration::kind);
  assert(found != kConfigurations.end());
  return found;
}

}  // namespace

const Configuration& configurationOf(AnnuityKind kind) {
  return *find(kind);
}

const Configuration& nextConfiguration(const Configuration& configuration) {
  const auto next = std::next(find(configuration.kind));
  return next == kConfigurations.end() ? kConfigurations.front() : *next;
}

}  // namespace annuity
