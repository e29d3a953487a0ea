#include "annuity/frm_annuity_layout.h"

#include "unit/layout_rules.h"

namespace annuity {
namespace {

using namespace layout_rules;

TEST(FrmAnnuityLayout, ControlsFitAndDoNotOverlap) {
  expectAllInSight(frmAnnuityLayout());
}

TEST(FrmAnnuityLayout, FieldsFormAColumnBesideTheirLabels) {
  const auto& layout = frmAnnuityLayout();
  const std::vector<std::string_view> labels = {"Label2", "Label3", "Label4", "Label5", "Label6"};
  const std::vector<std::string_view> fields = {"txtNper", "txtRate", "txtPmt", "txtPV", "txtFV"};
  expectColumn(layout, labels);
  expectColumn(layout, fields);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto& label = placeOf(layout, labels[i]);
    const auto& field = placeOf(layout, fields[i]);
    EXPECT_LT(right(label), field.left);
    EXPECT_GT(label.top, field.top);
    EXPECT_LT(bottom(label), bottom(field));
  }
}

TEST(FrmAnnuityLayout, ButtonsAndOptionsFormRows) {
  const auto& layout = frmAnnuityLayout();
  expectRow(layout, {"cmdRotateLabels", "cmdClearAll", "cmdHelp", "cmdPrintToTape"});
  expectRow(layout, {"optNper(0)", "optNper(1)"});
  EXPECT_EQ(placeOf(layout, "optNper(0)").top, placeOf(layout, "txtNper").top);
  const auto& frame = placeOf(layout, "fraDueBy");
  for (const auto name : {"optDue(0)", "optDue(1)", "Label7"}) {
    const auto& place = placeOf(layout, name);
    EXPECT_GT(place.left, frame.left) << name;
    EXPECT_GT(place.top, frame.top) << name;
    EXPECT_LT(right(place), right(frame)) << name;
    EXPECT_LT(bottom(place), bottom(frame)) << name;
  }
}

TEST(FrmAnnuityLayout, AnswerIsBelowTheCalculateButton) {
  const auto& layout = frmAnnuityLayout();
  const auto below = [&](const char* upper, const char* lower) {
    EXPECT_LE(bottom(placeOf(layout, upper)), placeOf(layout, lower).top) << lower;
  };
  below("txtFV", "Label8");
  below("Label8", "cmdCalculate");
  below("cmdCalculate", "lblResultType");
  below("lblResultType", "lblAnswer");
  EXPECT_EQ(right(placeOf(layout, "lblAnswer")), right(placeOf(layout, "txtFV")));
}

TEST(FrmAnnuityLayout, OptionsOfAGroupAreMutuallyExclusive) {
  const auto& layout = frmAnnuityLayout();
  for (const auto& control : layout.controls) {
    const bool term = control.name.starts_with("optNper");
    const bool timing = control.name.starts_with("optDue");
    EXPECT_EQ(control.optionGroup, term ? 1 : timing ? 2 : 0) << control.name;
    EXPECT_EQ(control.chosen, control.name == "optNper(0)" || control.name == "optDue(0)")
        << control.name;
  }
  EXPECT_FALSE(layout.resizable);
}

TEST(FrmAnnuityLayout, WindowHasTheDesignedSize) {
  const auto& layout = frmAnnuityLayout();
  EXPECT_EQ(layout.name, "frmAnnuity");
  EXPECT_EQ(layout.caption, "Financial Calc (Annuities)");
  EXPECT_EQ(layout.place, (controls::Rect{900, 900, 7230, 5250}));
}

TEST(FrmAnnuityLayout, PictureButtonsHaveTheirPictures) {
  const auto iconOf = [](std::string_view name) {
    return std::ranges::find(frmAnnuityLayout().controls, name, &ControlLayout::name)->icon;
  };
  EXPECT_EQ(iconOf("cmdRotateLabels"), "rotate");
  EXPECT_EQ(iconOf("cmdClearAll"), "clear");
  EXPECT_EQ(iconOf("cmdHelp"), "help");
  EXPECT_EQ(iconOf("cmdPrintToTape"), "print");
}

TEST(FrmAnnuityLayout, AnswerAndPrintButtonAreSpoken) {
  EXPECT_EQ(
      namesOf(frmAnnuityLayout(), [](const ControlLayout& control) { return control.spoken; }),
      (std::vector<std::string_view>{"lblAnswer", "cmdPrintToTape"}));
}

// In tab order.
constexpr Seen kListed[] = {
    {"Label1", kLabel, 180, 150, 4080, 240, "Leave one blank to calculate its result.", "", "", "",
     kSans, 83, false, Alignment::Right},
    {"Label2", kLabel, 180, 555, 2040, 240, "", "", "", "", kSans, 83, false, Alignment::Right},
    {"txtNper", kBox, 2310, 495, 1950, 330, "", "", "", "", kSans, 98, false, Alignment::Right},
    {"Label3", kLabel, 180, 975, 2040, 240, "Annual Interest &Rate:", "", "", "", kSans, 83, false,
     Alignment::Right},
    {"txtRate", kBox, 2310, 915, 1950, 330, "", "", "", "", kSans, 98, false, Alignment::Right},
    {"Label4", kLabel, 180, 1395, 2040, 240, "", "", "", "", kSans, 83, false, Alignment::Right},
    {"txtPmt", kBox, 2310, 1335, 1950, 330, "", "", "", "", kSans, 98, false, Alignment::Right},
    {"Label5", kLabel, 180, 1815, 2040, 240, "", "", "", "", kSans, 83, false, Alignment::Right},
    {"txtPV", kBox, 2310, 1755, 1950, 330, "", "", "", "", kSans, 98, false, Alignment::Right},
    {"Label6", kLabel, 180, 2235, 2040, 240, "", "", "", "", kSans, 83, false, Alignment::Right},
    {"txtFV", kBox, 2310, 2175, 1950, 330, "", "", "", "", kSans, 98, false, Alignment::Right},
    {"Label8", kLabel, 180, 2565, 4080, 240, "For normal loans balloon pmt = zero.", "", "", "",
     kSans, 83, false, Alignment::Right},
    {"cmdCalculate", kButton, 2310, 2910, 1950, 435, "", "", "", "", kSans, 98},
    {"lblResultType", kLabel, 180, 3480, 4080, 285, "", "", "", "", kSans, 98, true,
     Alignment::Right},
    {"lblAnswer", kLabel, 180, 3780, 4080, 930, "", "", "", "", kSans, 150, false,
     Alignment::Right},
    {"optNper(0)", kOption, 4500, 495, 1170, 330},
    {"optNper(1)", kOption, 5760, 495, 1170, 330},
    {"fraDueBy", kFrame, 4500, 915, 2430, 1590, "Payments are due by:"},
    {"optDue(0)", kOption, 4680, 1230, 2070, 330},
    {"optDue(1)", kOption, 4680, 1620, 2070, 330},
    {"Label7", kLabel, 4680, 2055, 2070, 240, "of the period."},
    {"cmdRotateLabels", kButton, 4500, 3930, 570, 570, "", "", "Rotate configuration",
     "Rotate the financial annuity configuration."},
    {"cmdPrintToTape", kButton, 6360, 3930, 570, 570, "", "", "Print to tape",
     "Send Info to Tape."},
    {"cmdClearAll", kButton, 5120, 3930, 570, 570, "", "", "Clear all boxes", "Clear all boxes."},
    {"cmdHelp", kButton, 5740, 3930, 570, 570, "", "", "Help", "Pulls up help."},
};

TEST(FrmAnnuityLayout, PlacesMatchTheList) {
  expectPlaces(frmAnnuityLayout(), kListed);
}

TEST(FrmAnnuityLayout, ControlsMatchTheList) {
  expectSeen(frmAnnuityLayout(), kListed);
}

}  // namespace
}  // namespace annuity
