#include <array>
#include <map>

#include "desktop/program/program_test.h"

namespace program {
namespace {

constexpr int kTwipsPerInch = 1440;

using Settings = std::map<std::wstring, std::wstring>;

class RestartTest : public ProgramTest {
 protected:
  static HWND window() { return program().mainWindow(); }

  static int twips(LONG pixels) {
    return MulDiv(static_cast<int>(pixels), kTwipsPerInch,
                  static_cast<int>(GetDpiForWindow(window())));
  }

  /// The width is set last.
  static void awaitNarrowerThan(const RECT& before) {
    await("the micro window", [&before] {
      const RECT now = placeOf(window());
      return now.right - now.left < before.right - before.left;
    });
  }

  /// The window is resized in several steps.
  static void expectPlace(const RECT& place) {
    const auto now = [] {
      const RECT seen = placeOf(window());
      return std::array{seen.left, seen.top, seen.right, seen.bottom};
    };
    const std::array expected = {place.left, place.top, place.right, place.bottom};
    eventually([&] { return now() == expected; });
    EXPECT_EQ(now(), expected);
  }

  static void moveAndSize() {
    constexpr POINT kMove = {150, 90};
    constexpr POINT kGrow = {60, 45};
    const RECT before = placeOf(window());
    const POINT title = titleOf(before);
    dragWindow(window(), title, {title.x + kMove.x, title.y + kMove.y});
    expectPlace({before.left + kMove.x, before.top + kMove.y, before.right + kMove.x,
                 before.bottom + kMove.y});
    const RECT moved = placeOf(window());
    const POINT corner = {moved.right - 2, moved.bottom - 2};
    dragWindow(window(), corner, {corner.x + kGrow.x, corner.y + kGrow.y});
    expectPlace({before.left + kMove.x, before.top + kMove.y, before.right + kMove.x + kGrow.x,
                 before.bottom + kMove.y + kGrow.y});
  }

  static void typePlaces(char digit) {
    pressWith(VK_SHIFT, VK_TAB);
    await("the focus in the decimals box",
          [] { return program().focus() == program().decimals(); });
    type({&digit, 1});
    await("the focus in the entry box", [] { return program().focus() == program().entry(); });
  }

  void setEverythingOtherwise() {
    chooseFromMenu('W', "OA");
    typePlaces('4');
    pressWith(VK_CONTROL, 'D');
    pressWith(VK_CONTROL, 'F');
    pressWith(VK_CONTROL, 'O');
    chooseFromMenu('W', "P");
    const RECT place = placeOf(window());
    chooseFromMenu('W', "A");
    await("always on top", isOnTop);
    // In between, the window has no size for a moment.
    expectPlace(place);
    moveAndSize();
  }

  void expectEverythingOtherwise(const RECT& place) {
    EXPECT_EQ(textOf(window()), L"Add Mode, Tallyrex");
    EXPECT_EQ(TestedProgram::key(window(), L"Square root"), nullptr);
    EXPECT_EQ(textOf(program().decimals()), L"4");
    EXPECT_TRUE(isPressed(L"Stationary decimal"));
    EXPECT_TRUE(isPressed(L"Floating decimal"));
    EXPECT_TRUE(isPressed(L"Tape off"));
    EXPECT_EQ(textOf(program().tape()), L"Top                    Top");
    EXPECT_TRUE(isOnTop());
    expectPlace(place);
  }

  /// The settings expected of the window as it is, and after setEverythingOtherwise.
  static Settings expectedSettings() {
    constexpr int kFrameWidth = 120;
    constexpr int kFrameHeight = 690;
    const RECT place = placeOf(window());
    RECT client = {};
    GetClientRect(window(), &client);
    return {{L"frmCalcAtUnloadLeft", std::to_wstring(twips(place.left))},
            {L"frmCalcAtUnloadTop", std::to_wstring(twips(place.top))},
            {L"frmCalcAtUnloadWidth", std::to_wstring(twips(client.right) + kFrameWidth)},
            {L"frmCalcAtUnloadHeight", std::to_wstring(twips(client.bottom) + kFrameHeight)},
            {L"frmCalcchkShiftDec", L"1"},
            {L"frmCalcchkFloatingDec", L"1"},
            {L"frmCalcchkTapeOff", L"1"},
            {L"frmCalcmnuWinAlwaysOnTop", L"True"},
            {L"frmCalcmnuWinMicroWindow", L"False"},
            {L"frmCalcmnuWinPadTape", L"True"},
            {L"frmCalcmintMode", L"0"},
            {L"frmCalctxtDec", L"4"}};
  }

  void expectKept(const Settings& expected) {
    Settings kept;
    for (const auto& [key, text] : expected) kept[key] = settings().get(key);
    EXPECT_EQ(kept, expected);
  }
};

TEST_F(RestartTest, RestoresEverySettingOnTheSecondAndThirdStart) {
  start();
  setEverythingOtherwise();
  const RECT place = placeOf(window());
  const Settings expected = expectedSettings();
  close();
  expectKept(expected);
  for (const char* run : {"the second run", "the third run"}) {
    SCOPED_TRACE(run);
    start();
    expectEverythingOtherwise(place);
    close();
    expectKept(expected);
  }
}

TEST_F(RestartTest, MicroWindowAndNormalWindowKeepTheirPlaces) {
  start();
  const RECT normal = placeOf(window());
  pressWith(VK_CONTROL, 'S');
  awaitNarrowerThan(normal);
  const RECT first = placeOf(window());
  const POINT title = titleOf(first);
  dragWindow(window(), title, {title.x + 200, title.y + 100});
  const RECT micro = {first.left + 200, first.top + 100, first.right + 200, first.bottom + 100};
  expectPlace(micro);
  close();
  EXPECT_EQ(settings().get(L"frmCalcmnuWinMicroWindow"), L"True");
  for (const char* run : {"the second run", "the third run"}) {
    SCOPED_TRACE(run);
    start();
    expectPlace(micro);
    pressWith(VK_CONTROL, 'S');
    expectPlace(normal);
    pressWith(VK_CONTROL, 'S');
    expectPlace(micro);
    close();
  }
}

}  // namespace
}  // namespace program
