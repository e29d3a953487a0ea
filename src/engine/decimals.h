#pragma once

#include "controls/buttons.h"
#include "controls/text_box.h"

namespace engine {

/// How many decimals the amounts have and how they come about, as the decimals box and the two
/// toggles beside it say.
class Decimals {
 public:
  Decimals(const controls::ToggleButton& floating, const controls::ToggleButton& stationary,
           controls::TextBox& places)
      : floating_(floating), stationary_(stationary), places_(places) {}

  /// As many as are keyed.
  bool floating() const { return floating_.value() == 1; }
  /// The digits fill from the right, behind an implied point.
  bool stationary() const { return !floating() && stationary_.value() == 1; }
  /// The decimals box when it holds one digit, else 0.
  int places() const;
  /// Writes the 0 that an empty decimals box means.
  void fillEmptyBox();

 private:
  const controls::ToggleButton& floating_;
  const controls::ToggleButton& stationary_;
  controls::TextBox& places_;
};

}  // namespace engine
