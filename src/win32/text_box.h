#pragma once

#include "controls/text_box.h"
#include "win32/accessible_name.h"
#include "win32/native_control.h"
#include "win32/text_input.h"

namespace win32 {

/// A single-line text box.
class TextBox : public Native<controls::TextBox> {
 public:
  TextBox(Window& frame, const controls::ControlLayout& layout);

  void refresh() override;
  void frameSized() override;

 protected:
  std::optional<LRESULT> take(const Message& message) override;
  // The window text of a box is its text, not a caption.
  void showCaption() override {}
  void showBounds() override;
  void showEnabled() override;
  void showBackColor() override;

  std::string loadText() const override;
  int loadLength() const override { return GetWindowTextLengthW(handle()); }
  std::string loadPart(int start, int length) const override;
  Selection loadSelection() const override;
  void storeText(std::string_view text) override;
  void storeAppended(std::string_view text) override;
  void storeSelection(int start, int length) override;
  void storePart(int start, int length, std::string_view text) override;

 private:
  std::wstring wideText() const;
  void store(UINT message, WPARAM wParam, const std::wstring& text);
  std::optional<LRESULT> takeFrame(const Message& message);
  LRESULT placeLine(const Message& message);
  void putLine();
  void fitText();
  LONG cutOff() const;
  void paintBesideLine();
  void repaint() const;

  TextInput input_;
  AccessibleName name_;
  // The area within its edge, relative to the corner of the box.
  RECT inside_ = {};
  // How many pixels of its right side are outside the window.
  LONG cutOff_ = 0;
  // Whether the program itself is changing the text.
  bool storing_ = false;
};

}  // namespace win32
