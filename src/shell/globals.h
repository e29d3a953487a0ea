#pragma once

#include <cstdint>
#include <string>

namespace shell {

/// What the windows of the program share.
struct Globals {
  /// The background of the text box that has the focus: red + 256 x green + 65536 x blue.
  std::uint32_t glngTextBackColor = 16777088;
  /// The main window is loaded, and has been shown.
  bool gblnCalcLoaded = false;
  /// The help file, chosen when the main window is loaded.
  std::string helpFile;
};

}  // namespace shell
