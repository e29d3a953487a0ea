#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/buttons.h"
#include "controls/control.h"
#include "controls/menu.h"
#include "controls/text_box.h"

namespace controls {

class Desktop;

enum class WindowState { Normal, Minimized, Maximized };

/// A window with the controls and the menu of its layout. It is created hidden; the window in front
/// receives the keyboard. The rules are kept here; an implementation displays the window and
/// reports what the user does to it.
class Window {
 public:
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  /// The size has changed, or the window is about to be shown for the first time.
  std::function<void()> onResize;
  /// The window has come to the front.
  std::function<void()> onActivate;
  /// The user closes the window; the program unloads it.
  std::function<void()> onClose;
  /// The user has pressed F1.
  std::function<void()> onHelp;

  const WindowLayout& layout() const { return layout_; }
  Desktop& desktop() const { return desktop_; }
  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption);

  /// Left and top are the position of the real frame on the screen; width and height are the client
  /// area plus a classic frame (kFrameWidth, kFrameHeight). Assigned values are kept exactly until
  /// the user moves or sizes the window. For a minimized window: its bounds when restored.
  const Rect& bounds() const { return bounds_; }
  /// A window is never smaller than its frame.
  void setBounds(const Rect& wanted);
  void setLeft(Twips left);
  void setTop(Twips top);
  void setWidth(Twips width);
  void setHeight(Twips height);

  bool visible() const { return visible_; }
  /// Shows the window and brings it to the front. The first time, it raises Resize, is activated,
  /// and its first control gets the focus.
  void show();
  /// Shows it as a dialog: the other windows take no input until it is hidden.
  void showModal();
  /// Hides it; the window behind comes to the front.
  void hide();
  /// Whether it takes input, that is, no dialog is in front of it.
  bool enabled() const;
  WindowState state() const { return state_; }
  void setState(WindowState state);
  bool onTop() const { return onTop_; }
  /// Switches the window between topmost and normal. The system's call also moves it to 0,0 and
  /// shrinks it to nothing; the caller restores the bounds.
  void setOnTop(bool onTop);
  /// The user or another program asks it to close. A dialog in front of it closes first.
  void requestClose();

  Control* findControl(std::string_view name) const;
  MenuItem* findMenuItem(std::string_view name) const;
  /// The control of that name and kind. The layout must have it.
  TextBox& textBox(std::string_view name) const;
  Button& button(std::string_view name) const;
  ToggleButton& toggleButton(std::string_view name) const;
  OptionButton& optionButton(std::string_view name) const;
  Control& control(std::string_view name) const;
  MenuItem& menuItem(std::string_view name) const;

  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
  const std::vector<std::unique_ptr<MenuItem>>& menuItems() const { return menuItems_; }

  /// The control that has the focus, or gets it when the window comes to the front.
  Control* focusedControl() const { return focusedControl_; }
  /// Moves the focus to the next or previous control in tab order, as Tab does; a group of option
  /// buttons is entered at the chosen one.
  void moveFocus(bool forward);
  /// Handles a keystroke that belongs to the window: a menu shortcut, Shift+Insert for a paste into
  /// the focused box, F1, Tab, an access key, Escape for the cancel button, arrows among option
  /// buttons. False if the keystroke is for the focused control.
  bool takeKey(const KeyStroke& stroke);
  /// Simulates a keystroke, which is handled like a real one when the current event has ended.
  /// `character` is 0 for a key without one.
  void sendKey(KeyCode key, KeyAscii character);

  /// Moves the focus to `control` and raises the focus events; a window in the background only
  /// remembers it.
  void focusControl(Control& control);

 protected:
  Window(Desktop& desktop, const WindowLayout& layout);

  /// Creates the controls and the menu items of the layout.
  void build();
  virtual std::unique_ptr<Control> makeControl(const ControlLayout& layout) = 0;
  virtual std::unique_ptr<MenuItem> makeMenuItem(const MenuItemLayout& layout,
                                                 MenuItem* parent) = 0;

  /// To be called when the user has moved, sized, minimized or activated the window.
  void noteBounds(const Rect& bounds);
  void noteState(WindowState state);
  void noteActivated();

  virtual void showCaption() {}
  virtual void showBounds() {}
  virtual void showVisible() {}
  virtual void showEnabled() {}
  virtual void showState() = 0;
  virtual void showOnTop() = 0;
  /// Brings the window to the front. The implementation then calls noteActivated.
  virtual void bringToFront() = 0;
  /// The window is about to be hidden and `next` comes to the front.
  virtual void handOver(Window& next) { next.bringToFront(); }
  /// Gives the keyboard focus to a control of the window in front.
  virtual void showFocus(Control&) {}

 private:
  friend class Desktop;

  bool isTabStop(const Control& control) const;
  bool takeShortcut(const KeyStroke& stroke);
  bool takePaste(const KeyStroke& stroke);
  bool takeHelp(const KeyStroke& stroke);
  bool takeAccessKey(KeyCode character);
  bool takeArrow(const KeyStroke& stroke);
  void raiseResizeIfSized(const Rect& before);

  Desktop& desktop_;
  WindowLayout layout_;
  std::string name_;
  std::string caption_;
  Rect bounds_;
  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<std::unique_ptr<MenuItem>> menuItems_;
  Control* focusedControl_ = nullptr;
  WindowState state_ = WindowState::Normal;
  bool visible_ = false;
  bool shownOnce_ = false;
  bool onTop_ = false;
};

}  // namespace controls
