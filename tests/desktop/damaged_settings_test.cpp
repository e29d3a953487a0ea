#include <array>
#include <cmath>
#include <cwchar>
#include <ostream>

#include "desktop/program/program_test.h"

namespace program {
namespace {

struct Damage {
  const char* name;
  std::wstring text;
};

void PrintTo(const Damage& damage, std::ostream* out) {
  *out << damage.name;
}

// What stands in the settings in the place of what the program has written.
class DamagedSettingsTest : public ProgramTest, public testing::WithParamInterface<Damage> {
 protected:
  /// The points are there so that a stationary decimal cannot shift the numbers.
  static void expectToAdd() {
    type("2.+3.=");
    const auto sum = [] { return std::wcstod(textOf(program().entry()).c_str(), nullptr); };
    eventually([&] { return sum() == 5; });
    EXPECT_EQ(sum(), 5);
  }
};

TEST_P(DamagedSettingsTest, EachInTurnLeavesAProgramThatAdds) {
  constexpr std::array kKeys = {
      L"frmCalcAtUnloadLeft",
      L"frmCalcAtUnloadTop",
      L"frmCalcAtUnloadHeight",
      L"frmCalcAtUnloadWidth",
      L"glngTextBackColor",
      L"frmCalcchkShiftDec",
      L"frmCalcchkFloatingDec",
      L"frmCalcchkTapeOff",
      L"frmCalcmnuWinAlwaysOnTop",
      L"frmCalcmnuWinMicroWindow",
      L"frmCalcmnuWinPadTape",
      L"frmCalcmintMode",
      L"frmCalctxtDec",
  };
  for (const wchar_t* key : kKeys) {
    SCOPED_TRACE(std::string(key, key + std::wcslen(key)));
    settings().clear();
    settings().set(key, GetParam().text);
    start();
    expectToAdd();
    EXPECT_EQ(program().dialog(), nullptr);
    close();
  }
}

// These are read when the user goes over to the micro window. It may then lie beside the screen,
// where the system takes the keys away from it; so the sum waits for the next start.
TEST_P(DamagedSettingsTest, EachOfTheMicroWindowLeavesAProgramThatAdds) {
  constexpr std::array kKeys = {L"frmCalcMicroLeft", L"frmCalcMicroTop", L"frmCalcMicroHeight",
                                L"frmCalcMicroWidth"};
  for (const wchar_t* key : kKeys) {
    SCOPED_TRACE(std::string(key, key + std::wcslen(key)));
    settings().clear();
    settings().set(key, GetParam().text);
    start();
    pressWith(VK_CONTROL, 'S');
    await("the micro window", [this] { return !settings().get(L"frmCalcWidth").empty(); });
    close();
    EXPECT_EQ(settings().get(L"frmCalcmnuWinMicroWindow"), L"True");
    start();
    expectToAdd();
    close();
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, DamagedSettingsTest,
                         testing::Values(Damage{"Empty", L""}, Damage{"Letters", L"rubbish"},
                                         Damage{"Huge", L"999999999999999999999999"},
                                         Damage{"Negative", L"-99999"},
                                         Damage{"Long", std::wstring(32'768, L'x')}),
                         [](const auto& damage) { return damage.param.name; });

}  // namespace
}  // namespace program
