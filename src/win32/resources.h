#pragma once

namespace win32 {

/// The program's icon in its resources. Windows shows a program by the first of its icons, and
/// sorts them by name: this one comes before the pictures of the keys.
inline constexpr wchar_t kProgramIcon[] = L"APPLICATION";

}  // namespace win32
