#include "appearance/appearance_test_base.h"

namespace appearance {
namespace {

constexpr wchar_t kAccessibility[] = L"Software\\Microsoft\\Accessibility";
constexpr wchar_t kTextSize[] = L"TextScaleFactor";

/// The screen's device context with the font of a control.
class Ruler {
 public:
  explicit Ruler(HWND control) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    before_ = SelectObject(context_, font);
  }
  ~Ruler() {
    SelectObject(context_, before_);
    ReleaseDC(nullptr, context_);
  }
  Ruler(const Ruler&) = delete;
  Ruler& operator=(const Ruler&) = delete;

  HDC context() const { return context_; }

 private:
  HDC context_ = GetDC(nullptr);
  HGDIOBJ before_ = nullptr;
};

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
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)), sizeof font, &font);
  return font;
}

TEXTMETRICW AppearanceTest::metricsOf(HWND control) {
  TEXTMETRICW metrics = {};
  GetTextMetricsW(Ruler(control).context(), &metrics);
  return metrics;
}

SIZE AppearanceTest::sizeOf(HWND control, const std::wstring& text, int width) {
  RECT needed = {0, 0, width, 0};
  DrawTextW(Ruler(control).context(), text.c_str(), -1, &needed,
            static_cast<UINT>(DT_CALCRECT | (width > 0 ? DT_WORDBREAK : 0)));
  return {needed.right, needed.bottom};
}

}  // namespace appearance
