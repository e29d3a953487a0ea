#include "desktop/program/replaced_notepad.h"

#include <windows.h>

#include <vector>

#include "support/registry.h"

namespace program {
namespace {

// Wine uses its built-in Notepad for every file of that name unless told to use the file.
constexpr const wchar_t* kOverrides = L"Software\\Wine\\DllOverrides";
constexpr const wchar_t* kOverridden = L"notepad.exe";

// The folders in which a program is searched for first.
std::vector<std::wstring> notepads() {
  std::vector<std::wstring> files;
  for (const auto folder : {GetSystemDirectoryW, GetSystemWindowsDirectoryW}) {
    wchar_t path[MAX_PATH] = L"";
    folder(path, MAX_PATH);
    files.push_back(path + std::wstring(L"\\notepad.exe"));
  }
  return files;
}

std::wstring standIn() {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring own = path;
  return own.substr(0, own.rfind(L'\\')) + L"\\tallyrex-stand-in-notepad.exe";
}

}  // namespace

// A backup left behind by an interrupted run is the real Notepad.
ReplacedNotepad::ReplacedNotepad() {
  wchar_t temporary[MAX_PATH] = L"";
  GetTempPathW(MAX_PATH, temporary);
  folder_ = temporary + std::wstring(L"TallyrexRealNotepad");
  real_ = folder_ + L"\\notepad.exe";
  CreateDirectoryW(folder_.c_str(), nullptr);
  CopyFileW(notepads().front().c_str(), real_.c_str(), TRUE);
}

ReplacedNotepad::~ReplacedNotepad() {
  bool back = true;
  for (const std::wstring& file : notepads())
    back = CopyFileW(real_.c_str(), file.c_str(), FALSE) && back;
  SetEnvironmentVariableW(L"TALLYREX_NOTEPAD", nullptr);
  RegDeleteKeyValueW(HKEY_CURRENT_USER, kOverrides, kOverridden);
  if (!back) return;
  DeleteFileW(real_.c_str());
  RemoveDirectoryW(folder_.c_str());
}

bool ReplacedNotepad::with(const std::wstring& kind) {
  support::writeUserText(kOverrides, kOverridden, L"native");
  SetEnvironmentVariableW(L"TALLYREX_NOTEPAD", kind.c_str());
  return CopyFileW(standIn().c_str(), notepads().front().c_str(), FALSE) != FALSE;
}

bool ReplacedNotepad::byNothing() {
  bool gone = true;
  for (const std::wstring& file : notepads()) gone = DeleteFileW(file.c_str()) && gone;
  return gone;
}

}  // namespace program
