#include "desktop/program/kept_tapes.h"

#include <windows.h>

namespace program {
namespace {

std::wstring folderOf(const std::wstring& programName) {
  wchar_t data[MAX_PATH] = L"";
  GetEnvironmentVariableW(L"LOCALAPPDATA", data, MAX_PATH);
  return data + std::wstring(L"\\Tallyrex\\") + programName;
}

}  // namespace

std::vector<std::wstring> keptTapes(const std::wstring& programName) {
  std::vector<std::wstring> files;
  const std::wstring folder = folderOf(programName);
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return files;
  do {
    if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
      files.push_back(folder + L"\\" + found.cFileName);
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return files;
}

void clearKeptTapes(const std::wstring& programName) {
  for (const std::wstring& file : keptTapes(programName)) DeleteFileW(file.c_str());
  RemoveDirectoryW(folderOf(programName).c_str());
}

}  // namespace program
