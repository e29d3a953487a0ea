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

/// One value for each quantity.
template <class Value>
struct PerQuantity {
  std::array<Value, kQuantities.size()> values;

  Value& operator[](Quantity quantity) { return values[static_cast<std::size_t>(quantity)]; }
  const Value& operator[](Quantity quantity) const {
    return values[static_cast<std::size_t>(quantity)];
  }
};

/// A problem as entered: the texts of the five fields, of which the unknown one is empty.
struct AnnuityProblem {
  PerQuantity<std::string> texts;
  /// The unit of the term: months, otherwise years.
  bool termInMonths = true;
  bool dueAtBeginning = false;
};

/// The answer as shown, and its caption.
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

/// The result of a problem: an answer, a refusal or an arithmetic error.
struct Outcome {
  /// Written whatever the result is.
  std::vector<WrittenField> written;
  std::variant<Answer, Refusal, common::RunTimeError> result;
};

/// Solves for the blank quantity, or for the payment if that is "0", with the signs of the
/// configuration.
Outcome solve(const AnnuityProblem& problem, const Configuration& configuration);

/// The message for a refusal.
std::string_view refusalText(Refusal refusal);

}  // namespace annuity
