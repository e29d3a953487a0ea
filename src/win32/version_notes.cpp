#include "win32/version_notes.h"

#include <windows.h>

#include <winver.h>

#include <string>
#include <vector>

#include "win32/late_function.h"
#include "win32/text.h"

namespace win32 {
namespace {

// A copy: what reads it may write to it.
std::vector<std::byte> versionInformation() {
  const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
  const HGLOBAL loaded = found ? LoadResource(nullptr, found) : nullptr;
  const auto* bytes = loaded ? static_cast<const std::byte*>(LockResource(loaded)) : nullptr;
  if (!bytes) return {};
  return {bytes, bytes + SizeofResource(nullptr, found)};
}

std::string fieldOf(std::vector<std::byte>& information, const std::wstring& name) {
  const auto query = lateFunction<decltype(&VerQueryValueW)>(L"version.dll", "VerQueryValueW");
  const std::wstring path = L"\\StringFileInfo\\040904b0\\" + name;
  void* text = nullptr;
  UINT length = 0;
  if (information.empty() || !query || !query(information.data(), path.c_str(), &text, &length))
    return "";
  // It ends with a zero, which the length may count.
  return narrow(std::wstring(static_cast<const wchar_t*>(text), length).c_str());
}

}  // namespace

controls::VersionNotes readVersionNotes() {
  std::vector<std::byte> information = versionInformation();
  return {.legalNotice = fieldOf(information, L"LegalCopyright"),
          .company = fieldOf(information, L"CompanyName")};
}

}  // namespace win32
