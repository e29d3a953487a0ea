#include "desktop/program/machine_registry.h"

#include "support/kept_state.h"
#include "support/registry_key.h"

namespace program {

bool MachineKey::isWritable() {
  return static_cast<bool>(support::RegistryKey::open(HKEY_LOCAL_MACHINE, L"SOFTWARE", KEY_WRITE));
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
  support::keepRegistryValue(HKEY_LOCAL_MACHINE, path_, name);
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, path_.c_str(), name.c_str());
}

void MachineKey::put(const std::wstring& name, DWORD type, const void* data, std::size_t bytes) {
  support::keepRegistryValue(HKEY_LOCAL_MACHINE, path_, name);
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, path_.c_str(), name.c_str(), type, data,
                  static_cast<DWORD>(bytes));
}

}  // namespace program
