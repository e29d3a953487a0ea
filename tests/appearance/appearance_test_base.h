#pragma once

#include <windows.h>

#include <string>

#include "desktop/desktop_test.h"
#include "support/picture.h"
#include "support/windows.h"

namespace appearance {

using support::contrast;
using support::Picture;
using support::placeOf;

/// The resolutions of 100, 125, 150, 200 and 300 percent.
inline constexpr int kResolutions[] = {96, 120, 144, 192, 288};

/// The program on a monitor whose resolution the test chooses.
class AppearanceTest : public desktop::DesktopTest {
 protected:
  void TearDown() override;

  /// Opens the loan calculator and calculates an answer, so that each of its controls is visible.
  void openAnsweredLoan();

  /// Tells the window that its monitor has another resolution, as the system does.
  static void setResolution(HWND window, int dpi);
  /// The same with the place that the system suggests for the window.
  static void setResolution(HWND window, int dpi, const RECT& suggested);

  /// Sets the text size of the user's accessibility settings, 100 to 225 percent.
  static void chooseTextSize(int percent);
  static void forgetTextSize();

  static SIZE clientSize(HWND window);
  static LOGFONTW fontOf(HWND control);
  static TEXTMETRICW metricsOf(HWND control);
  /// The size of a text in the control's font; wrapped at this width, if it is not 0.
  static SIZE sizeOf(HWND control, const std::wstring& text, int width = 0);
};

}  // namespace appearance
