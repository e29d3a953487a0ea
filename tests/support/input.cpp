#include "support/input.h"

namespace support {

namespace {

struct KeypadKey {
  WORD key;
  DWORD flags = 0;
};

KeypadKey keypadKey(char cap) {
  switch (cap) {
    case '+':
      return {VK_ADD};
    case '-':
      return {VK_SUBTRACT};
    case '*':
      return {VK_MULTIPLY};
    case '/':
      return {VK_DIVIDE, KEYEVENTF_EXTENDEDKEY};
    case '.':
      return {VK_DECIMAL};
    case 'E':
      return {VK_RETURN, KEYEVENTF_EXTENDEDKEY};
    default:
      return {static_cast<WORD>(VK_NUMPAD0 + (cap - '0'))};
  }
}

}  // namespace

INPUT keyInput(WORD key, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  return input;
}

INPUT mouseInput(DWORD flags) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  return input;
}

void send(Inputs inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void keyDown(Inputs& inputs, WORD key) {
  inputs.push_back(keyInput(key, 0));
}

void keyUp(Inputs& inputs, WORD key) {
  inputs.push_back(keyInput(key, KEYEVENTF_KEYUP));
}

void tap(Inputs& inputs, WORD key) {
  keyDown(inputs, key);
  keyUp(inputs, key);
}

Inputs keypad(std::string_view caps) {
  Inputs inputs;
  for (const char cap : caps) {
    const KeypadKey key = keypadKey(cap);
    inputs.push_back(keyInput(key.key, key.flags));
    inputs.push_back(keyInput(key.key, key.flags | KEYEVENTF_KEYUP));
  }
  return inputs;
}

}  // namespace support
