#pragma once

#include <string>

#include "controls/window.h"
#include "shell/settings.h"

namespace shell {

/// The place and size of the main window: as it was left, as the micro window, on top.
class WindowPlace {
 public:
  WindowPlace(controls::Window& window, Settings& settings);

  /// As the window was left; each size that changes raises a resize.
  void restore();
  void save();

  /// Between the micro window and the full one. Each is kept where it was left.
  void switchLayout();
  void toggleOnTop();
  /// As the mark in the menu says.
  void applyOnTop();
  bool onTop() const { return mnuWinAlwaysOnTop_.checked(); }

 private:
  void exchangeGeometry(const std::string& from, const std::string& to,
                        const controls::Rect& fallback);
  void write(const std::string& layout);
  void read(const std::string& layout, const controls::Rect& fallback);

  controls::Window& window_;
  Settings& settings_;
  controls::MenuItem& mnuWinAlwaysOnTop_;
  controls::MenuItem& mnuWinMicroWindow_;
};

}  // namespace shell
