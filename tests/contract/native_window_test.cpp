#include <windows.h>

#include <initializer_list>

#include "contract/contract_test.h"
#include "driver/native_handles.h"
#include "win32/clipboard.h"
#include "win32/registry_settings.h"
#include "win32/window.h"

// Tests that make sense only for a window on a screen.
namespace contract {

using controls::Rect;
using controls::Twips;
using driver::handleOf;

namespace {

SIZE clientSize(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  return {client.right, client.bottom};
}

class NativeWindow : public ContractTest {
 protected:
  LRESULT send(controls::Control& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(handleOf(control), message, wParam, lParam);
  }
  int toPixels(Twips twips) {
    return static_cast<win32::Window&>(*window_).scale().toPixels(twips);
  }
};

TEST_F(NativeWindow, ClientAreaIsRightWithAWrappedMenu) {
  for (const Twips width : {6200, 2280, 900, 120}) {
    for (const Twips height : {3800, 1095, 690}) {
      window_->setBounds({300, 300, width, height});
      const SIZE client = clientSize(handleOf(*window_));
      EXPECT_EQ(client.cx, toPixels(width - controls::kFrameWidth)) << width << " x " << height;
      EXPECT_EQ(client.cy, toPixels(height - controls::kFrameHeightWithMenu))
          << width << " x " << height;
      EXPECT_EQ(window_->bounds(), (Rect{300, 300, width, height}));
    }
  }
}

TEST_F(NativeWindow, MovingKeepsTheExactSize) {
  window_->setBounds({301, 302, 6203, 3804});
  const HWND handle = handleOf(*window_);
  RECT frame;
  GetWindowRect(handle, &frame);
  SetWindowPos(handle, nullptr, 100, frame.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_EQ(window_->bounds(), (Rect{1500, 302, 6203, 3804}));
}

// The title bar and the taskbar show the image drawn for that size.
TEST_F(NativeWindow, SmallIconHasTheSmallSize) {
  const auto icon = reinterpret_cast<HICON>(GetClassLongPtrW(handleOf(*window_), GCLP_HICONSM));
  ICONINFO info = {};
  ASSERT_TRUE(GetIconInfo(icon, &info));
  BITMAP picture = {};
  GetObjectW(info.hbmColor, sizeof picture, &picture);
  DeleteObject(info.hbmColor);
  DeleteObject(info.hbmMask);
  EXPECT_EQ(picture.bmWidth, GetSystemMetrics(SM_CXSMICON));
}

TEST_F(NativeWindow, MinimizedWindowKeepsItsPlace) {
  const Rect before = window_->bounds();
  window_->setState(controls::WindowState::Minimized);
  EXPECT_TRUE(IsIconic(handleOf(*window_)));
  EXPECT_EQ(window_->bounds(), before);
  window_->setBounds({600, 600, 7000, 4000});
  window_->setState(controls::WindowState::Normal);
  EXPECT_EQ(window_->bounds(), (Rect{600, 600, 7000, 4000}));
  EXPECT_EQ(clientSize(handleOf(*window_)).cx, toPixels(7000 - controls::kFrameWidth));
}

TEST_F(NativeWindow, NewResolutionScalesEverything) {
  const SIZE buttonBefore = clientSize(handleOf(button_));
  const Rect bounds = window_->bounds();
  RECT suggested = {40, 40, 800, 600};
  const int dpi = static_cast<int>(GetDpiForWindow(handleOf(*window_)));
  SendMessageW(handleOf(*window_), WM_DPICHANGED, MAKEWPARAM(2 * dpi, 2 * dpi),
               reinterpret_cast<LPARAM>(&suggested));
  const SIZE client = clientSize(handleOf(*window_));
  EXPECT_EQ(client.cx, MulDiv(bounds.width - controls::kFrameWidth, 2 * dpi, 1440));
  EXPECT_EQ(client.cy, MulDiv(bounds.height - controls::kFrameHeightWithMenu, 2 * dpi, 1440));
  EXPECT_NEAR(clientSize(handleOf(button_)).cx, 2 * buttonBefore.cx, 1);
  EXPECT_EQ(window_->bounds().width, bounds.width);
  EXPECT_EQ(window_->bounds().height, bounds.height);
}

TEST_F(NativeWindow, ModifierKeysAreNotKeystrokes) {
  first_.onKeyUp = [this](int key) { note(std::to_string(key)); };
  for (const int key : {VK_SHIFT, VK_CONTROL, VK_CAPITAL, VK_NUMLOCK, VK_NUMLOCK, VK_CAPITAL})
    press(key);
  press('7', '7');
  EXPECT_EQ(takeLog(), Log{std::to_string('7')});
}

TEST_F(NativeWindow, AltLetterIsAnAccessKeyEvenAfterAltIsReleased) {
  constexpr LPARAM kWithAlt = 1 << 29;
  button_.onClick = [this] { note("click"); };
  PostMessageW(handleOf(first_), WM_SYSCHAR, 'g', kWithAlt);
  kind_->settle();
  EXPECT_EQ(takeLog(), Log{"click"});
}

TEST_F(NativeWindow, DecimalKeyOfTheKeypadTypesAPoint) {
  PostMessageW(handleOf(first_), WM_KEYDOWN, VK_DECIMAL, 1);
  PostMessageW(handleOf(first_), WM_KEYUP, VK_DECIMAL, 1);
  kind_->settle();
  EXPECT_EQ(first_.text(), ".");
}

TEST_F(NativeWindow, SurrogatePairIsTypedAsOneCharacter) {
  first_.onChange = [this](controls::ChangedBy) { note("change"); };
  send(first_, WM_CHAR, 0xD83D);
  send(first_, WM_CHAR, 0xDE00);
  EXPECT_EQ(shown(first_), "\xF0\x9F\x98\x80 2+0");
  EXPECT_EQ(takeLog(), Log{"change"});
}

TEST_F(NativeWindow, ComposedTextIsTyped) {
  for (controls::TextBox* box : {&first_, &tape_}) {
    box->setFocus();
    box->onKeyPress = [this](controls::KeyAscii& character) { note(std::to_string(character)); };
    send(*box, WM_IME_CHAR, 0x6F22, 1);
    kind_->settle();
    EXPECT_EQ(box->text(), "\xE6\xBC\xA2");
    EXPECT_EQ(takeLog(), Log{std::to_string(0x6F22)});
  }
}

TEST_F(NativeWindow, FastClicksAllCount) {
  toggle_.onClick = [this] { note("toggle"); };
  button_.onClick = [this] { note("button"); };
  for (controls::Control* control : std::initializer_list<controls::Control*>{&button_, &toggle_}) {
    for (const UINT down : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
      send(*control, down, MK_LBUTTON, MAKELPARAM(10, 10));
      send(*control, WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
    }
  }
  EXPECT_EQ(takeLog(),
            (Log{"button", "button", "button", "button", "toggle", "toggle", "toggle", "toggle"}));
}

TEST_F(NativeWindow, SecondPressOfADoubleClickTakesTheFocusToo) {
  for (controls::TextBox* box : {&first_, &tape_}) {
    for (const UINT press : {WM_LBUTTONDBLCLK, WM_RBUTTONDBLCLK}) {
      focus(button_);
      send(*box, press, 0, MAKELPARAM(5, 5));
      send(*box, WM_CANCELMODE, 0, 0);
      EXPECT_EQ(window_->focusedControl(), box) << box->name() << ", message " << press;
    }
  }
}

TEST_F(NativeWindow, SecondClickOfADoubleClickChoosesAnOption) {
  controls::OptionButton& left = window_->optionButton("left");
  controls::OptionButton& right = window_->optionButton("right");
  right.setValue(true);
  send(left, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
  send(left, WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
  EXPECT_TRUE(left.value());
  EXPECT_FALSE(right.value());
}

TEST_F(NativeWindow, OnlyAConfirmedSessionEndIsReported) {
  kind_->desktop().onEndSession = [this] { note("end"); };
  EXPECT_TRUE(SendMessageW(handleOf(*window_), WM_QUERYENDSESSION, 0, 0));
  SendMessageW(handleOf(*window_), WM_ENDSESSION, FALSE, 0);
  EXPECT_EQ(takeLog(), Log{});
  SendMessageW(handleOf(*window_), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(takeLog(), Log{"end"});
}

TEST_F(NativeWindow, TextSetByAScreenReaderIsAnEdit) {
  for (controls::TextBox* box : {&first_, &tape_}) {
    box->setText("old");
    box->onChange = [this](controls::ChangedBy by) {
      note(by == controls::ChangedBy::User ? "user" : "program");
    };
    send(*box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"new"));
    EXPECT_EQ(box->text(), "new");
    send(*box, EM_SETSEL, 0, 1);
    send(*box, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"f"));
    EXPECT_EQ(box->text(), "few");
    send(*box, WM_UNDO);
    EXPECT_EQ(box->text(), "new");
    EXPECT_EQ(takeLog(), (Log{"user", "user", "user"}));
  }
}

TEST_F(NativeWindow, ClipboardKeysWorkInEveryBox) {
  for (controls::TextBox* box : {&first_, &tape_}) {
    box->setText("12345");
    box->setFocus();
    box->select(1, 3);
    send(*box, WM_COPY);
    EXPECT_EQ(kind_->desktop().clipboardText().text, "234");
    send(*box, WM_CUT);
    EXPECT_EQ(box->text(), "15");
    send(*box, WM_PASTE);
    EXPECT_EQ(box->text(), "12345");
  }
}

class NativeTape : public NativeWindow {
 protected:
  void fill(int lines) {
    for (int line = 0; line < lines; ++line) tape_.append(std::to_string(line) + "\r\n");
  }
  int firstLine() { return static_cast<int>(send(tape_, EM_GETFIRSTVISIBLELINE)); }
  bool isInView(int place) {
    const LRESULT point = send(tape_, EM_POSFROMCHAR, static_cast<WPARAM>(place));
    const int y = static_cast<short>(HIWORD(point));
    return y >= 0 && y < clientSize(handleOf(tape_)).cy;
  }
};

TEST_F(NativeTape, LastLineIsInViewAfterAppending) {
  fill(200);
  EXPECT_TRUE(isInView(tape_.length()));
  EXPECT_FALSE(isInView(0));
}

TEST_F(NativeTape, ClickPlacesTheCaretAtTheTextUnderTheMouse) {
  fill(200);
  tape_.onGotFocus = [this] { tape_.moveCaretToEnd(); };
  send(tape_, WM_VSCROLL, SB_TOP);
  ASSERT_EQ(firstLine(), 0);
  const LRESULT place = send(tape_, EM_POSFROMCHAR, static_cast<WPARAM>(3));
  send(tape_, WM_LBUTTONDOWN, MK_LBUTTON, place);
  send(tape_, WM_LBUTTONUP, 0, place);
  EXPECT_TRUE(tape_.focused());
  EXPECT_EQ(tape_.selStart(), 3);
  EXPECT_EQ(firstLine(), 0);
}

TEST_F(NativeTape, RightAlignedLinesShareAnEdge) {
  tape_.setText("1\r\n100");
  const LRESULT first = send(tape_, EM_POSFROMCHAR, 1);
  const LRESULT second = send(tape_, EM_POSFROMCHAR, 6);
  EXPECT_EQ(LOWORD(first), LOWORD(second));
  tape_.setAlignment(controls::Alignment::Left);
  EXPECT_EQ(LOWORD(send(tape_, EM_POSFROMCHAR, 0)), LOWORD(send(tape_, EM_POSFROMCHAR, 3)));
}

TEST_F(NativeTape, AnswersScreenReaders) {
  tape_.setText("Top\r\n12.00 + \r\n");
  EXPECT_EQ(send(tape_, WM_GETTEXTLENGTH), 15);
  EXPECT_EQ(send(tape_, EM_GETLINECOUNT), 3);
  EXPECT_EQ(send(tape_, EM_LINEINDEX, 1), 5);
  EXPECT_EQ(send(tape_, EM_LINELENGTH, 5), 8);
  EXPECT_EQ(send(tape_, EM_LINEFROMCHAR, 7), 1);
  wchar_t text[32] = {};
  EXPECT_EQ(send(tape_, WM_GETTEXT, 5, reinterpret_cast<LPARAM>(text)), 4);
  EXPECT_STREQ(text, L"Top\r");
}

TEST(NativeServices, SettingsHoldLongTexts) {
  win32::RegistrySettings settings("Software\\Tallyrex Contract Tests\\Long");
  const std::string text(70'000, 'x');
  settings.write("Settings", "long", text);
  EXPECT_EQ(settings.read("Settings", "long"), text);
  EXPECT_EQ(settings.read("Settings", "absent"), std::nullopt);
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Tallyrex Contract Tests");
}

TEST_F(NativeWindow, LockedClipboardIsReportedSoon) {
  using Found = controls::Clipping::Found;
  ASSERT_TRUE(win32::writeClipboard("kept \xE2\x88\x9A"));
  kind_->whileClipboardIsLocked([] {
    const ULONGLONG start = GetTickCount64();
    EXPECT_FALSE(win32::writeClipboard("other"));
    EXPECT_EQ(win32::readClipboard().found, Found::Locked);
    EXPECT_LT(GetTickCount64() - start, 2000u);
  });
  EXPECT_EQ(win32::readClipboard(), (controls::Clipping{Found::Text, "kept \xE2\x88\x9A"}));
}

TEST_F(NativeWindow, ReleasesItsHandles) {
  const auto makeAndDestroy = [this](int times) {
    for (int i = 0; i < times; ++i) {
      const auto other = kind_->desktop().createWindow(testLayout());
      show(*other);
    }
  };
  makeAndDestroy(2);
  const DWORD gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  const DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  makeAndDestroy(10);
  EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), gdi);
  EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), user);
}

}  // namespace

}  // namespace contract
