#include "annuity/problem.h"

#include <algorithm>

#include "annuity/answer_text.h"
#include "annuity/time_value.h"
#include "common/number_text.h"

namespace annuity {

namespace {

/// The quantities as arguments of the time-value functions; the unknown is 0.
struct Flows {
  double rate;
  double nper;
  double pmt;
  double pv;
  double fv;
  int due;
};

// The window groups amounts while they are keyed; a term or a rate is taken as typed.
double numberOf(Quantity quantity, const std::string& text) {
  const bool asTyped = quantity == Quantity::Term || quantity == Quantity::Rate;
  if (asTyped && common::hasOddCommas(text)) throw common::RunTimeError(common::kTypeMismatch);
  return common::toNumber(text);
}

// The rate is annual, in percent; a period is a month, whatever the unit of the term.
Flows flowsOf(const AnnuityProblem& problem, Quantity unknown, const Configuration& configuration) {
  const auto number = [&](Quantity quantity) {
    return quantity == unknown ? 0 : numberOf(quantity, problem.texts[quantity]);
  };
  return {
      .rate = number(Quantity::Rate) * 0.01 / 12,
      .nper = common::finite(number(Quantity::Term) * (problem.termInMonths ? 1 : 12)),
      .pmt = number(Quantity::Payment) * configuration.signPmt,
      .pv = number(Quantity::PresentValue) * configuration.signPV,
      .fv = number(Quantity::FutureValue) * configuration.signFV,
      .due = problem.dueAtBeginning ? 1 : 0,
  };
}

std::string termAnswer(double months, bool inMonths) {
  return inMonths ? termInMonths(months) : termInYears(months);
}

Answer answerTo(const AnnuityProblem& problem, Quantity unknown, const Configuration& asked) {
  const auto [rate, nper, pmt, pv, fv, due] = flowsOf(problem, unknown, asked);
  switch (unknown) {
    case Quantity::Term:
      return {termAnswer(annuity::nper(rate, pmt, pv, fv, due), problem.termInMonths),
              asked.termResult};
    case Quantity::Rate:
      return {rateAnswer(common::finite(annuity::rate(nper, pmt, pv, fv, due) * 12)),
              "Interest Rate equals:"};
    case Quantity::Payment:
      return {moneyAnswer(annuity::pmt(rate, nper, pv, fv, due) * asked.signPmt),
              asked.paymentResult};
    case Quantity::PresentValue:
      return {moneyAnswer(annuity::pv(rate, nper, pmt, fv, due) * asked.signPV),
              asked.presentValueResult};
    case Quantity::FutureValue:
      break;
  }
  return {moneyAnswer(annuity::fv(rate, nper, pmt, pv, due) * asked.signFV),
          asked.futureValueResult};
}

std::vector<Quantity> blanksOf(const PerQuantity<std::string>& texts) {
  std::vector<Quantity> blanks;
  std::ranges::copy_if(kQuantities, std::back_inserter(blanks),
                       [&](Quantity quantity) { return texts[quantity].empty(); });
  return blanks;
}

/// The unknown quantity, or why there is none. Records what has to be written into fields.
std::variant<Quantity, Refusal> unknownOf(AnnuityProblem& problem,
                                          std::vector<WrittenField>& written) {
  auto& texts = problem.texts;
  if (texts[Quantity::FutureValue].empty()) {
    if (blanksOf(texts).size() > 1) return Refusal::OneMustBeBlank;
    for (const Quantity amount : {Quantity::Payment, Quantity::PresentValue})
      if (texts[amount] == "0") written.push_back({amount, "0"});
    if (written.size() == 2) return Refusal::AmountIsNeeded;
    return Quantity::FutureValue;
  }
  // A payment of 0 counts as blank.
  if (texts[Quantity::Payment] == "0") {
    texts[Quantity::Payment].clear();
    written.push_back({Quantity::Payment, ""});
  }
  const auto blanks = blanksOf(texts);
  if (blanks.size() != 1) return Refusal::OneMustBeBlank;
  return blanks.front();
}

}  // namespace

Outcome solve(const AnnuityProblem& problem, const Configuration& configuration) {
  Outcome outcome;
  AnnuityProblem asked = problem;
  const auto unknown = unknownOf(asked, outcome.written);
  if (const auto* refusal = std::get_if<Refusal>(&unknown)) {
    outcome.result = *refusal;
    return outcome;
  }
  common::trap(
      [&] { outcome.result = answerTo(asked, std::get<Quantity>(unknown), configuration); },
      [&](const common::RunTimeError& error) { outcome.result = error; });
  return outcome;
}

std::string_view refusalText(Refusal refusal) {
  if (refusal == Refusal::OneMustBeBlank)
    return "One of the boxes must be left blank while the others must contain numbers.";
  return "Either the Payment or Present Value must contain a number for this calculation and zero "
         "is allowed for one or the other but not both. ";
}

}  // namespace annuity
