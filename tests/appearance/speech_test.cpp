#include <algorithm>
#include <string>
#include <vector>

#include "appearance/appearance_test_base.h"
#include "support/wait.h"

// What a screen reader is told: a client that listens to the system's accessibility events.
namespace appearance {
namespace {

struct Heard {
  DWORD event;
  HWND window;
  LONG object;
  std::wstring name;
};

std::vector<Heard> heard;

void CALLBACK listen(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG, DWORD, DWORD) {
  wchar_t name[256] = L"";
  GetWindowTextW(window, name, 256);
  heard.push_back({event, window, object, name});
}

class Speech : public AppearanceTest {
 protected:
  void SetUp() override {
    AppearanceTest::SetUp();
    hook_ = SetWinEventHook(EVENT_OBJECT_LOCATIONCHANGE, EVENT_OBJECT_LIVEREGIONCHANGED, nullptr,
                            listen, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    ASSERT_NE(hook_, nullptr);
    heard.clear();
  }
  void TearDown() override {
    UnhookWinEvent(hook_);
    AppearanceTest::TearDown();
  }

  /// Waits for an event that meets a condition.
  template <class Wanted>
  static bool hears(const Wanted& wanted) {
    const ULONGLONG until = GetTickCount64() + support::kPatience;
    while (GetTickCount64() < until) {
      MSG message;
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
      if (std::any_of(heard.begin(), heard.end(), wanted)) return true;
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
    }
    return false;
  }
  static bool hearsSaid(const std::wstring& text) {
    return hears([&](const Heard& each) {
      return each.event == EVENT_OBJECT_LIVEREGIONCHANGED && each.name == text;
    });
  }
  static bool hearsOf(HWND window, DWORD event) {
    return hears([&](const Heard& each) { return each.event == event && each.window == window; });
  }
  static bool hasHeardOfCaret(HWND window) {
    return std::any_of(heard.begin(), heard.end(), [&](const Heard& each) {
      return each.event == EVENT_OBJECT_LOCATIONCHANGE && each.window == window &&
             each.object == OBJID_CARET;
    });
  }
  /// The system's answer to a screen reader that asks for the caret's rectangle.
  static void expectCaretAt(HWND box, int place) {
    const GUITHREADINFO thread = support::inputStateOf(box);
    EXPECT_EQ(thread.hwndCaret, box);
    const LRESULT point = SendMessageW(box, EM_POSFROMCHAR, static_cast<WPARAM>(place), 0);
    EXPECT_EQ(thread.rcCaret.left, static_cast<short>(LOWORD(point)));
    EXPECT_EQ(thread.rcCaret.top, static_cast<short>(HIWORD(point)));
    EXPECT_GT(thread.rcCaret.bottom, thread.rcCaret.top);
  }

 private:
  HWINEVENTHOOK hook_ = nullptr;
};

TEST_F(Speech, PostingsAreSpokenAsTheyHappen) {
  tell("type \"12.5+\"");
  EXPECT_TRUE(hearsSaid(L"12.50 plus"));
  tell("type \"1580-\"");
  EXPECT_TRUE(hearsSaid(L"1,580.00 minus"));
  tell("type \"\\r\"");
  EXPECT_TRUE(hearsSaid(L"total -1,567.50"));
}

TEST_F(Speech, AnswersOfTheFinancialCalculatorAreSpoken) {
  openAnsweredLoan();
  const std::string answer = tell("get frmAnnuity.lblAnswer Caption")["value"];
  ASSERT_FALSE(answer.empty());
  EXPECT_TRUE(hearsSaid(std::wstring(answer.begin(), answer.end())));
}

TEST_F(Speech, RecordSentToTheTapeIsSpokenAndShownOnItsKey) {
  openAnsweredLoan();
  const HWND key = control("frmAnnuity", "cmdPrintToTape");
  const Picture before(key);
  tell("click frmAnnuity.cmdPrintToTape");
  EXPECT_TRUE(hearsSaid(L"Sent to the tape"));
  EXPECT_NE(Picture(key).at(6, 6), before.at(6, 6));
  EXPECT_TRUE(hears([&](const Heard&) {
    return support::textOf(key) == L"Print to tape" && Picture(key).at(6, 6) == before.at(6, 6);
  }));
}

TEST_F(Speech, TapeReportsItsTextAndItsSelection) {
  const HWND tape = control("frmCalc", "txtTape");
  tell("focus txtTape");
  tell("type \"a\"");
  EXPECT_TRUE(hearsOf(tape, EVENT_OBJECT_VALUECHANGE));
  EXPECT_TRUE(hearsOf(tape, EVENT_OBJECT_TEXTSELECTIONCHANGED));
}

// Windows raises the event for the system's caret; Wine does not, for its own edit box either.
TEST_F(Speech, TapeReportsItsCaretAsTheEntryDoes) {
  const HWND entry = control("frmCalc", "txtEntry");
  const HWND tape = control("frmCalc", "txtTape");
  tell("type \"12\"");
  tell("press Home");
  tell("focus txtTape");
  tell("type \"abc\"");
  tell("press Left");
  expectCaretAt(tape, tell("get txtTape SelStart")["value"]);
  tell("press Home");
  expectCaretAt(tape, tell("get txtTape SelStart")["value"]);
  // This event follows that of the caret.
  EXPECT_TRUE(hearsOf(tape, EVENT_OBJECT_TEXTSELECTIONCHANGED));
  EXPECT_EQ(hasHeardOfCaret(tape), hasHeardOfCaret(entry));
}

}  // namespace
}  // namespace appearance
