#include "controls/text_box.h"

#include <algorithm>

#include "common/unicode.h"
#include "controls/desktop.h"

namespace controls {

namespace {

// What Ctrl+Backspace types.
constexpr KeyAscii kRubout = 127;

}  // namespace

TextBox::TextBox(Window& window, const ControlLayout& layout)
    : Control(window, layout), alignment_(layout.alignment) {}

void TextBox::setText(std::string_view text) {
  lastEdit_.reset();
  if (onEdit) onEdit({.removed = length(), .inserted = text});
  storeText(text);
  storeSelection(0, 0);
  raise(onChange, ChangedBy::Program);
}

void TextBox::append(std::string_view text) {
  lastEdit_.reset();
  if (onEdit) onEdit({.start = length(), .inserted = text});
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

bool TextBox::replaceSelection(std::string_view text) {
  if (!layout().multiLine && text.size() > kLongestEdit) {
    window().desktop().beep();
    return false;
  }
  const Selection selection = wholeCharacters(loadSelection());
  std::string before = loadPart(selection.start, selection.length);
  if (before == text) {
    setSelStart(selection.start + selection.length);
    return false;
  }
  const int behind = length() - selection.start - selection.length;
  if (onEdit) onEdit({.start = selection.start, .removed = selection.length, .inserted = text});
  storePart(selection.start, selection.length, text);
  const int end = length() - behind;
  storeSelection(end, 0);
  lastEdit_ = {selection.start, end - selection.start, std::move(before)};
  raise(onChange, ChangedBy::User);
  return true;
}

// Whether the two units there are a surrogate pair or a line break.
bool TextBox::hasPairAt(int start) const {
  if (start < 0 || start + 2 > length()) return false;
  const std::string pair = loadPart(start, 2);
  // Only a pair has four bytes, and only a character of four bytes begins so.
  constexpr unsigned char kFirstOfFourBytes = 0xF0;
  return pair == "\r\n" || static_cast<unsigned char>(pair[0]) >= kFirstOfFourBytes;
}

TextBox::Selection TextBox::wholeCharacters(Selection selection) const {
  if (selection.length == 0) return selection;
  const int start = selection.start - (hasPairAt(selection.start - 1) ? 1 : 0);
  const int end = selection.start + selection.length;
  return {start, end + (hasPairAt(end - 1) ? 1 : 0) - start};
}

void TextBox::backspace() {
  const auto [start, length] = loadSelection();
  takeAway(length > 0 ? start : std::max(0, start - 1), start + length);
}

void TextBox::deleteForward() {
  const auto [start, length] = loadSelection();
  takeAway(start, std::min(start + std::max(length, 1), this->length()));
}

void TextBox::takeAway(int start, int end) {
  storeSelection(start, end - start);
  replaceSelection("");
}

std::string firstLineOf(std::string_view text) {
  return std::string(text.substr(0, text.find_first_of("\r\n")));
}

std::string withoutLineEnd(std::string text) {
  if (text.ends_with('\n')) text.pop_back();
  if (text.ends_with('\r')) text.pop_back();
  return text;
}

void TextBox::paste() {
  const Clipping clipping = window().desktop().clipboardText();
  const bool isText = clipping.found == Clipping::Found::Text;
  if (clipping.found == Clipping::Found::Locked) {
    window().desktop().beep();
  } else if (onPasteCommand) {
    raise(onPasteCommand, isText ? std::optional(clipping.text) : std::nullopt);
  } else if (isText) {
    pasteText(clipping.text);
  }
}

bool TextBox::pasteFromMenu() {
  const Clipping clipping = window().desktop().clipboardText();
  if (clipping.found == Clipping::Found::Locked) window().desktop().beep();
  return clipping.found == Clipping::Found::Text && pasteText(clipping.text);
}

bool TextBox::pasteText(std::string text) {
  if (onPaste) {
    raise(onPaste, text);
    if (text.empty()) return false;
  } else if (!layout().multiLine) {
    text = firstLineOf(text);
  }
  const bool changed = replaceSelection(text);
  raise(onPasted);
  return changed;
}

bool TextBox::copySelection() {
  const auto [start, length] = wholeCharacters(loadSelection());
  return window().desktop().setClipboardText(loadPart(start, length));
}

void TextBox::copy() {
  if (selLength() == 0) return;
  if (!copySelection()) window().desktop().beep();
}

bool TextBox::cut() {
  if (selLength() == 0) return false;
  if (copySelection()) return replaceSelection("");
  window().desktop().beep();
  return false;
}

bool TextBox::undo() {
  if (!lastEdit_) return false;
  const Edit edit = *std::move(lastEdit_);
  storeSelection(edit.start, edit.length);
  return replaceSelection(edit.before);
}

void TextBox::typeCharacter(KeyAscii character) {
  actOnCharacter(keyPress(character));
}

void TextBox::actOnCharacter(KeyAscii character) {
  switch (character) {
    case kKeyBackspace:
      return backspace();
    case kKeyEnter:
      if (layout().multiLine) replaceSelection("\r\n");
      return;
    case kCtrlC:
      return copy();
    case kCtrlX:
      cut();
      return;
    case kCtrlZ:
      undo();
      return;
    case kCtrlV:
      return paste();
    default:
      if (character >= kKeySpace && character != kRubout) insert(character);
  }
}

void TextBox::insert(KeyAscii character) {
  replaceSelection(common::toUtf8(static_cast<char32_t>(character)));
}

// Ctrl+Delete does nothing: what it deletes depends on the version of the system.
bool TextBox::takeEditKey(const KeyStroke& stroke) {
  if (stroke.key == kKeyInsert && stroke.control && !stroke.shift) {
    copy();
    return true;
  }
  if (stroke.key != kKeyDelete) return false;
  if (stroke.shift && !stroke.control) cut();
  if (!stroke.shift && !stroke.control) deleteForward();
  return true;
}

void TextBox::closeMenu(BoxCommand chosen) {
  if (!carryOut(chosen)) return;
  raise(onMenuEdit, chosen == BoxCommand::Paste ? MenuEdit::Pasted : MenuEdit::Edited);
}

bool TextBox::carryOut(BoxCommand chosen) {
  switch (chosen) {
    case BoxCommand::Undo:
      return undo();
    case BoxCommand::Cut:
      return cut();
    case BoxCommand::Delete:
      return replaceSelection("");
    case BoxCommand::Paste:
      return pasteFromMenu();
    case BoxCommand::Copy:
      copy();
      return false;
    case BoxCommand::SelectAll:
      selectAll();
      return false;
    default:
      return false;
  }
}

void TextBox::setAlignment(Alignment alignment) {
  if (alignment_ == alignment) return;
  alignment_ = alignment;
  showAlignment();
}

}  // namespace controls
