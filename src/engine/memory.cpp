#include "engine/memory.h"

#include "common/number_text.h"
#include "common/run_time_error.h"
#include "engine/show_error.h"

namespace engine {

namespace {

constexpr controls::Color kGreen = controls::Color::rgb(0x00FF00);

}  // namespace

void Memory::add() {
  keep(stored_);
  entry_.setFocus();
}

void Memory::store() {
  keep(0);
  entry_.setFocus();
}

// An entry of 0 is not stored; one with decimals, such as 0.00, is. After -0 more digits may
// follow.
void Memory::keep(double base) {
  const std::string text = entry_.settle();
  if (text.empty() || text == "0" || text == "-0") return;
  const auto amount = entry_.amountIn(text);
  if (!amount) return;
  const double sum = base + amount->value;
  if (!isShowable(sum)) {
    showError(desktop_, common::kOverflow);
    return;
  }
  stored_ = sum;
  light_.setBackColor(kGreen);
  entry_.finish();
}

void Memory::recall() {
  entry_.showValue(common::toText(stored_));
  entry_.keepOpen();
  entry_.setFocus();
}

void Memory::clear() {
  stored_ = 0;
  light_.setBackColor(controls::Color::buttonFace());
  entry_.setFocus();
}

}  // namespace engine
