#include <vector>

#include "appearance/tape_test.h"
#include "support/kept_state.h"
#include "win32/tape_ink.h"

// How the lines of the tape look, and how large their letters are.
namespace appearance {
namespace {

constexpr int kColumns = 26;
constexpr wchar_t kLines[] =
    L"Top\r\n1,250.00 + \r\n47.50 - \r\n1,202.50 * \r\n\r\n5.00 - \r\n-5.00 * \r\n";
enum Line { kTop, kAdded, kTakenOff, kTotal, kSeparator, kOther, kNegativeTotal };

bool isRed(COLORREF color) {
  return GetRValue(color) > GetGValue(color) + 60 && GetRValue(color) > GetBValue(color) + 60;
}

COLORREF background() {
  return GetSysColor(COLOR_WINDOW);
}

class TapeAppearance : public TapeAppearanceTest {
 protected:
  /// How many more graphics objects the program can create. Wine does not count those that
  /// exist.
  std::size_t roomForObjects() {
    std::vector<HBRUSH> objects;
    stage().inspect([&] {
      while (const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3))) objects.push_back(brush);
      for (const HBRUSH brush : objects) DeleteObject(brush);
    });
    return objects.size();
  }

  /// The color of the letters is the one that differs most from the background.
  COLORREF inkOf(const Picture& picture, int line) {
    const RECT area = areaOf(line);
    COLORREF ink = background();
    for (int y = area.top; y < area.bottom; ++y)
      for (int x = 0; x < picture.width(); ++x)
        if (contrast(picture.at(x, y), background()) > contrast(ink, background()))
          ink = picture.at(x, y);
    return ink;
  }
  int inked(const Picture& picture, int line) {
    return picture.count(areaOf(line), [](COLORREF color) { return color != background(); });
  }
  /// The longest run of pixels of one color in a line.
  int longestRow(const Picture& picture, int line) {
    const RECT area = areaOf(line);
    int longest = 0;
    for (int y = area.top; y < area.bottom; ++y) {
      int run = 0;
      for (int x = 0; x < picture.width(); ++x) {
        run = picture.at(x, y) != background() ? run + 1 : 0;
        longest = std::max(longest, run);
      }
    }
    return longest;
  }
};

TEST_F(TapeAppearance, PaddedLineFillsTheTapeFromTheDesignedSizeToThreeTimesThat) {
  const int designed = cell();
  const int least = designed * kColumns;
  int before = 0;
  for (int width = 4500; width <= 20000; width += 500) {
    resizeWindow(width);
    const int line = cell() * kColumns;
    const int room = static_cast<int>(clientSize(paper()).cx);
    EXPECT_GE(line, before) << width;
    before = line;
    if (line > least && cell() < 3 * designed) {
      EXPECT_LE(line, room) << width;
      EXPECT_GT(line + kColumns, room - 4) << width << ": the next size would not fit either";
    }
  }
  EXPECT_EQ(cell(), 3 * designed);
}

TEST_F(TapeAppearance, EveryCharacterIsFoundAtItsPositionAtEverySize) {
  for (const int width : {6690, 8000, 11000, 16000}) {
    SCOPED_TRACE(width);
    resizeWindow(width);
    write(kLines);
    for (int line = kTop; line <= kNegativeTotal; ++line) {
      const auto length = send(EM_LINELENGTH, static_cast<WPARAM>(start(line)));
      for (int place = start(line); place <= start(line) + length; ++place)
        EXPECT_EQ(placeAt({pointOf(place).x + 1, pointOf(place).y + 1}), place);
    }
  }
}

TEST_F(TapeAppearance, DigitsOfTotalsLineUpWithThoseOfAmounts) {
  for (const int width : {6690, 9000, 16000}) {
    resizeWindow(width);
    write(L"12.00 + \r\n13.00 + \r\n25.00 * \r\n");
    for (int character = 0; character < 8; ++character)
      EXPECT_EQ(pointOf(start(2) + character).x, pointOf(start(0) + character).x) << width;
  }
}

TEST_F(TapeAppearance, SubtractedAmountsAreRed) {
  write(kLines);
  const Picture picture(paper());
  for (const int line : {kTakenOff, kOther, kNegativeTotal})
    EXPECT_GT(picture.count(areaOf(line), isRed), 5) << line;
  for (const int line : {kTop, kAdded, kTotal})
    EXPECT_EQ(picture.count(areaOf(line), isRed), 0) << line;
}

