#pragma once

#include <string>

namespace program {

/// The text on the clipboard; empty when it holds none.
std::wstring clipboardText();
void setClipboardText(const std::wstring& text);

}  // namespace program
