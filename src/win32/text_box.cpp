#include "win32/text_box.h"

#include "win32/input_method.h"
#include "win32/text.h"

namespace win32 {
namespace {

DWORD styleOf(const controls::ControlLayout& layout) {
  const bool right = layout.alignment == controls::Alignment::Right;
  return static_cast<DWORD>(ES_AUTOHSCROLL | (right ? ES_RIGHT : ES_LEFT));
}

}  // namespace

TextBox::TextBox(Window& frame, const controls::ControlLayout& layout)
    : Native(frame, layout, {L"EDIT", styleOf(layout), WS_EX_CLIENTEDGE}),
      input_(*this, *this),
      name_(handle(), layout.accessibleName) {
  passOn({EM_SETLIMITTEXT, 0, 0});
  switchOffComposition(handle());
  putLine();
}

std::optional<LRESULT> TextBox::take(const Message& message) {
  if (storing_) return {};
  if (const auto taken = input_.take(message)) return taken;
  if (const auto taken = takeFrame(message)) return taken;
  switch (message.id) {
    case WM_KEYDOWN:
      return {};
    case WM_LBUTTONDBLCLK: {
      const LRESULT result = passOn(message);
      doubleClick();
      return result;
    }
    case WM_GETOBJECT:
      name_.announce();
      return {};
    case EM_SETLIMITTEXT:
    case EM_SETWORDBREAKPROC:
    case EM_SETHANDLE:
    case EM_SETMARGINS:
    case EM_SETPASSWORDCHAR:
    case EM_SETREADONLY:
      // Other programs must not change the box.
      return 0;
    default:
      return Native::take(message);
  }
}

std::wstring TextBox::wideText() const {
  std::wstring text(static_cast<std::size_t>(loadLength()), L'\0');
  GetWindowTextW(handle(), text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

std::string TextBox::loadText() const {
  return narrow(wideText());
}

std::string TextBox::loadPart(int start, int length) const {
  return narrow(
      wideText().substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length)));
}

// The return value of EM_GETSEL is limited to 16 bits.
TextBox::Selection TextBox::loadSelection() const {
  DWORD start = 0;
  DWORD end = 0;
  send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<int>(start), static_cast<int>(end - start)};
}

void TextBox::store(UINT message, WPARAM wParam, const std::wstring& text) {
  storing_ = true;
  send(message, wParam, reinterpret_cast<LPARAM>(text.c_str()));
  storing_ = false;
  fitText();
}

void TextBox::storeText(std::string_view text) {
  store(WM_SETTEXT, 0, wide(text));
}

void TextBox::storeAppended(std::string_view text) {
  storePart(loadLength(), 0, text);
}

void TextBox::storeSelection(int start, int length) {
  send(EM_SETSEL, static_cast<WPARAM>(start), start + length);
  send(EM_SCROLLCARET);
}

void TextBox::storePart(int start, int length, std::string_view text) {
  send(EM_SETSEL, static_cast<WPARAM>(start), start + length);
  store(EM_REPLACESEL, FALSE, wide(text));
}

}  // namespace win32
