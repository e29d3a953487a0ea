#include "shell/window_place.h"

#include "shell/frm_calc_layout.h"

namespace shell {

using controls::Rect;

namespace {

constexpr Rect kNormalGeometry = {0, 0, 6690, 3525};
constexpr Rect kMicroGeometry = {0, 0, kMicroWidth, kMicroHeight};

}  // namespace

WindowPlace::WindowPlace(controls::Window& window, Settings& settings)
    : window_(window),
      settings_(settings),
      mnuWinAlwaysOnTop_(window.menuItem("mnuWinAlwaysOnTop")),
      mnuWinMicroWindow_(window.menuItem("mnuWinMicroWindow")) {}

void WindowPlace::restore() {
  read("frmCalcAtUnload", frmCalcLayout().place);
  mnuWinAlwaysOnTop_.setChecked(settings_.truth("frmCalcmnuWinAlwaysOnTop"));
  mnuWinMicroWindow_.setChecked(settings_.truth("frmCalcmnuWinMicroWindow"));
}

void WindowPlace::save() {
  write("frmCalcAtUnload");
  settings_.writeTruth("frmCalcmnuWinAlwaysOnTop", mnuWinAlwaysOnTop_.checked());
  settings_.writeTruth("frmCalcmnuWinMicroWindow", mnuWinMicroWindow_.checked());
}

void WindowPlace::switchLayout() {
  if (window_.state() == controls::WindowState::Maximized)
    window_.setState(controls::WindowState::Normal);
  const bool micro = !mnuWinMicroWindow_.checked();
  mnuWinMicroWindow_.setChecked(micro);
  if (micro) {
    write("frmCalc");
    read("frmCalcMicro", kMicroGeometry);
  } else {
    write("frmCalcMicro");
    read("frmCalc", kNormalGeometry);
  }
}

void WindowPlace::write(const std::string& layout) {
  const Rect& bounds = window_.bounds();
  settings_.writeNumber(layout + "Left", bounds.left);
  settings_.writeNumber(layout + "Top", bounds.top);
  settings_.writeNumber(layout + "Height", bounds.height);
  settings_.writeNumber(layout + "Width", bounds.width);
}

void WindowPlace::read(const std::string& layout, const Rect& fallback) {
  window_.setLeft(settings_.twips(layout + "Left", fallback.left));
  window_.setTop(settings_.twips(layout + "Top", fallback.top));
  window_.setHeight(settings_.twips(layout + "Height", fallback.height));
  window_.setWidth(settings_.twips(layout + "Width", fallback.width));
}

void WindowPlace::toggleOnTop() {
  mnuWinAlwaysOnTop_.setChecked(!mnuWinAlwaysOnTop_.checked());
  applyOnTop();
}

// The system's call moves and shrinks the window, so the bounds are restored at once.
void WindowPlace::applyOnTop() {
  const Rect before = window_.bounds();
  window_.setOnTop(mnuWinAlwaysOnTop_.checked());
  window_.setBounds(before);
}

}  // namespace shell
