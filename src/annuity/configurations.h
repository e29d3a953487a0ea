#pragma once

#include <string_view>

#include "common/annuity_kind.h"

namespace annuity {

/// What the window says of one kind of problem, and which amounts it negates before solving.
struct Configuration {
  common::AnnuityKind kind;

  std::string_view windowCaption;
  std::string_view termLabel;
  std::string_view paymentLabel;
  std::string_view presentValueLabel;
  std::string_view futureValueLabel;
  /// Whether the hint about the balloon payment shows.
  bool hintsAtBalloon;

  int signPV;
  int signPmt;
  int signFV;

  std::string_view termResult;
  std::string_view paymentResult;
  std::string_view presentValueResult;
  std::string_view futureValueResult;

  std::string_view noteTitle;
  /// The key under which a declined note is stored.
  std::string_view noteKey;
  std::string_view note;
};

const Configuration& configurationOf(common::AnnuityKind kind);
/// The one that the window turns to from `configuration`, round and round.
const Configuration& nextConfiguration(const Configuration& configuration);

}  // namespace annuity
