#include "desktop/program/hands.h"

#include <cctype>

#include "support/input.h"
#include "support/retries.h"
#include "support/wait.h"
#include "support/windows.h"

namespace program {

using namespace support;

namespace {

constexpr ULONGLONG kReleaseIsLate = 5'000;

WORD keyOf(char cap) {
  switch (cap) {
    case '+':
      return VK_ADD;
    case '-':
      return VK_SUBTRACT;
    case '*':
      return VK_MULTIPLY;
    case '/':
      return VK_DIVIDE;
    case '.':
      return VK_OEM_PERIOD;
    case '=':
      return VK_RETURN;
    default:
      return static_cast<WORD>(std::toupper(static_cast<unsigned char>(cap)));
  }
}

bool isDragged(HWND window) {
  return (inputStateOf(window).flags & GUI_INMOVESIZE) != 0;
}

}  // namespace

void type(std::string_view keys) {
  Inputs inputs;
  for (const char cap : keys) tap(inputs, keyOf(cap));
  send(inputs);
}

void press(WORD key) {
  Inputs inputs;
  tap(inputs, key);
  send(inputs);
}

void pressWith(WORD modifier, WORD key) {
  Inputs inputs;
  keyDown(inputs, modifier);
  tap(inputs, key);
  keyUp(inputs, modifier);
  send(inputs);
}

void click(POINT place) {
  SetCursorPos(place.x, place.y);
  send({mouseInput(MOUSEEVENTF_LEFTDOWN), mouseInput(MOUSEEVENTF_LEFTUP)});
}

void doubleClick(POINT place) {
  SetCursorPos(place.x, place.y);
  const INPUT down = mouseInput(MOUSEEVENTF_LEFTDOWN);
  const INPUT up = mouseInput(MOUSEEVENTF_LEFTUP);
  send({down, up, down, up});
}

void holdFrame(HWND window, POINT place) {
  SetCursorPos(place.x, place.y);
  send({mouseInput(MOUSEEVENTF_LEFTDOWN)});
  await("a window that is being dragged", [window] { return isDragged(window); });
}

void releaseMouse() {
  send({mouseInput(MOUSEEVENTF_LEFTUP)});
}

void dragWindow(HWND window, POINT from, POINT to) {
  holdFrame(window, from);
  SetCursorPos(to.x, to.y);
  releaseMouse();
  // The system may lose the release; the drag would go on.
  const auto isOver = [window] { return !isDragged(window); };
  if (eventually(isOver, kReleaseIsLate)) return;
  noteRetry("a release");
  releaseMouse();
  await("the end of a drag", isOver);
}

POINT middleOf(HWND window) {
  return support::middleOf(placeOf(window));
}

}  // namespace program
