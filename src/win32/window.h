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
  /// Whether it has been created and is not being destroyed.
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
  // The position of the frame and the size of the client area, in pixels at a resolution.
  struct Placement {
    LONG left = 0;
    LONG top = 0;
    LONG width = 0;
    LONG height = 0;
    int dpi = 0;

    bool operator==(const Placement&) const = default;
  };

  // The requested bounds and the resulting placement.
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
  controls::Rect neededOnMonitor() const;
  POINT cornerFor(const SIZE& size) const;
  void place();
  Placement measure() const;
  void noteGeometry();
  void notePlacement(const Placed& before);
  void takeResolution(const Message& message);
  void takeTextSize();
  void rescale(const Scale& scale, const RECT& suggested);
  void refreshControls();

  Desktop& screen_;
  HWND handle_ = nullptr;
  // The scale of the window's monitor, for its size and contents, and that of the whole screen, for
  // its position.
  Scale scale_;
  Scale screenScale_ = Scale::ofScreen();
  Fonts fonts_;
  ToolTips toolTips_;
  OwnedMenu menu_;
  // The last known placement.
  Placement placed_;
  // The placement before it was maximized.
  Placed normal_;
  bool maximized_ = false;
  // The user is dragging its frame.
  bool dragging_ = false;
  bool placing_ = false;
  bool placeWhenRestored_ = false;
};

}  // namespace win32
