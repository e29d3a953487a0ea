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

/// The answers of a message box, as they are also stored; kNoAnswer where it went away unanswered.
inline constexpr int kNoAnswer = 0;
inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

/// A message box. Without a title of its own it carries the application's.
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

/// What the program's own version information says besides the version.
struct VersionNotes {
  std::string legalNotice;
  std::string company;
};

/// A value under the machine's registry root: a text, or a double word.
using RegistryValue = std::string;

/// What was found on the clipboard. While another program holds it, nobody knows what is there.
struct Clipping {
  enum class Found { Nothing, Text, HeldByAnother };
  Found found = Found::Nothing;
  std::string text;

  bool operator==(const Clipping&) const = default;
};

class Desktop;

/// A dialog of the system's, in front while this lives: no window of the program takes input.
class SystemDialog {
 public:
  explicit SystemDialog(Desktop& desktop);
  ~SystemDialog();
  SystemDialog(const SystemDialog&) = delete;
  SystemDialog& operator=(const SystemDialog&) = delete;

  /// The window that was in front and asked; null without one.
  Window* owner() const { return owner_; }
  /// The dialog has gone. Raises DialogDismissed where that was not the user's doing.
  void noteAnswered() const;

 private:
  friend class Desktop;

  Desktop& desktop_;
  Window* owner_;
  bool dismissed_ = false;
};

/// Everything that the program asks of the system: one function a thing. There is one for the
/// program, and it outlives its windows.
class Desktop {
 public:
  virtual ~Desktop() = default;

  EventLoop& events() { return events_; }

  /// The session ends: what is to be kept is saved, the windows go. At any moment, also while a
  /// dialog stands open.
  std::function<void()> onEndSession;
  void endSession();

  /// Makes a window, hidden, with the controls of the layout.
  virtual std::unique_ptr<Window> createWindow(const WindowLayout& layout) = 0;
  /// Shows a message box and waits for its answer: kAnswerOk, or kAnswerYes or kAnswerNo. Where the
  /// window that asks is closed meanwhile, the handler ends here.
  virtual int showMessage(const UserMessage& box) = 0;
  virtual void beep() = 0;

  virtual Clipping clipboardText() = 0;
  /// False when another program does not let go of the clipboard.
  virtual bool setClipboardText(std::string_view text) = 0;

  /// Starts a program in a normal window with the focus. False when it cannot be started.
  virtual bool startProgram(const std::string& program) = 0;
  /// Starts a program, brings its new window to the front and pastes the clipboard into it. False
  /// when any of this fails; no key stroke has been sent to anything else then.
  virtual bool startProgramAndPaste(const std::string& program) = 0;

  /// Shows a text in a program that opens text files. False when it cannot be started.
  virtual bool openText(const std::string& program, std::string_view text) = 0;

  virtual void showHelp(const HelpRequest& request) = 0;
  /// The colour that the user picks, who is shown the present one; nothing on Cancel.
  virtual std::optional<std::uint32_t> chooseColor(std::uint32_t present) = 0;

  /// The settings of the application, under the name of its executable file.
  virtual common::SettingsStore& settings() = 0;
  /// What keeps the tape of this run.
  virtual TapeSafe& tapeSafe() = 0;
  /// A text value under the machine's registry root, a number in its decimal text.
  virtual std::optional<RegistryValue> registryValue(std::string_view key,
                                                     std::string_view name) = 0;
  virtual bool fileExists(const std::string& path) = 0;
  /// The folder that the program runs from; only a drive's root ends in a backslash.
  virtual std::string programFolder() = 0;
  /// The name of the executable file without its extension.
  virtual std::string programName() = 0;
  virtual VersionNotes versionNotes() = 0;

  /// The window in front, which has the focus; none while the program shows none.
  Window* activeWindow() const { return activeWindow_; }
  /// Whether no dialog is in front of the window.
  bool takesInput(const Window& window) const;

 protected:
  /// Makes the dialogs of the system's go, unanswered.
  virtual void dismissSystemDialogs() {}

 private:
  friend class SystemDialog;
  friend class Window;

  void noteInFront(Window& window);
  void noteGone(Window& window);
  /// The window in front of those that are shown; null without one.
  Window* frontWindow() const;
  /// The window takes all input; null gives it back to all.
  void setModal(Window* window);
  void showWhoTakesInput(const Window* except);
  void bringActiveToFront();
  /// The dialogs in front of a window that is to be closed go first.
  void clearWayOf(Window& window);
  template <class IsMeant>
  void dismissDialogs(IsMeant isMeant);

  // The one in front last.
  std::vector<Window*> windows_;
  Window* activeWindow_ = nullptr;
  Window* modal_ = nullptr;
  std::vector<SystemDialog*> dialogs_;
  EventLoop events_;
};

}  // namespace controls
