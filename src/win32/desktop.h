#pragma once

#include <array>
#include <string>
#include <vector>

#include "controls/desktop.h"
#include "win32/registry_settings.h"
#include "win32/tape_safe.h"

namespace win32 {

class Window;

/// The user's desktop.
class Desktop : public controls::Desktop {
 public:
  /// Keeps the settings under the user's own registry root, in the folder of keys that is named.
  explicit Desktop(const std::string& settingsRoot = "Software\\Tallyrex");

  std::unique_ptr<controls::Window> createWindow(const controls::WindowLayout& layout) override;
  int showMessage(const controls::UserMessage& box) override;
  void beep() override;
  controls::Clipping clipboardText() override;
  bool setClipboardText(std::string_view text) override;
  bool startProgram(const std::string& program) override;
  bool startProgramAndPaste(const std::string& program) override;
  bool openText(const std::string& program, std::string_view text) override;
  void showHelp(const controls::HelpRequest& request) override;
  std::optional<std::uint32_t> chooseColor(std::uint32_t present) override;
  common::SettingsStore& settings() override { return settings_; }
  controls::TapeSafe& tapeSafe() override { return tapeSafe_; }
  std::optional<controls::RegistryValue> registryValue(std::string_view key,
                                                       std::string_view name) override;
  bool fileExists(const std::string& path) override;
  std::string programFolder() override;
  std::string programName() override;
  controls::VersionNotes versionNotes() override;

 protected:
  void dismissSystemDialogs() override;

 private:
  RegistrySettings settings_;
  TapeSafe tapeSafe_;
  // The colours that the user has mixed in the colour picker; white where none is.
  std::array<std::uint32_t, 16> mixedColors_;
};

}  // namespace win32
