// Values that are read, or prepared before the program is started.
#include "driver/native_settings.h"
#include "driver/native_stage.h"
#include "support/clipboard.h"
#include "win32/text.h"

namespace driver {

std::optional<std::string> NativeStage::clipboardText() {
  clearAway();
  std::optional<std::wstring> text;
  inspect([&] { text = support::clipboardText(); });
  if (!text) return {};
  return win32::narrow(*text);
}

void NativeStage::setClipboard(const std::optional<std::string>& text) {
  clearAway();
  std::optional<std::wstring> wide;
  if (text) wide = win32::wide(*text);
  inspect([&] { support::setClipboardText(wide); });
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

Events NativeStage::takeEvents() {
  clearAway();
  Events events;
  inspect([&] { events = desktop_.takeEvents(); });
  events.boxes = boxes_.takeSeen();
  return events;
}

}  // namespace driver
