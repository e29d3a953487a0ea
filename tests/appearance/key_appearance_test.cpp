#include <map>
#include <vector>

#include "appearance/appearance_test_base.h"
#include "driver/native_handles.h"
#include "win32/colors.h"
#include "win32/key_style.h"

// How the keys look: each kind has a color of its own, and every text is legible.
namespace appearance {
namespace {

using controls::KeyKind;

constexpr KeyKind kKinds[] = {KeyKind::Plain, KeyKind::Operator, KeyKind::Strong,
                              KeyKind::Clear, KeyKind::Memory,   KeyKind::Toggle};

/// Measurements of a key's picture.
struct Measured {
  COLORREF frame;
  COLORREF face;
  /// The color inside that differs most from the face.
  COLORREF ink;
};

Measured measure(HWND key) {
  const Picture picture(key);
  const int inset = picture.height() / 8 + 2;
  std::map<COLORREF, int> points;
  for (int y = inset; y < picture.height() - inset; ++y)
    for (int x = inset; x < picture.width() - inset; ++x) ++points[picture.at(x, y)];
  Measured measured = {picture.at(0, picture.height() / 2), 0, 0};
  int most = 0;
  for (const auto& [color, count] : points) {
    if (count > most) measured.face = color;
    most = std::max(most, count);
  }
  measured.ink = measured.face;
  for (const auto& [color, count] : points)
    if (contrast(color, measured.face) > contrast(measured.ink, measured.face))
      measured.ink = color;
  return measured;
}

class KeyAppearance : public AppearanceTest {
 protected:
  struct Key {
    std::string name;
    HWND handle;
  };

  HWND key(const std::string& name) { return control("frmCalc", name); }

  std::vector<Key> keysOf(const std::string& window) {
    std::vector<Key> keys;
    stage().inspect([&] {
      for (const auto& control : stage().findWindow(window)->controls()) {
        const controls::ControlKind kind = control->kind();
        const bool isKey =
            kind == controls::ControlKind::Button || kind == controls::ControlKind::ToggleButton;
        if (isKey && control->visible() && control->enabled())
          keys.push_back({control->name(), driver::handleOf(*control)});
      }
    });
    return keys;
  }

