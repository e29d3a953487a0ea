#include "win32/kept_file.h"

namespace win32 {
namespace {

// One byte far beyond everything that is ever written, so that the lock does not prevent reading.
bool lock(HANDLE file) {
  OVERLAPPED place = {};
  place.OffsetHigh = 0x40000000;
  return LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place);
}

}  // namespace

// Written through to the disk, so that it survives a power failure.
KeptFile KeptFile::open(const std::wstring& path, DWORD disposition) {
  KeptFile file;
  const HANDLE handle =
      CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, disposition,
                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return file;
  file.handle_.reset(handle);
  if (!lock(handle)) file.handle_.reset();
  return file;
}

KeptFile KeptFile::make(const std::wstring& path) {
  return open(path, CREATE_NEW);
}

KeptFile KeptFile::claim(const std::wstring& path) {
  return open(path, OPEN_EXISTING);
}

bool KeptFile::append(std::string_view bytes) {
  DWORD written = 0;
  return WriteFile(handle_.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                   nullptr) &&
         written == bytes.size();
}

std::string KeptFile::read() const {
  LARGE_INTEGER size = {};
  if (!GetFileSizeEx(handle_.get(), &size) || size.QuadPart > MAXDWORD) return {};
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  DWORD got = 0;
  OVERLAPPED start = {};
  ReadFile(handle_.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, &start);
  bytes.resize(got);
  return bytes;
}

void KeptFile::remove() {
  FILE_DISPOSITION_INFO disposition = {.DeleteFile = TRUE};
  SetFileInformationByHandle(handle_.get(), FileDispositionInfo, &disposition, sizeof disposition);
  handle_.reset();
}

}  // namespace win32
