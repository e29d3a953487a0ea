#pragma once

#include <optional>
#include <string>

#include "engine/entry.h"

namespace engine {

/// What is pasted into the entry box: it must be a number, and is shown as one.
class EntryPaste {
 public:
  EntryPaste(Entry& entry, const Decimals& decimals, controls::Desktop& desktop)
      : entry_(entry), decimals_(decimals), desktop_(desktop) {}

  /// The clipboard's text in the place of the whole entry.
  void paste(const std::optional<std::string>& text);
  /// The mouse pastes the text where the caret is: judges it by itself.
  void mousePaste(std::string& text);
  /// What the mouse has pasted must be a number, with what stood there; any other edit of its own
  /// is as one by keyboard.
  void mouseUp(controls::MouseEdit edit);

 private:
  void take(const std::string& text);
  void refuse();
  std::string withPlaces(std::string text) const;

  Entry& entry_;
  const Decimals& decimals_;
  controls::Desktop& desktop_;
  bool mousePasteIsOdd_ = false;
};

}  // namespace engine
