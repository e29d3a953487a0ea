#include "shell/text_box_colors.h"

namespace shell {

using controls::Color;

namespace {

constexpr Color kWhite = Color::rgb(0xFFFFFF);
constexpr std::uint32_t kLargestColor = 0xFFFFFF;

}  // namespace

void TextBoxColors::restore() {
  const double stored = settings_.number("glngTextBackColor", kDefaultFocusColor.value());
  const bool isColor = stored >= 0 && stored <= kLargestColor;
  program_.setFocusColor(isColor ? Color::rgb(static_cast<std::uint32_t>(stored))
                                 : kDefaultFocusColor);
}

void TextBoxColors::mark(controls::TextBox& box) {
  if (&box != &controls_.txtEntry) controls_.txtEntry.setBackColor(kWhite);
  box.setBackColor(program_.focusColor());
}

void TextBoxColors::choose() {
  controls_.desktop.showMessage(
      {.text = "On the next screen choose the color you would like as the background color "
               "for the text boxes. Choose Cancel on the next screen to quit."});
  const auto color = controls_.desktop.chooseColor(program_.focusColor().value());
  // Black (0) counts as no color chosen.
  if (!color || *color == 0) return;
  program_.setFocusColor(Color::rgb(*color));
  settings_.writeNumber("glngTextBackColor", *color);
  controls::Control* focused = controls_.txtEntry.window().focusedControl();
  if (focused) focused->setBackColor(program_.focusColor());
}

}  // namespace shell
