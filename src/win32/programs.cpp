#include "win32/programs.h"

#include "win32/handles.h"
#include "win32/paths.h"
#include "win32/text.h"

namespace win32 {
namespace {

/// The folders to search for a system program.
std::wstring searchPath() {
  std::wstring path;
  for (const auto folder : {GetSystemDirectoryW, GetSystemWindowsDirectoryW}) {
    wchar_t buffer[MAX_PATH] = {};
    folder(buffer, MAX_PATH);
    path.append(buffer).append(L";");
  }
  return path + environmentText(L"PATH");
}

/// The full path of a program; empty if it is not found.
std::wstring findProgram(const std::wstring& name) {
  if (name.find_first_of(L"\\/:") != std::wstring::npos) return name;
  const std::wstring folders = searchPath();
  std::wstring found(SearchPathW(folders.c_str(), name.c_str(), nullptr, 0, nullptr, nullptr),
                     L'\0');
  found.resize(SearchPathW(folders.c_str(), name.c_str(), nullptr, static_cast<DWORD>(found.size()),
                           found.data(), nullptr));
  return found;
}

// A file name with the time, so that no earlier file is overwritten.
std::wstring newTextFile() {
  wchar_t folder[MAX_PATH + 1] = {};
  GetTempPathW(static_cast<DWORD>(std::size(folder)), folder);
  SYSTEMTIME now;
  GetLocalTime(&now);
  wchar_t name[64] = {};
  wsprintfW(name, L"Tallyrex tape %u-%02u-%02u %02u.%02u.%02u.txt", now.wYear, now.wMonth, now.wDay,
            now.wHour, now.wMinute, now.wSecond);
  return std::wstring(folder) + name;
}

}  // namespace

OwnedHandle startProgram(const std::string& program, const std::wstring& file) {
  const std::wstring path = findProgram(wide(program));
  if (path.empty()) return nullptr;
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started = {};
  std::wstring commandLine = L"\"" + path + L"\"";
  if (!file.empty()) commandLine += L" \"" + file + L"\"";
  // The started process may only be a launcher of the one that shows the window.
  AllowSetForegroundWindow(ASFW_ANY);
  if (!CreateProcessW(path.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      nullptr, &startup, &started))
    return nullptr;
  CloseHandle(started.hThread);
  return OwnedHandle(started.hProcess);
}

bool openText(const std::string& program, std::string_view text) {
  const std::wstring path = newTextFile();
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  // The byte order mark tells every editor that the text is UTF-8.
  const std::string bytes = "\xEF\xBB\xBF" + std::string(text);
  DWORD written = 0;
  const BOOL whole = WriteFile(OwnedHandle(file).get(), bytes.data(),
                               static_cast<DWORD>(bytes.size()), &written, nullptr) &&
                     written == bytes.size();
  return whole && startProgram(program, path);
}

}  // namespace win32
