// Values that are read, or prepared before the program is started.
#include "driver/native_settings.h"
#include "driver/native_stage.h"
#include "support/clipboard.h"
#include "win32/text.h"

namespace driver {

std::optional<std::string> NativeStage::clipboardText() {
  clearAway();
  std::optional<std::wstring> text;
  inspect([&] { text = support::clipboardText(ui_.window()); });
  if (!text) return {};
  return win32::narrow(*text);
}

void NativeStage::setClipboard(const std::optional<std::string>& text) {
  clearAway();
  std::optional<std::wstring> wide;
  if (text) wide = win32::wide(*text);
  inspect([&] { support::setClipboardText(wide, ui_.window()); });
}

std::optional<std::string> NativeStage::readSetting(const std::string& section,
                                                    const std::string& key) {
  return readStored(desktop_.programName(), section, key);
}

void NativeStage::writeSetting(const std::string& section, const std::string& key,
                               const std::string& text) {
  writeStored(desktop_.programName(), section, key, text);
}

void NativeStage::deleteSetting(const std::string& section, const std::string& key) {
  deleteStored(desktop_.programName(), section, key);
}

void NativeStage::clearSettings() {
  clearStored(desktop_.programName());
}

Json NativeStage::dumpSettings() {
  return dumpStored(desktop_.programName());
}

Json NativeStage::takeEvents() {
  clearAway();
  Json boxes = Json::array();
  for (const SeenBox& box : boxes_.takeSeen())
    boxes.push_back({{"text", box.text},
                     {"title", box.title},
                     {"buttons", box.buttons},
                     {"icon", box.icon},
                     {"answer", box.answer}});
  Happenings happenings;
  inspect([&] { happenings = desktop_.takeHappenings(); });
  Json launches = Json::array();
  for (const auto& [program, keys, text] : happenings.launches) {
    launches.push_back({{"program", program}, {"keys", keys}});
    if (text) launches.back()["text"] = *text;
  }
  Json help = Json::array();
  for (const auto& request : happenings.helpRequests) {
    const bool winHelp = request.caller == controls::HelpRequest::Caller::WinHelp;
    help.push_back({{"call", winHelp ? "WinHelp" : "CommonDialog"},
                    {"file", request.file},
                    {"command", request.command},
                    {"data", request.data}});
  }
  return {{"beeps", happenings.beeps}, {"boxes", boxes}, {"launches", launches}, {"help", help}};
}

}  // namespace driver
