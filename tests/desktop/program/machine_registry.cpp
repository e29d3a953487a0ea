#include "desktop/program/machine_registry.h"

#include <algorithm>

namespace program {

MachineKey::MachineKey(const std::wstring& path) {
  if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE,
                      nullptr, &key_, nullptr) != ERROR_SUCCESS)
    key_ = nullptr;
}

MachineKey::~MachineKey() {
  if (!key_) return;
  for (const Value& value : before_) {
    RegDeleteValueW(key_, value.name.c_str());
    if (value.type != REG_NONE)
      RegSetValueExW(key_, value.name.c_str(), 0, value.type, value.data.data(),
                     static_cast<DWORD>(value.data.size()));
  }
  RegCloseKey(key_);
}

void MachineKey::set(const std::wstring& name, const std::wstring& text) {
  put(name, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

void MachineKey::setUnterminated(const std::wstring& name, const std::wstring& text) {
  put(name, REG_SZ, text.data(), text.size() * sizeof(wchar_t));
}

void MachineKey::setExpandable(const std::wstring& name, const std::wstring& text) {
  put(name, REG_EXPAND_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

void MachineKey::setWithAnOddSize(const std::wstring& name, const std::wstring& text) {
  put(name, REG_SZ, text.c_str(), text.size() * sizeof(wchar_t) + 1);
}

void MachineKey::set(const std::wstring& name, DWORD number) {
  put(name, REG_DWORD, &number, sizeof number);
}

void MachineKey::remove(const std::wstring& name) {
  remember(name);
  RegDeleteValueW(key_, name.c_str());
}

void MachineKey::remember(const std::wstring& name) {
  const auto isIt = [&name](const Value& value) { return value.name == name; };
  if (std::ranges::any_of(before_, isIt)) return;
  Value value;
  value.name = name;
  DWORD size = 0;
  if (RegQueryValueExW(key_, name.c_str(), nullptr, &value.type, nullptr, &size) == ERROR_SUCCESS) {
    value.data.resize(size);
    RegQueryValueExW(key_, name.c_str(), nullptr, nullptr, value.data.data(), &size);
  }
  before_.push_back(std::move(value));
}

void MachineKey::put(const std::wstring& name, DWORD type, const void* data, std::size_t bytes) {
  remember(name);
  RegSetValueExW(key_, name.c_str(), 0, type, static_cast<const BYTE*>(data),
                 static_cast<DWORD>(bytes));
}

}  // namespace program
