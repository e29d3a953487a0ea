#pragma once

#include <string>

namespace win32 {

/// The full path of the running program.
std::wstring programPath();

/// The folder that a file is in; only a drive's root ends in a backslash.
std::wstring folderOf(const std::wstring& path);
/// The name of a file without its folder and extension.
std::wstring baseNameOf(const std::wstring& path);

/// A variable of the program's environment; empty without one.
std::wstring environmentText(const wchar_t* name);

/// Whether there is such a file; a folder is none.
bool isFile(const std::wstring& path);

}  // namespace win32
