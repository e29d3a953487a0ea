#include "fuzz/money.h"

#include <string_view>

namespace fuzz {

namespace {

std::string textOf(const driver::Json& shown, const char* key) {
  return shown.is_object() ? shown.value(key, "") : "";
}

std::vector<std::string> linesOf(const std::string& tape) {
  std::vector<std::string> lines;
  for (std::size_t from = 0; from <= tape.size();) {
    const std::size_t end = std::min(tape.find("\r\n", from), tape.size());
    lines.push_back(tape.substr(from, end - from));
    from = end + 2;
  }
  return lines;
}

int placesOf(const driver::Json& shown) {
  constexpr int kFloating = 15;
  const std::string places = textOf(shown, "dec");
  if (shown.value("floating", 0) == 1) return kFloating;
  return places.size() == 1 && places >= "0" && places <= "9" ? places[0] - '0' : 0;
}

bool isOnTape(const Step& step) {
  return textOf(step.before, "focus") == "txtTape" || textOf(step.after, "focus") == "txtTape" ||
         step.command.find("txtTape") != std::string::npos;
}

// A tape that has been cleared begins again.
bool isHeader(const std::string& tape) {
  return tape.starts_with("Top") && tape.find("\r\n") == std::string::npos;
}

bool isClick(const Step& step, std::string_view control) {
  return !step.refused && (step.command == "click frmCalc." + std::string(control) ||
                           step.command == "click " + std::string(control));
}

}  // namespace

void Money::forget() {
  sum_ = 0;
  memory_ = 0;
}

std::string Money::findBroken(const Step& step) {
  if (!step.before.is_object() || !step.after.is_object()) {
    forget();
    return "";
  }
  std::string broken = findChangedTape(step);
  if (broken.empty()) broken = findWrongTotal(step);
  if (broken.empty()) broken = findWrongMemory(step);
  return broken;
}

std::string Money::findChangedTape(const Step& step) {
  const std::string before = textOf(step.before, "tape");
  const std::string after = textOf(step.after, "tape");
  if (isOnTape(step) || after.starts_with(before) || isHeader(after)) return "";
  // A command of several keys may have cleared the tape on its way.
  if (step.command.starts_with("type") || step.command.starts_with("roll")) return "";
  return "the tape has changed where nobody edited it";
}

// A total is taken for one when it stands on the tape behind additions alone, all of them printed,
// in the mode of the adding machine.
std::string Money::findWrongTotal(const Step& step) {
  const std::string before = textOf(step.before, "tape");
  const std::string after = textOf(step.after, "tape");
  const bool adds = textOf(step.after, "caption") == "Add Mode, Tallyrex" &&
                    textOf(step.before, "caption") == textOf(step.after, "caption");
  // C&Total prints the total that it has set to zero.
  const bool clears = step.command.find("cmdClear") != std::string::npos ||
                      step.command.starts_with("press Alt+") ||
                      textOf(step.before, "focus").starts_with("cmdClear");
  const bool hidden = step.before.value("tape_off", 0) == 1 || step.after.value("tape_off", 0) == 1;
  if (!after.starts_with(before) || isOnTape(step) || !adds || hidden || clears) {
    sum_.reset();
    // With nothing pending, the next amount is the first.
    if (adds && !hidden && step.after.value("modes_enabled", false)) sum_ = 0;
    return "";
  }
  for (const std::string& line : linesOf(after.substr(before.size()))) {
    const std::string broken = addLine(line, placesOf(step.after));
    if (!broken.empty()) return broken;
  }
  if (step.after.value("modes_enabled", false)) sum_ = 0;
  return "";
}

std::string Money::addLine(const std::string& line, int places) {
  if (line.find_first_not_of(' ') == std::string::npos) return "";
  const std::size_t from = line.find_first_not_of(' ');
  const std::size_t end = line.find(' ', from);
  const auto amount = exactAmount(line.substr(from, end - from));
  const std::string mark = end == std::string::npos ? "" : line.substr(end);
  if (!amount || (mark != " + " && mark != " - " && mark != " * ")) {
    sum_.reset();
    return "";
  }
  if (mark == " * ") {
    const auto sum = sum_;
    sum_ = 0;
    if (sum && isShownWhole(*sum, places) && *sum != *amount)
      return "a total is not the sum: " + line;
    return "";
  }
  if (sum_) *sum_ += mark == " + " ? *amount : -*amount;
  return "";
}

// What M + and MS take is what the box then shows; MS takes no bare 0.
std::string Money::findWrongMemory(const Step& step) {
  const std::string entry = textOf(step.after, "entry");
  const auto shown = exactAmount(entry);
  const bool known = shown && !step.boxShown;
  const bool bare = entry.empty() || entry == "0" || entry == "-0";
  if (isClick(step, "cmdMemClear")) {
    memory_ = 0;
  } else if (isClick(step, "cmdMemStore")) {
    if (!bare) memory_ = known ? shown : std::nullopt;
  } else if (isClick(step, "cmdMemPlus")) {
    if (memory_ && known) *memory_ += *shown;
    if (!known) memory_.reset();
  } else if (step.command.starts_with("press Alt+") || step.command.starts_with("dblclick ") ||
             textOf(step.before, "focus").starts_with("cmdMem")) {
    memory_.reset();
  } else if (isClick(step, "cmdMemRecall") && memory_ &&
             isShownWhole(*memory_, placesOf(step.after))) {
    if (shown && *shown != *memory_) return "the memory is not what was put into it";
  }
  return "";
}

}  // namespace fuzz
