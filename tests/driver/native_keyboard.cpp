#include "driver/native_keyboard.h"

#include <algorithm>
#include <utility>

#include "driver/native_ui_thread.h"
#include "support/input.h"

namespace driver {

namespace {

bool isExtended(WORD key) {
  return controls::isNavigationKey(key) || key == VK_DELETE || key == VK_INSERT ||
         key == VK_NUMLOCK;
}

INPUT keyInput(WORD key, bool up) {
  return support::keyInput(
      key, (up ? KEYEVENTF_KEYUP : 0U) | (isExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0U));
}

INPUT characterInput(WORD character, bool up) {
  INPUT input = support::keyInput(0, KEYEVENTF_UNICODE | (up ? KEYEVENTF_KEYUP : 0U));
  input.ki.wScan = character;
  return input;
}

void tap(WORD key, NativeKeyboard::Inputs& inputs) {
  inputs.push_back(keyInput(key, false));
  inputs.push_back(keyInput(key, true));
}

void holdKey(WORD key, bool& held, bool wanted, NativeKeyboard::Inputs& inputs) {
  if (held == wanted) return;
  held = wanted;
  inputs.push_back(keyInput(key, !wanted));
}

}  // namespace

NativeKeyboard::NativeKeyboard()
    : numLockSwitched_(setLock(VK_NUMLOCK, true)), capsLockSwitched_(setLock(VK_CAPITAL, false)) {}

// No key stays down, even after a command that failed halfway.
NativeKeyboard::~NativeKeyboard() {
  Inputs inputs;
  for (const Press& press : pressed_) inputs.push_back(input(press.key, true));
  hold({}, inputs);
  if (numLockSwitched_) tap(VK_NUMLOCK, inputs);
  if (capsLockSwitched_) tap(VK_CAPITAL, inputs);
  support::send(inputs);
}

// Returns whether it had to be switched.
bool NativeKeyboard::setLock(WORD key, bool on) {
  if (((GetKeyState(key) & 1) != 0) == on) return false;
  Inputs inputs;
  tap(key, inputs);
  support::send(inputs);
  return true;
}

// Printable characters are typed with their key in the keyboard layout.
NativeKeyboard::Key NativeKeyboard::keyOf(const controls::KeyStroke& stroke,
                                          controls::KeyAscii character) {
  const auto& [code, shift, control, alt] = stroke;
  if (control || alt || character == 0 || character == controls::kKeyEnter ||
      character == controls::kKeyBackspace || character == controls::kKeyEscape)
    return {static_cast<WORD>(code), 0, {shift, control, alt}};
  const SHORT found = VkKeyScanW(static_cast<WCHAR>(character));
  const int modifiers = HIBYTE(found);
  if (character < ' ' || found == -1 || modifiers > 1) return {0, static_cast<WORD>(character), {}};
  return {LOBYTE(found), 0, {.shift = modifiers == 1}};
}

INPUT NativeKeyboard::input(const Key& key, bool up) {
  return key.character != 0 ? characterInput(key.character, up) : keyInput(key.code, up);
}

INPUT NativeKeyboard::downInput(const Key& key) {
  INPUT down = input(key, false);
  const auto& [shift, control, alt] = key.modifiers;
  down.ki.dwExtraInfo = UiThread::kHeldInput | (shift ? UiThread::kHeldShift : 0) |
                        (control ? UiThread::kHeldControl : 0) | (alt ? UiThread::kHeldAlt : 0);
  return down;
}

void NativeKeyboard::hold(const Modifiers& wanted, Inputs& inputs) {
  holdKey(VK_SHIFT, held_.shift, wanted.shift, inputs);
  holdKey(VK_CONTROL, held_.control, wanted.control, inputs);
  holdKey(VK_MENU, held_.alt, wanted.alt, inputs);
}

NativeKeyboard::Inputs NativeKeyboard::down(const controls::KeyStroke& stroke,
                                            controls::KeyAscii character) {
  Inputs inputs;
  const Key key = keyOf(stroke, character);
  pressed_.push_back({stroke.key, key});
  hold(key.modifiers, inputs);
  inputs.push_back(downInput(key));
  return inputs;
}

NativeKeyboard::Inputs NativeKeyboard::downAgain() {
  held_ = {};
  Inputs inputs = upAgain();
  hold(pressed_.back().key.modifiers, inputs);
  inputs.push_back(downInput(pressed_.back().key));
  return inputs;
}

NativeKeyboard::Inputs NativeKeyboard::up(const controls::KeyStroke& stroke) {
  Inputs inputs;
  const auto press = std::ranges::find(pressed_, stroke.key, &Press::named);
  if (press == pressed_.end()) return inputs;
  inputs.push_back(input(press->key, true));
  pressed_.erase(press);
  if (pressed_.empty()) hold({}, inputs);
  return inputs;
}

NativeKeyboard::Inputs NativeKeyboard::upAgain() const {
  const std::pair<WORD, bool> modifiers[] = {
      {VK_SHIFT, held_.shift}, {VK_CONTROL, held_.control}, {VK_MENU, held_.alt}};
  Inputs inputs;
  for (const auto& [key, held] : modifiers)
    if (!held && GetAsyncKeyState(key) < 0) inputs.push_back(keyInput(key, true));
  return inputs;
}

}  // namespace driver
