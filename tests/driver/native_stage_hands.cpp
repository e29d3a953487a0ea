// What the person's hands do: on the keyboard, with the mouse, to the windows.
#include "driver/command.h"
#include "driver/native_clipboard.h"
#include "driver/native_handles.h"
#include "driver/native_stage.h"

namespace driver {

namespace {

constexpr int kTriesOfMouse = 20;

}  // namespace

void NativeStage::keyDown(const controls::KeyStroke& stroke, controls::KeyAscii character) {
  putProgramInFront();
  send(keyboard_.down(stroke, character));
}

// Also when the key has closed the program: no key stays down.
void NativeStage::keyUp(const controls::KeyStroke& stroke) {
  send(keyboard_.up(stroke));
}

void NativeStage::click(controls::Control& control) {
  clickWithMouse(control, 1);
}

void NativeStage::doubleClick(controls::Control& control) {
  clickWithMouse(control, 2);
}

void NativeStage::clickAt(POINT place, MouseButton button) {
  moveButton(place, button, false);
  moveButton(place, button, true);
}

// A mouse that moves by itself meanwhile, or the report of a move that the system has been slow to
// make, must not carry the click to another control.
void NativeStage::moveButton(POINT place, MouseButton button, bool up) {
  for (int i = 0; i < kTriesOfMouse; ++i) {
    ui_.aim(place);
    send(mouseInputs(place, button, up, UiThread::kAimedInput));
    if (!ui_.missed()) return;
  }
  throw CommandError("the mouse does not stay where it is put");
}

// A control that the mouse cannot reach, since it lies outside the window or the screen, gets the
// messages that the mouse would have sent.
void NativeStage::clickWithMouse(controls::Control& control, int times) {
  putInFront(control.window());
  HWND handle = handleOf(control);
  POINT place = {};
  if (placeToClick(handle, place)) {
    for (int i = 0; i < times; ++i) clickAt(place, MouseButton::Left);
    return;
  }
  deliver(handle, WM_LBUTTONDOWN, MK_LBUTTON, 0);
  deliver(handle, WM_LBUTTONUP, 0, 0);
  if (times == 1) return;
  deliver(handle, WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
  deliver(handle, WM_LBUTTONUP, 0, 0);
}

// A click would move the caret of a text box, so that the focus alone is moved, as the system does
// it for a click.
void NativeStage::focus(controls::Control& control) {
  putInFront(control.window());
  HWND handle = handleOf(control);
  act([handle] { SetFocus(handle); });
}

void NativeStage::select(controls::TextBox& box, int start, int length) {
  act([&] { box.select(start, length); });
}

void NativeStage::mousePaste(controls::TextBox& box, const std::string& text) {
  putInFront(box.window());
  const auto before = clipboardText();
  setClipboard(text);
  HWND handle = handleOf(box);
  POINT place = {};
  if (!placeToClick(handle, place)) throw CommandError("the mouse does not reach the box");
  clickAt(place, MouseButton::Right);
  HWND menu = findShortcutMenu();
  if (!menu) throw CommandError("the box has no shortcut menu");
  bool found = false;
  inspect([&] { found = placeOfMenuItem(menu, L"&Paste", place); });
  if (!found) throw CommandError("nothing can be pasted");
  clickAt(place, MouseButton::Left);
  setClipboard(before);
}

// The command of the item, which its menu sends however it was chosen.
void NativeStage::choose(controls::MenuItem& item) {
  const controls::Window* owner = nullptr;
  UINT command = 0;
  inspect([&] {
    owner = findWindow("frmCalc");
    command = commandOf(*owner, item);
  });
  if (command == 0) throw CommandError("grey on the screen: " + item.name());
  putInFront(*owner);
  deliver(handleOf(*owner), WM_COMMAND, command, 0);
}

void NativeStage::close(controls::Window& window) {
  deliver(handleOf(window), WM_SYSCOMMAND, SC_CLOSE, 0);
}

void NativeStage::bringToFront(controls::Window& window) {
  putInFront(window);
}

// The mouse drags a window by whole pixels, so that another place or size would come out than was
// asked for. Window::setBounds makes the same call of the system's as the end of a drag, and keeps
// the twips.
void NativeStage::resize(controls::Window& window, controls::Twips width, controls::Twips height) {
  act([&] { window.setBounds({window.bounds().left, window.bounds().top, width, height}); });
}

void NativeStage::move(controls::Window& window, controls::Twips left, controls::Twips top) {
  act([&] { window.setBounds({left, top, window.bounds().width, window.bounds().height}); });
}

void NativeStage::setState(controls::Window& window, controls::WindowState state) {
  using controls::WindowState;
  const WPARAM command = state == WindowState::Minimized   ? SC_MINIMIZE
                         : state == WindowState::Maximized ? SC_MAXIMIZE
                                                           : SC_RESTORE;
  deliver(handleOf(window), WM_SYSCOMMAND, command, 0);
}

}  // namespace driver
