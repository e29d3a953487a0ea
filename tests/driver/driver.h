#pragma once

#include <string>
#include <string_view>

#include "driver/command.h"
#include "driver/json.h"
#include "driver/stage.h"

namespace driver {

/// How a driver ends.
enum class Ending { None, Quit, Reset };

/// Carries out the driver's commands on a stage.
class Driver {
 public:
  explicit Driver(Stage& stage) : stage_(stage) {}

  /// The answer to one line: one line of JSON. Empty for a blank line or a comment.
  std::string answer(const std::string& line);
  /// Quit: no more commands. Reset: the next ones are for a new driver on a new stage.
  /// The first words of all commands.
  static std::vector<std::string_view> commandNames();

  Ending ending() const { return ending_; }

 private:
  using Handler = void (Driver::*)(Command&);
  struct Entry;
  static const Entry kCommands[];

  void carryOut(Command& command);

  void start(Command& command);
  void crash(Command& command);
  void close(Command& command);
  void askToClose(Command& command);
  void endSession(Command& command);
  void queueRequest(Command& command);
  void bringToFront(Command& command);
  void type(Command& command);
  void roll(Command& command);
  void press(Command& command);
  void click(Command& command);
  void doubleClick(Command& command);
  void focus(Command& command);
  void select(Command& command);
  void mousePaste(Command& command);
  void mouseCut(Command& command) { useEntryMenu(controls::BoxCommand::Cut, command); }
  void mouseDelete(Command& command) { useEntryMenu(controls::BoxCommand::Delete, command); }
  void mouseUndo(Command& command) { useEntryMenu(controls::BoxCommand::Undo, command); }
  void choose(Command& command);
  void resize(Command& command);
  void move(Command& command);
  void minimize(Command& command) { setState(command, controls::WindowState::Minimized); }
  void maximize(Command& command) { setState(command, controls::WindowState::Maximized); }
  void restore(Command& command) { setState(command, controls::WindowState::Normal); }
  void clipboard(Command& command);
  void store(Command& command);
  void queueAnswer(Command& command);
  void queueColor(Command& command);
  void programs(Command& command) { arrange("programs", command); }
  void registry(Command& command);
  void files(Command& command) { arrange("files", command); }
  void call(Command& command);
  void get(Command& command);
  void snapshot(Command& command);
  void events(Command& command);
  void end(Command& command, Ending ending);
  void reset(Command& command) { end(command, Ending::Reset); }
  void quit(Command& command) { end(command, Ending::Quit); }

  void arrange(const std::string& name, Command& command);
  void setState(Command& command, controls::WindowState state);
  void useEntryMenu(controls::BoxCommand chosen, Command& command);

  controls::Window& window(const std::string& name);
  /// A window that the user can reach: no dialog is in front of it.
  controls::Window& freeWindow(const std::string& name);
  controls::Control& control(const std::string& name);
  controls::Control& usableControl(const std::string& name);
  controls::TextBox& textBox(const std::string& name);
  void requireRunning();

  Stage& stage_;
  Json value_;
  Ending ending_ = Ending::None;
};

}  // namespace driver
