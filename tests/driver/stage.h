#pragma once

#include <functional>
#include <optional>
#include <string>

#include "controls/desktop.h"
#include "driver/events.h"
#include "driver/json.h"

namespace driver {

/// A request from outside: to close a window, or, without a name, the end of the session.
struct Request {
  std::string window;
};

/// The program, and the input of its user. Each kind of controls has its own stage. The driver has
/// checked all names and states before.
class Stage {
 public:
  virtual ~Stage() = default;

  /// Runs `body` where the program's objects may be accessed.
  virtual void inspect(const std::function<void()>& body) = 0;
  /// The window of that name; null if it is not loaded. Only within inspect.
  virtual controls::Window* findWindow(std::string_view name) = 0;

  virtual bool running() = 0;
  virtual void start(const std::string& name) = 0;
  /// Ends the program like a crash, without saving anything.
  virtual void crash() = 0;
  virtual void close(controls::Window& window) = 0;
  virtual void bringToFront(controls::Window& window) = 0;

  virtual void keyDown(const controls::KeyStroke& stroke, controls::KeyAscii character) = 0;
  virtual void keyUp(const controls::KeyStroke& stroke) = 0;
  virtual void click(controls::Control& control) = 0;
  virtual void doubleClick(controls::Control& control) = 0;
  virtual void focus(controls::Control& control) = 0;
  void select(controls::TextBox& box, int start, int length) {
    act([&] { box.select(start, length); });
  }
  /// Right-clicks the box and chooses a command of its menu. A grayed one does nothing.
  virtual void useBoxMenu(controls::TextBox& box, controls::BoxCommand command) = 0;
  virtual void choose(controls::MenuItem& item) = 0;
  /// Dragging by whole pixels would not give exactly the requested twips. Window::setBounds makes
  /// the same system call as the end of a drag, and keeps the twips.
  void resize(controls::Window& window, controls::Twips width, controls::Twips height) {
    act([&] { window.setBounds({window.bounds().left, window.bounds().top, width, height}); });
  }
  void move(controls::Window& window, controls::Twips left, controls::Twips top) {
    act([&] { window.setBounds({left, top, window.bounds().width, window.bounds().height}); });
  }
  virtual void setState(controls::Window& window, controls::WindowState state) = 0;

  virtual std::optional<std::string> clipboardText() = 0;
  virtual void setClipboard(const std::optional<std::string>& text) = 0;

  virtual std::optional<std::string> readSetting(const std::string& section,
                                                 const std::string& key) = 0;
  virtual void writeSetting(const std::string& section, const std::string& key,
                            const std::string& text) = 0;
  virtual void deleteSetting(const std::string& section, const std::string& key) = 0;
  virtual void clearSettings() = 0;
  /// {SECTION: {KEY: TEXT}}
  virtual Json dumpSettings() = 0;

  /// No effect if the window is not loaded.
  virtual void receive(const Request& request) = 0;
  /// A request to be made while the next dialog is open, before it is answered.
  virtual void queueRequest(const Request& request) = 0;
  virtual void queueAnswer(int answer) = 0;
  /// The choice in the next color picker; null cancels it.
  virtual void queueColor(const std::optional<std::uint32_t>& color) = 0;
  /// The events since the last call.
  virtual Events takeEvents() = 0;

  /// Commands that only one kind supports. False if this one does not.
  virtual bool arrange(const std::string& command, const std::vector<std::string>& texts) = 0;

 protected:
  /// Runs input to the program as one event, and waits until it has been handled.
  virtual void act(const std::function<void()>& body) = 0;
};

}  // namespace driver
