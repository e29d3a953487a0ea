#include "support/other_run.h"

#include <cstdio>
#include <fstream>
#include <sstream>

#include "support/clipboard.h"
#include "support/input.h"
#include "support/kept_state.h"
#include "support/registry_key.h"
#include "support/started_programs.h"
#include "support/taken_desktop.h"
#include "support/wait.h"
#include "support/windows.h"

namespace support {
namespace {

constexpr wchar_t kReady[] = L"Local\\TallyrexOtherRunIsReady";
constexpr wchar_t kGoOn[] = L"Local\\TallyrexOtherRunGoesOn";
constexpr DWORD kNoPatience = 200;
// It ends by itself when the run that waits for it has been killed.
constexpr DWORD kLongestWait = 60'000;

HANDLE event(const wchar_t* name) {
  return CreateEventW(nullptr, FALSE, FALSE, name);
}

void change() {
  setClipboardText(L"of the test");
  keepSystemColor(kChangedColor);
  const COLORREF color = RGB(1, 2, 3);
  SetSysColors(1, &kChangedColor, &color);
  const std::wstring newKey = std::wstring(kChangedKey) + L"\\New";
  for (const auto* name : {L"text", L"absent"}) {
    keepRegistryValue(HKEY_CURRENT_USER, kChangedKey, name);
    writeUserText(kChangedKey, name, L"of the test");
  }
  keepRegistryValue(HKEY_CURRENT_USER, newKey, L"text");
  writeUserText(newKey, L"text", L"of the test");
  send({keyInput(VK_SHIFT, 0)});
  CloseHandle(startProgram(L"notepad.exe"));
  awaitWindow("Notepad", [] { return FindWindowW(L"Notepad", nullptr); });
}

}  // namespace

OtherRun::OtherRun(const std::wstring& part) : ready_(event(kReady)), goOn_(event(kGoOn)) {
  wchar_t folder[MAX_PATH] = L"";
  wchar_t program[MAX_PATH] = L"";
  GetTempPathW(MAX_PATH, folder);
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  output_ = folder + (L"TallyrexOtherRun " + part + L".txt");
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  const HANDLE output = CreateFileW(output_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                    CREATE_ALWAYS, 0, nullptr);
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = startup.hStdError = output;
  PROCESS_INFORMATION process = {};
  std::wstring command = L"\"" + std::wstring(program) + L"\" --part=" + part;
  // It has a console of its own, with its own Ctrl+C.
  if (!CreateProcessW(program, command.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                      nullptr, &startup, &process))
    throw NotSeen("another run");
  process_ = process.hProcess;
  for (const HANDLE handle : {process.hThread, output}) CloseHandle(handle);
}

OtherRun::~OtherRun() {
  kill();
  for (const HANDLE handle : {ready_, goOn_, process_}) CloseHandle(handle);
  DeleteFileW(output_.c_str());
}

void OtherRun::awaitReady() const {
  if (WaitForSingleObject(ready_, static_cast<DWORD>(kPatience)) != WAIT_OBJECT_0)
    throw NotSeen("another run that is ready: " + printed());
}

void OtherRun::goOn() const {
  SetEvent(goOn_);
}

void OtherRun::kill() const {
  TerminateProcess(process_, 1);
  WaitForSingleObject(process_, INFINITE);
}

void OtherRun::awaitPrinted(const std::string& text) const {
  await(text, [&] { return printed().find(text) != std::string::npos; });
}

DWORD OtherRun::awaitEnd() const {
  await("the end of another run",
        [this] { return WaitForSingleObject(process_, 0) == WAIT_OBJECT_0; });
  DWORD code = 0;
  GetExitCodeProcess(process_, &code);
  return code;
}

std::string OtherRun::printed() const {
  std::ostringstream text;
  text << std::ifstream(output_.c_str()).rdbuf();
  return text.str();
}

int playPart(const std::wstring& part) {
  if (part == L"look") {
    std::fprintf(stderr, "color %lx", GetSysColor(kChangedColor));
    return 0;
  }
  const auto body = [&part] {
    const HANDLE ready = event(kReady);
    const HANDLE goOn = event(kGoOn);
    if (part == L"change" || part == L"interrupt") change();
    SetEvent(ready);
    if (part == L"interrupt") GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    if (part != L"next" && part != L"hurry") WaitForSingleObject(goOn, kLongestWait);
    for (const HANDLE handle : {ready, goOn}) CloseHandle(handle);
    return 0;
  };
  return withDesktop(body, part == L"hurry" ? kNoPatience : kPatienceWithOthers);
}

}  // namespace support
