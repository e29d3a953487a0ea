#include "controls/text_box.h"

#include <algorithm>

namespace controls {

TextBox::TextBox(Window& window, const ControlLayout& layout)
    : Control(window, layout), alignment_(layout.alignment) {}

void TextBox::setText(std::string_view text) {
  storeText(text);
  storeSelection(0, 0);
  raise(onChange, ChangedBy::Program);
}

void TextBox::append(std::string_view text) {
  storeAppended(text);
  raise(onChange, ChangedBy::Program);
}

void TextBox::setSelStart(int start) {
  select(start, 0);
}

void TextBox::setSelLength(int length) {
  select(selStart(), length);
}

void TextBox::select(int start, int length) {
  const int end = this->length();
  start = std::clamp(start, 0, end);
  storeSelection(start, std::clamp(length, 0, end - start));
}

std::string TextBox::selectedText() const {
  const Selection selection = loadSelection();
  return loadPart(selection.start, selection.length);
}

std::string TextBox::textWithoutSelection() const {
  const Selection selection = loadSelection();
  const int end = selection.start + selection.length;
  return loadPart(0, selection.start) + loadPart(end, length() - end);
}

void TextBox::replaceSelection(std::string_view text) {
  const Selection selection = loadSelection();
  if (loadPart(selection.start, selection.length) == text) {
    setSelStart(selection.start + selection.length);
    return;
  }
  const int behind = length() - selection.start - selection.length;
  storePart(selection.start, selection.length, text);
  storeSelection(length() - behind, 0);
  raiseEdited();
}

void TextBox::backspace() {
  const Selection selection = loadSelection();
  if (selection.length == 0) {
    if (selection.start == 0) return;
    storeSelection(selection.start - 1, 1);
  }
  replaceSelection("");
}

void TextBox::deleteForward() {
  const Selection selection = loadSelection();
  if (selection.length == 0) {
    if (selection.start == length()) return;
    storeSelection(selection.start, 1);
  }
  replaceSelection("");
}

void TextBox::paste(std::string text) {
  if (onPaste) {
    raise(onPaste, text);
    if (text.empty()) return;
  } else if (!layout().multiLine) {
    text.erase(std::min(text.find_first_of("\r\n"), text.size()));
  }
  replaceSelection(text);
}

void TextBox::setAlignment(Alignment alignment) {
  if (alignment_ == alignment) return;
  alignment_ = alignment;
  showAlignment();
}

}  // namespace controls
