#include "driver/native_boxes.h"

#include <algorithm>
#include <utility>

#include "driver/command.h"
#include "driver/native_handles.h"
#include "support/wait.h"
#include "support/windows.h"
#include "win32/text.h"

namespace driver {

namespace {

constexpr wchar_t kDialogClass[] = L"#32770";
constexpr int kTextOfBox = 0xFFFF;
// The control ids of the boxes for red, green and blue in the system's color picker.
constexpr int kRedOfPicker = 706;
constexpr int kGreenOfPicker = 707;
constexpr int kBlueOfPicker = 708;

// Also finds a dialog that is still hidden: the system shows it when it is idle.
HWND findDialog() {
  HWND dialog = nullptr;
  while ((dialog = FindWindowExW(nullptr, dialog, kDialogClass, nullptr)) != nullptr) {
    if (isOurs(dialog)) return dialog;
  }
  return nullptr;
}

template <class Condition>
void waitUntil(Condition condition) {
  if (!support::eventually(condition)) throw CommandError("a dialog does not answer");
}

std::string textOf(HWND window) {
  return win32::narrow(support::textOf(window));
}

struct Parts {
  std::vector<HWND> buttons;
  HICON icon = nullptr;
};

Parts partsOf(HWND box) {
  Parts parts;
  for (HWND child : support::allChildren(box)) {
    const std::wstring kind = support::classOf(child);
    const LONG_PTR style = GetWindowLongPtrW(child, GWL_STYLE);
    if ((style & WS_VISIBLE) == 0) continue;
    if (kind == L"Button") parts.buttons.push_back(child);
    if (kind == L"Static" && (style & SS_TYPEMASK) == SS_ICON)
      parts.icon = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
  }
  return parts;
}

std::string nameOfIcon(HICON icon) {
  if (!icon) return "none";
  return icon == LoadIconW(nullptr, IDI_QUESTION) ? "question" : "other";
}

// The only button of a box has the id of OK or of Cancel.
std::string namesOfButtons(const std::vector<HWND>& buttons) {
  const auto has = [&buttons](int number) {
    return std::ranges::any_of(buttons,
                               [number](HWND button) { return GetDlgCtrlID(button) == number; });
  };
  if (buttons.size() == 1) return "OK";
  return buttons.size() == 2 && has(IDYES) && has(IDNO) ? "YesNo" : "other";
}

}  // namespace

bool NativeBoxes::attend() {
  HWND dialog = findDialog();
  if (!dialog) return false;
  waitUntil([dialog] { return !IsWindow(dialog) || IsWindowVisible(dialog); });
  if (!IsWindow(dialog)) return true;
  const bool isPicker = GetDlgItem(dialog, kRedOfPicker) != nullptr;
  if (!isPicker) readBox(dialog);
  if (!requests_.empty()) {
    const auto request = std::move(requests_.front());
    requests_.pop_front();
    request();
  }
  // A request from outside may have closed it.
  if (IsWindowVisible(dialog)) isPicker ? pickColor(dialog) : answerBox(dialog);
  waitUntil([dialog] { return !IsWindow(dialog); });
  return true;
}

void NativeBoxes::readBox(HWND dialog) {
  const Parts parts = partsOf(dialog);
  SeenBox box = {.text = textOf(GetDlgItem(dialog, kTextOfBox)),
                 .title = textOf(dialog),
                 .buttons = namesOfButtons(parts.buttons),
                 .icon = nameOfIcon(parts.icon)};
  const std::scoped_lock lock(mutex_);
  seen_.push_back(std::move(box));
}

void NativeBoxes::answerBox(HWND dialog) {
  const Parts parts = partsOf(dialog);
  HWND pressed = parts.buttons.empty() ? nullptr : parts.buttons.front();
  if (namesOfButtons(parts.buttons) == "YesNo") {
    int answer = IDYES;
    if (!answers_.empty()) {
      answer = answers_.front();
      answers_.pop_front();
    }
    pressed = GetDlgItem(dialog, answer);
  }
  PostMessageW(pressed, BM_CLICK, 0, 0);
}

void NativeBoxes::pickColor(HWND dialog) {
  std::optional<std::uint32_t> color;
  if (!colors_.empty()) {
    color = colors_.front();
    colors_.pop_front();
  }
  if (!color) {
    PostMessageW(GetDlgItem(dialog, IDCANCEL), BM_CLICK, 0, 0);
    return;
  }
  SetDlgItemInt(dialog, kRedOfPicker, GetRValue(*color), FALSE);
  SetDlgItemInt(dialog, kGreenOfPicker, GetGValue(*color), FALSE);
  SetDlgItemInt(dialog, kBlueOfPicker, GetBValue(*color), FALSE);
  PostMessageW(GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0);
}

void NativeBoxes::noteAnswer(int answer) {
  const std::scoped_lock lock(mutex_);
  if (!seen_.empty()) seen_.back().answer = answer;
}

std::vector<SeenBox> NativeBoxes::takeSeen() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(seen_, {});
}

}  // namespace driver
