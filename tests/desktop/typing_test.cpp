#include "desktop/desktop_test.h"
#include "support/input.h"

namespace desktop {
namespace {

using namespace support;

class TypingTest : public DesktopTest {
 protected:
  void press(const Inputs& inputs) { stage().sendKeys(inputs); }
  void tapNumLock() {
    Inputs inputs;
    tap(inputs, VK_NUMLOCK);
    press(inputs);
  }
};

TEST_F(TypingTest, TwoThousandKeystrokesArriveInOrder) {
  constexpr int kNumbers = 500;
  Inputs inputs;
  std::string expected = "Top";
  for (int number = 100; number < 100 + kNumbers; ++number) {
    const std::string digits = std::to_string(number);
    for (const char digit : digits) tap(inputs, static_cast<WORD>(digit));
    tap(inputs, VK_ADD);
    expected += "\r\n" + digits + ".00 + ";
  }
  press(inputs);
  EXPECT_EQ(tape(), expected);
}

// A fast typist presses the next key before releasing the previous one.
TEST_F(TypingTest, OverlappingKeystrokesArriveInOrder) {
  Inputs inputs;
  std::string expected = "Top";
  WORD before = 0;
  for (int number = 100; number < 200; ++number) {
    const std::string digits = std::to_string(number);
    for (const char cap : digits + "+") {
      const WORD key = cap == '+' ? WORD{VK_ADD} : static_cast<WORD>(cap);
      // A key that is pressed twice must be released in between.
      if (key == before) keyUp(inputs, before);
      keyDown(inputs, key);
      if (before != 0 && key != before) keyUp(inputs, before);
      before = key;
    }
    expected += "\r\n" + digits + ".00 + ";
  }
  keyUp(inputs, before);
  press(inputs);
  EXPECT_EQ(tape(), expected);
}

TEST_F(TypingTest, KeypadTypesItsLabelsWithNumLock) {
  press(keypad("1234567890.25"));
  EXPECT_EQ(entry(), "1,234,567,890.25");
}

TEST_F(TypingTest, KeypadCalculatesWithNumLock) {
  press(keypad("12.5+3-E"));
  EXPECT_EQ(tape(), "Top\r\n12.50 + \r\n3.00 - \r\n9.50 * \r\n");
}

TEST_F(TypingTest, KeypadOperatorsWorkWithoutNumLock) {
  tapNumLock();
  tell("type \"12\"");
  press(keypad("+"));
  tell("type \"3\"");
  press(keypad("-"));
  press(keypad("E"));
  tapNumLock();
  EXPECT_EQ(tape(), "Top\r\n12.00 + \r\n3.00 - \r\n9.00 * \r\n");
}

// Without NumLock, a keypad sends the navigation keys printed below the digits.
TEST_F(TypingTest, KeypadDigitsMoveTheCaretWithoutNumLock) {
  tapNumLock();
  tell("type \"12\"");
  Inputs inputs;
  tap(inputs, VK_HOME);
  press(inputs);
  tell("type \"9\"");
  tapNumLock();
  EXPECT_EQ(entry(), "912");
}

}  // namespace
}  // namespace desktop