  void expectSeen(const std::string& window) {
    const COLORREF around = GetSysColor(COLOR_BTNFACE);
    for (const Key& each : keysOf(window)) {
      const Measured measured = measure(each.handle);
      EXPECT_GE(contrast(measured.ink, measured.face), 4.5) << each.name;
      EXPECT_GE(contrast(measured.frame, around), 3.0) << each.name;
    }
  }
};

TEST_F(KeyAppearance, TextAndFrameOfEveryKeyHaveEnoughContrast) {
  tell("press Ctrl+T");
  expectSeen("frmCalc");
  tell("click chkTapeOff");
  tell("type \"5\"");
  tell("click cmdMemPlus");
  expectSeen("frmCalc");
  tell("menu mnuWinFinCalcLoan");
  expectSeen("frmAnnuity");
  tell("window frmCalc");
  tell("menu mnuHelpAbout");
  expectSeen("frmAbout");
  tell("close frmAbout");
}

TEST_F(KeyAppearance, KindsDifferInTheirTint) {
  const char* ofEachKind[] = {"cmdNumber(7)",    "cmdMinus",    "cmdPlus",
                              "cmdClearCurrent", "cmdMemStore", "chkFloatingDec"};
  std::map<COLORREF, std::string> faces;
  for (const char* name : ofEachKind) {
    const auto [before, isNew] = faces.try_emplace(measure(key(name)).face, name);
    EXPECT_TRUE(isNew) << name << " looks as " << before->second;
  }
  EXPECT_EQ(measure(key("cmdPlus")).face, measure(key("cmdEquals")).face);
}

TEST_F(KeyAppearance, StrongKeysStandOut) {
  const COLORREF around = GetSysColor(COLOR_BTNFACE);
  for (const Key& each : keysOf("frmCalc")) {
    const bool strong = each.name == "cmdPlus" || each.name == "cmdEquals";
    EXPECT_EQ(contrast(measure(each.handle).face, around) >= 4.5, strong) << each.name;
  }
}

TEST_F(KeyAppearance, PressedKeyAndPressedToggleLookPressed) {
  const COLORREF atRest = measure(key("cmdNumber(5)")).face;
  SendMessageW(key("cmdNumber(5)"), BM_SETSTATE, TRUE, 0);
  EXPECT_NE(measure(key("cmdNumber(5)")).face, atRest);
  SendMessageW(key("cmdNumber(5)"), BM_SETSTATE, FALSE, 0);
  EXPECT_EQ(measure(key("cmdNumber(5)")).face, atRest);
  const COLORREF up = measure(key("chkTapeOff")).face;
  tell("click chkTapeOff");
  EXPECT_GE(contrast(measure(key("chkTapeOff")).face, up), 3.0);
}

TEST_F(KeyAppearance, MemoryInUseMakesItsKeyGreenAndIsPartOfItsName) {
  tell("type \"5\"");
  tell("click cmdMemPlus");
  EXPECT_EQ(measure(key("cmdMemPlus")).face, RGB(0, 255, 0));
  EXPECT_EQ(support::textOf(key("cmdMemPlus")), L"&Memory plus, memory in use");
  tell("click cmdMemClear");
  EXPECT_EQ(support::textOf(key("cmdMemPlus")), L"&Memory plus");
}

TEST_F(KeyAppearance, FocusedKeyHasAFrameOfTwoPixels) {
  tell("focus cmdNumber(7)");
  const Picture picture(key("cmdNumber(7)"));
  const int middle = picture.height() / 2;
  const COLORREF frame =
      win32::legibleOn(GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_HIGHLIGHT), 3.0);
  for (const int x : {0, 1, picture.width() - 2, picture.width() - 1})
    EXPECT_EQ(picture.at(x, middle), frame) << x;
  EXPECT_EQ(picture.at(2, middle), GetSysColor(COLOR_BTNFACE));
}

TEST_F(KeyAppearance, TextOfTogglesIsAsLargeAsThatOfOtherKeys) {
  for (const char* toggle : {"chkFloatingDec", "chkShiftDec", "chkTapeOff"})
    EXPECT_EQ(fontOf(key(toggle)).lfHeight, fontOf(key("cmdClearAll")).lfHeight);
}

TEST_F(KeyAppearance, EveryStateOfEveryKindIsLegible) {
  const COLORREF around = GetSysColor(COLOR_BTNFACE);
  const controls::Color green = controls::Color::rgb(0x00FF00);
  for (const KeyKind kind : kKinds) {
    for (int bits = 0; bits < 8; ++bits) {
      const win32::KeyState state = {
          .hot = (bits & 1) != 0, .pressed = (bits & 2) != 0, .down = (bits & 4) != 0};
      for (const controls::Color given : {controls::Color::buttonFace(), green}) {
        const win32::KeyColors colors = win32::keyColors(kind, given, state);
        EXPECT_GE(contrast(colors.text, colors.face), 4.5) << static_cast<int>(kind) << bits;
        EXPECT_GE(contrast(colors.frame, around), 3.0) << static_cast<int>(kind) << bits;
      }
    }
    const auto face = [kind](const win32::KeyState& state) {
      return win32::keyColors(kind, controls::Color::buttonFace(), state).face;
    };
    EXPECT_NE(face({}), face({.hot = true}));
    EXPECT_NE(face({}), face({.pressed = true}));
    EXPECT_NE(face({}), face({.disabled = true}));
  }
}

TEST_F(KeyAppearance, KeysAreAlignedWithTheDecimalsBox) {
  EXPECT_EQ(placeOf(key("cmdEquals")).right, placeOf(key("txtDec")).right);
  EXPECT_EQ(placeOf(key("cmdArrow")).right, placeOf(key("txtDec")).right);
  EXPECT_EQ(placeOf(key("cmdSquareRoot")).bottom, placeOf(key("cmdEquals")).bottom);
}

}  // namespace
}  // namespace appearance
