#pragma once

#include <string_view>

namespace annuity {

/// The codes of the configurations, in the order in which they follow each other.
inline constexpr int kInvestment = 1;
inline constexpr int kStandard = 2;
inline constexpr int kLoan = 3;

/// One of the three problems that the window is made for: what it says, and which amounts it
/// negates before solving.
struct Configuration {
  int code;
  /// The code of the one that follows it.
  int nextCode;
  /// The request of the menu item that opens the window with it.
  int menuRequest;

  std::string_view windowCaption;
  std::string_view termLabel;
  std::string_view paymentLabel;
  std::string_view presentValueLabel;
  std::string_view futureValueLabel;
  /// Whether the hint about the balloon payment shows.
  bool hintsAtBalloon;

  float signPV;
  float signPmt;
  float signFV;

  std::string_view termResult;
  std::string_view paymentResult;
  std::string_view presentValueResult;
  std::string_view futureValueResult;

  std::string_view noteTitle;
  /// The key under which a declined note is stored.
  std::string_view noteKey;
  std::string_view note;
};

/// The configuration of that code.
const Configuration& configurationOf(int code);
/// The configuration that a menu item has requested; Investment without a request.
const Configuration& requestedConfiguration(int menuRequest);
/// The configuration that is followed by the one of that code.
const Configuration& configurationBefore(int nextCode);

}  // namespace annuity
