#include "win32/button.h"

#include <utility>

#include "win32/live_region.h"
#include "win32/text.h"

namespace win32 {
namespace {

constexpr UINT_PTR kConfirmationTimer = 1;
constexpr UINT kConfirmationTime = 1500;

}  // namespace

KeyFace::Shows Button::shows() const {
  return confirmation_.empty() ? KeyFace::Shows::Key : KeyFace::Shows::CheckMark;
}

void Button::confirm(std::string_view text) {
  showConfirmation(text);
  speak(handle());
  SetTimer(handle(), kConfirmationTimer, kConfirmationTime, nullptr);
}

void Button::showConfirmation(std::string_view text) {
  confirmation_ = wide(text);
  putText();
  InvalidateRect(handle(), nullptr, TRUE);
}

std::optional<LRESULT> Button::take(const Message& message) {
  if (message.id != WM_TIMER || message.wParam != kConfirmationTimer) return Native::take(message);
  KillTimer(handle(), kConfirmationTimer);
  showConfirmation("");
  return 0;
}

std::wstring Button::windowText() const {
  if (!confirmation_.empty()) return confirmation_;
  const bool lit = backColor() != controls::Color::buttonFace();
  if (lit && !Native::layout().litName.empty()) return wide(Native::layout().litName);
  return Key::windowText();
}

// A color with a meaning is part of the name, too.
void Button::showBackColor() {
  Native::showBackColor();
  if (!Native::layout().litName.empty()) putText();
}

KeyFace::Shows ToggleButton::shows() const {
  return value() == 1 ? KeyFace::Shows::KeyDown : KeyFace::Shows::Key;
}

void ToggleButton::showValue() {
  send(BM_SETCHECK, value() == 1 ? BST_CHECKED : BST_UNCHECKED);
  InvalidateRect(handle(), nullptr, TRUE);
}

OptionButton::OptionButton(Window& frame, const controls::ControlLayout& layout)
    : Native(frame, layout, {L"BUTTON", BS_RADIOBUTTON}) {
  showValue();
}

void OptionButton::takeNotification(UINT code) {
  // The second click of a double click counts like any other.
  const bool isClick = code == BN_CLICKED || code == BN_DOUBLECLICKED;
  if (isClick && !takingFocus_) click();
}

// A native radio button also reports a click when it gets the focus.
std::optional<LRESULT> OptionButton::take(const Message& message) {
  if (message.id != WM_SETFOCUS) return Native::take(message);
  const bool before = std::exchange(takingFocus_, true);
  const auto result = Native::take(message);
  takingFocus_ = before;
  return result;
}

void OptionButton::showValue() {
  send(BM_SETCHECK, value() ? BST_CHECKED : BST_UNCHECKED);
}

}  // namespace win32
