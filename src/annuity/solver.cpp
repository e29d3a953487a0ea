#include <algorithm>
#include <cmath>

#include "annuity/answer_text.h"
#include "annuity/frm_annuity.h"
#include "annuity/time_value.h"
#include "common/number_text.h"

namespace annuity {

using common::toNumber;
using controls::TextBox;

namespace {

bool isBlank(const TextBox& field) {
  return field.length() == 0;
}

double finite(double value) {
  if (!std::isfinite(value)) throw common::RunTimeError(common::kOverflow);
  return value;
}

}  // namespace

void frmAnnuity::cmdCalculate_Click() {
  common::trap([this] { Calculate(); },
               [this](const common::RunTimeError& error) { ReportAnnuityError(error); });
}

void frmAnnuity::Calculate() {
  constexpr std::string_view kOneBlank =
      "One of the boxes must be left blank while the others must contain numbers.";
  if (isBlank(txtFV)) {
    if (blankFields() > 0) return showMessage(kOneBlank);
    return CalcFutureValue();
  }
  // A payment of 0 asks for the payment.
  if (txtPmt.text() == "0") txtPmt.setText("");
  if (blankFields() != 1) return showMessage(kOneBlank);
  if (isBlank(txtPmt)) SolvePayment();
  if (isBlank(txtRate)) SolveRate();
  if (isBlank(txtNper)) SolveTerm();
  if (isBlank(txtPV)) SolvePresentValue();
  cmdPrintToTape.setVisible(true);
}

void frmAnnuity::CalcFutureValue() {
  common::trap([this] { SolveFutureValue(); },
               [this](const common::RunTimeError& error) { ReportAnnuityError(error); });
}

// The checks are its own, whatever its caller has found.
void frmAnnuity::SolveFutureValue() {
  if (txtFV.text() == "0") txtFV.setText("");
  if (!isBlank(txtFV)) {
    showMessage("Future Value box should be blank to calculate.");
    txtFV.setText("");
  }
  const bool noPayment = zeroWhenBlank(txtPmt);
  const bool noPresentValue = zeroWhenBlank(txtPV);
  if (isBlank(txtNper) || isBlank(txtRate))
    return showMessage(showing().code == kLoan
                           ? "The Term and Interest Rate must contain numbers for the Balloon "
                             "Payment calculation. "
                           : "The Term and Interest Rate must contain numbers for the Future "
                             "Value calculation. ");
  if (noPayment && noPresentValue)
    return showMessage(
        "Either the Payment or Present Value must contain a number for this calculation and zero "
        "is allowed for one or the other but not both. ");
  const double rate = monthlyRate();
  const double nper = months();
  const double pmt = toNumber(txtPmt.text()) * msngSignPmt;
  const double pv = toNumber(txtPV.text()) * msngSignPV;
  showAnswer(moneyAnswer(FV(rate, nper, pmt, pv, mintDueBegin) * msngSignFV),
             showing().futureValueResult);
  cmdPrintToTape.setVisible(true);
}

void frmAnnuity::SolvePayment() {
  const double rate = monthlyRate();
  const double nper = months();
  const double pv = toNumber(txtPV.text()) * msngSignPV;
  const double fv = toNumber(txtFV.text()) * msngSignFV;
  showAnswer(moneyAnswer(Pmt(rate, nper, pv, fv, mintDueBegin) * msngSignPmt),
             showing().paymentResult);
}

void frmAnnuity::SolveRate() {
  const double nper = months();
  const double pmt = toNumber(txtPmt.text()) * msngSignPmt;
  const double pv = toNumber(txtPV.text()) * msngSignPV;
  const double fv = toNumber(txtFV.text()) * msngSignFV;
  showAnswer(rateAnswer(finite(Rate(nper, pmt, pv, fv, mintDueBegin) * 12)),
             "Interest Rate equals:");
}

void frmAnnuity::SolveTerm() {
  const double rate = monthlyRate();
  const double pmt = toNumber(txtPmt.text()) * msngSignPmt;
  const double pv = toNumber(txtPV.text()) * msngSignPV;
  const double fv = toNumber(txtFV.text()) * msngSignFV;
  const double term = NPer(rate, pmt, pv, fv, mintDueBegin);
  showAnswer(optNper[0]->value() ? termInMonths(term) : termInYears(term), showing().termResult);
}

void frmAnnuity::SolvePresentValue() {
  const double rate = monthlyRate();
  const double nper = months();
  const double pmt = toNumber(txtPmt.text()) * msngSignPmt;
  const double fv = toNumber(txtFV.text()) * msngSignFV;
  showAnswer(moneyAnswer(PV(rate, nper, pmt, fv, mintDueBegin) * msngSignPV),
             showing().presentValueResult);
}

void frmAnnuity::ReportAnnuityError(const common::RunTimeError& error) {
  showMessage(annuityErrorText(error.number(), cmdPrintToTape.visible()));
}

int frmAnnuity::blankFields() const {
  return static_cast<int>(std::ranges::count_if(std::array{&txtNper, &txtRate, &txtPmt, &txtPV},
                                                [](const auto* field) { return isBlank(*field); }));
}

// Reads an empty amount as 0, and writes it; tells whether the amount is 0.
bool frmAnnuity::zeroWhenBlank(TextBox& field) {
  if (!isBlank(field) && field.text() != "0") return false;
  field.setText("0");
  return true;
}

// The rate is a year's, in percent; a period is a month, whatever the unit of the term.
double frmAnnuity::monthlyRate() const {
  return toNumber(txtRate.text()) * 0.01 / 12;
}

double frmAnnuity::months() const {
  const double term = toNumber(txtNper.text());
  return optNper[0]->value() ? term : finite(term * 12);
}

void frmAnnuity::showAnswer(std::string_view answer, std::string_view resultType) {
  lblAnswer.setCaption(answer);
  lblResultType.setCaption(resultType);
}

void frmAnnuity::showMessage(std::string_view text) {
  desktop_.showMessage({.text = std::string(text)});
}

}  // namespace annuity
