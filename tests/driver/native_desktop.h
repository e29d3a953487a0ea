#pragma once

#include <atomic>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "driver/native_boxes.h"
#include "win32/desktop.h"

namespace driver {

/// The real desktop, which also records what the program asks of it. The help viewer is not opened,
/// since it would stay open in front of the program.
class NativeDesktop : public win32::Desktop {
 public:
  explicit NativeDesktop(NativeBoxes& boxes);

  int showMessage(const controls::UserMessage& box) override;
  void beep() override;
  bool startProgram(const std::string& program) override;
  bool openText(const std::string& program, std::string_view text) override;
  bool startProgramAndPaste(const std::string& program) override;
  void showHelp(const controls::HelpRequest& request) override;
  common::SettingsStore& settings() override { return settings_; }
  controls::TapeSafe& tapeSafe() override { return *tapeSafe_; }
  std::string programName() override { return name_; }
  /// The folder of an installed program, wherever the driver is.
  std::string programFolder() override { return "C:\\Tallyrex"; }

  /// The executable's name, under which the settings are stored.
  void setProgramName(const std::string& name);
  /// Whether a program is being started; the windows do not wait for it.
  bool isStarting() const { return starting_; }
  /// Closes the safe of the tape as the end of the process does.
  void loseTape();
  /// Deletes the tapes that earlier drivers or a crash have left behind.
  void clearTapes();
  /// Closes the windows of started programs; false if there are none.
  bool closeLaunched();

  /// The events since the last call, apart from the message boxes.
  Events takeEvents() { return std::exchange(events_, {}); }

 private:
  NativeBoxes& boxes_;
  Events events_;
  std::string name_;
  win32::RegistrySettings settings_;
  std::optional<win32::TapeSafe> tapeSafe_;
  std::vector<HWND> launched_;
  std::atomic<bool> starting_ = false;
};

}  // namespace driver
