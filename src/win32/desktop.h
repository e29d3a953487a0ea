#pragma once

#include <array>
#include <string>

#include "controls/desktop.h"
#include "win32/registry_settings.h"
#include "win32/tape_safe.h"

namespace win32 {

class Window;

/// The desktop on Windows.
class Desktop : public controls::Desktop {
 public:
  /// Stores the settings in this key under the user's registry root.
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
  std::optional<std::string> registryValue(std::string_view key, std::string_view name) override;
  bool fileExists(const std::string& path) override;
  std::string programFolder() override;
  std::string programName() override;
  controls::VersionNotes versionNotes() override;

 protected:
  void dismissSystemDialogs() override;

 private:
  RegistrySettings settings_;
  TapeSafe tapeSafe_;
  // The user's custom colors in the color picker, initially white.
  std::array<std::uint32_t, 16> mixedColors_;
};

}  // namespace win32
