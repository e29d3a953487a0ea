#include "win32/editor_paste.h"

#include <windows.h>

#include <algorithm>
#include <vector>

#include "win32/programs.h"

namespace win32 {
namespace {

constexpr DWORD kPoll = 20;
// A machine that has just been started may take this long to show a first window.
constexpr ULONGLONG kWindowPatience = 60'000;
// After a launcher has handed over to a program that is running already, which is fast.
constexpr ULONGLONG kHandOverPatience = 5'000;
constexpr ULONGLONG kFrontPatience = 1'000;
constexpr ULONGLONG kTextPatience = 5'000;
// Nothing may change for this long before keys are sent: documents may be restored late.
constexpr ULONGLONG kSettled = 200;
constexpr UINT kAnswerPatience = 200;

std::wstring classOf(HWND window) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return name;
}

BOOL CALLBACK addEditorWindow(HWND handle, LPARAM list) {
  if (IsWindowVisible(handle) && classOf(handle) == L"Notepad")
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(handle);
  return TRUE;
}

std::vector<HWND> editorWindows() {
  std::vector<HWND> windows;
  EnumWindows(addEditorWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

/// The focused text in a window; null without one, such as behind a message box.
HWND focusedText(HWND window) {
  GUITHREADINFO thread = {};
  thread.cbSize = sizeof thread;
  if (!GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread)) return nullptr;
  if (!thread.hwndFocus || GetAncestor(thread.hwndFocus, GA_ROOT) != window) return nullptr;
  const std::wstring name = classOf(thread.hwndFocus);
  return name == L"Edit" || name.starts_with(L"RichEdit") ? thread.hwndFocus : nullptr;
}

bool isEmpty(HWND text) {
  DWORD_PTR length = 1;
  return SendMessageTimeoutW(text, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, kAnswerPatience,
                             &length) &&
         length == 0;
}

INPUT keyInput(WORD key, bool up) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  return input;
}

// Ctrl and the key, after releasing modifiers that the user still holds from the shortcut.
bool sendWithControl(WORD key) {
  std::vector<INPUT> inputs;
  constexpr WORD kModifiers[] = {VK_SHIFT, VK_MENU, VK_LWIN, VK_RWIN, VK_CONTROL};
  for (const WORD held : kModifiers)
    if (GetAsyncKeyState(held) < 0) inputs.push_back(keyInput(held, true));
  inputs.push_back(keyInput(VK_CONTROL, false));
  inputs.push_back(keyInput(key, false));
  inputs.push_back(keyInput(key, true));
  inputs.push_back(keyInput(VK_CONTROL, true));
  const auto count = static_cast<UINT>(inputs.size());
  return SendInput(count, inputs.data(), sizeof(INPUT)) == count;
}

/// Starts an editor and pastes into it.
class EditorPaste {
 public:
  explicit EditorPaste(const std::function<void()>& work) : work_(work) {}

  bool run(const std::string& program) {
    process_ = startProgram(program);
    if (!process_) return false;
    window_ = waitForWindow();
    return window_ && comesToFront() && hasText() && isInFront() && sendWithControl('N') &&
           hasEmptyText() && isInFront() && isSameClipboard() && sendWithControl('V');
  }

 private:
  template <class Condition>
  bool comesTrue(ULONGLONG patience, Condition condition) const {
    const ULONGLONG until = GetTickCount64() + patience;
    while (!condition()) {
      if (GetTickCount64() > until) return false;
      MsgWaitForMultipleObjects(0, nullptr, FALSE, kPoll, QS_ALLINPUT);
      work_();
    }
    return true;
  }

  bool isInFront() const { return GetForegroundWindow() == window_; }

  // The user may have copied something else meanwhile.
  bool isSameClipboard() const { return GetClipboardSequenceNumber() == clipboard_; }

  // After the launcher has ended, a window that was open already may have come to the front with a
  // new document.
  HWND windowOfStarted(bool ended) const {
    for (HWND window : editorWindows()) {
      const bool old = std::ranges::find(before_, window) != before_.end();
      if (!old || (ended && GetForegroundWindow() == window)) return window;
    }
    return nullptr;
  }

  HWND waitForWindow() const {
    HWND found = nullptr;
    ULONGLONG endedAt = 0;
    comesTrue(kWindowPatience, [&] {
      const ULONGLONG now = GetTickCount64();
      const bool ended = WaitForSingleObject(process_.get(), 0) == WAIT_OBJECT_0;
      if (ended && endedAt == 0) endedAt = now;
      found = windowOfStarted(ended);
      return found || (ended && now - endedAt > kHandOverPatience);
    });
    return found;
  }

  bool comesToFront() const {
    return comesTrue(kFrontPatience, [this] {
      // Not every system raises the window that it activates.
      BringWindowToTop(window_);
      SetForegroundWindow(window_);
      return isInFront();
    });
  }

  bool hasText() const {
    return comesTrue(kTextPatience, [this] { return focusedText(window_) != nullptr; });
  }

  // Never pastes into a document that has text.
  bool hasEmptyText() const {
    HWND seen = nullptr;
    ULONGLONG since = 0;
    return comesTrue(kTextPatience, [&] {
      HWND text = focusedText(window_);
      if (text && !isEmpty(text)) text = nullptr;
      const ULONGLONG now = GetTickCount64();
      if (text != seen) since = now;
      seen = text;
      return seen && now - since >= kSettled;
    });
  }

  const std::function<void()>& work_;
  std::vector<HWND> before_ = editorWindows();
  DWORD clipboard_ = GetClipboardSequenceNumber();
  OwnedHandle process_;
  HWND window_ = nullptr;
};

}  // namespace

bool startProgramAndPaste(const std::string& program, const std::function<void()>& work) {
  // On Wine, a recent focus change may not have reached the screen yet. Checking the queue passes
  // it on; later, that would take the focus from the started program.
  GetQueueStatus(QS_ALLINPUT);
  return EditorPaste(work).run(program);
}

}  // namespace win32
