#include "engine/entry_paste.h"

#include "common/number_text.h"

namespace engine {

// Where the comma is the decimal sign, 12,50 does not mean 1,250.
void EntryPaste::paste(const std::optional<std::string>& text) {
  const std::string pasted = controls::withoutLineEnd(text.value_or(std::string()));
  if (common::hasOddCommas(pasted)) {
    refuse();
  } else {
    take(pasted);
  }
}

void EntryPaste::menuPaste(std::string& text) {
  text = controls::withoutLineEnd(std::move(text));
  menuPasteIsOdd_ = common::hasOddCommas(text);
}

// Separators that were in the entry before are the program's own, wherever they are now.
void EntryPaste::menuEdit(controls::MenuEdit edit) {
  if (edit == controls::MenuEdit::Edited) return entry_.tidy();
  std::string text = entry_.text();
  if (menuPasteIsOdd_) {
    refuse();
  } else {
    std::erase(text, ',');
    take(text);
  }
}

void EntryPaste::take(const std::string& text) {
  if (const auto plain = common::toPlainText(text)) {
    entry_.showPasted(withPlaces(*plain));
  } else {
    refuse();
  }
}

void EntryPaste::refuse() {
  desktop_.showMessage({.text = "Pasted entry is not a valid number."});
  entry_.clear();
}

// Extra decimals are cut off, not rounded.
std::string EntryPaste::withPlaces(const std::string& text) const {
  const auto point = text.find('.');
  if (decimals_.floating() || point == std::string::npos) return text;
  const auto places = static_cast<std::size_t>(decimals_.places());
  const auto kept = places == 0 ? point : point + 1 + places;
  return text.substr(0, kept);
}

}  // namespace engine
