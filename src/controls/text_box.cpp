#include "controls/text_box.h"

#include <algorithm>

#include "common/unicode.h"
#include "controls/desktop.h"

namespace controls {

namespace {

// The characters of Ctrl+C, Ctrl+V, Ctrl+X and Ctrl+Z.
constexpr KeyAscii kCopy = 3;
constexpr KeyAscii kPaste = 22;
constexpr KeyAscii kCut = 24;
constexpr KeyAscii kUndo = 26;

// What Ctrl+Backspace types.
constexpr KeyAscii kRubout = 127;

}  // namespace

TextBox::TextBox(Window& window, const ControlLayout& layout)
    : Control(window, layout), alignment_(layout.alignment) {}

void TextBox::setText(std::string_view text) {
  lastEdit_.reset();
  storeText(text);
  storeSelection(0, 0);
  raise(onChange, ChangedBy::Program);
}

void TextBox::append(std::string_view text) {
  lastEdit_.reset();
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
  std::string before = loadPart(selection.start, selection.length);
  if (before == text) {
    setSelStart(selection.start + selection.length);
    return;
  }
  const int behind = length() - selection.start - selection.length;
  storePart(selection.start, selection.length, text);
  const int end = length() - behind;
  storeSelection(end, 0);
  lastEdit_ = {selection.start, end - selection.start, std::move(before)};
  raise(onChange, ChangedBy::User);
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

std::string firstLineOf(std::string_view text) {
  return std::string(text.substr(0, text.find_first_of("\r\n")));
}

void TextBox::paste(std::string text) {
  if (onPaste) {
    raise(onPaste, text);
    if (text.empty()) return;
  } else if (!layout().multiLine) {
    text = firstLineOf(text);
  }
  replaceSelection(text);
}

void TextBox::copy() {
  if (selLength() > 0) window().desktop().setClipboardText(selectedText());
}

void TextBox::cut() {
  if (selLength() > 0 && window().desktop().setClipboardText(selectedText())) replaceSelection("");
}

void TextBox::undo() {
  if (!lastEdit_) return;
  const Edit edit = *std::move(lastEdit_);
  storeSelection(edit.start, edit.length);
  replaceSelection(edit.before);
}

void TextBox::typeCharacter(KeyAscii character) {
  runEvent([&] { actOnCharacter(keyPress(character)); });
}

void TextBox::actOnCharacter(KeyAscii character) {
  switch (character) {
    case kKeyBackspace:
      return backspace();
    case kKeyEnter:
      if (layout().multiLine) replaceSelection("\r\n");
      return;
    case kCopy:
      return copy();
    case kCut:
      return cut();
    case kUndo:
      return undo();
    case kPaste:
      if (const auto text = window().desktop().clipboardText()) paste(*text);
      return;
    default:
      if (character >= kKeySpace && character != kRubout) insert(character);
  }
}

void TextBox::insert(KeyAscii character) {
  replaceSelection(common::toUtf8(static_cast<char32_t>(character)));
}

void TextBox::setAlignment(Alignment alignment) {
  if (alignment_ == alignment) return;
  alignment_ = alignment;
  showAlignment();
}

}  // namespace controls
