#pragma once

#include "win32/native_control.h"

namespace win32 {

/// A text in a window.
class Label : public Native<controls::Control> {
 public:
  Label(Window& frame, const controls::ControlLayout& layout);

 protected:
  std::optional<LRESULT> take(const Message& message) override;
  void showCaption() override;
};

/// A border with a title around related controls.
class Frame : public Native<controls::Control> {
 public:
  Frame(Window& frame, const controls::ControlLayout& layout);
};

}  // namespace win32
