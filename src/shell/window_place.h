#pragma once

#include <string>

#include "controls/window.h"
#include "shell/settings.h"

namespace shell {

/// The position and size of the main window, the micro window, and Always on Top.
class WindowPlace {
 public:
  WindowPlace(controls::Window& window, Settings& settings);

  /// Restores the last position and size; each change of the size raises Resize.
  void restore();
  void save();

  /// Switches between the micro window and the full one, each with its own position and size.
  void switchLayout();
  void toggleOnTop();
  /// Applies the check mark of the menu item.
  void applyOnTop();
  bool onTop() const { return mnuWinAlwaysOnTop_.checked(); }

 private:
  void write(const std::string& layout);
  void read(const std::string& layout, const controls::Rect& fallback);

  controls::Window& window_;
  Settings& settings_;
  controls::MenuItem& mnuWinAlwaysOnTop_;
  controls::MenuItem& mnuWinMicroWindow_;
};

}  // namespace shell
