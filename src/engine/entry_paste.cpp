#include "engine/entry_paste.h"

#include "common/number_text.h"
#include "common/run_time_error.h"

namespace engine {

void EntryPaste::paste(const std::optional<std::string>& text) {
  take(text.value_or(""));
}

// A box that the mouse has emptied had nothing pasted into it.
void EntryPaste::mouseUp(controls::MouseEdit edit) {
  const std::string text = entry_.text();
  if (edit == controls::MouseEdit::Pasted && !text.empty()) take(text);
  if (edit == controls::MouseEdit::Edited) entry_.tidy();
}

void EntryPaste::take(const std::string& text) {
  common::trap(
      [&] { entry_.showPasted(withPlaces(common::toPlainText(controls::withoutLineEnd(text)))); },
      [&](const common::RunTimeError&) {
        desktop_.showMessage({.text = "Pasted entry is not a valid number."});
        entry_.clear();
      });
}

// Decimals beyond the places set are cut off, not rounded.
std::string EntryPaste::withPlaces(std::string text) const {
  const auto point = text.find('.');
  if (decimals_.floating() || point == std::string::npos) return text;
  const auto places = static_cast<std::size_t>(decimals_.places());
  const auto kept = places == 0 ? point : point + 1 + places;
  if (text.size() > kept) text.resize(kept);
  return text;
}

}  // namespace engine
