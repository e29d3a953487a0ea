#pragma once

#include <string>

namespace win32 {

/// The full path of the running program.
std::wstring programPath();

/// The folder of a file. Only a drive's root ends in a backslash.
std::wstring folderOf(const std::wstring& path);
/// The name of a file without folder and extension.
std::wstring baseNameOf(const std::wstring& path);

/// An environment variable; empty if it does not exist.
std::wstring environmentText(const wchar_t* name);

/// Whether the file exists and is not a folder.
bool isFile(const std::wstring& path);

}  // namespace win32
