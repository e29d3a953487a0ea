#include "win32/tape_box.h"

#include <windows.h>

#include <algorithm>

#include "win32/colors.h"
#include "win32/input_method.h"
#include "win32/text.h"

namespace win32 {
namespace {

constexpr wchar_t kTapeClass[] = L"TallyrexTape";
// The queries of the system and of screen readers for a multi-line box.
constexpr DWORD kStyle =
    WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL | ES_WANTRETURN;

const wchar_t* tapeClass() {
  static const ATOM registered = [] {
    WNDCLASSEXW definition = {};
    definition.cbSize = sizeof definition;
    definition.style = CS_DBLCLKS;
    definition.lpfnWndProc = DefWindowProcW;
    definition.hInstance = GetModuleHandleW(nullptr);
    definition.hCursor = LoadCursorW(nullptr, IDC_IBEAM);
    definition.lpszClassName = kTapeClass;
    return RegisterClassExW(&definition);
  }();
  return MAKEINTATOM(registered);
}

}  // namespace

TapeBox::TapeBox(Window& frame, const controls::ControlLayout& layout)
    : Native(frame, layout, {tapeClass(), kStyle, WS_EX_CLIENTEDGE}),
      view_(handle(), [this](std::wstring_view line) { return styleOf(line); }),
      input_(*this, *this),
      name_(handle(), layout.accessibleName),
      region_(frame.handle()) {
  view_.setAlignment(layout.alignment);
  fitLetters();
  putColors();
}

void TapeBox::refresh() {
  Native::refresh();
  fitLetters();
  putColors();
}

controls::LineStyle TapeBox::styleOf(std::wstring_view line) const {
  return styleOfLine ? styleOfLine(narrow(line)) : controls::LineStyle::Amount;
}

// The size of the font does not depend on whether the scroll bar is visible.
void TapeBox::fitLetters() {
  RECT box;
  GetWindowRect(handle(), &box);
  const int besides = 2 * GetSystemMetrics(SM_CXEDGE) + frame().scale().metric(SM_CXVSCROLL);
  const int width = static_cast<int>(box.right - box.left) - besides;
  view_.fitLetters(frame().fonts(), layout().font, layout().columns, width);
}

void TapeBox::putColors() {
  view_.setColors(colorOf(backColor()), textColorOn(backColor()));
}

std::optional<LRESULT> TapeBox::take(const Message& message) {
  if (message.id == WM_IME_STARTCOMPOSITION)
    composeAt(handle(), view_.pointOf(view_.caret()), view_.font());
  if (const auto taken = takeMouse(message)) return taken;
  if (const auto taken = input_.take(message)) return taken;
  switch (message.id) {
    case WM_KEYDOWN:
      moveCaret(message.wParam);
      return 0;
    case WM_SETFONT:
      // The box creates its own font, as large as fits.
      return 0;
    case WM_SETFOCUS:
      view_.showCaret();
      return Native::take(message);
    case WM_KILLFOCUS:
      view_.hideCaret();
      return 0;
    case WM_PAINT:
    case WM_ERASEBKGND:
    case WM_NCPAINT:
    case WM_SIZE:
      return takePainting(message);
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_TIMER:
      return takeScrolling(message);
    default:
      break;
  }
  if (const auto taken = takeEditMessage(message)) return taken;
  return Native::take(message);
}

std::optional<LRESULT> TapeBox::takePainting(const Message& message) {
  switch (message.id) {
    case WM_PAINT:
      return paint();
    case WM_ERASEBKGND:
      // Everything is painted, so there is no background to erase.
      return TRUE;
    case WM_SIZE:
      fitLetters();
      return 0;
    default:
      passOn(message);
      paintFrame();
      return 0;
  }
}

LRESULT TapeBox::paint() {
  PAINTSTRUCT painting;
  const HDC context = BeginPaint(handle(), &painting);
  HideCaret(handle());
  view_.paint(context, painting.rcPaint);
  ShowCaret(handle());
  EndPaint(handle(), &painting);
  return 0;
}

std::string TapeBox::loadText() const {
  return narrow(view_.lines().text());
}

std::string TapeBox::loadPart(int start, int length) const {
  return narrow(view_.lines().part(start, length));
}

TapeBox::Selection TapeBox::loadSelection() const {
  return {view_.selectionStart(), view_.selectionEnd() - view_.selectionStart()};
}

void TapeBox::storeText(std::string_view text) {
  view_.replace(0, view_.lines().length(), wide(text));
  noteText();
}

void TapeBox::storeAppended(std::string_view text) {
  view_.replace(view_.lines().length(), 0, wide(text));
  noteText();
  sayLines(text);
}

void TapeBox::storeSelection(int start, int length) {
  view_.select(start, start + length);
}

void TapeBox::storePart(int start, int length, std::string_view text) {
  view_.replace(start, length, wide(text));
  noteText();
}

// As the system's own box does.
void TapeBox::noteText() const {
  NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, handle(), OBJID_CLIENT, CHILDID_SELF);
}

void TapeBox::sayLines(std::string_view text) {
  if (!spokenLine) return;
  std::string said;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find("\r\n"), text.size());
    const std::string line = spokenLine(text.substr(0, end));
    if (!line.empty()) said += (said.empty() ? "" : ", ") + line;
    text.remove_prefix(std::min(end + 2, text.size()));
  }
  if (!said.empty()) region_.say(said);
}

}  // namespace win32
