#include "desktop/program/kept_tapes.h"

#include <windows.h>

#include <filesystem>

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
  std::error_code absent;
  for (const auto& entry : std::filesystem::directory_iterator(folderOf(programName), absent))
    if (entry.is_regular_file()) files.push_back(entry.path().wstring());
  return files;
}

void clearKeptTapes(const std::wstring& programName) {
  for (const std::wstring& file : keptTapes(programName)) DeleteFileW(file.c_str());
  RemoveDirectoryW(folderOf(programName).c_str());
}

}  // namespace program