TEST_F(TapeAppearance, TotalsAreBoldBelowARule) {
  resizeWindow(12000, 7000);
  write(L"Top\r\n1,250.00 + \r\n1,250.00 * \r\n");
  const Picture picture(paper());
  EXPECT_GT(inked(picture, 2), inked(picture, 1) * 5 / 4);
  const int figures = 8 * cell();
  EXPECT_GE(longestRow(picture, 2), figures);
  EXPECT_LE(longestRow(picture, 2), figures + 1);
  EXPECT_LT(longestRow(picture, 1), cell());
}

TEST_F(TapeAppearance, NotesAreFainterButLegible) {
  resizeWindow(12000, 7000);
  write(kLines);
  const Picture picture(paper());
  EXPECT_LT(contrast(inkOf(picture, kTop), background()),
            contrast(inkOf(picture, kAdded), background()));
  for (const int line : {kTop, kAdded, kTakenOff, kTotal, kNegativeTotal})
    EXPECT_GE(contrast(inkOf(picture, line), background()), 4.5) << line;
}

TEST_F(TapeAppearance, TextIsLegibleOnEveryBackground) {
  for (int part = 0; part < 6 * 6 * 6; ++part) {
    const COLORREF paper = RGB(part % 6 * 51, part / 6 % 6 * 51, part / 36 * 51);
    const COLORREF text = win32::textColorOn(controls::Color::rgb(paper));
    const win32::TapeInk ink = win32::TapeInk::on(paper, text);
    for (const COLORREF color : {ink.plain, ink.takenOff, ink.note})
      EXPECT_GE(contrast(color, paper), 4.5) << std::hex << color << " on " << paper;
  }
}

TEST_F(TapeAppearance, HighContrastUsesOnlySystemColors) {
  resizeWindow(12000, 7000);
  const support::OtherSystemColor face(COLOR_BTNFACE, RGB(0, 0, 0));
  write(kLines);
  const Picture picture(paper());
  EXPECT_EQ(inkOf(picture, kTop), inkOf(picture, kAdded));
  EXPECT_EQ(inkOf(picture, kTakenOff), inkOf(picture, kAdded));
  EXPECT_LT(longestRow(picture, kTotal), 2 * cell());
}

TEST_F(TapeAppearance, ThousandSizesLeakNoGraphicsObjects) {
  const auto resizeTimes = [this](int times) {
    for (int i = 0; i < times; ++i)
      SetWindowPos(paper(), nullptr, 0, 0, 150 + i % 40 * 12, 180, SWP_NOMOVE | SWP_NOZORDER);
  };
  resizeTimes(40);
  const std::size_t before = roomForObjects();
  resizeTimes(1000);
  EXPECT_EQ(roomForObjects(), before);
  const HBRUSH leaked = CreateSolidBrush(RGB(1, 2, 3));
  EXPECT_EQ(roomForObjects(), before - 1) << "does not count";
  DeleteObject(leaked);
}

TEST_F(TapeAppearance, LastLineStaysInViewWhenTheWindowChanges) {
  for (int line = 0; line < 40; ++line) tell("type \"1+\"");
  for (const int width : {9000, 16000, 6690}) {
    resizeWindow(width, width / 3);
    const LONG bottom = pointOf(static_cast<int>(send(WM_GETTEXTLENGTH))).y;
    EXPECT_GE(bottom, 0) << width;
    EXPECT_LT(bottom, clientSize(paper()).cy) << width;
  }
}

TEST_F(TapeAppearance, VeryLongLineIsDrawnToItsEnd) {
  constexpr int kLength = 20000;
  tell("focus txtTape");
  write(std::wstring(kLength, L'8') + L"\r\n");
  send(EM_SETSEL, kLength, kLength);
  const POINT end = pointOf(kLength);
  EXPECT_EQ(end.x - pointOf(kLength - 10).x, 10 * cell());
  EXPECT_EQ(placeAt({pointOf(kLength - 3).x + 1, end.y}), kLength - 3);
  const Picture picture(paper());
  const RECT last = {static_cast<LONG>(end.x) - 5 * cell(), areaOf(0).top, end.x, areaOf(0).bottom};
  const COLORREF paper = picture.at(0, picture.height() - 1);
  EXPECT_GT(picture.count(last, [paper](COLORREF ink) { return contrast(ink, paper) >= 4; }), 5);
}

}  // namespace
}  // namespace appearance
