#pragma once

#include <functional>
#include <optional>
#include <string>

#include "controls/desktop.h"
#include "driver/json.h"

namespace driver {

/// What comes from outside: a request to close a window, or, without a name, the end of the
/// session.
struct Request {
  std::string window;
};

/// The program on its stage, and the hands of the person in front of it. Each kind of controls has
/// its own. What names a control has been looked up and found fit for it.
class Stage {
 public:
  virtual ~Stage() = default;

  /// Runs `body` where the program's objects may be touched.
  virtual void inspect(const std::function<void()>& body) = 0;
  /// The loaded window of that name. Only within inspect.
  virtual controls::Window* findWindow(std::string_view name) = 0;

  virtual bool running() = 0;
  virtual void start(const std::string& name) = 0;
  /// Ends the program as a crash does: it does nothing more, and saves nothing.
  virtual void crash() = 0;
  virtual void close(controls::Window& window) = 0;
  virtual void bringToFront(controls::Window& window) = 0;

  virtual void keyDown(const controls::KeyStroke& stroke, controls::KeyAscii character) = 0;
  virtual void keyUp(const controls::KeyStroke& stroke) = 0;
  virtual void click(controls::Control& control) = 0;
  virtual void doubleClick(controls::Control& control) = 0;
  virtual void focus(controls::Control& control) = 0;
  virtual void select(controls::TextBox& box, int start, int length) = 0;
  /// A right click on the box, and a command of the menu that opens. A grey one does nothing.
  virtual void useBoxMenu(controls::TextBox& box, controls::BoxCommand command) = 0;
  virtual void choose(controls::MenuItem& item) = 0;
  virtual void resize(controls::Window& window, controls::Twips width, controls::Twips height) = 0;
  virtual void move(controls::Window& window, controls::Twips left, controls::Twips top) = 0;
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

  /// Nothing happens where the window is not loaded.
  virtual void receive(const Request& request) = 0;
  /// What comes while the next dialog stands open, before it is answered.
  virtual void queueRequest(const Request& request) = 0;
  virtual void queueAnswer(int answer) = 0;
  /// What the next colour picker gives; nothing cancels it.
  virtual void queueColor(const std::optional<std::uint32_t>& color) = 0;
  /// Beeps, boxes, launches and help requests since the last call.
  virtual Json takeEvents() = 0;

  /// Commands that only one kind knows. False when this one does not.
  virtual bool arrange(const std::string& command, const std::vector<std::string>& texts) = 0;
};

}  // namespace driver
