// Values that are read, or prepared before the program is started.
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

Events NativeStage::takeEvents() {
  clearAway();
  Events events;
  inspect([&] { events = desktop_.takeEvents(); });
  events.boxes = boxes_.takeSeen();
  return events;
}

}  // namespace driver
