#pragma once

#include "controls/text_box.h"
#include "win32/accessible_name.h"
#include "win32/native_control.h"
#include "win32/tape_view.h"
#include "win32/text_input.h"

namespace win32 {

/// A text of many lines, none of which is wrapped.
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
  void putColors();
  std::optional<LRESULT> takePainting(const Message& message);
  std::optional<LRESULT> takeMouse(const Message& message);
  std::optional<LRESULT> takeScrolling(const Message& message);
  std::optional<LRESULT> takeEditMessage(const Message& message);
  std::optional<LRESULT> takeTextMessage(const Message& message);
  LRESULT paint();
  void paintFrame();
  void moveCaret(WPARAM key);
  int caretAfter(WPARAM key, bool control) const;
  int otherLine(int lines) const;
  void pressMouse(const Message& message);
  void dragTo(POINT point);
  void turnWheel(int delta);

  TapeView view_;
  TextInput input_;
  AccessibleName name_;
  // What the wheel has turned short of a line.
  int wheelRest_ = 0;
  bool dragging_ = false;
};

}  // namespace win32
