#pragma once

#include <map>
#include <set>
#include <vector>

#include "controls/desktop.h"
#include "inmemory/settings.h"
#include "inmemory/tape_safe.h"

namespace inmemory {

/// The screen, which a maximized window fills.
inline constexpr controls::Rect kScreen = {0, 0, 19200, 15360};

/// A message box that was shown, and its answer.
struct ShownBox {
  controls::UserMessage box;
  int answer;
};

/// A program that was started; `keys` were sent to its window ("^V" is Ctrl+V), or it was given a
/// text to open.
struct Launch {
  std::string program;
  std::string keys;
  std::optional<std::string> text;
};

/// A desktop without a screen: it records what the program asks for, and gives the prepared
/// answers.
class Desktop : public controls::Desktop {
 public:
  std::unique_ptr<controls::Window> createWindow(const controls::WindowLayout& layout) override;
  int showMessage(const controls::UserMessage& box) override;
  void beep() override { ++beeps; }
  controls::Clipping clipboardText() override;
  bool setClipboardText(std::string_view text) override;
  bool startProgram(const std::string& program) override;
  bool startProgramAndPaste(const std::string& program) override;
  bool openText(const std::string& program, std::string_view text) override;
  void showHelp(const controls::HelpRequest& request) override { helpRequests.push_back(request); }
  std::optional<std::uint32_t> chooseColor(std::uint32_t present) override;
  common::SettingsStore& settings() override { return stores[name]; }
  inmemory::TapeSafe& tapeSafe() override { return tapeSafe_; }
  std::optional<std::string> registryValue(std::string_view key,
                                           std::string_view valueName) override;
  bool fileExists(const std::string& path) override { return files.contains(path); }
  std::string programFolder() override { return "C:\\Tallyrex"; }
  std::string programName() override { return name; }
  controls::VersionNotes versionNotes() override;

  int beeps = 0;
  std::vector<ShownBox> boxes;
  std::vector<Launch> launches;
  std::vector<controls::HelpRequest> helpRequests;

  /// The answers of the next question boxes, and the results of the next color pickers.
  std::deque<int> answers;
  std::deque<std::optional<std::uint32_t>> colors;

  std::string name = "Tallyrex";
  std::optional<std::string> clipboard;
  /// Another program keeps the clipboard locked.
  bool clipboardLocked = false;
  std::set<std::string> programs = {"NotePad.exe"};
  std::set<std::string> files;
  std::map<std::pair<std::string, std::string>, std::string> registry;
  std::map<std::string, Settings> stores;

  /// Tasks to run while the next dialogs are open, one each, before they are answered.
  std::deque<std::function<void()>> meanwhile;

 private:
  void stayOpen();

  TapeSafe tapeSafe_;
};

}  // namespace inmemory
