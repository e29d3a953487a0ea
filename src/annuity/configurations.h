#pragma once

#include <string_view>

#include "common/annuity_kind.h"

namespace annuity {

/// The texts of the window for one kind of problem, and the signs that it applies before solving.
struct Configuration {
  common::AnnuityKind kind;

  std::string_view windowCaption;
  std::string_view termLabel;
  std::string_view paymentLabel;
  std::string_view presentValueLabel;
  std::string_view futureValueLabel;
  /// Whether the hint about the balloon payment is shown.
  bool hintsAtBalloon;

  int signPV;
  int signPmt;
  int signFV;

  std::string_view termResult;
  std::string_view paymentResult;
  std::string_view presentValueResult;
  std::string_view futureValueResult;

  std::string_view noteTitle;
  /// The settings key under which the answer No is stored.
  std::string_view noteKey;
  std::string_view note;
};

const Configuration& configurationOf(common::AnnuityKind kind);
/// The next configuration in the cycle of the Rotate button.
const Configuration& nextConfiguration(const Configuration& configuration);

}  // namespace annuity
