#pragma once

#include <optional>
#include <string>

#include "engine/entry.h"

namespace engine {

/// Pasting into the entry box: the text must be a number, and is formatted as one.
class EntryPaste {
 public:
  EntryPaste(Entry& entry, const Decimals& decimals, controls::Desktop& desktop)
      : entry_(entry), decimals_(decimals), desktop_(desktop) {}

  /// Replaces the whole entry by the clipboard's text.
  void paste(const std::optional<std::string>& text);
  /// The context menu is about to insert the text at the caret: checks its commas.
  void menuPaste(std::string& text);
  /// After a paste by the context menu the whole entry must be a number; any other edit counts as
  /// one by keyboard.
  void menuEdit(controls::MenuEdit edit);

 private:
  void take(const std::string& text);
  void refuse();
  std::string withPlaces(const std::string& text) const;

  Entry& entry_;
  const Decimals& decimals_;
  controls::Desktop& desktop_;
  bool menuPasteIsOdd_ = false;
};

}  // namespace engine
