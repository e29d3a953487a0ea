#include "win32/tape_box.h"

#include <windows.h>

#include <windowsx.h>

#include <algorithm>

#include "win32/colors.h"
#include "win32/input_method.h"
#include "win32/keys.h"
#include "win32/text.h"

namespace win32 {
namespace {

constexpr wchar_t kClassName[] = L"TallyrexTape";
constexpr UINT_PTR kDragTimer = 1;
constexpr UINT kDragInterval = 50;

const wchar_t* tapeClass() {
  static const ATOM registered = [] {
    WNDCLASSEXW definition = {};
    definition.cbSize = sizeof definition;
    definition.style = CS_DBLCLKS;
    definition.lpfnWndProc = DefWindowProcW;
    definition.hInstance = GetModuleHandleW(nullptr);
    definition.hCursor = LoadCursorW(nullptr, IDC_IBEAM);
    definition.lpszClassName = kClassName;
    return RegisterClassExW(&definition);
  }();
  return MAKEINTATOM(registered);
}

}  // namespace

TapeBox::TapeBox(Window& frame, const controls::ControlLayout& layout)
    : Native(frame, layout, {tapeClass(), WS_VSCROLL, WS_EX_CLIENTEDGE}),
      view_(handle()),
      input_(*this, *this),
      name_(handle(), layout.accessibleName) {
  view_.setAlignment(layout.alignment);
  view_.setFont(font());
  putColors();
}

void TapeBox::refresh() {
  Native::refresh();
  putColors();
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
    case WM_MOUSEWHEEL:
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
      // Every point of it is painted.
      return TRUE;
    case WM_SIZE:
      view_.resize();
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

std::optional<LRESULT> TapeBox::takeScrolling(const Message& message) {
  if (message.id == WM_VSCROLL) {
    view_.takeScrollBar(LOWORD(message.wParam));
  } else if (message.id == WM_MOUSEWHEEL) {
    turnWheel(GET_WHEEL_DELTA_WPARAM(message.wParam));
  } else if (dragging_) {
    POINT mouse;
    GetCursorPos(&mouse);
    ScreenToClient(handle(), &mouse);
    dragTo(mouse);
  }
  return 0;
}

void TapeBox::turnWheel(int delta) {
  UINT lines = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const int step = lines == WHEEL_PAGESCROLL ? view_.linesInView() : static_cast<int>(lines);
  wheelRest_ += delta * step;
  view_.scrollTo(view_.firstLine() - wheelRest_ / WHEEL_DELTA);
  wheelRest_ %= WHEEL_DELTA;
}

std::optional<LRESULT> TapeBox::takeMouse(const Message& message) {
  switch (message.id) {
    case WM_LBUTTONDOWN:
      pressMouse(message);
      return 0;
    case WM_MOUSEMOVE:
      if (dragging_) dragTo(mousePlace(message));
      return 0;
    case WM_LBUTTONUP:
      if (dragging_) ReleaseCapture();
      mouseUp();
      return 0;
    case WM_CAPTURECHANGED:
      dragging_ = false;
      KillTimer(handle(), kDragTimer);
      return 0;
    case WM_LBUTTONDBLCLK: {
      const int end = view_.lines().nextWord(view_.caret());
      view_.select(view_.lines().previousWord(end), end);
      doubleClick();
      return 0;
    }
    default:
      return {};
  }
}

// The place is that which the user has seen under the mouse: what a handler does when the focus
// arrives may scroll the tape.
void TapeBox::pressMouse(const Message& message) {
  const int place = view_.placeAt(mousePlace(message));
  const int firstLine = view_.firstLine();
  const int anchor = isDown(VK_SHIFT) ? view_.anchor() : place;
  SetFocus(handle());
  mouseDown();
  view_.scrollTo(firstLine);
  view_.select(anchor, place);
  SetCapture(handle());
  SetTimer(handle(), kDragTimer, kDragInterval, nullptr);
  dragging_ = true;
}

void TapeBox::dragTo(POINT point) {
  const int place = view_.placeAt(point);
  if (place != view_.caret()) view_.select(view_.anchor(), place);
}

void TapeBox::moveCaret(WPARAM key) {
  const int caret = caretAfter(key, isDown(VK_CONTROL));
  view_.select(isDown(VK_SHIFT) ? view_.anchor() : caret, caret);
}

int TapeBox::caretAfter(WPARAM key, bool control) const {
  const TapeLines& lines = view_.lines();
  const int caret = view_.caret();
  const int line = lines.lineOf(caret);
  switch (key) {
    case VK_LEFT:
      return control ? lines.previousWord(caret) : lines.previous(caret);
    case VK_RIGHT:
      return control ? lines.nextWord(caret) : lines.next(caret);
    case VK_HOME:
      return control ? 0 : lines.start(line);
    case VK_END:
      return control ? lines.length() : lines.end(line);
    case VK_UP:
      return otherLine(-1);
    case VK_DOWN:
      return otherLine(1);
    case VK_PRIOR:
      return otherLine(-view_.linesInView());
    default:
      return otherLine(view_.linesInView());
  }
}

// The same column some lines further down.
int TapeBox::otherLine(int lines) const {
  const TapeLines& all = view_.lines();
  const int line = all.lineOf(view_.caret());
  const int column = view_.caret() - all.start(line);
  const int wanted = std::clamp(line + lines, 0, all.count() - 1);
  if (wanted == line) return view_.caret();
  return std::min(all.start(wanted) + column, all.end(wanted));
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
}

void TapeBox::storeAppended(std::string_view text) {
  view_.replace(view_.lines().length(), 0, wide(text));
}

void TapeBox::storeSelection(int start, int length) {
  view_.select(start, start + length);
}

void TapeBox::storePart(int start, int length, std::string_view text) {
  view_.replace(start, length, wide(text));
}

}  // namespace win32
