#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contract/kind.h"

namespace contract {

/// A window with one control of each kind and a menu, visible and in front.
const controls::WindowLayout& testLayout();
/// A second window, without a menu.
const controls::WindowLayout& plainLayout();

class ContractTest : public testing::Test {
 protected:
  ContractTest();

  /// These wait until the system has done it.
  void show(controls::Window& window);
  void focus(controls::Control& control);
  /// Types characters of a common keyboard, including "\b" and "\r".
  void type(std::string_view text);
  void press(controls::KeyCode key, controls::KeyAscii character = 0);
  void pressControl(char letter);
  /// Puts a text on the clipboard and pastes it with the Paste command.
  void paste(controls::TextBox& box, std::string_view text);
  /// Assigns a text, selects a part of it, and forgets the events noted so far.
  void put(controls::TextBox& box, std::string_view text, int caret, int selected = 0);
  /// The text, the caret and the length of the selection.
  static std::string shown(const controls::TextBox& box);
  /// The events noted since the last call.
  std::vector<std::string> takeLog();
  void note(const std::string& event) { log_.push_back(event); }

  std::unique_ptr<Kind> kind_;
  std::unique_ptr<controls::Window> window_;
  controls::TextBox& first_;
  controls::TextBox& second_;
  controls::TextBox& tape_;
  controls::Button& button_;
  controls::ToggleButton& toggle_;

 private:
  std::vector<std::string> log_;
};

using Log = std::vector<std::string>;

}  // namespace contract
