#include <array>
#include <ostream>

#include "desktop/desktop_test.h"

namespace desktop {
namespace {

struct Damage {
  const char* name;
  std::string text;
};

void PrintTo(const Damage& damage, std::ostream* out) {
  *out << damage.name;
}

// Values that replace those the program has written.
class DamagedSettingsTest : public DesktopTest, public testing::WithParamInterface<Damage> {
 protected:
  void SetUp() override { tell("events"); }

  void startWith(const char* key) {
    stage().clearSettings();
    tell("store set Settings " + std::string(key) + " " + driver::Json(GetParam().text).dump());
    tell("start");
  }

  /// With points, so that stationary decimal does not shift the numbers.
  void expectToAdd() {
    tell("type \"2.+3.\"");
    tell("press Enter");
    EXPECT_EQ(std::stod(entry()), 5);
    EXPECT_EQ(tell("events")["boxes"], driver::Json::array());
    tell("close frmCalc");
  }
};

TEST_P(DamagedSettingsTest, ProgramAddsDespiteADamagedSetting) {
  constexpr std::array kKeys = {
      "frmCalcAtUnloadLeft",
      "frmCalcAtUnloadTop",
      "frmCalcAtUnloadHeight",
      "frmCalcAtUnloadWidth",
      "glngTextBackColor",
      "frmCalcchkShiftDec",
      "frmCalcchkFloatingDec",
      "frmCalcchkTapeOff",
      "frmCalcmnuWinAlwaysOnTop",
      "frmCalcmnuWinMicroWindow",
      "frmCalcmnuWinPadTape",
      "frmCalcmintMode",
      "frmCalctxtDec",
  };
  for (const char* key : kKeys) {
    SCOPED_TRACE(key);
    startWith(key);
    expectToAdd();
  }
}

// These are read when the user switches to the micro window. It may then be off the screen, where
// it gets no keys; so the addition waits for the next start.
TEST_P(DamagedSettingsTest, ProgramAddsDespiteADamagedMicroWindowSetting) {
  constexpr std::array kKeys = {"frmCalcMicroLeft", "frmCalcMicroTop", "frmCalcMicroHeight",
                                "frmCalcMicroWidth"};
  for (const char* key : kKeys) {
    SCOPED_TRACE(key);
    startWith(key);
    tell("press Ctrl+S");
    tell("close frmCalc");
    EXPECT_EQ(tell("store get Settings frmCalcmnuWinMicroWindow")["value"], "True");
    tell("start");
    expectToAdd();
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, DamagedSettingsTest,
                         testing::Values(Damage{"Empty", ""}, Damage{"Letters", "rubbish"},
                                         Damage{"Huge", "999999999999999999999999"},
                                         Damage{"Negative", "-99999"},
                                         Damage{"Long", std::string(32'768, 'x')}),
                         [](const auto& damage) { return damage.param.name; });

}  // namespace
}  // namespace desktop
