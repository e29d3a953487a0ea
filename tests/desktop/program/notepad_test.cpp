#include <algorithm>

#include "desktop/program/other_program.h"
#include "desktop/program/program_test.h"
#include "desktop/program/replaced_notepad.h"
#include "support/clipboard.h"
#include "support/wine.h"

namespace program {
namespace {

constexpr wchar_t kNote[] =
    L"Note: This option will work better if the Win | Pad Tape choice is selected from the main "
    L"menu.  This choice must be selected before keying in the numbers.";
constexpr wchar_t kNotepadQuestion[] =
    L"This option copies the Tape Display to the clipboard and executes Notepad.  If you would "
    L"like to use another program other than Notepad choose Edit from the main menu and then Copy "
    L"Entire Tape.  Do you wish to continue?";

class NotepadTest : public ProgramTest {
 protected:
  /// Pastes this many lines onto the tape.
  std::wstring makeTape(int lines) {
    std::wstring pasted;
    for (int line = 1; line <= lines; ++line) pasted += L"\r\n" + std::to_wstring(line) + L".25 + ";
    setClipboardText(pasted);
    clickTape();
    pressWith(VK_CONTROL, VK_END);
    pressWith(VK_CONTROL, 'V');
    const std::wstring tape = L"Top" + pasted;
    await("the lines on the tape", [&] { return textOf(program().tape()) == tape; });
    return tape;
  }

  void sendToNotepad() {
    pressWith(VK_CONTROL, 'N');
    expectMessage(kNote);
    answer(VK_RETURN);
  }

  /// Starts the program and sends a tape to Notepad.
  std::wstring sendTape(int lines = 10) {
    start();
    const std::wstring tape = makeTape(lines);
    sendToNotepad();
    return tape;
  }

  static HWND textOfNotepad() {
    const HWND notepad = openedWindow(L"Notepad");
    if (!notepad) return nullptr;
    for (const auto* name : {L"Edit", L"RichEditD2DPT"})
      if (const HWND text = childOfClass(notepad, name)) return text;
    return nullptr;
  }

  /// A failure does not print the whole text, which may have ten thousand lines. Notepad may
  /// replace an existing text by a new document.
  void expectInNotepad(const std::wstring& tape) {
    std::wstring seen;
    EXPECT_TRUE(eventually([&] {
      const HWND text = textOfNotepad();
      return text && (seen = textOf(text)) == tape;
    })) << seen.size()
        << " characters instead of " << tape.size();
    EXPECT_TRUE(clipboardText() == tape);
    EXPECT_TRUE(eventually([] { return GetForegroundWindow() == openedWindow(L"Notepad"); }))
        << "Notepad is not in front";
    EXPECT_TRUE(textOf(program().tape()) == tape);
  }

  /// The message appears, and the tape is still on the clipboard.
  void expectFailure() {
    const std::wstring tape = sendTape();
    expectMessage(L"Error finding or displaying NotePad.exe");
    EXPECT_EQ(clipboardText(), tape);
    answer(VK_RETURN);
    type("5");
    expectText(program().entry(), L"5");
  }

  static void bringToFront(HWND window) {
    await("a window in front", [window] {
      SetForegroundWindow(window);
      return GetForegroundWindow() == window;
    });
  }

  void expectFileMenuToOfferNotepad(std::string_view letter, const wchar_t* title) {
    start();
    const std::wstring tape = makeTape(10);
    chooseFromMenu('F', letter);
    EXPECT_EQ(textOf(expectMessage(kNotepadQuestion)), title);
    answer('Y');
    expectMessage(kNote);
    answer(VK_RETURN);
    expectInNotepad(tape);
  }
};

/// Another program in the place of Notepad.
class ReplacedNotepadTest : public NotepadTest {
 protected:
  void SetUp() override {
    if (!isWine()) GTEST_SKIP() << "only on Wine may the system's Notepad be replaced";
    NotepadTest::SetUp();
  }

  ReplacedNotepad& notepad() { return notepad_; }

