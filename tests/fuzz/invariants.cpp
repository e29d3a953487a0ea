#include "fuzz/invariants.h"

namespace fuzz {

namespace {

using driver::Json;

Json ask(driver::Driver& driver, const std::string& command) {
  return Json::parse(driver.answer(command));
}

bool isTrue(driver::Driver& driver, const std::string& command) {
  return ask(driver, command).value("value", Json(nullptr)) == Json(true);
}

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

std::string findBrokenMarks(driver::Driver& driver, const Json& shown) {
  if (isTrue(driver, "get mnuEditFloatingDecimal Checked") != (shown["floating"] == 1))
    return "the mark of Floating Decimal is out of step";
  if (isTrue(driver, "get mnuEditStationaryDecimal Checked") != (shown["stationary"] == 1))
    return "the mark of Stationary Decimal is out of step";
  if (isTrue(driver, "get mnuWinTapeOff Checked") != (shown["tape_off"] == 1))
    return "the mark of Tape Off is out of step";
  const std::string focus = shown["focus"];
  if (!isTrue(driver, "get " + focus + " Enabled") || !isTrue(driver, "get " + focus + " Visible"))
    return "the focus is on " + focus + ", which cannot have it";
  return "";
}

}  // namespace

std::string findBroken(driver::Driver& driver) {
  if (!isTrue(driver, "get frmCalc Loaded") || !isTrue(driver, "get frmCalc Visible")) return "";
  const Json shown = ask(driver, "snapshot");
  const std::string broken = findBrokenState(shown);
  return broken.empty() ? findBrokenMarks(driver, shown) : broken;
}

Json storedFields(driver::Driver& driver) {
  return ask(driver, "store dump")["value"].value("Annuity", Json::object());
}

Json fieldsAtRest(driver::Driver& driver) {
  return isTrue(driver, "get frmAnnuity Loaded") ? Json() : storedFields(driver);
}

}  // namespace fuzz
