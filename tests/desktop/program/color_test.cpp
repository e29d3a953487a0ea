#include <algorithm>

#include "desktop/program/program_test.h"
#include "support/picture.h"

namespace program {
namespace {

constexpr wchar_t kMessage[] =
    L"On the next screen choose the color you would like as the background color for the text "
    L"boxes. Choose Cancel on the next screen to quit.";
constexpr COLORREF kPaleCyan = RGB(128, 255, 255);
constexpr COLORREF kChosen = RGB(255, 240, 160);
// The boxes of the system's color picker for red, green and blue.
constexpr int kRed = 706;
constexpr int kGreen = 707;
constexpr int kBlue = 708;

class ColorTest : public ProgramTest {
 protected:
  /// Double-clicks the label of the decimals box; returns the picker.
  HWND openPicker() {
    HWND label = nullptr;
    for (HWND child : shownChildren(program().mainWindow()))
      if (textOf(child) == L"&Decimals:") label = child;
    doubleClick(middleOf(label));
    expectMessage(kMessage);
    answer(VK_RETURN);
    return awaitWindow("the color picker", [] {
      const HWND dialog = program().dialog();
      return dialog && GetDlgItem(dialog, kBlue) ? dialog : nullptr;
    });
  }

  static void end(HWND picker, int button) {
    PostMessageW(GetDlgItem(picker, button), BM_CLICK, 0, 0);
    await("the end of the picker", [picker] { return !IsWindow(picker); });
  }

  void choose(COLORREF color) {
    const HWND picker = openPicker();
    const auto put = [picker](int box, int part) {
      SendMessageW(GetDlgItem(picker, box), WM_SETTEXT, 0,
                   reinterpret_cast<LPARAM>(std::to_wstring(part).c_str()));
    };
    put(kRed, GetRValue(color));
    put(kGreen, GetGValue(color));
    put(kBlue, GetBValue(color));
    end(picker, IDOK);
  }

  /// Of the focused, empty entry box.
  static void expectEntryColor(COLORREF color) {
    constexpr int kInside = 6;
    const RECT place = placeOf(program().entry());
    const auto seen = [&] { return Picture(place).at(kInside, kInside); };
    eventually([&] { return seen() == color; });
    EXPECT_EQ(seen(), color);
  }

  /// Waits until the digits on the tape, or in the entry box, have the best contrast to the color
  /// of the box.
  static void expectLetters(HWND box, bool light) {
    constexpr int kFrame = 4;
    constexpr BYTE kWhite = 0xE0;
    constexpr BYTE kBlack = 0x20;
    RECT place = placeOf(box);
    InflateRect(&place, -kFrame, -kFrame);
    // Excludes the caret after the text, which always contrasts with the color.
    constexpr int kCaret = 8;
    place.right -= box == program().tape() ? (place.right - place.left) / 4 : kCaret;
    EXPECT_TRUE(eventually([&] {
      const Picture picture(place);
      return std::ranges::any_of(picture.points(), [light](COLORREF point) {
        const BYTE red = GetRValue(point);
        const BYTE green = GetGValue(point);
        return light ? std::min(red, green) > kWhite : std::max(red, green) < kBlack;
      });
    })) << "the figures of the "
        << (box == program().tape() ? "tape" : "entry");
  }

  /// Checks both boxes while they have the focus and that color.
  void expectLettersOn(COLORREF color, bool light) {
    settings().set(L"glngTextBackColor", std::to_wstring(color));
    settings().set(L"frmCalcmnuWinPadTape", L"True");
    start();
    expectEntryColor(color);
    type("8888");
    expectText(program().entry(), L"8,888");
    expectLetters(program().entry(), light);
    type("+");
    clickTape();
    expectLetters(program().tape(), light);
    close();
  }

  std::wstring stored() { return settings().get(L"glngTextBackColor"); }
};

TEST_F(ColorTest, ChosenColorIsAppliedAndStored) {
  start();
  expectEntryColor(kPaleCyan);
  choose(kChosen);
  expectEntryColor(kChosen);
  EXPECT_EQ(stored(), std::to_wstring(kChosen));
  close();
  start();
  expectEntryColor(kChosen);
  close();
  EXPECT_EQ(stored(), std::to_wstring(kChosen));
}

TEST_F(ColorTest, BlackIsIgnored) {
  start();
  choose(RGB(0, 0, 0));
  expectEntryColor(kPaleCyan);
  EXPECT_EQ(stored(), L"");
}

TEST_F(ColorTest, PickerShowsTheCurrentColor) {
  start();
  choose(kChosen);
  const HWND picker = openPicker();
  EXPECT_EQ(textOf(GetDlgItem(picker, kRed)), std::to_wstring(GetRValue(kChosen)));
  EXPECT_EQ(textOf(GetDlgItem(picker, kGreen)), std::to_wstring(GetGValue(kChosen)));
  EXPECT_EQ(textOf(GetDlgItem(picker, kBlue)), std::to_wstring(GetBValue(kChosen)));
  end(picker, IDOK);
  expectEntryColor(kChosen);
  EXPECT_EQ(stored(), std::to_wstring(kChosen));
}

TEST_F(ColorTest, CancelKeepsTheColor) {
  start();
  choose(kChosen);
  end(openPicker(), IDCANCEL);
  expectEntryColor(kChosen);
  EXPECT_EQ(stored(), std::to_wstring(kChosen));
}

TEST_F(ColorTest, TextIsLightOnADarkColor) {
  expectLettersOn(RGB(0, 0, 96), true);
}

// Yellow is bright although it has no blue.
TEST_F(ColorTest, TextIsDarkOnALightColor) {
  expectLettersOn(RGB(255, 255, 0), false);
}

}  // namespace
}  // namespace program
