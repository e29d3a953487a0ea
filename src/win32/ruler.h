#pragma once

#include <windows.h>

#include <string_view>

namespace win32 {

/// A device context with a font, to measure text. A memory context, since one of the screen would
/// have to be requested each time.
class Ruler {
 public:
  explicit Ruler(HFONT font) : before_(SelectObject(context_, font)) {}
  ~Ruler() {
    SelectObject(context_, before_);
    DeleteDC(context_);
  }
  Ruler(const Ruler&) = delete;
  Ruler& operator=(const Ruler&) = delete;

  HDC context() const { return context_; }
  /// In pixels.
  int widthOf(std::wstring_view text) const {
    SIZE size = {};
    GetTextExtentPoint32W(context_, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
  }
  TEXTMETRICW metrics() const {
    TEXTMETRICW metrics = {};
    GetTextMetricsW(context_, &metrics);
    return metrics;
  }

 private:
  HDC context_ = CreateCompatibleDC(nullptr);
  HGDIOBJ before_;
};

}  // namespace win32
