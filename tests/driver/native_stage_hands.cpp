// The user's input: keyboard, mouse, and changes to windows.
#include "driver/command.h"
#include "driver/native_handles.h"
#include "driver/native_stage.h"
#include "support/retries.h"

namespace driver {

namespace {

constexpr int kTriesOfKey = 20;
constexpr int kTriesOfMouse = 5;
constexpr int kTriesOfMenu = 10;
constexpr DWORD kReportIsLate = 100;
// If the action itself shows a message, it is not answered before that.
constexpr UINT kAnswerIsLate = 1000;
constexpr int kTriesOfDrag = 3;

}  // namespace

// A keystroke that did not arrive as sent has had no effect, and is sent again.
void NativeStage::keyDown(const controls::KeyStroke& stroke, controls::KeyAscii character) {
  const bool isTyped = character >= ' ' && !stroke.control && !stroke.alt;
  putProgramInFront();
  NativeKeyboard::Inputs inputs = keyboard_.down(stroke, character);
  for (int i = 0; i < kTriesOfKey; ++i) {
    ui_.expectKey(isTyped ? static_cast<WPARAM>(character) : 0);
    send(inputs);
    if (ui_.hit()) return;
    support::noteRetry("a key");
    putProgramInFront();
    inputs = keyboard_.downAgain();
  }
  throw CommandError("a key does not arrive as it was pressed");
}

// Also when the key has closed the program: no key stays down. A key that has started another
// program is released before that is in front, as a person would. A menu that Alt has opened, which
// controls in memory do not have, is given up.
void NativeStage::keyUp(const controls::KeyStroke& stroke) {
  if (!isInFront() && running()) putProgramInFront();
  send(keyboard_.up(stroke));
  if (const NativeKeyboard::Inputs stuck = keyboard_.upAgain(); !stuck.empty()) {
    support::noteRetry("a release");
    send(stuck);
  }
  if (stroke.alt) cancelMouse();
}

// Asked on the program's thread: there the frame around a group of buttons lets clicks through.
HWND NativeStage::windowAt(POINT place) {
  HWND window = nullptr;
  inspect([&] { window = WindowFromPoint(place); });
  return window;
}

// False if another window appeared at that place before the click, or if a pressed button lost the
// focus for a moment: nothing has been clicked then.
bool NativeStage::clickAt(POINT place, MouseButton button) {
  HWND seen = windowAt(place);
  if (!moveButton(button, false, place, seen, nullptr)) return false;
  if (moveButton(button, true, place, seen, isButton(seen) ? seen : nullptr)) return true;
  cancelMouse();
  moveButton(button, true, place, nullptr, nullptr);
  return false;
}

// Cancels a pressed button and an open menu.
void NativeStage::cancelMouse() {
  if (HWND captured = mouseCapture(ui_.window())) deliver(captured, WM_CANCELMODE, 0, 0);
}

// The system reports a move with a delay, and until then a click goes to the old place. The report
// may be lost while that of an earlier move is processed, and a move to the same place is not
// reported again, so the mouse has to move away in between.
void NativeStage::moveMouse(POINT place) {
  POINT now = {};
  GetCursorPos(&now);
  if (now.x == place.x && now.y == place.y && ui_.isMouseAt(place)) return;
  for (int i = 0; i < kTriesOfMouse; ++i) {
    ui_.expectMove(place);
    SetCursorPos(place.x, place.y);
    if (ui_.waitForMove(kReportIsLate)) return;
    support::noteRetry("a move of the mouse");
    SetCursorPos(place.x + 1, place.y);
  }
}

// What the program has not seen went elsewhere. Only a release may, when the press has closed the
// window.
bool NativeStage::moveButton(MouseButton button, bool up, POINT place, HWND seen, HWND pressed) {
  for (int i = 0; i < kTriesOfMouse; ++i) {
    moveMouse(place);
    ui_.expectClick(place, seen, pressed);
    send({mouseButton(button, up, UiThread::kAimedInput)});
    const bool mayGoElsewhere = up && !pressed;
    if (mayGoElsewhere ? !ui_.missed() : ui_.hit()) return true;
    support::noteRetry("a click");
  }
  return false;
}

// The system loses a move now and then that ends as soon as it has begun: the window stays as it
// was.
void NativeStage::dragFrame(POINT from, POINT to) {
  HWND window = WindowFromPoint(from);
  RECT before = {};
  GetWindowRect(window, &before);
  for (int i = 0; i < kTriesOfDrag; ++i) {
    if (!moveButton(MouseButton::Left, false, from, window, nullptr) ||
        !moveButton(MouseButton::Left, true, to, nullptr, nullptr))
      throw CommandError("the mouse does not stay where it is put");
    RECT now = {};
    GetWindowRect(window, &now);
    if (!EqualRect(&now, &before)) return;
    support::noteRetry("a drag");
  }
}

void NativeStage::clickSurely(POINT place) {
  for (int i = 0; i < kTriesOfMouse; ++i)
    if (clickAt(place, MouseButton::Left)) return;
  throw CommandError("the mouse does not get there");
}

// False if the mouse cannot reach the control, which is outside the window or the screen. What
// covers it otherwise is in front only for a moment.
bool NativeStage::reach(controls::Control& control, POINT& place) {
  putInFront(control.window());
  HWND handle = handleOf(control);
  bool reached = false;
  const auto look = [&] { reached = placeToClick(handle, place); };
  inspect(look);
  if (reached || !isShown(handle)) return reached;
  support::noteRetry("a covered control");
  raise(control.window());
  inspect(look);
  return reached;
}

// A control that the first click hides or puts behind a message gets no second one.
void NativeStage::clickWithMouse(controls::Control& control, int times) {
  HWND handle = handleOf(control);
  POINT place = {};
  if (!reach(control, place)) return clickByMessages(handle, times);
  for (int i = 0; i < times && IsWindowVisible(handle) && takesInput(handle); ++i) {
    if (windowAt(place) != handle) raise(control.window());
    clickSurely(place);
  }
}

// A button gets its click in one message: between two it could lose the focus, and with it the
// click.
void NativeStage::clickByMessages(HWND control, int times) {
  if (isButton(control)) {
    for (int i = 0; i < times && IsWindow(control); ++i) deliver(control, BM_CLICK, 0, 0);
    return;
  }
  deliver(control, WM_LBUTTONDOWN, MK_LBUTTON, 0);
  deliver(control, WM_LBUTTONUP, 0, 0);
  if (times == 1) return;
  deliver(control, WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
  deliver(control, WM_LBUTTONUP, 0, 0);
}

// A click would move the caret of a text box, so only the focus is moved, as the system does for a
// click.
void NativeStage::focus(controls::Control& control) {
  putInFront(control.window());
  HWND handle = handleOf(control);
  act([handle] { SetFocus(handle); });
}

// The menu of a box outside the window or the screen, which the mouse cannot reach, opens on the
// screen all the same.
bool NativeStage::openBoxMenu(controls::TextBox& box) {
  POINT place = {};
  if (reach(box, place)) return clickAt(place, MouseButton::Right);
  deliver(handleOf(box), WM_RBUTTONDOWN, MK_RBUTTON, 0);
  deliver(handleOf(box), WM_RBUTTONUP, 0, 0);
  return true;
}

// The menu is opened again if it has closed too early. A grayed command is given up.
void NativeStage::useBoxMenu(controls::TextBox& box, controls::BoxCommand command) {
  HWND handle = handleOf(box);
  for (int i = 0; i < kTriesOfMenu; ++i) {
    if (!openBoxMenu(box)) continue;
    const BoxMenuItem item = findInBoxMenu(command);
    if (item.grey) return cancelMouse();
    if (item.seen && clickAt(item.place, MouseButton::Left) && !mouseCapture(handle)) return;
    cancelMouse();
  }
  throw CommandError("the menu of the box does not stay open");
}

// If the mouse cannot reach the menu bar, the command is sent directly.
void NativeStage::choose(controls::MenuItem& item) {
  const controls::Window* owner = nullptr;
  std::vector<MenuPlace> way;
  inspect([&] {
    owner = findWindow("frmCalc");
    way = wayTo(*owner, item);
  });
  if (way.empty()) throw CommandError("grey on the screen: " + item.name());
  putInFront(*owner);
  HWND window = handleOf(*owner);
  const UINT command = GetMenuItemID(way.back().menu, way.back().position);
  ui_.expectCommand(command);
  for (int i = 0; i < kTriesOfMenu; ++i) {
    POINT place = {};
    if (!placeInBar(window, way.front(), place)) return deliver(window, WM_COMMAND, command, 0);
    clickThrough(way, place);
    if (ui_.commandTaken()) return;
    support::noteRetry("a menu");
    cancelMouse();
  }
  throw CommandError("the menu does not stay open");
}

// Clicks from `place` in the menu bar as far as possible: a late mouse move may open another menu.
void NativeStage::clickThrough(const std::vector<MenuPlace>& way, POINT place) {
  if (!clickAt(place, MouseButton::Left)) return;
  for (std::size_t i = 1; i < way.size(); ++i)
    if (!placeInMenu(way[i], place) || !clickAt(place, MouseButton::Left)) return;
}

// Sends the message to each window of the program in turn and waits, as the system or another
// program would.
void NativeStage::sendRequest(const Request& request) {
  const auto send = [](HWND window, UINT message, WPARAM wParam) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, message, wParam, 0, SMTO_NORMAL, kAnswerIsLate, &answer);
  };
  std::vector<HWND> windows;
  inspect([&] {
    for (const auto name : {"frmCalc", "frmAnnuity", "frmAbout"})
      if (const controls::Window* window = findWindow(name)) windows.push_back(handleOf(*window));
    const controls::Window* asked = findWindow(request.window);
    if (asked) windows = {handleOf(*asked)};
    if (!asked && !request.window.empty()) windows.clear();
  });
  if (!request.window.empty()) {
    for (HWND window : windows) send(window, WM_CLOSE, 0);
    return;
  }
  for (HWND window : windows) send(window, WM_QUERYENDSESSION, 0);
  for (HWND window : windows) send(window, WM_ENDSESSION, TRUE);
}

void NativeStage::receive(const Request& request) {
  clearAway();
  sendRequest(request);
  ui_.post([] {});
  settle();
}

void NativeStage::setState(controls::Window& window, controls::WindowState state) {
  using controls::WindowState;
  const WPARAM command = state == WindowState::Minimized   ? SC_MINIMIZE
                         : state == WindowState::Maximized ? SC_MAXIMIZE
                                                           : SC_RESTORE;
  deliver(handleOf(window), WM_SYSCOMMAND, command, 0);
}

}  // namespace driver
