#pragma once

#include <windows.h>

#include <string>
#include <utility>

namespace program {

/// A key under the machine's registry root. Whatever a test writes there is put back at its end.
class MachineKey {
 public:
  explicit MachineKey(std::wstring path) : path_(std::move(path)) {}

  /// Only administrators may write here.
  static bool isWritable();
  void set(const std::wstring& name, const std::wstring& text);
  /// Without the terminating zero.
  void setUnterminated(const std::wstring& name, const std::wstring& text);
  /// With environment variables in percent signs.
  void setExpandable(const std::wstring& name, const std::wstring& text);
  /// With half a character at the end.
  void setWithAnOddSize(const std::wstring& name, const std::wstring& text);
  void set(const std::wstring& name, DWORD number);
  void remove(const std::wstring& name);

 private:
  void put(const std::wstring& name, DWORD type, const void* data, std::size_t bytes);

  std::wstring path_;
};

}  // namespace program
