#pragma once

#include "win32/native_control.h"

namespace win32 {

/// A text beside a control, or across a window.
class Label : public Native<controls::Control> {
 public:
  Label(Window& frame, const controls::ControlLayout& layout);

 protected:
  std::optional<LRESULT> take(const Message& message) override;
};

/// A line around controls that belong together, with their title.
class Frame : public Native<controls::Control> {
 public:
  Frame(Window& frame, const controls::ControlLayout& layout);
};

}  // namespace win32
