#pragma once

#include <functional>
#include <memory>
#include <string>

#include "controls/desktop.h"

namespace about {

/// The program's version as in the About box.
struct ProgramVersion {
  int major = 0;
  int minor = 0;
  int revision = 0;
};

/// The version of this build.
ProgramVersion programVersion();

/// "Software Version:  1.0", followed by a revision other than 0.
std::string versionText(const ProgramVersion& version);

/// The About box: title, version, copyright and company, and a button that starts the system
/// information program.
class frmAbout {
 public:
  /// `unload` is called when the user closes the box.
  frmAbout(controls::Desktop& desktop, const ProgramVersion& version, std::function<void()> unload);
  frmAbout(const frmAbout&) = delete;
  frmAbout& operator=(const frmAbout&) = delete;

  controls::Window& window() { return *window_; }

 private:
  void writeTexts(const ProgramVersion& version);
  void showSystemInformation();
  bool startSystemInformation();

  controls::Desktop& desktop_;
  std::unique_ptr<controls::Window> window_;
};

}  // namespace about
