#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace program {

/// A key under the machine's registry root for a test, which is restored when the test ends.
class MachineKey {
 public:
  explicit MachineKey(const std::wstring& path);
  ~MachineKey();
  MachineKey(const MachineKey&) = delete;
  MachineKey& operator=(const MachineKey&) = delete;

  /// Only administrators may write here.
  bool isWritable() const { return key_ != nullptr; }
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
  struct Value {
    std::wstring name;
    DWORD type = REG_NONE;
    std::vector<BYTE> data;
  };

  /// Remembers the values before the first change.
  void remember(const std::wstring& name);
  void put(const std::wstring& name, DWORD type, const void* data, std::size_t bytes);

  HKEY key_ = nullptr;
  std::vector<Value> before_;
};

}  // namespace program
