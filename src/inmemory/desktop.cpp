#include "inmemory/desktop.h"

#include "inmemory/window.h"

namespace inmemory {

std::unique_ptr<controls::Window> Desktop::createWindow(const controls::WindowLayout& layout) {
  return std::make_unique<Window>(*this, layout);
}

int Desktop::showMessage(const controls::UserMessage& box) {
  boxes.push_back({box, controls::kNoAnswer});
  stayOpen();
  int answer = controls::kAnswerOk;
  if (box.buttons == controls::Buttons::YesNo) {
    answer = controls::kAnswerYes;
    if (!answers.empty()) {
      answer = answers.front();
      answers.pop_front();
    }
  }
  boxes.back().answer = answer;
  return answer;
}

controls::Clipping Desktop::clipboardText() {
  using Found = controls::Clipping::Found;
  if (clipboardLocked) return {Found::Locked, ""};
  return clipboard ? controls::Clipping{Found::Text, *clipboard} : controls::Clipping{};
}

bool Desktop::setClipboardText(std::string_view text) {
  if (clipboardLocked) return false;
  clipboard = text;
  return true;
}

bool Desktop::startProgram(const std::string& program) {
  if (!programs.contains(program)) return false;
  launches.push_back({program, "", {}});
  return true;
}

bool Desktop::startProgramAndPaste(const std::string& program) {
  if (!programs.contains(program)) return false;
  launches.push_back({program, "^V", {}});
  return true;
}

bool Desktop::openText(const std::string& program, std::string_view text) {
  if (!programs.contains(program)) return false;
  launches.push_back({program, "", std::string(text)});
  return true;
}

std::optional<std::uint32_t> Desktop::chooseColor(std::uint32_t) {
  stayOpen();
  if (colors.empty()) return {};
  const auto color = colors.front();
  colors.pop_front();
  return color;
}

std::optional<std::string> Desktop::registryValue(std::string_view key,
                                                  std::string_view valueName) {
  const auto found = registry.find({std::string(key), std::string(valueName)});
  if (found == registry.end()) return {};
  return found->second;
}

void Desktop::stayOpen() {
  const controls::SystemDialog dialog(*this);
  if (!meanwhile.empty()) {
    const auto happens = std::move(meanwhile.front());
    meanwhile.pop_front();
    events().runEvent(happens);
  }
  dialog.noteAnswered();
}

controls::VersionNotes Desktop::versionNotes() {
  return {.legalNotice = TALLYREX_LEGAL_NOTICE, .company = TALLYREX_COMPANY};
}

}  // namespace inmemory
