#include "win32/label.h"

#include "win32/live_region.h"

namespace win32 {

using controls::Alignment;

Label::Label(Window& frame, const controls::ControlLayout& layout)
    : Native(frame, layout,
             {L"STATIC",
              static_cast<DWORD>(layout.alignment == Alignment::Right ? SS_RIGHT : SS_LEFT) |
                  SS_NOTIFY}) {}

void Label::showCaption() {
  Native::showCaption();
  if (layout().spoken && !caption().empty()) speak(handle());
}

std::optional<LRESULT> Label::take(const Message& message) {
  if (message.id != WM_LBUTTONDBLCLK) return Native::take(message);
  doubleClick();
  return 0;
}

// In front of the controls that it surrounds, where screen readers look for the name of a group. It
// lets them show through and clicks pass; the window draws its background.
Frame::Frame(Window& frame, const controls::ControlLayout& layout)
    : Native(frame, layout, {L"BUTTON", BS_GROUPBOX, WS_EX_TRANSPARENT}) {}

}  // namespace win32
