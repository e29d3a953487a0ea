#pragma once

#include <string>
#include <string_view>

#include "win32/handles.h"

namespace win32 {

/// A file that a run of the program writes, and leaves behind when it is ended by force. A lock,
/// which ends with the run however that ends, tells other runs that it is still written.
class KeptFile {
 public:
  /// No file.
  KeptFile() = default;
  /// A new file; none where it cannot be made, or is there.
  static KeptFile make(const std::wstring& path);
  /// A file that another run has left behind; none where that run goes on, or the file cannot be
  /// had.
  static KeptFile claim(const std::wstring& path);

  explicit operator bool() const { return handle_ != nullptr; }
  /// Writes behind what is there. False when the disk does not take all of it.
  bool append(std::string_view bytes);
  /// All that is there, from the start; less where the disk does not give it.
  std::string read() const;
  /// Deletes the file.
  void remove();

 private:
  static KeptFile open(const std::wstring& path, DWORD disposition);

  OwnedHandle handle_;
};

}  // namespace win32
