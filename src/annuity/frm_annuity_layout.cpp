#include "annuity/frm_annuity_layout.h"

#include <array>

namespace annuity {

using controls::Alignment;
using controls::ControlKind;
using controls::ControlLayout;
using controls::FontLayout;
using controls::Rect;
using controls::Twips;

namespace {

// At the left, a column of five labeled fields, with the answer below like a sum. At the right, the
// options, and below them the four picture buttons; the last is not always visible.
constexpr Twips kMargin = 180;
constexpr Twips kLabelWidth = 2040;
constexpr Twips kFieldColumn = 2310;
constexpr Twips kFieldWidth = 1950;
constexpr Twips kColumnWidth = kFieldColumn + kFieldWidth - kMargin;
constexpr Twips kRowPitch = 420;
constexpr Twips kFirstRow = 495;
constexpr Twips kFieldHeight = 330;
constexpr Twips kTextHeight = 240;
constexpr Twips kRightColumn = 4500;
constexpr Twips kRightWidth = 2430;
constexpr Twips kClientWidth = kRightColumn + kRightWidth + kMargin;
constexpr Twips kClientHeight = 4845;

// A picture of 32 x 32 with the frame of a button around it.
constexpr Twips kPictureButton = 570;
constexpr Twips kPicturePitch = 620;
constexpr Twips kPictureRow = 3930;

consteval Twips row(int index) {
  return kFirstRow + index * kRowPitch;
}

// The text of a label has the baseline of the text in its field.
consteval Rect label(int r) {
  return {kMargin, row(r) + 60, kLabelWidth, kTextHeight};
}

consteval Rect field(int r) {
  return {kFieldColumn, row(r), kFieldWidth, kFieldHeight};
}

consteval Rect picture(int index) {
  return {kRightColumn + index * kPicturePitch, kPictureRow, kPictureButton, kPictureButton};
}

constexpr FontLayout kFieldFont = {"MS Sans Serif", 98, false};
constexpr FontLayout kResultFont = {"MS Sans Serif", 98, true};
// Trillions with separators and cents fit into one line.
constexpr FontLayout kAnswerFont = {"MS Sans Serif", 150, false};

constexpr ControlKind kLabel = ControlKind::Label;
constexpr ControlKind kTextBox = ControlKind::TextBox;
constexpr ControlKind kButton = ControlKind::Button;
constexpr ControlKind kOption = ControlKind::OptionButton;

constexpr int kTermUnit = 1;
constexpr int kTiming = 2;

// Each label precedes its field in tab order, so that its access key focuses the field. Screen
// readers also name a field by its label, which changes with the configuration.
constexpr auto kControls = std::to_array<ControlLayout>({
    {.kind = kLabel,
     .name = "Label1",
     .caption = "Leave one blank to calculate its result.",
     .place = {kMargin, 150, kColumnWidth, kTextHeight},
     .alignment = Alignment::Right},

    {.kind = kLabel, .name = "Label2", .place = label(0), .alignment = Alignment::Right},
    {.kind = kTextBox,
     .name = "txtNper",
     .place = field(0),
     .font = kFieldFont,
     .alignment = Alignment::Right},
    {.kind = kLabel,
     .name = "Label3",
     .caption = "Annual Interest &Rate:",
     .place = label(1),
     .alignment = Alignment::Right},
    {.kind = kTextBox,
     .name = "txtRate",
     .place = field(1),
     .font = kFieldFont,
     .alignment = Alignment::Right},
    {.kind = kLabel, .name = "Label4", .place = label(2), .alignment = Alignment::Right},
    {.kind = kTextBox,
     .name = "txtPmt",
     .place = field(2),
     .font = kFieldFont,
     .alignment = Alignment::Right},
    {.kind = kLabel, .name = "Label5", .place = label(3), .alignment = Alignment::Right},
    {.kind = kTextBox,
     .name = "txtPV",
     .place = field(3),
     .font = kFieldFont,
     .alignment = Alignment::Right},
    {.kind = kLabel, .name = "Label6", .place = label(4), .alignment = Alignment::Right},
    {.kind = kTextBox,
     .name = "txtFV",
     .place = field(4),
     .font = kFieldFont,
     .alignment = Alignment::Right},
    {.kind = kLabel,
     .name = "Label8",
     .caption = "For normal loans balloon pmt = zero.",
     .place = {kMargin, row(5) - 30, kColumnWidth, kTextHeight},
     .alignment = Alignment::Right},

    {.kind = kButton,
     .name = "cmdCalculate",
     .place = {kFieldColumn, 2910, kFieldWidth, 435},
     .font = kFieldFont},
    {.kind = kLabel,
     .name = "lblResultType",
     .place = {kMargin, 3480, kColumnWidth, 285},
     .font = kResultFont,
     .alignment = Alignment::Right},
    {.kind = kLabel,
     .name = "lblAnswer",
     .place = {kMargin, 3780, kColumnWidth, 930},
     .font = kAnswerFont,
     .spoken = true,
     .alignment = Alignment::Right},

    {.kind = kOption,
     .name = "optNper(0)",
     .place = {kRightColumn, row(0), 1170, kFieldHeight},
     .optionGroup = kTermUnit,
     .chosen = true},
    {.kind = kOption,
     .name = "optNper(1)",
     .place = {kRightColumn + 1260, row(0), 1170, kFieldHeight},
     .optionGroup = kTermUnit},
    {.kind = ControlKind::Frame,
     .name = "fraDueBy",
     .caption = "Payments are due by:",
     .place = {kRightColumn, row(1), kRightWidth, row(4) + kFieldHeight - row(1)}},
    {.kind = kOption,
     .name = "optDue(0)",
     .place = {kRightColumn + 180, row(1) + 315, kRightWidth - 360, kFieldHeight},
     .optionGroup = kTiming,
     .chosen = true},
    {.kind = kOption,
     .name = "optDue(1)",
     .place = {kRightColumn + 180, row(1) + 705, kRightWidth - 360, kFieldHeight},
     .optionGroup = kTiming},
    {.kind = kLabel,
     .name = "Label7",
     .caption = "of the period.",
     .place = {kRightColumn + 180, row(1) + 1140, kRightWidth - 360, kTextHeight}},

    {.kind = kButton,
     .name = "cmdRotateLabels",
     .toolTip = "Rotate the financial annuity configuration.",
     .place = picture(0),
     .accessibleName = "Rotate configuration",
     .icon = "rotate"},
    {.kind = kButton,
     .name = "cmdPrintToTape",
     .toolTip = "Send Info to Tape.",
     .place = picture(3),
     .accessibleName = "Print to tape",
     .spoken = true,
     .icon = "print"},
    {.kind = kButton,
     .name = "cmdClearAll",
     .toolTip = "Clear all boxes.",
     .place = picture(1),
     .accessibleName = "Clear all boxes",
     .icon = "clear"},
    {.kind = kButton,
     .name = "cmdHelp",
     .toolTip = "Pulls up help.",
     .place = picture(2),
     .accessibleName = "Help",
     .icon = "help"},
});

constexpr controls::WindowLayout kLayout = {
    .name = "frmAnnuity",
    .caption = "Financial Calc (Annuities)",
    .place = {900, 900, kClientWidth + controls::kFrameWidth,
              kClientHeight + controls::kFrameHeight},
    .controls = kControls,
};

}  // namespace

const controls::WindowLayout& frmAnnuityLayout() {
  return kLayout;
}

}  // namespace annuity
