#include <windows.h>

#include <windowsx.h>

#include <algorithm>
#include <cstdlib>

#include "win32/keys.h"
#include "win32/tape_box.h"

// The mouse on the tape.
namespace win32 {
namespace {

constexpr UINT_PTR kDragTimer = 1;
constexpr UINT kDragInterval = 50;

}  // namespace

std::optional<LRESULT> TapeBox::takeScrolling(const Message& message) {
  switch (message.id) {
    case WM_VSCROLL:
      view_.takeScrollBar(SB_VERT, LOWORD(message.wParam));
      return 0;
    case WM_HSCROLL:
      view_.takeScrollBar(SB_HORZ, LOWORD(message.wParam));
      return 0;
    case WM_MOUSEWHEEL:
      turnWheel(GET_WHEEL_DELTA_WPARAM(message.wParam),
                (GET_KEYSTATE_WPARAM(message.wParam) & MK_SHIFT) != 0);
      return 0;
    case WM_MOUSEHWHEEL:
      turnWheel(-GET_WHEEL_DELTA_WPARAM(message.wParam), true);
      return 0;
    default:
      if (dragging_) dragTo(mouse_);
      return 0;
  }
}

void TapeBox::turnWheel(int delta, bool sideways) {
  UINT lines = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const int step = lines == WHEEL_PAGESCROLL ? view_.linesInView() : static_cast<int>(lines);
  wheelRest_ += delta * step;
  const int turned = wheelRest_ / WHEEL_DELTA;
  wheelRest_ %= WHEEL_DELTA;
  if (sideways) {
    view_.scrollSideways(-turned);
  } else {
    view_.scrollTo(view_.firstLine() - turned);
  }
}

std::optional<LRESULT> TapeBox::takeMouse(const Message& message) {
  switch (message.id) {
    case WM_LBUTTONDOWN:
      pressMouse(message);
      return 0;
    case WM_MOUSEMOVE:
      // The system also sends one, without a button, when windows move under the pointer.
      if (dragging_ && (message.wParam & MK_LBUTTON)) dragTo(mouse_ = mousePlace(message));
      return 0;
    case WM_LBUTTONUP:
      if (dragging_) ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      dragging_ = false;
      KillTimer(handle(), kDragTimer);
      return 0;
    case WM_LBUTTONDBLCLK:
      pressAgain(message);
      return 0;
    default:
      return {};
  }
}

// The position is determined before the focus moves, since a focus handler may scroll the tape.
void TapeBox::pressMouse(const Message& message) {
  mouse_ = mousePlace(message);
  const int place = view_.placeAt(mouse_);
  const int firstLine = view_.firstLine();
  const int anchor = isDown(VK_SHIFT) ? view_.anchor() : place;
  SetFocus(handle());
  view_.scrollTo(firstLine);
  if (isThirdClick()) return startDrag(Unit::Line, spanAt(place, Unit::Line));
  doubleClickTime_ = 0;
  view_.select(anchor, place);
  startDrag(Unit::Character, {anchor, anchor});
}

void TapeBox::pressAgain(const Message& message) {
  doubleClickTime_ = static_cast<DWORD>(GetMessageTime());
  mouse_ = doubleClickPlace_ = mousePlace(message);
  SetFocus(handle());
  startDrag(Unit::Word, spanAt(view_.caret(), Unit::Word));
  doubleClick();
}

bool TapeBox::isThirdClick() const {
  // The time of a message that was sent, not posted, may be a little before an earlier one's.
  const auto passed = static_cast<LONG>(static_cast<DWORD>(GetMessageTime()) - doubleClickTime_);
  return doubleClickTime_ != 0 && passed <= static_cast<LONG>(GetDoubleClickTime()) &&
         std::abs(mouse_.x - doubleClickPlace_.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
         std::abs(mouse_.y - doubleClickPlace_.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
}

void TapeBox::startDrag(Unit unit, Span span) {
  dragUnit_ = unit;
  dragFrom_ = span;
  if (unit != Unit::Character) view_.select(span.start, span.end);
  SetCapture(handle());
  SetTimer(handle(), kDragTimer, kDragInterval, nullptr);
  dragging_ = true;
}

TapeBox::Span TapeBox::spanAt(int place, Unit unit) const {
  const TapeLines& lines = view_.lines();
  switch (unit) {
    case Unit::Word:
      return {lines.wordStart(place), lines.wordEnd(place)};
    case Unit::Line: {
      // Including its line break, if any.
      const int line = lines.lineOf(place);
      return {lines.start(line), line + 1 < lines.count() ? lines.start(line + 1) : lines.length()};
    }
    default:
      return {place, place};
  }
}

// Selects whole words or lines from the start of the drag to the mouse.
void TapeBox::dragTo(POINT point) {
  const Span reached = spanAt(view_.placeAt(point), dragUnit_);
  const bool back = reached.start < dragFrom_.start;
  const int anchor = back ? dragFrom_.end : dragFrom_.start;
  const int caret = back ? reached.start : std::max(reached.end, dragFrom_.end);
  if (caret != view_.caret() || anchor != view_.anchor()) view_.select(anchor, caret);
}

}  // namespace win32
