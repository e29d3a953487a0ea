#include "win32/tape_safe.h"

#include <set>

#include "win32/paths.h"
#include "win32/text.h"

namespace win32 {
namespace {

constexpr wchar_t kExtension[] = L".tape";

// The names of the tapes in a folder, from old to new: they start with the time.
std::set<std::wstring> tapesIn(const std::wstring& folder) {
  std::set<std::wstring> names;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((folder + L"\\*" + kExtension).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  const Owned<HANDLE, FindClose> owned(search);
  do {
    names.emplace(found.cFileName);
  } while (FindNextFileW(search, &found));
  return names;
}

// Unique: no other process has the same number at that time.
std::wstring newName() {
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  const ULARGE_INTEGER time = {{now.dwLowDateTime, now.dwHighDateTime}};
  return wide(std::to_string(time.QuadPart)) + L"-" + wide(std::to_string(GetCurrentProcessId())) +
         kExtension;
}

}  // namespace

bool TapeSafe::makeFile() {
  if (folder_.empty()) return false;
  // Another run that ends may remove the folders in between.
  for (int attempt = 0; attempt < 2 && !file_; ++attempt) {
    CreateDirectoryW(folderOf(folder_).c_str(), nullptr);
    CreateDirectoryW(folder_.c_str(), nullptr);
    file_ = KeptFile::make(folder_ + L"\\" + newName());
  }
  return static_cast<bool>(file_);
}

void TapeSafe::store(std::string_view records) {
  if (failed_) return;
  failed_ = (!file_ && !makeFile()) || !file_.append(records);
}

void TapeSafe::discard() {
  failed_ = false;
  if (!file_) return;
  file_.remove();
  removeFolders();
}

std::vector<std::string> TapeSafe::lostRecords() {
  std::vector<std::string> records;
  lost_.clear();
  if (folder_.empty()) return records;
  for (const std::wstring& name : tapesIn(folder_)) {
    KeptFile file = KeptFile::claim(folder_ + L"\\" + name);
    if (!file) continue;
    records.push_back(file.read());
    lost_.push_back(std::move(file));
  }
  return records;
}

void TapeSafe::forgetLostTapes() {
  for (KeptFile& file : lost_) file.remove();
  lost_.clear();
  removeFolders();
}

void TapeSafe::removeFolders() const {
  if (RemoveDirectoryW(folder_.c_str())) RemoveDirectoryW(folderOf(folder_).c_str());
}

std::wstring tapeFolder(const std::string& programName) {
  const std::wstring data = environmentText(L"LOCALAPPDATA");
  if (data.empty()) return {};
  return data + L"\\Tallyrex\\" + wide(programName);
}

}  // namespace win32
