#pragma once

#include <optional>

#include "controls/window.h"
#include "win32/fonts.h"
#include "win32/handles.h"
#include "win32/message.h"
#include "win32/scale.h"
#include "win32/tool_tips.h"

namespace win32 {

class Desktop;

/// A window on the screen.
class Window : public controls::Window {
 public:
  Window(Desktop& desktop, const controls::WindowLayout& layout);
  ~Window() override;

  HWND handle() const { return handle_; }
  /// It has been made, and its end has not begun.
  bool isAlive() const { return GetWindowLongPtrW(handle_, GWLP_USERDATA) != 0; }
  const Scale& scale() const { return scale_; }
  Fonts& fonts() { return fonts_; }
  const ToolTips& toolTips() const { return toolTips_; }
  bool isInFront() const { return GetForegroundWindow() == handle_; }

 protected:
  std::unique_ptr<controls::Control> makeControl(const controls::ControlLayout& layout) override;
  std::unique_ptr<controls::MenuItem> makeMenuItem(const controls::MenuItemLayout& layout,
                                                   controls::MenuItem* parent) override;
  void showCaption() override;
  void showBounds() override;
  void showVisible() override;
  void showEnabled() override;
  void showState() override;
  void showOnTop() override;
  void bringToFront() override;
  void handOver(controls::Window& next) override;
  void showFocus(controls::Control& control) override;

 private:
  // Where the window stands, in pixels of a resolution: its frame's corner and the size of its
  // client area.
  struct Placement {
    LONG left = 0;
    LONG top = 0;
    LONG width = 0;
    LONG height = 0;
    int dpi = 0;

    bool operator==(const Placement&) const = default;
  };

  // What was asked for, and what the system made of it.
  struct Placed {
    controls::Rect bounds;
    Placement placement;
  };

  static LRESULT CALLBACK receive(HWND handle, UINT id, WPARAM wParam, LPARAM lParam);
  HWND createHandle() const;

  std::optional<LRESULT> take(const Message& message);
  std::optional<LRESULT> takeFocus(const Message& message);
  std::optional<LRESULT> takeGeometry(const Message& message);
  std::optional<LRESULT> takeControl(const Message& message);
  std::optional<LRESULT> takeColors(const Message& message);
  std::optional<LRESULT> takeClosing(const Message& message);
  LRESULT passOn(const Message& message);

  void focusNative();
  LRESULT takeSystemCommand(const Message& message);
  void limitDragging(MINMAXINFO& limits) const;
  SIZE clientSize(controls::Twips width, controls::Twips height) const;
  SIZE frameSize() const;
  void place();
  Placement measure() const;
  void noteGeometry();
  void notePlacement(const Placed& before);
  void noteShownState();
  void takeResolution(const Message& message);
  void takeTextSize();
  void rescale(const Scale& scale, const RECT& suggested);
  void refreshControls();

  Desktop& screen_;
  HWND handle_ = nullptr;
  // Of the monitor that the window is on, for its size and all that is in it; and of the screen as
  // a whole, for its place, which is the same on all monitors.
  Scale scale_;
  Scale screenScale_ = Scale::ofScreen();
  Fonts fonts_;
  ToolTips toolTips_;
  OwnedMenu menu_;
  // As it was last placed or seen.
  Placement placed_;
  // As it stood before it was maximized.
  Placed normal_;
  bool maximized_ = false;
  // The user is dragging its frame.
  bool dragging_ = false;
  bool placing_ = false;
  bool placeWhenRestored_ = false;
};

}  // namespace win32
