#include "desktop/program/hands.h"

#include <cctype>
#include <vector>

#include "support/input.h"
#include "support/wait.h"
#include "support/windows.h"

namespace program {

using namespace support;

namespace {

void send(Inputs& inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

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

void addMouse(Inputs& inputs, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  inputs.push_back(input);
}

void addClick(Inputs& inputs) {
  addMouse(inputs, MOUSEEVENTF_LEFTDOWN);
  addMouse(inputs, MOUSEEVENTF_LEFTUP);
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
  Inputs inputs;
  addClick(inputs);
  send(inputs);
}

void doubleClick(POINT place) {
  SetCursorPos(place.x, place.y);
  Inputs inputs;
  addClick(inputs);
  addClick(inputs);
  send(inputs);
}

void dragWindow(HWND window, POINT from, POINT to) {
  SetCursorPos(from.x, from.y);
  Inputs hold;
  addMouse(hold, MOUSEEVENTF_LEFTDOWN);
  send(hold);
  await("a window that is being dragged", [window] {
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread);
    return (thread.flags & GUI_INMOVESIZE) != 0;
  });
  SetCursorPos(to.x, to.y);
  Inputs release;
  addMouse(release, MOUSEEVENTF_LEFTUP);
  send(release);
}

POINT middleOf(HWND window) {
  const RECT place = placeOf(window);
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

}  // namespace program
