#include "inmemory/desktop.h"

#include <algorithm>

#include "inmemory/window.h"

namespace inmemory {

std::unique_ptr<controls::Window> Desktop::createWindow(const controls::WindowLayout& layout) {
  return std::make_unique<Window>(*this, layout);
}

int Desktop::showMessage(const controls::UserMessage& box) {
  int answer = controls::kAnswerOk;
  if (box.buttons == controls::Buttons::YesNo) {
    answer = controls::kAnswerYes;
    if (!answers.empty()) {
      answer = answers.front();
      answers.pop_front();
    }
  }
  boxes.push_back({box, answer});
  return answer;
}

controls::Clipping Desktop::clipboardText() {
  using Found = controls::Clipping::Found;
  if (clipboardHeld) return {Found::HeldByAnother, ""};
  return clipboard ? controls::Clipping{Found::Text, *clipboard} : controls::Clipping{};
}

bool Desktop::setClipboardText(std::string_view text) {
  if (clipboardHeld) return false;
  clipboard = text;
  return true;
}

bool Desktop::startProgram(const std::string& program) {
  if (!programs.contains(program)) return false;
  launches.push_back({program, ""});
  return true;
}

bool Desktop::startProgramAndPaste(const std::string& program) {
  if (!programs.contains(program)) return false;
  launches.push_back({program, "^V"});
  return true;
}

std::optional<std::uint32_t> Desktop::chooseColor(std::uint32_t) {
  if (colors.empty()) return {};
  const auto color = colors.front();
  colors.pop_front();
  return color;
}

std::optional<controls::RegistryValue> Desktop::registryValue(std::string_view key,
                                                              std::string_view valueName) {
  const auto found = registry.find({std::string(key), std::string(valueName)});
  if (found == registry.end()) return {};
  return found->second;
}

void Desktop::bringToFront(controls::Window& window) {
  std::erase(order_, &window);
  order_.push_back(&window);
  window.noteActivated();
}

void Desktop::noteGone(const controls::Window& window) {
  std::erase(order_, &window);
  if (!activeWindow() && !order_.empty()) order_.back()->noteActivated();
}

}  // namespace inmemory
