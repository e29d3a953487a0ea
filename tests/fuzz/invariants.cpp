#include "fuzz/invariants.h"

#include <array>
#include <string_view>

#include "engine/tape_line_style.h"

namespace fuzz {

namespace {

using driver::Json;
using Fields = std::map<std::string, std::string>;

constexpr auto kFields =
    std::to_array<std::string_view>({"txtNper", "txtRate", "txtPmt", "txtPV", "txtFV"});

std::string findBrokenState(const Json& shown) {
  const std::string entry = shown["entry"];
  const int caret = shown["caret"];
  if (entry == "Error") return "the entry box is left at Error";
  if (caret < 0 || caret > static_cast<int>(entry.size())) return "the caret is outside the entry";
  if (shown["modes_enabled"] == Json(shown["modes_caption"] == "Modes (equals to enable)"))
    return "the caption of the Modes menu belies its lock";
  const bool adding = shown["caption"] == "Add Mode, Tallyrex";
  if (shown["sqrt_visible"] == Json(adding)) return "the square-root key is out of step";
  if (shown["mode_checked"] != Json(adding ? 0 : 1)) return "the mode's check mark is out of step";
  return "";
}

// What is drawn as an amount is also spoken, and of the notes the errors alone.
std::string findBrokenLine(const Json& shown) {
  const std::string tape = shown["tape"];
  const std::size_t end = tape.rfind("\r\n");
  const std::string line = end == std::string::npos ? tape : tape.substr(end + 2);
  const bool speaks =
      engine::tapeLineStyle(line) != controls::LineStyle::Note || line.starts_with("Error:");
  if (speaks == engine::spokenTapeLine(line).empty())
    return "a line of the tape is not spoken as it is drawn";
  return "";
}

// What may end the financial calculator, and so store its fields as they are seen before.
bool mayStore(const std::string& command) {
  return command.starts_with("close ") || command.starts_with("askclose ") ||
         command == "endsession" || command.starts_with("menu ");
}

}  // namespace

Json Watch::ask(const std::string& command) {
  return Json::parse(driver_.answer(command));
}

bool Watch::isTrue(const std::string& command) {
  return value(command) == Json(true);
}

Json Watch::snapshot() {
  if (!isTrue("get frmCalc Loaded") || !isTrue("get frmCalc Visible")) return nullptr;
  return ask("snapshot");
}

std::string Watch::findBrokenMarks(const Json& shown) {
  if (isTrue("get mnuEditFloatingDecimal Checked") != (shown["floating"] == 1))
    return "the mark of Floating Decimal is out of step";
  if (isTrue("get mnuEditStationaryDecimal Checked") != (shown["stationary"] == 1))
    return "the mark of Stationary Decimal is out of step";
  if (isTrue("get mnuWinTapeOff Checked") != (shown["tape_off"] == 1))
    return "the mark of Tape Off is out of step";
  const std::string focus = shown["focus"];
  if (!isTrue("get " + focus + " Enabled") || !isTrue("get " + focus + " Visible"))
    return "the focus is on " + focus + ", which cannot have it";
  return "";
}

Fields Watch::fields() {
  Fields fields;
  if (!isTrue("get frmAnnuity Loaded")) return fields;
  for (const std::string_view name : kFields)
    fields[std::string(name)] =
        value("get frmAnnuity." + std::string(name) + " Text").get<std::string>();
  return fields;
}

Fields Watch::storedFields() {
  Fields stored;
  for (const std::string_view name : kFields) {
    const Json text = value("store get Annuity " + std::string(name));
    if (text.is_string()) stored[std::string(name)] = text.get<std::string>();
  }
  return stored;
}

// What is stored of a field is what was stored before, or what the user saw in it.
std::string Watch::findReplacedField(const Fields& shown, const Fields& stored) {
  const Fields now = storedFields();
  for (const auto& [name, text] : stored)
    if (!now.contains(name)) return "what was stored of " + name + " is gone";
  for (const auto& [name, text] : now) {
    const auto before = stored.find(name);
    if (before != stored.end() && before->second == text) continue;
    const auto seen = shown.find(name);
    if (seen == shown.end() || seen->second != text)
      return "what was stored of " + name + " is replaced by what was not restored";
  }
  return "";
}

std::string Watch::carryOut(const std::string& command) {
  const bool watched =
      !command.starts_with("st") && (mayStore(command) || !isTrue("get frmAnnuity Loaded"));
  Step step{.command = command, .before = snapshot(), .after = {}};
  const Fields shown = watched ? fields() : Fields();
  const Fields stored = watched ? storedFields() : Fields();
  ask("events");
  step.refused = driver_.answer(command).starts_with("{\"error\"");
  step.after = snapshot();
  if (command != "events") step.boxShown = !ask("events")["boxes"].empty();
  if (watched)
    if (const auto broken = findReplacedField(shown, stored); !broken.empty()) return broken;
  if (const auto broken = money_.findBroken(step); !broken.empty()) return broken;
  if (!step.after.is_object()) return "";
  if (const auto broken = findBrokenState(step.after); !broken.empty()) return broken;
  if (const auto broken = findBrokenLine(step.after); !broken.empty()) return broken;
  return findBrokenMarks(step.after);
}

}  // namespace fuzz
