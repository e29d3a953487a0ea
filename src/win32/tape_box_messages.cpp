#include <windows.h>

#include <oleacc.h>
#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "win32/tape_box.h"
#include "win32/text.h"

namespace win32 {

// For screen readers the tape behaves like the system's own box and answers its messages.
std::optional<LRESULT> TapeBox::takeEditMessage(const Message& message) {
  // The class of the system's edit box, in the numbering of the accessibility library.
  constexpr LRESULT kEditClass = 65536 + 4;
  const TapeLines& lines = view_.lines();
  const int place = static_cast<int>(message.wParam);
  switch (message.id) {
    case WM_GETOBJECT:
      name_.announce();
      region_.announce();
      if (static_cast<LONG>(message.lParam) != OBJID_QUERYCLASSNAMEIDX) return {};
      return kEditClass;
    case WM_GETFONT:
      return reinterpret_cast<LRESULT>(view_.font());
    case EM_GETLINECOUNT:
      return lines.count();
    case EM_GETFIRSTVISIBLELINE:
      return view_.firstLine();
    case EM_LINEFROMCHAR:
      return lines.lineOf(place < 0 ? view_.selectionStart() : place);
    case EM_LINEINDEX:
      if (place >= lines.count()) return -1;
      return lines.start(place < 0 ? lines.lineOf(view_.caret()) : place);
    case EM_LINELENGTH: {
      const int line = lines.lineOf(place < 0 ? view_.selectionStart() : place);
      return lines.end(line) - lines.start(line);
    }
    case EM_POSFROMCHAR: {
      if (place < 0 || place > lines.length()) return -1;
      const POINT point = view_.pointOf(place);
      return MAKELRESULT(point.x, point.y);
    }
    case EM_CHARFROMPOS: {
      const int hit = view_.placeAt(mousePlace(message));
      return MAKELRESULT(hit, lines.lineOf(hit));
    }
    default:
      if (const auto taken = takeViewMessage(message)) return taken;
      return takeTextMessage(message);
  }
}

std::optional<LRESULT> TapeBox::takeViewMessage(const Message& message) {
  switch (message.id) {
    case EM_LINESCROLL:
      scrollBy(static_cast<LPARAM>(message.wParam), message.lParam);
      return TRUE;
    case EM_SCROLL:
      return takeScrollAction(message.wParam);
    case EM_SCROLLCARET:
      view_.select(view_.anchor(), view_.caret());
      return TRUE;
    case EM_GETRECT:
      if (message.lParam) *reinterpret_cast<RECT*>(message.lParam) = view_.textArea();
      return 0;
    default:
      return {};
  }
}

// Clamped to the text.
void TapeBox::scrollBy(LPARAM columns, LPARAM lines) {
  const LPARAM most = view_.lines().length();
  view_.scrollSideways(static_cast<int>(std::clamp(columns, -most, most)));
  view_.scrollTo(view_.firstLine() + static_cast<int>(std::clamp(lines, -most, most)));
}

// Returns the number of lines scrolled, in 16 bits.
LRESULT TapeBox::takeScrollAction(WPARAM action) {
  if (action > SB_PAGEDOWN) return FALSE;
  const int before = view_.firstLine();
  view_.takeScrollBar(SB_VERT, static_cast<int>(action));
  return MAKELRESULT(view_.firstLine() - before, TRUE);
}

namespace {

// Fills a caller's buffer of characters; returns their number.
LRESULT copyOut(std::wstring_view text, wchar_t* buffer, std::size_t room) {
  const std::size_t taken = std::min(text.size(), room);
  std::memcpy(buffer, text.data(), taken * sizeof(wchar_t));
  return static_cast<LRESULT>(taken);
}

}  // namespace

std::optional<LRESULT> TapeBox::takeTextMessage(const Message& message) {
  const TapeLines& lines = view_.lines();
  auto* text = reinterpret_cast<wchar_t*>(message.lParam);
  switch (message.id) {
    case WM_GETTEXTLENGTH:
      return lines.length();
    case WM_GETTEXT: {
      if (message.wParam == 0 || !text) return 0;
      const LRESULT taken = copyOut(lines.text(), text, message.wParam - 1);
      text[taken] = L'\0';
      return taken;
    }
    case EM_GETLINE:
      if (!text || message.wParam >= static_cast<WPARAM>(lines.count())) return 0;
      // The buffer begins with its own size.
      return copyOut(lines.line(static_cast<int>(message.wParam)), text, static_cast<WORD>(*text));
    case EM_GETSEL: {
      const auto start = static_cast<DWORD>(view_.selectionStart());
      const auto end = static_cast<DWORD>(view_.selectionEnd());
      if (message.wParam) *reinterpret_cast<DWORD*>(message.wParam) = start;
      if (message.lParam) *reinterpret_cast<DWORD*>(message.lParam) = end;
      return MAKELRESULT(start, end);
    }
    case EM_SETSEL: {
      const auto placeOf = [&lines](LPARAM wanted) {
        return wanted < 0 ? lines.length()
                          : static_cast<int>(std::min<LPARAM>(wanted, lines.length()));
      };
      const auto start = static_cast<LPARAM>(message.wParam);
      // A negative start clears the selection.
      const int from = start < 0 ? view_.caret() : placeOf(start);
      const int to = start < 0 ? from : placeOf(message.lParam);
      select(std::min(from, to), std::abs(to - from));
      return 0;
    }
    default:
      return {};
  }
}

// Draws the border in the user's theme; without a theme, the classic edge has been drawn already.
void TapeBox::paintFrame() {
  const OwnedTheme theme(openTheme(handle(), VSCLASS_EDIT));
  if (!theme) return;
  RECT frame;
  GetWindowRect(handle(), &frame);
  OffsetRect(&frame, -frame.left, -frame.top);
  const int x = GetSystemMetrics(SM_CXEDGE);
  const int y = GetSystemMetrics(SM_CYEDGE);
  const HDC context = GetWindowDC(handle());
  ExcludeClipRect(context, x, y, frame.right - x, frame.bottom - y);
  drawThemeBackground(theme.get(), context, EP_EDITTEXT, ETS_NORMAL, frame);
  ReleaseDC(handle(), context);
}

}  // namespace win32
