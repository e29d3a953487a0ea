#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/settings_store.h"
#include "controls/event_loop.h"
#include "controls/tape_safe.h"
#include "controls/window.h"

namespace controls {

enum class Buttons { Ok, YesNo };
enum class Icon { None, Question };

/// The answers of a message box, also as stored; kNoAnswer if it was dismissed.
inline constexpr int kNoAnswer = 0;
inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

/// A message box. The default title is the application's name.
struct UserMessage {
  std::string text;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
  std::string title = "Tallyrex";
};

/// A request to the help viewer. The contents are command 3, a topic is command 1 with its number.
struct HelpRequest {
  enum class Caller { WinHelp, CommonDialog };
  Caller caller = Caller::WinHelp;
  std::string file;
  int command = 3;
  int data = 0;
};

/// Texts from the program's version information.
struct VersionNotes {
  std::string legalNotice;
  std::string company;
};

/// The result of reading the clipboard, which another program may have locked.
struct Clipping {
  enum class Found { Nothing, Text, Locked };
  Found found = Found::Nothing;
  std::string text;

  bool operator==(const Clipping&) const = default;
};

class Desktop;

/// Marks a system dialog as open while it exists: no window of the program takes input.
class SystemDialog {
 public:
  explicit SystemDialog(Desktop& desktop);
  ~SystemDialog();
  SystemDialog(const SystemDialog&) = delete;
  SystemDialog& operator=(const SystemDialog&) = delete;

  /// The window that was in front when the dialog opened; null without one.
  Window* owner() const { return owner_; }
  /// Call after the dialog has closed. Throws DialogDismissed if it was not the user who closed it.
  void noteAnswered() const;

 private:
  friend class Desktop;

  Desktop& desktop_;
  Window* owner_;
  bool dismissed_ = false;
};

/// Everything that the program asks of the system, one function each. The program has one desktop,
/// which outlives its windows.
class Desktop {
 public:
  virtual ~Desktop() = default;

  EventLoop& events() { return events_; }

  /// The Windows session ends: settings are saved and the windows close. May come at any moment,
  /// even while a dialog is open.
  std::function<void()> onEndSession;
  void endSession();

  /// Creates a hidden window with the controls of the layout.
  virtual std::unique_ptr<Window> createWindow(const WindowLayout& layout) = 0;
  /// Shows a message box and waits for its answer: kAnswerOk, kAnswerYes or kAnswerNo. If the owner
  /// is closed meanwhile, the calling handler ends here.
  virtual int showMessage(const UserMessage& box) = 0;
  virtual void beep() = 0;

  virtual Clipping clipboardText() = 0;
  /// False when another program keeps the clipboard locked.
  virtual bool setClipboardText(std::string_view text) = 0;

  /// Starts a program in a normal window with the focus. False when it cannot be started.
  virtual bool startProgram(const std::string& program) = 0;
  /// Starts a program, brings its new window to the front and pastes the clipboard into it. False
  /// when any of this fails; no keystroke is ever sent to another window.
  virtual bool startProgramAndPaste(const std::string& program) = 0;

  /// Opens a text in a program for text files. False when it cannot be started.
  virtual bool openText(const std::string& program, std::string_view text) = 0;

  virtual void showHelp(const HelpRequest& request) = 0;
  /// Lets the user pick a color, starting with the present one; null on Cancel.
  virtual std::optional<std::uint32_t> chooseColor(std::uint32_t present) = 0;

  /// The application's settings, stored under the name of its executable.
  virtual common::SettingsStore& settings() = 0;
  /// The safe that keeps the tape of this run.
  virtual TapeSafe& tapeSafe() = 0;
  /// A value under the machine's registry root, a number as decimal text.
  virtual std::optional<std::string> registryValue(std::string_view key, std::string_view name) = 0;
  virtual bool fileExists(const std::string& path) = 0;
  /// The folder of the executable. Only a drive's root ends in a backslash.
  virtual std::string programFolder() = 0;
  /// The name of the executable without its extension.
  virtual std::string programName() = 0;
  virtual VersionNotes versionNotes() = 0;

  /// The window in front, which has the focus; null while none is shown.
  Window* activeWindow() const { return activeWindow_; }
  /// Whether the window takes input: no dialog is in front of it.
  bool takesInput(const Window& window) const;

 protected:
  /// Closes all system dialogs without an answer.
  virtual void dismissSystemDialogs() {}

 private:
  friend class SystemDialog;
  friend class Window;

  void noteInFront(Window& window);
  void noteGone(Window& window);
  /// The frontmost visible window; null without one.
  Window* frontWindow() const;
  /// Makes the window modal; null ends that.
  void setModal(Window* window);
  void showWhoTakesInput(const Window* except);
  void bringActiveToFront();
  /// Dismisses the dialogs in front of a window that is about to close.
  void dismissDialogsOver(Window& window);
  template <class IsMeant>
  void dismissDialogs(IsMeant isMeant);

  // From back to front.
  std::vector<Window*> windows_;
  Window* activeWindow_ = nullptr;
  Window* modal_ = nullptr;
  std::vector<SystemDialog*> dialogs_;
  EventLoop events_;
};

}  // namespace controls
