#pragma once

#include <string>
#include <string_view>

#include "win32/handles.h"

namespace win32 {

/// A file that a run of the program writes, and leaves behind if it is killed. A lock, which ends
/// with the run in any case, tells other runs that it is in use.
class KeptFile {
 public:
  /// No file.
  KeptFile() = default;
  /// Creates a file; none if it cannot be created or exists.
  static KeptFile make(const std::wstring& path);
  /// Opens a file that another run has left behind; none if that run is still active, or the file
  /// cannot be opened.
  static KeptFile claim(const std::wstring& path);

  explicit operator bool() const { return handle_ != nullptr; }
  /// Appends to the file. False if not everything could be written.
  bool append(std::string_view bytes);
  /// Reads the whole file, or as much of it as possible.
  std::string read() const;
  /// Deletes the file.
  void remove();

 private:
  static KeptFile open(const std::wstring& path, DWORD disposition);

  OwnedHandle handle_;
};

}  // namespace win32
