#include "common/number_text.h"
#include "engine/engine.h"

namespace engine {

// A box that the mouse has emptied had nothing pasted into it.
void Engine::txtEntry_MouseUp(controls::MouseEdit edit) {
  const std::string text = c_.txtEntry.text();
  if (edit == controls::MouseEdit::Pasted && !text.empty()) TakePasted(text);
  if (edit == controls::MouseEdit::Edited) TidyEntry();
}

void Engine::PasteEntry(const std::optional<std::string>& text) {
  TakePasted(text.value_or(""));
}

void Engine::TakePasted(std::string text) {
  mblnShowingResult = mblnPosted = false;
  common::trap(
      [&] {
        ShowValue(TrimPasted(common::toPlainText(controls::withoutLineEnd(std::move(text)))));
        mblnDecKeyed = !floatingDecimal() && c_.txtEntry.text().find('.') != std::string::npos;
        ReformatEntry();
        c_.txtEntry.moveCaretToEnd();
      },
      [&](const common::RunTimeError&) {
        c_.desktop.showMessage({.text = "Pasted entry is not a valid number."});
        c_.txtEntry.setText("");
      });
}

// Decimals beyond the places set are cut off, not rounded.
std::string Engine::TrimPasted(std::string text) const {
  const auto point = text.find('.');
  if (floatingDecimal() || point == std::string::npos) return text;
  const auto kept = places() == 0 ? point : point + 1 + static_cast<std::size_t>(places());
  if (text.size() > kept) text.resize(kept);
  return text;
}

}  // namespace engine
