#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "common/edit_log.h"
#include "controls/control.h"

namespace controls {

enum class ChangedBy { Program, User };

/// What the user did to the text with the context menu: edited it as with a key, or pasted into it.
enum class MenuEdit { Edited, Pasted };

/// The commands of a box's context menu.
enum class BoxCommand { None, Undo, Cut, Copy, Paste, Delete, SelectAll };

/// The most bytes that one edit may put into a single-line box.
inline constexpr std::size_t kLongestEdit = 32767;

/// A text without one trailing line break, such as a cell copied from a spreadsheet has.
std::string withoutLineEnd(std::string text);

/// How a line of a text is drawn. It tells nothing that the text of the line does not.
enum class LineStyle { Amount, TakenOff, Total, NegativeTotal, Note };

/// The part of a pasted text that goes into a single-line box.
std::string firstLineOf(std::string_view text);

/// A box with a text, a caret and a selection. Text is UTF-8; positions count characters from 0,
/// and a character outside the basic plane counts as two, as in the system. The functions that are
/// not virtual contain the rules; an implementation stores the text and the selection.
class TextBox : public Control {
 public:
  TextBox(Window& window, const ControlLayout& layout);

  /// Raised when the text has been assigned, or changed by an edit.
  std::function<void(ChangedBy)> onChange;
  /// Raised when the text is about to change.
  std::function<void(const common::TextEdit&)> onEdit;
  /// A text is about to replace the selection; the handler may change it, or empty it to discard
  /// it. A single-line box without a handler takes the text up to its first line break.
  std::function<void(std::string&)> onPaste;
  /// Raised when a text has been pasted, from wherever.
  std::function<void()> onPasted;
  /// Replaces what the Paste command does; the argument is the clipboard's text, null without one.
  /// The context menu still pastes at the caret.
  std::function<void(const std::optional<std::string>&)> onPasteCommand;
  /// Raised when a command of the context menu has changed the text.
  std::function<void(MenuEdit)> onMenuEdit;

  /// How a line of a multi-line text is drawn; without it all lines are amounts.
  std::function<LineStyle(std::string_view)> styleOfLine;
  /// What a screen reader reads out when a line is appended; empty for nothing.
  std::function<std::string(std::string_view)> spokenLine;

  std::string text() const { return loadText(); }
  /// Moves the caret to 0, clears the selection, and always raises Change.
  void setText(std::string_view text);
  /// Appends to the text, moves the caret to the end and scrolls to the last line; raises Change.
  /// The cost does not depend on the length of the text.
  void append(std::string_view text);
  /// In characters.
  int length() const { return loadLength(); }

  int selStart() const { return loadSelection().start; }
  int selLength() const { return loadSelection().length; }
  /// Moves the caret and clears the selection.
  void setSelStart(int start);
  void setSelLength(int length);
  /// Start and length are clamped to the text.
  void select(int start, int length);
  void selectAll() { select(0, length()); }
  void moveCaretToEnd() { setSelStart(length()); }
  std::string selectedText() const;
  /// The text that is not selected.
  std::string textWithoutSelection() const;

  /// Edits by the user. Each raises Change once if it changes the text, moves the caret to the end
  /// of the insertion, and returns whether it changed the text. A text too long for a single-line
  /// box is refused with a beep.
  bool replaceSelection(std::string_view text);
  /// The Paste command, of the menu, a key or another program. Beeps if the clipboard is locked.
  void paste();
  /// Copies the selection to the clipboard, or beeps if that is locked; cut also deletes it.
  void copy();
  bool cut();
  /// Undoes the user's last edit; a second call redoes it. Assignments by the program are not
  /// undone.
  bool undo();
  bool canUndo() const { return lastEdit_.has_value(); }
  /// The character takes effect unless KeyPress discards it.
  void typeCharacter(KeyAscii character) override;
  /// An editing key without a character: Delete, Shift+Delete (cut), Ctrl+Insert (copy). False for
  /// any other key.
  bool takeEditKey(const KeyStroke& stroke);

  Alignment alignment() const { return alignment_; }
  void setAlignment(Alignment alignment);

  /// The context menu closes: carries out the command.
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
  // What undo needs: the part of the text that an edit inserted, and the text before.
  struct Edit {
    int start;
    int length;
    std::string before;
  };

  // These delete whole characters: a line break or a surrogate pair goes as one, even with the
  // caret inside it.
  void backspace();
  void deleteForward();
  void takeAway(int start, int end);
  bool pasteFromMenu();
  bool pasteText(std::string text);
  bool hasPairAt(int start) const;
  // Longer by the other half of a pair that it cuts.
  Selection wholeCharacters(Selection selection) const;
  bool copySelection();
  /// Whether it changed the text.
  bool carryOut(BoxCommand chosen);
  void actOnCharacter(KeyAscii character);
  void insert(KeyAscii character);

  Alignment alignment_;
  std::optional<Edit> lastEdit_;
};

}  // namespace controls
