#include "win32/desktop.h"

#include <windows.h>

#include <commdlg.h>

#include "win32/clipboard.h"
#include "win32/dialog_place.h"
#include "win32/editor_paste.h"
#include "win32/help_viewer.h"
#include "win32/late_function.h"
#include "win32/message_loop.h"
#include "win32/paths.h"
#include "win32/programs.h"
#include "win32/registry.h"
#include "win32/text.h"
#include "win32/version_notes.h"
#include "win32/window.h"

namespace win32 {

namespace {

HWND handleOf(const controls::Window* window) {
  return window ? static_cast<const Window*>(window)->handle() : nullptr;
}

BOOL CALLBACK dismissDialog(HWND window, LPARAM) {
  if (isSystemDialog(window)) EndDialog(window, 0);
  return TRUE;
}

}  // namespace

Desktop::Desktop(const std::string& settingsRoot)
    : settings_(settingsRoot + "\\" + narrow(baseNameOf(programPath()))),
      tapeSafe_(tapeFolder(narrow(baseNameOf(programPath())))) {
  mixedColors_.fill(RGB(255, 255, 255));
}

std::unique_ptr<controls::Window> Desktop::createWindow(const controls::WindowLayout& layout) {
  return std::make_unique<Window>(*this, layout);
}

int Desktop::showMessage(const controls::UserMessage& box) {
  const bool question = box.buttons == controls::Buttons::YesNo;
  UINT style = MB_TASKMODAL | static_cast<UINT>(question ? MB_YESNO : MB_OK);
  if (box.icon == controls::Icon::Question) style |= MB_ICONQUESTION;
  const controls::SystemDialog dialog(*this);
  const DialogPlace place(handleOf(dialog.owner()));
  const int answer =
      MessageBoxW(handleOf(dialog.owner()), wide(box.text).c_str(), wide(box.title).c_str(), style);
  dialog.noteAnswered();
  if (!question) return controls::kAnswerOk;
  if (answer == IDYES) return controls::kAnswerYes;
  return answer == IDNO ? controls::kAnswerNo : controls::kNoAnswer;
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
  return win32::startProgram(program) != nullptr;
}

bool Desktop::startProgramAndPaste(const std::string& program) {
  return win32::startProgramAndPaste(program, [this] {
    events().takeWhileWaiting([this] {
      // An end that was asked for meanwhile is for the loop that waits outside.
      if (!dispatchWaiting(*this)) endMessageLoop();
    });
  });
}

bool Desktop::openText(const std::string& program, std::string_view text) {
  return win32::openText(program, text);
}

void Desktop::showHelp(const controls::HelpRequest& request) {
  if (openHelp(request, handleOf(activeWindow()))) return;
  showMessage({.text = whereHelpIs(request.file)});
}

std::optional<std::uint32_t> Desktop::chooseColor(std::uint32_t present) {
  const controls::SystemDialog dialog(*this);
  const DialogPlace place(handleOf(dialog.owner()));
  static_assert(sizeof(COLORREF) == sizeof(std::uint32_t));
  CHOOSECOLORW choice = {};
  choice.lStructSize = sizeof choice;
  choice.hwndOwner = handleOf(dialog.owner());
  choice.rgbResult = present;
  choice.lpCustColors = reinterpret_cast<COLORREF*>(mixedColors_.data());
  choice.Flags = CC_ANYCOLOR | CC_FULLOPEN | CC_RGBINIT;
  const auto chooseColor = lateFunction<decltype(&ChooseColorW)>(L"comdlg32.dll", "ChooseColorW");
  const bool chosen = chooseColor && chooseColor(&choice);
  dialog.noteAnswered();
  if (!chosen) return {};
  return choice.rgbResult;
}

std::optional<std::string> Desktop::registryValue(std::string_view key, std::string_view name) {
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

controls::VersionNotes Desktop::versionNotes() {
  return readVersionNotes();
}

void Desktop::dismissSystemDialogs() {
  EnumThreadWindows(GetCurrentThreadId(), dismissDialog, 0);
}

}  // namespace win32
