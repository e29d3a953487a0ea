#include "controls/number_field.h"

#include "unit/controls_test.h"

namespace controls {
namespace {

class NumberFieldTest : public ControlsTest {
 protected:
  void put(std::string text, int caret, int selected = 0) {
    box_.setText(text);
    box_.select(caret, selected);
    changes_ = 0;
  }
  // The text, the caret and the length of the selection.
  std::string shown() const {
    return box_.text() + " " + std::to_string(box_.selStart()) + "+" +
           std::to_string(box_.selLength());
  }

  NumberField field_{box_};
  int changes_ = 0;

  NumberFieldTest() {
    box_.onChange = [this](ChangedBy) { ++changes_; };
  }
};

TEST_F(NumberFieldTest, CaretStaysBehindTheSign) {
  put("12", 0);
  field_.rewrite("-12", 0);
  EXPECT_EQ(shown(), "-12 1+0");
  field_.rewrite("12", 0);
  EXPECT_EQ(shown(), "12 0+0");
  EXPECT_EQ(changes_, 2);
}

TEST_F(NumberFieldTest, SameTextKeepsTheSelection) {
  put("1,234", 1, 3);
  field_.rewrite("1,234", 0);
  field_.reformat("1,234");
  field_.repairSign();
  field_.dropLeadingCommas();
  EXPECT_EQ(shown(), "1,234 1+3");
  EXPECT_EQ(changes_, 0);
}

TEST_F(NumberFieldTest, CaretKeepsItsDistanceFromTheEndWhenSeparatorsAppear) {
  put("1234567", 4);
  field_.reformat("1,234,567");
  EXPECT_EQ(shown(), "1,234,567 6+0");
}

TEST_F(NumberFieldTest, CaretStaysWhenMoreIsRemovedThanPrecedesIt) {
  put("1.23456", 1);
  field_.reformat("1.23");
  EXPECT_EQ(shown(), "1.23 1+0");
}

TEST_F(NumberFieldTest, CaretIsInFrontOfTheTextThatIsLeftOfManyZeros) {
  put("007", 2);
  field_.reformat("7");
  EXPECT_EQ(shown(), "7 0+0");
}

TEST_F(NumberFieldTest, BackspaceSkipsASeparator) {
  put("1,234", 2);
  field_.stepOverSeparator();
  EXPECT_EQ(shown(), "1,234 1+0");
  field_.stepOverSeparator();
  EXPECT_EQ(shown(), "1,234 1+0");
}

TEST_F(NumberFieldTest, BackspaceSkipsNothingAtTheStartOrOverASelection) {
  put("1,234", 2, 2);
  field_.stepOverSeparator();
  EXPECT_EQ(shown(), "1,234 2+2");
  put("1,234", 2, 1);
  field_.stepOverSeparator();
  EXPECT_EQ(shown(), "1,234 2+1");
  put(",234", 0);
  field_.stepOverSeparator();
  EXPECT_EQ(shown(), ",234 0+0");
  put(",234", 1);
  field_.stepOverSeparator();
  EXPECT_EQ(shown(), ",234 0+0");
}

TEST_F(NumberFieldTest, CountsPositionsAsTheBoxDoes) {
  put("\u00e91,234", 3);
  field_.stepOverSeparator();
  EXPECT_EQ(box_.selStart(), 2);
  put("12\U0001F600", 4);
  field_.reformat("1,234\U0001F600");
  EXPECT_EQ(box_.selStart(), 7);
}

TEST_F(NumberFieldTest, CharacterBeforeTheSignIsRemoved) {
  put("0-", 2);
  field_.repairSign();
  EXPECT_EQ(shown(), "- 1+0");
  put("5-12", 1);
  field_.repairSign();
  EXPECT_EQ(shown(), "-12 1+0");
}

TEST_F(NumberFieldTest, SurrogatePairBeforeTheSignIsRemovedWhole) {
  put("\u00e9-5", 2);
  field_.repairSign();
  EXPECT_EQ(shown(), "-5 1+0");
  put("\U0001F600-5", 4);
  field_.repairSign();
  EXPECT_EQ(shown(), "-5 2+0");
}

TEST_F(NumberFieldTest, LeadingCommasAreRemoved) {
  put(",,234", 3);
  field_.dropLeadingCommas();
  EXPECT_EQ(shown(), "234 1+0");
  put(",", 1);
  field_.dropLeadingCommas();
  EXPECT_EQ(shown(), " 0+0");
}

TEST_F(NumberFieldTest, SeparatorsAfterThePointAreRemoved) {
  put("8.,123,456", 2);
  field_.dropSeparatorsBehindPoint();
  EXPECT_EQ(shown(), "8.123456 2+0");
  put("1,234.5,678", 8);
  field_.dropSeparatorsBehindPoint();
  EXPECT_EQ(shown(), "1,234.5678 7+0");
  put("1,234.5", 1, 2);
  field_.dropSeparatorsBehindPoint();
  EXPECT_EQ(shown(), "1,234.5 1+2");
  put("1,234", 2);
  field_.dropSeparatorsBehindPoint();
  EXPECT_EQ(shown(), "1,234 2+0");
}

}  // namespace
}  // namespace controls