 private:
  ReplacedNotepad notepad_;
};

TEST_F(NotepadTest, GetsATapeOfTenLines) {
  expectInNotepad(sendTape());
}

TEST_F(NotepadTest, GetsATapeOfTenThousandLines) {
  expectInNotepad(sendTape(10'000));
}

TEST_F(NotepadTest, GetsTheTapeFromSave) {
  expectFileMenuToOfferNotepad("S", L"Save Tape Display");
}

TEST_F(NotepadTest, GetsTheTapeFromPrint) {
  expectFileMenuToOfferNotepad("P", L"Print Tape Display");
}

TEST_F(NotepadTest, GetsAPaddedTapeWithoutANote) {
  start();
  chooseFromMenu('W', "P");
  expectText(program().tape(), L"Top                    Top");
  type("12+");
  expectText(program().entry(), L"12");
  const std::wstring tape = textOf(program().tape());
  chooseFromMenu('E', "N");
  expectInNotepad(tape);
}

// Otherwise the program in front would receive the keystrokes.
TEST_F(NotepadTest, GetsNoKeysWhileAnotherProgramIsInFront) {
  OtherProgram other;
  const std::wstring tape = sendTape();
  await("a message", [&] {
    if (openedWindow(L"Notepad") && GetForegroundWindow() != other.window())
      SetForegroundWindow(other.window());
    other.work();
    return program().dialog() != nullptr;
  });
  SetForegroundWindow(program().dialog());
  expectMessage(L"Error finding or displaying NotePad.exe");
  EXPECT_EQ(textOf(textOfNotepad()), L"");
  other.work();
  EXPECT_EQ(other.text(), L"");
  EXPECT_EQ(clipboardText(), tape);
  answer(VK_RETURN);
}

// What is typed while the program waits for Notepad goes into the entry box, and the command is not
// carried out twice.
TEST_F(ReplacedNotepadTest, MissingNotepadIsReported) {
  ASSERT_TRUE(notepad().byNothing());
  expectFailure();
}

TEST_F(ReplacedNotepadTest, SlowNotepadGetsTheTapeAndDoesNotBlockTheProgram) {
  ASSERT_TRUE(notepad().with(L"slow 8000"));
  const std::wstring tape = sendTape();
  awaitInFront(program().mainWindow());
  type("12");
  const HWND three = TestedProgram::key(program().mainWindow(), L"3");
  clickUntil(middleOf(three), [] { return textOf(program().entry()) == L"123"; });
  expectText(program().entry(), L"123");
  EXPECT_EQ(openedWindow(L"Notepad"), nullptr) << "it was not slow";
  expectInNotepad(tape);
  EXPECT_EQ(textOf(program().entry()), L"123");
}

TEST_F(ReplacedNotepadTest, SlowNotepadGetsTheTapeOfAClosedProgram) {
  ASSERT_TRUE(notepad().with(L"slow 2000"));
  const std::wstring tape = sendTape();
  PostMessageW(program().mainWindow(), WM_SYSCOMMAND, SC_CLOSE, 0);
  await("the end of the main window", [] { return !program().mainWindow(); });
  EXPECT_EQ(openedWindow(L"Notepad"), nullptr) << "it was not slow";
  await("the tape in Notepad", [&] { return textOf(textOfNotepad()) == tape; });
  program().awaitEnd();
  EXPECT_EQ(program().exitCode(), 0u);
}

TEST_F(ReplacedNotepadTest, NotepadThatClosesAtOnceIsReported) {
  ASSERT_TRUE(notepad().with(L"vanishing"));
  expectFailure();
}

TEST_F(NotepadTest, OpenNotepadKeepsItsText) {
  start();
  const std::wstring tape = makeTape(10);
  CloseHandle(startProgram(L"notepad.exe"));
  const HWND old = awaitWindow("Notepad", [] { return openedWindow(L"Notepad"); });
  const HWND note = awaitWindow("its text", [old] { return childOfClass(old, L"Edit"); });
  bringToFront(old);
  type("99");
  expectText(note, L"99");
  bringToFront(program().mainWindow());
  awaitRest();
  sendToNotepad();
  HWND fresh = nullptr;
  await("another Notepad", [&] {
    for (HWND window : shownWindows())
      if (classOf(window) == L"Notepad" && window != old) fresh = window;
    return fresh && textOf(childOfClass(fresh, L"Edit")) == tape;
  });
  EXPECT_EQ(textOf(note), L"99");
}

TEST_F(NotepadTest, NotepadOfAnotherProgramIsNotEnded) {
  const HANDLE foreign = startProgram(L"notepad.exe", CREATE_BREAKAWAY_FROM_JOB);
  const HWND window = awaitWindow("Notepad", [process = GetProcessId(foreign)] {
    for (HWND shown : shownWindows())
      if (processOf(shown) == process) return shown;
    return static_cast<HWND>(nullptr);
  });
  EXPECT_EQ(classOf(window), L"Notepad");
  CloseHandle(startProgram(L"notepad.exe"));
  const HWND own = awaitWindow("another Notepad", [] { return openedWindow(L"Notepad"); });
  EXPECT_NE(own, window);
  endOpened();
  EXPECT_EQ(openedWindow(L"Notepad"), nullptr);
  EXPECT_FALSE(IsWindow(own));
  EXPECT_TRUE(IsWindow(window));
  EXPECT_EQ(WaitForSingleObject(foreign, 0), static_cast<DWORD>(WAIT_TIMEOUT));
  TerminateProcess(foreign, 0);
  CloseHandle(foreign);
}

// As on systems where one window holds all documents: the started process hands over to it and
// ends.
TEST_F(ReplacedNotepadTest, TextInAWindowThatComesToTheFrontIsKept) {
  ASSERT_TRUE(notepad().with(L"tabbed"));
  CloseHandle(startProgram(L"notepad.exe"));
  const HWND window = awaitWindow("the note", [] { return openedWindow(L"Notepad"); });
  const HWND note = awaitWindow("its text", [window] { return childOfClass(window, L"Edit"); });
  const std::wstring tape = sendTape();
  await("the tape in a text beside the note", [&] {
    const std::vector<HWND> texts = shownChildren(window);
    return std::ranges::any_of(texts, [&](HWND text) { return textOf(text) == tape; });
  });
  EXPECT_EQ(textOf(note), L"an old note");
}

}  // namespace
}  // namespace program
