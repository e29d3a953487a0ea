#include "annuity/configurations.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace annuity {
namespace {

constexpr std::array kConfigurations = {
    Configuration{
        .code = kInvestment,
        .nextCode = kStandard,
        .menuRequest = 2,
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
        .code = kStandard,
        .nextCode = kLoan,
        .menuRequest = 3,
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
        .code = kLoan,
        .nextCode = kInvestment,
        .menuRequest = 1,
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

const Configuration& find(int Configuration::*member, int value) {
  const auto found = std::ranges::find(kConfigurations, value, member);
  assert(found != kConfigurations.end());
  return *found;
}

}  // namespace

const Configuration& configurationOf(int code) {
  return find(&Configuration::code, code);
}

const Configuration& requestedConfiguration(int menuRequest) {
  const auto found = std::ranges::find(kConfigurations, menuRequest, &Configuration::menuRequest);
  return found == kConfigurations.end() ? kConfigurations.front() : *found;
}

const Configuration& configurationBefore(int nextCode) {
  return find(&Configuration::nextCode, nextCode);
}

}  // namespace annuity
