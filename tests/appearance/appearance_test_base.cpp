#include "appearance/appearance_test_base.h"

#include "win32/ruler.h"

namespace appearance {
namespace {

constexpr wchar_t kAccessibility[] = L"Software\\Microsoft\\Accessibility";
constexpr wchar_t kTextSize[] = L"TextScaleFactor";

HFONT handleOfFont(HWND control) {
  return reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
}

}  // namespace

// The program runs until its last window is closed.
void AppearanceTest::TearDown() {
  if (tell("get frmAnnuity Loaded")["value"] == true) tell("close frmAnnuity");
  DesktopTest::TearDown();
}

void AppearanceTest::openAnsweredLoan() {
  tell("menu mnuWinFinCalcLoan");
  for (const char* keys : {"\"30\\r\"", "\"7.5\\r\""}) tell(std::string("type ") + keys);
  tell("focus frmAnnuity.txtPV");
  tell("type \"100000\"");
  tell("focus frmAnnuity.txtFV");
  tell("type \"0\"");
  tell("click frmAnnuity.cmdCalculate");
}

void AppearanceTest::setResolution(HWND window, int dpi) {
  setResolution(window, dpi, placeOf(window));
}

void AppearanceTest::setResolution(HWND window, int dpi, const RECT& suggested) {
  RECT place = suggested;
  SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
}

void AppearanceTest::chooseTextSize(int percent) {
  RegSetKeyValueW(HKEY_CURRENT_USER, kAccessibility, kTextSize, REG_DWORD, &percent,
                  sizeof percent);
}

void AppearanceTest::forgetTextSize() {
  RegDeleteKeyValueW(HKEY_CURRENT_USER, kAccessibility, kTextSize);
}

SIZE AppearanceTest::clientSize(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  return {client.right, client.bottom};
}

LOGFONTW AppearanceTest::fontOf(HWND control) {
  LOGFONTW font = {};
  GetObjectW(handleOfFont(control), sizeof font, &font);
  return font;
}

TEXTMETRICW AppearanceTest::metricsOf(HWND control) {
  return win32::Ruler(handleOfFont(control)).metrics();
}

SIZE AppearanceTest::sizeOf(HWND control, const std::wstring& text, int width) {
  RECT needed = {0, 0, width, 0};
  DrawTextW(win32::Ruler(handleOfFont(control)).context(), text.c_str(), -1, &needed,
            static_cast<UINT>(DT_CALCRECT | (width > 0 ? DT_WORDBREAK : 0)));
  return {needed.right, needed.bottom};
}

}  // namespace appearance
