#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>

#include "controls/control.h"
#include "win32/message.h"
#include "win32/window.h"

namespace win32 {

/// What the system needs to know to make a control.
struct NativeStyle {
  const wchar_t* windowClass;
  DWORD style = 0;
  DWORD exStyle = 0;
  /// The window text; empty for the control's caption.
  std::wstring text = {};
};

/// The system's side of a control: its window handle, which lives as long as the control does.
class NativeControl {
 public:
  NativeControl(Window& frame, controls::Control& control, const NativeStyle& style);
  virtual ~NativeControl();
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;

  /// That of a control of a win32::Window.
  static NativeControl& of(controls::Control& control);
  /// The control of a window that has this handle; nothing for a handle of anything else.
  static NativeControl* find(const Window& frame, HWND handle);

  HWND handle() const { return handle_; }
  controls::Control& control() const { return control_; }

  /// The control tells its frame that something was done to it: BN_CLICKED and the like.
  virtual void takeNotification(UINT) {}
  /// A button is about to be painted.
  virtual LRESULT customDraw(NMCUSTOMDRAW&) { return CDRF_DODEFAULT; }
  /// The brush for its background; text colours go into the device context.
  HBRUSH prepareColors(HDC context);
  /// The resolution or the system's colours have changed.
  virtual void refresh();
  /// The window has another size.
  virtual void frameSized() {}

 protected:
  /// What the control does with a message; nothing leaves it to the native control.
  virtual std::optional<LRESULT> take(const Message& message);
  LRESULT passOn(const Message& message);
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(handle_, message, wParam, lParam);
  }

  /// What the system holds as the text of the control.
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
  void takeCharacter(wchar_t unit);

  Window& frame_;
  controls::Control& control_;
  HWND handle_ = nullptr;
  // What the system made of it, which does what the program leaves to it.
  WNDPROC native_ = nullptr;
  OwnedBrush background_;
  // The first half of a character that comes in two.
  wchar_t highSurrogate_ = 0;
};

/// A control of the program, shown by a native one.
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
