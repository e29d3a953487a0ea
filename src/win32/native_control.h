#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>

#include "controls/control.h"
#include "win32/message.h"
#include "win32/window.h"

namespace win32 {

/// What is needed to create a native control.
struct NativeStyle {
  const wchar_t* windowClass;
  DWORD style = 0;
  DWORD exStyle = 0;
  /// The window text; empty for the control's caption.
  std::wstring text = {};
};

/// The native side of a control; owns its window handle.
class NativeControl {
 public:
  NativeControl(Window& frame, controls::Control& control, const NativeStyle& style);
  virtual ~NativeControl();
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;

  /// The native side of a control of a win32::Window.
  static NativeControl& of(controls::Control& control);
  /// The control of a window with this handle; null without one.
  static NativeControl* find(const Window& frame, HWND handle);

  HWND handle() const { return handle_; }
  controls::Control& control() const { return control_; }

  /// A notification from the native control, such as BN_CLICKED.
  virtual void takeNotification(UINT) {}
  /// A button is about to be painted (NM_CUSTOMDRAW).
  virtual LRESULT customDraw(NMCUSTOMDRAW&) { return CDRF_DODEFAULT; }
  /// Returns the brush for its background, and sets the text colors of the device context.
  HBRUSH prepareColors(HDC context);
  /// The resolution or the system's colors have changed.
  virtual void refresh();
  /// The size of the window has changed.
  virtual void frameSized() {}

 protected:
  /// Handles a message; null passes it on to the native control.
  virtual std::optional<LRESULT> take(const Message& message);
  LRESULT passOn(const Message& message);
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(handle_, message, wParam, lParam);
  }

  /// The window text of the native control.
  virtual std::wstring windowText() const;
  virtual HFONT font();
  Window& frame() const { return frame_; }

  void putText();
  void putPlace();
  void putVisible();
  void putEnabled();
  void putBackColor();

 private:
  static LRESULT CALLBACK receive(HWND handle, UINT id, WPARAM wParam, LPARAM lParam);

  Window& frame_;
  controls::Control& control_;
  HWND handle_ = nullptr;
  // The original window procedure.
  WNDPROC native_ = nullptr;
  OwnedBrush background_;
  bool announced_ = false;
};

/// A control shown by a native control.
template <class Kind>
class Native : public Kind, public NativeControl {
 public:
  Native(Window& frame, const controls::ControlLayout& layout, const NativeStyle& style)
      : Kind(frame, layout), NativeControl(frame, *this, style) {}

 protected:
  void showCaption() override { putText(); }
  void showVisible() override { putVisible(); }
  void showEnabled() override { putEnabled(); }
  void showBounds() override { putPlace(); }
  void showBackColor() override { putBackColor(); }
};

}  // namespace win32
