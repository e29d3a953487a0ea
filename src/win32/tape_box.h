#pragma once

#include "controls/text_box.h"
#include "win32/accessible_name.h"
#include "win32/live_region.h"
#include "win32/native_control.h"
#include "win32/tape_view.h"
#include "win32/text_input.h"

namespace win32 {

/// A multi-line text box without word wrap.
class TapeBox : public Native<controls::TextBox> {
 public:
  TapeBox(Window& frame, const controls::ControlLayout& layout);

  void refresh() override;

 protected:
  std::optional<LRESULT> take(const Message& message) override;
  void showCaption() override {}
  void showBackColor() override { putColors(); }

  std::string loadText() const override;
  int loadLength() const override { return view_.lines().length(); }
  std::string loadPart(int start, int length) const override;
  Selection loadSelection() const override;
  void storeText(std::string_view text) override;
  void storeAppended(std::string_view text) override;
  void storeSelection(int start, int length) override;
  void storePart(int start, int length, std::string_view text) override;
  void showAlignment() override { view_.setAlignment(alignment()); }

 private:
  // What a click, a double click and a triple click select, and the unit by which dragging then
  // extends the selection.
  enum class Unit { Character, Word, Line };
  struct Span {
    int start;
    int end;
  };
  // The preferred column of the caret when it moves up or down across shorter lines.
  struct Goal {
    int caret;
    int x;
  };

  controls::LineStyle styleOf(std::wstring_view line) const;
  void sayLines(std::string_view text);
  void noteText() const;
  void fitLetters();
  void putColors();
  std::optional<LRESULT> takePainting(const Message& message);
  std::optional<LRESULT> takeMouse(const Message& message);
  std::optional<LRESULT> takeScrolling(const Message& message);
  std::optional<LRESULT> takeEditMessage(const Message& message);
  std::optional<LRESULT> takeTextMessage(const Message& message);
  std::optional<LRESULT> takeViewMessage(const Message& message);
  void scrollBy(LPARAM columns, LPARAM lines);
  LRESULT takeScrollAction(WPARAM action);
  LRESULT paint();
  void paintFrame();
  void moveCaret(WPARAM key);
  int caretAfter(WPARAM key, bool control) const;
  void moveByLines(int lines);
  int goalX() const;
  void pressMouse(const Message& message);
  void pressAgain(const Message& message);
  bool isThirdClick() const;
  void startDrag(Unit unit, Span span);
  Span spanAt(int place, Unit unit) const;
  void dragTo(POINT point);
  void turnWheel(int delta, bool sideways);

  TapeView view_;
  TextInput input_;
  AccessibleName name_;
  LiveRegion region_;
  // Wheel movement that has not yet added up to a line.
  int wheelRest_ = 0;
  std::optional<Goal> goal_;
  // Where the mouse was last. While it is held outside the tape, a timer goes on dragging there.
  POINT mouse_ = {};
  bool dragging_ = false;
  Unit dragUnit_ = Unit::Character;
  Span dragFrom_ = {0, 0};
  // Time and position of the last double click.
  DWORD doubleClickTime_ = 0;
  POINT doubleClickPlace_ = {};
};

}  // namespace win32
