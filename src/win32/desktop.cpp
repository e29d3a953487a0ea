#include "win32/desktop.h"

#include <windows.h>

#include <commdlg.h>

#include <algorithm>

#include "win32/clipboard.h"
#include "win32/help_viewer.h"
#include "win32/late_function.h"
#include "win32/paths.h"
#include "win32/programs.h"
#include "win32/registry.h"
#include "win32/text.h"
#include "win32/window.h"

namespace win32 {

/// A dialog of the system's is in front: no window of the program takes input. The system itself
/// disables only the window that owns the dialog.
class Desktop::Modal {
 public:
  explicit Modal(Desktop& desktop) : desktop_(desktop) {
    if (auto* active = static_cast<Window*>(desktop.activeWindow())) owner_ = active->handle();
    for (Window* window : desktop_.order_)
      if (window->handle() != owner_) EnableWindow(window->handle(), FALSE);
  }
  ~Modal() {
    for (Window* window : desktop_.order_) EnableWindow(window->handle(), window->enabled());
  }
  Modal(const Modal&) = delete;
  Modal& operator=(const Modal&) = delete;

  HWND owner() const { return owner_; }

 private:
  Desktop& desktop_;
  HWND owner_ = nullptr;
};

Desktop::Desktop(const std::string& settingsRoot)
    : settings_(settingsRoot + "\\" + narrow(baseNameOf(programPath()))) {
  mixedColors_.fill(RGB(255, 255, 255));
}

std::unique_ptr<controls::Window> Desktop::createWindow(const controls::WindowLayout& layout) {
  return std::make_unique<Window>(*this, layout);
}

int Desktop::showMessage(const controls::UserMessage& box) {
  const bool question = box.buttons == controls::Buttons::YesNo;
  UINT style = MB_TASKMODAL | static_cast<UINT>(question ? MB_YESNO : MB_OK);
  if (box.icon == controls::Icon::Question) style |= MB_ICONQUESTION;
  const Modal modal(*this);
  const int answer =
      MessageBoxW(modal.owner(), wide(box.text).c_str(), wide(box.title).c_str(), style);
  if (!question) return controls::kAnswerOk;
  return answer == IDYES ? controls::kAnswerYes : controls::kAnswerNo;
}

void Desktop::beep() {
  MessageBeep(MB_OK);
}

controls::Clipping Desktop::clipboardText() {
  return readClipboard();
}

bool Desktop::setClipboardText(std::string_view text) {
  return writeClipboard(text);
}

bool Desktop::startProgram(const std::string& program) {
  return win32::startProgram(program).has_value();
}

bool Desktop::startProgramAndPaste(const std::string& program) {
  return win32::startProgramAndPaste(program);
}

void Desktop::showHelp(const controls::HelpRequest& request) {
  const auto* active = static_cast<Window*>(activeWindow());
  if (openHelp(request, active ? active->handle() : nullptr)) return;
  showMessage({.text = whereHelpIs(request.file)});
}

std::optional<std::uint32_t> Desktop::chooseColor(std::uint32_t present) {
  const Modal modal(*this);
  static_assert(sizeof(COLORREF) == sizeof(std::uint32_t));
  CHOOSECOLORW choice = {};
  choice.lStructSize = sizeof choice;
  choice.hwndOwner = modal.owner();
  choice.rgbResult = present;
  choice.lpCustColors = reinterpret_cast<COLORREF*>(mixedColors_.data());
  choice.Flags = CC_ANYCOLOR | CC_FULLOPEN | CC_RGBINIT;
  const auto chooseColor = lateFunction<decltype(&ChooseColorW)>(L"comdlg32.dll", "ChooseColorW");
  if (!chooseColor || !chooseColor(&choice)) return {};
  return choice.rgbResult;
}

std::optional<controls::RegistryValue> Desktop::registryValue(std::string_view key,
                                                              std::string_view name) {
  return readMachineValue(key, name);
}

bool Desktop::fileExists(const std::string& path) {
  return isFile(wide(path));
}

std::string Desktop::programFolder() {
  return narrow(folderOf(programPath()));
}

std::string Desktop::programName() {
  return narrow(baseNameOf(programPath()));
}

void Desktop::noteInFront(Window& window) {
  std::erase(order_, &window);
  order_.push_back(&window);
}

void Desktop::handOver(Window& window) {
  const bool inFront = window.isInFront();
  std::erase(order_, &window);
  if (order_.empty() || activeWindow()) return;
  if (inFront) {
    order_.back()->comeToFront();
  } else {
    // Another program has the keys, and keeps them.
    order_.back()->noteActivated();
  }
}

void Desktop::forget(Window& window) {
  std::erase(order_, &window);
}

}  // namespace win32
