#pragma once

#include <exception>
#include <string>

namespace common {

/// The numbers of the run-time errors that the program raises.
enum ErrorNumber : int {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kWindowUnusable = 3020,
  kWindowOutdated = 3021,
};

/// An error in a computation of a handler: it ends the handler, whose trap reports it.
class RunTimeError : public std::exception {
 public:
  explicit RunTimeError(int number) : number_(number) {}
  int number() const { return number_; }
  const char* what() const noexcept override { return "run-time error"; }

 private:
  int number_;
};

/// The text that both windows show: "Error:13 Type mismatch". For an error that makes a window
/// unusable, a second line advises the user to reopen it.
std::string errorText(int number);

/// Returns the result of an operation; raises error 6 if it has overflowed.
double finite(double value);

/// Runs `body`; a run-time error ends it and is passed to `report`. False if there was one.
template <class Body, class Reporter>
bool trap(Body&& body, Reporter&& report) {
  try {
    body();
    return true;
  } catch (const RunTimeError& error) {
    report(error);
    return false;
  }
}

}  // namespace common
