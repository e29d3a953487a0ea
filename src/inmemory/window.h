#pragma once

#include "controls/window.h"

namespace inmemory {

class Desktop;

/// A window without a screen.
class Window : public controls::Window {
 public:
  Window(Desktop& desktop, const controls::WindowLayout& layout);

  /// Does what the box in the frame does: a window that was maximized before it was minimized is
  /// maximized again.
  void restore();

 protected:
  std::unique_ptr<controls::Control> makeControl(const controls::ControlLayout& layout) override;
  std::unique_ptr<controls::MenuItem> makeMenuItem(const controls::MenuItemLayout& layout,
                                                   controls::MenuItem* parent) override;
  void showState() override;
  void showOnTop() override;
  void bringToFront() override { noteActivated(); }

 private:
  // Where the window is when it is neither maximized nor minimized.
  controls::Rect normalBounds_;
  bool maximized_ = false;
};

}  // namespace inmemory
