#pragma once

#include <array>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "annuity/configurations.h"
#include "common/run_time_error.h"

namespace annuity {

/// The five quantities of a problem, in the order of the window's fields and of the tape's record.
enum class Quantity { Term, Rate, Payment, PresentValue, FutureValue };

inline constexpr std::array kQuantities = {Quantity::Term, Quantity::Rate, Quantity::Payment,
                                           Quantity::PresentValue, Quantity::FutureValue};

/// Something of each quantity.
template <class Value>
struct PerQuantity {
  std::array<Value, kQuantities.size()> values;

  Value& operator[](Quantity quantity) { return values[static_cast<std::size_t>(quantity)]; }
  const Value& operator[](Quantity quantity) const {
    return values[static_cast<std::size_t>(quantity)];
  }
};

/// A problem as it is keyed: the texts of the five fields, of which the one that is asked for is
/// empty.
struct AnnuityProblem {
  PerQuantity<std::string> texts;
  /// The unit of the term; else it is in years.
  bool termInMonths = true;
  bool dueAtBeginning = false;
};

/// The answer as it is shown, and the caption that says what it is.
struct Answer {
  std::string text;
  std::string_view caption;
};

/// Why a problem is not solved.
enum class Refusal {
  OneMustBeBlank,
  AmountIsNeeded,
};

/// A field that solving writes.
struct WrittenField {
  Quantity quantity;
  std::string_view text;
};

/// What comes of a problem: an answer, a refusal, or the error that the arithmetic met.
struct Outcome {
  /// These are written whatever the result is.
  std::vector<WrittenField> written;
  std::variant<Answer, Refusal, common::RunTimeError> result;
};

/// Finds the quantity that is blank, or the payment where that is "0", in the signs of the
/// configuration.
Outcome solve(const AnnuityProblem& problem, const Configuration& configuration);

/// What is said of a refusal.
std::string_view refusalText(Refusal refusal);

}  // namespace annuity
