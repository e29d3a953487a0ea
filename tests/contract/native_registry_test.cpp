#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "support/registry_key.h"
#include "win32/registry.h"

// Tests that make sense only for the registry of Windows.
namespace contract {
namespace {

constexpr wchar_t kPath[] = L"Software\\Tallyrex Contract Tests";
constexpr wchar_t kVariable[] = L"TALLYREX_CONTRACT_TEXT";

/// True if nothing has been written beyond what was allocated.
bool isHeapIntact() {
  std::array<HANDLE, 64> heaps = {};
  const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  for (DWORD i = 0; i < count && i < heaps.size(); ++i)
    if (!HeapValidate(heaps[i], 0, nullptr)) return false;
  return count > 0;
}

class NativeRegistry : public testing::Test {
 protected:
  ~NativeRegistry() override {
    SetEnvironmentVariableW(kVariable, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, kPath);
  }

  void write(DWORD type, const std::wstring& text) const {
    support::RegistryValue value = support::registryText(L"text", text);
    value.type = type;
    ASSERT_TRUE(key_.write(value));
  }

  std::optional<std::wstring> read() const { return win32::readText(key_.get(), L"text"); }

 private:
  support::RegistryKey key_ =
      support::RegistryKey::make(HKEY_CURRENT_USER, kPath, REG_OPTION_VOLATILE);
};

TEST_F(NativeRegistry, ReadsTextsOfAnyLength) {
  for (const std::size_t length : {0, 1, 63, 64, 65, 66, 200, 5000}) {
    const std::wstring text(length, L'x');
    write(REG_SZ, text);
    EXPECT_EQ(read(), text) << length;
  }
}

TEST_F(NativeRegistry, ExpandsTextsOfAnyLength) {
  for (const std::size_t length : {1, 63, 64, 65, 66, 100, 129, 200, 5000}) {
    const std::wstring text(length, L'x');
    SetEnvironmentVariableW(kVariable, text.c_str());
    write(REG_EXPAND_SZ, std::wstring(L"%") + kVariable + L"%\\more");
    EXPECT_EQ(read(), text + L"\\more") << length;
    ASSERT_TRUE(isHeapIntact()) << length;
  }
}

TEST_F(NativeRegistry, LeavesPercentSignsOfAPlainTextAlone) {
  SetEnvironmentVariableW(kVariable, L"expanded");
  const std::wstring text = std::wstring(L"%") + kVariable + L"%";
  write(REG_SZ, text);
  EXPECT_EQ(read(), text);
}

TEST_F(NativeRegistry, IgnoresOtherTypes) {
  write(REG_BINARY, L"text");
  EXPECT_FALSE(read());
}

}  // namespace
}  // namespace contract
