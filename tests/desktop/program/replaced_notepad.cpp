#include "desktop/program/replaced_notepad.h"

#include <windows.h>

#include <vector>

#include "support/kept_state.h"
#include "support/registry_key.h"
#include "support/wine.h"

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

// Where the real one is meanwhile.
std::wstring refuge() {
  wchar_t temporary[MAX_PATH] = L"";
  GetTempPathW(MAX_PATH, temporary);
  return temporary + std::wstring(L"TallyrexRealNotepad.exe");
}

}  // namespace

void putBackNotepad() {
  if (!support::isWine() || GetFileAttributesW(refuge().c_str()) == INVALID_FILE_ATTRIBUTES) return;
  bool back = true;
  for (const std::wstring& file : notepads())
    back = CopyFileW(refuge().c_str(), file.c_str(), FALSE) && back;
  if (back) DeleteFileW(refuge().c_str());
}

ReplacedNotepad::ReplacedNotepad() {
  if (support::isWine()) CopyFileW(notepads().front().c_str(), refuge().c_str(), TRUE);
}

ReplacedNotepad::~ReplacedNotepad() {
  putBackNotepad();
  SetEnvironmentVariableW(L"TALLYREX_NOTEPAD", nullptr);
}

bool ReplacedNotepad::with(const std::wstring& kind) {
  if (!support::isWine()) return false;
  support::keepRegistryValue(HKEY_CURRENT_USER, kOverrides, kOverridden);
  support::writeUserText(kOverrides, kOverridden, L"native");
  SetEnvironmentVariableW(L"TALLYREX_NOTEPAD", kind.c_str());
  return CopyFileW(standIn().c_str(), notepads().front().c_str(), FALSE) != FALSE;
}

bool ReplacedNotepad::byNothing() {
  if (!support::isWine()) return false;
  bool gone = true;
  for (const std::wstring& file : notepads()) gone = DeleteFileW(file.c_str()) && gone;
  return gone;
}

}  // namespace program
