// A file planted in a folder to be loaded by mistake. As a library or as a program, it adds its own
// name to the file that TALLYREX_PLANTED names, when it is loaded or started.
#include <windows.h>

#include <string>

namespace {

void leaveMark(HMODULE self) {
  wchar_t marks[MAX_PATH] = L"";
  wchar_t name[MAX_PATH] = L"";
  if (GetEnvironmentVariableW(L"TALLYREX_PLANTED", marks, MAX_PATH) == 0) return;
  GetModuleFileNameW(self, name, MAX_PATH);
  const HANDLE file = CreateFileW(marks, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  std::string line;
  for (const wchar_t* character = name; *character != L'\0'; ++character) {
    line += static_cast<char>(*character);
  }
  line += '\n';
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
}

}  // namespace

#ifdef TALLYREX_PLANTED_LIBRARY
BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) leaveMark(self);
  return TRUE;
}
#else
int main() {
  leaveMark(nullptr);
  return 0;
}
#endif
