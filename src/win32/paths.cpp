#include "win32/paths.h"

#include <windows.h>

namespace win32 {
namespace {

constexpr wchar_t kSeparators[] = L"\\/";

}  // namespace

std::wstring programPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(2 * path.size());
  }
}

std::wstring folderOf(const std::wstring& path) {
  const auto separator = path.find_last_of(kSeparators);
  if (separator == std::wstring::npos) return {};
  const bool root = separator > 0 && path[separator - 1] == L':';
  return path.substr(0, root ? separator + 1 : separator);
}

std::wstring baseNameOf(const std::wstring& path) {
  const auto separator = path.find_last_of(kSeparators);
  const std::wstring name = separator == std::wstring::npos ? path : path.substr(separator + 1);
  return name.substr(0, name.rfind(L'.'));
}

std::wstring environmentText(const wchar_t* name) {
  std::wstring text(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  text.resize(GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.size())));
  return text;
}

bool isFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace win32
