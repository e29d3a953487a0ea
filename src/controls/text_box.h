#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "common/edit_log.h"
#include "controls/control.h"

namespace controls {

enum class ChangedBy { Program, User };

/// What the user did to the text with the mouse, by the box's own menu: he changed it as a key
/// would, or pasted into it.
enum class MouseEdit { None, Edited, Pasted };

/// What a box's own menu offers.
enum class BoxCommand { None, Undo, Cut, Copy, Paste, Delete, SelectAll };

/// How many bytes of text an edit may put into a box of one line.
inline constexpr std::size_t kLongestEdit = 32767;

/// A text without the one line end behind it, with which a cell copied from a spreadsheet ends.
std::string withoutLineEnd(std::string text);

/// What of a pasted text goes into a box of one line.
std::string firstLineOf(std::string_view text);

/// A box with a text, a caret and a selection. Places in the text are counted in characters from 0;
/// text is UTF-8, and a character beyond the basic plane counts as two, as the system counts it.
/// The functions that are not virtual hold the rules; an implementation keeps the text and the
/// selection.
class TextBox : public Control {
 public:
  TextBox(Window& window, const ControlLayout& layout);

  /// Raised when the text was assigned, or when an edit has changed it; tells whose doing it was.
  std::function<void(ChangedBy)> onChange;
  /// Raised when the text is about to change: what of it gives way to what.
  std::function<void(const common::TextEdit&)> onEdit;
  /// A text about to be pasted in the place of the selection; the handler may change it, or empty
  /// it to discard it. A one-line box without a handler takes the text up to its first line break.
  std::function<void(std::string&)> onPaste;
  /// Takes over what a command pastes: the clipboard's text, nothing where it has none. The mouse
  /// pastes where the caret is, with this handler too.
  std::function<void(const std::optional<std::string>&)> onPasteCommand;
  /// The mouse button goes down in the box; it has come up, and what the mouse did to the text is
  /// done.
  std::function<void()> onMouseDown;
  std::function<void(MouseEdit)> onMouseUp;

  std::string text() const { return loadText(); }
  /// Puts the caret at 0 with nothing selected; always raises Change.
  void setText(std::string_view text);
  /// Puts text behind the text, with the caret behind it and the last line in view; raises Change.
  /// Costs the same however long the text is.
  void append(std::string_view text);
  /// In characters.
  int length() const { return loadLength(); }

  int selStart() const { return loadSelection().start; }
  int selLength() const { return loadSelection().length; }
  /// Places the caret; drops the selection.
  void setSelStart(int start);
  void setSelLength(int length);
  /// Start and length are kept within the text.
  void select(int start, int length);
  void selectAll() { select(0, length()); }
  void moveCaretToEnd() { setSelStart(length()); }
  std::string selectedText() const;
  /// What stays when the selection is replaced by nothing.
  std::string textWithoutSelection() const;

  /// A user's edits. Each raises Change once when it changes the text, leaves the caret behind what
  /// it put there, and tells whether it changed the text. What is too long for a box of one line is
  /// refused with a beep.
  bool replaceSelection(std::string_view text);
  /// Pastes the clipboard's text by a command: the menu's, a key's, another program's. Beeps where
  /// another program holds the clipboard.
  void paste();
  /// Puts a selection on the clipboard, or beeps where another program holds it; cutting also takes
  /// it out of the text.
  void copy();
  bool cut();
  /// Takes back the user's last edit, and a second time restores it. What the program assigned is
  /// not taken back.
  bool undo();
  bool canUndo() const { return lastEdit_.has_value(); }
  /// The character takes effect when KeyPress lets it through.
  void typeCharacter(KeyAscii character) override;
  /// A key without a character that edits: Delete, and Cut and Copy as Shift+Delete and
  /// Ctrl+Insert. False for any other key.
  bool takeEditKey(const KeyStroke& stroke);

  Alignment alignment() const { return alignment_; }
  void setAlignment(Alignment alignment);

  void mouseDown() { raise(onMouseDown); }
  void mouseUp() { raise(onMouseUp, MouseEdit::None); }
  /// The box's own menu, which the mouse has opened, closes: what was chosen is done, and the mouse
  /// button is up.
  void closeMenu(BoxCommand chosen);

 protected:
  struct Selection {
    int start = 0;
    int length = 0;
  };

  virtual std::string loadText() const = 0;
  virtual int loadLength() const = 0;
  virtual std::string loadPart(int start, int length) const = 0;
  virtual Selection loadSelection() const = 0;
  /// None of these raises an event.
  virtual void storeText(std::string_view text) = 0;
  virtual void storeAppended(std::string_view text) = 0;
  virtual void storeSelection(int start, int length) = 0;
  virtual void storePart(int start, int length, std::string_view text) = 0;
  virtual void showAlignment() {}

 private:
  // An edit as it is taken back: the part of the text that it put there, and what stood there.
  struct Edit {
    int start;
    int length;
    std::string before;
  };

  // These take whole characters away: a line end, or a character of two units, goes as one, also
  // with the caret inside it.
  void backspace();
  void deleteForward();
  void takeAway(int start, int end);
  bool pasteByMouse();
  bool pasteText(std::string text);
  bool hasPairAt(int start) const;
  MouseEdit carryOut(BoxCommand chosen);
  void actOnCharacter(KeyAscii character);
  void insert(KeyAscii character);

  Alignment alignment_;
  std::optional<Edit> lastEdit_;
};

}  // namespace controls
