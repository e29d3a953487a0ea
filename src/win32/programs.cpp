#include "win32/programs.h"

#include <algorithm>
#include <vector>

#include "win32/handles.h"
#include "win32/text.h"

namespace win32 {
namespace {

constexpr DWORD kPoll = 20;
constexpr int kWindowPolls = 250;
constexpr int kFrontPolls = 50;
// A new window is in front before its text takes keys.
constexpr DWORD kSettle = 100;

/// The folders that a program of the system may be in.
std::wstring searchPath() {
  std::wstring path;
  for (const auto folder : {GetSystemDirectoryW, GetSystemWindowsDirectoryW}) {
    wchar_t buffer[MAX_PATH] = {};
    folder(buffer, MAX_PATH);
    path.append(buffer).append(L";");
  }
  const DWORD length = GetEnvironmentVariableW(L"PATH", nullptr, 0);
  std::wstring rest(length, L'\0');
  rest.resize(GetEnvironmentVariableW(L"PATH", rest.data(), length));
  return path + rest;
}

/// The full path of a program; empty when it is not found.
std::wstring findProgram(const std::wstring& name) {
  if (name.find_first_of(L"\\/:") != std::wstring::npos) return name;
  const std::wstring folders = searchPath();
  wchar_t found[MAX_PATH] = {};
  const DWORD length =
      SearchPathW(folders.c_str(), name.c_str(), nullptr, MAX_PATH, found, nullptr);
  return length > 0 && length < MAX_PATH ? std::wstring(found) : std::wstring();
}

struct EditorWindow {
  HWND handle;
  DWORD process;
};

BOOL CALLBACK addEditorWindow(HWND handle, LPARAM list) {
  wchar_t name[16] = {};
  GetClassNameW(handle, name, static_cast<int>(std::size(name)));
  if (!IsWindowVisible(handle) || std::wstring_view(name) != L"Notepad") return TRUE;
  DWORD process = 0;
  GetWindowThreadProcessId(handle, &process);
  reinterpret_cast<std::vector<EditorWindow>*>(list)->push_back({handle, process});
  return TRUE;
}

std::vector<EditorWindow> editorWindows() {
  std::vector<EditorWindow> windows;
  EnumWindows(addEditorWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

// The process that was started may be a mere starter: a new window of any other counts too.
HWND waitForNewWindow(const std::vector<EditorWindow>& before) {
  for (int poll = 0; poll < kWindowPolls; ++poll) {
    for (const EditorWindow& window : editorWindows()) {
      const auto known =
          std::find_if(before.begin(), before.end(),
                       [&window](const EditorWindow& old) { return old.handle == window.handle; });
      if (known == before.end()) return window.handle;
    }
    Sleep(kPoll);
  }
  return nullptr;
}

bool bringToFront(HWND window) {
  for (int poll = 0; poll < kFrontPolls; ++poll) {
    // Not every system raises what it gives the keys to.
    BringWindowToTop(window);
    SetForegroundWindow(window);
    if (GetForegroundWindow() == window) return true;
    Sleep(kPoll);
  }
  return false;
}

INPUT keyInput(WORD key, bool up) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  return input;
}

// Ctrl+V, whatever keys the user still holds from the shortcut that led here.
bool sendPaste() {
  std::vector<INPUT> inputs;
  constexpr WORD kModifiers[] = {VK_SHIFT, VK_MENU, VK_LWIN, VK_RWIN, VK_CONTROL};
  for (const WORD held : kModifiers)
    if (GetAsyncKeyState(held) < 0) inputs.push_back(keyInput(held, true));
  inputs.push_back(keyInput(VK_CONTROL, false));
  inputs.push_back(keyInput('V', false));
  inputs.push_back(keyInput('V', true));
  inputs.push_back(keyInput(VK_CONTROL, true));
  const auto count = static_cast<UINT>(inputs.size());
  return SendInput(count, inputs.data(), sizeof(INPUT)) == count;
}

}  // namespace

std::optional<DWORD> startProgram(const std::string& program) {
  const std::wstring path = findProgram(wide(program));
  if (path.empty()) return {};
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process = {};
  std::wstring commandLine = L"\"" + path + L"\"";
  if (!CreateProcessW(path.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      nullptr, &startup, &process))
    return {};
  const OwnedHandle thread(process.hThread);
  const OwnedHandle owned(process.hProcess);
  AllowSetForegroundWindow(process.dwProcessId);
  return process.dwProcessId;
}

bool startProgramAndPaste(const std::string& program) {
  // On Wine a focus that was moved just now may still have to be passed on to the screen. Asking
  // for input does that; done later, it would take the focus back from the program that is started.
  GetQueueStatus(QS_ALLINPUT);
  const std::vector<EditorWindow> before = editorWindows();
  if (!startProgram(program)) return false;
  const HWND window = waitForNewWindow(before);
  if (!window || !bringToFront(window)) return false;
  Sleep(kSettle);
  return GetForegroundWindow() == window && sendPaste();
}

}  // namespace win32
