#include "desktop/program/other_program.h"
#include "desktop/program/program_test.h"
#include "support/clipboard.h"

namespace program {
namespace {

constexpr wchar_t kNote[] =
    L"Note: This option will work better if the Win | Pad Tape choice is selected from the main "
    L"menu.  This choice must be selected before keying in the numbers.";
constexpr wchar_t kQuestion[] =
    L"This option copies the Tape Display to the clipboard and executes Notepad.  If you would "
    L"like to use another program other than Notepad choose Edit from the main menu and then Copy "
    L"Entire Tape.  Do you wish to continue?";

class NotepadTest : public ProgramTest {
 protected:
  /// A tape with that many lines below its head, pasted into it by the user.
  std::wstring makeTape(int lines) {
    std::wstring pasted;
    for (int line = 1; line <= lines; ++line) pasted += L"\r\n" + std::to_wstring(line) + L".25 + ";
    setClipboardText(pasted);
    click(middleOf(program().tape()));
    await("the focus in the tape", [] { return program().focus() == program().tape(); });
    pressWith(VK_CONTROL, VK_END);
    pressWith(VK_CONTROL, 'V');
    const std::wstring tape = L"Top" + pasted;
    await("the lines on the tape", [&] { return textOf(program().tape()) == tape; });
    return tape;
  }

  HWND textOfNotepad() const {
    const HWND notepad = openedWindow(L"Notepad");
    if (!notepad) return nullptr;
    for (const auto* name : {L"Edit", L"RichEditD2DPT"})
      if (const HWND text = childOfClass(notepad, name)) return text;
    return nullptr;
  }

  /// Not shown whole when it fails: it may have ten thousand lines.
  void expectInNotepad(const std::wstring& tape) {
    const HWND text = awaitWindow("Notepad", [this] { return textOfNotepad(); });
    EXPECT_TRUE(eventually([&] { return textOf(text) == tape; }))
        << textOf(text).size() << " characters instead of " << tape.size();
    EXPECT_TRUE(clipboardText() == tape);
    EXPECT_TRUE(eventually([this] { return GetForegroundWindow() == openedWindow(L"Notepad"); }))
        << "Notepad is not in front";
    EXPECT_TRUE(textOf(program().tape()) == tape);
  }

  void expectTapeInNotepad(int lines) {
    start();
    const std::wstring tape = makeTape(lines);
    pressWith(VK_CONTROL, 'N');
    expectMessage(kNote);
    answer(VK_RETURN);
    expectInNotepad(tape);
  }

  void expectFileMenuToOfferNotepad(std::string_view letter, const wchar_t* title) {
    start();
    const std::wstring tape = makeTape(10);
    chooseFromMenu('F', letter);
    EXPECT_EQ(textOf(expectMessage(kQuestion)), title);
    answer('Y');
    expectMessage(kNote);
    answer(VK_RETURN);
    expectInNotepad(tape);
  }
};

TEST_F(NotepadTest, TakesATapeOfTenLines) {
  expectTapeInNotepad(10);
}

TEST_F(NotepadTest, TakesATapeOfTenThousandLines) {
  expectTapeInNotepad(10'000);
}

TEST_F(NotepadTest, TakesTheTapeThatIsToBeSaved) {
  expectFileMenuToOfferNotepad("S", L"Save Tape Display");
}

TEST_F(NotepadTest, TakesTheTapeThatIsToBePrinted) {
  expectFileMenuToOfferNotepad("P", L"Print Tape Display");
}

TEST_F(NotepadTest, APaddedTapeNeedsNoNote) {
  start();
  chooseFromMenu('W', "P");
  expectText(program().tape(), L"Top                    Top");
  type("12+");
  expectText(program().entry(), L"12");
  const std::wstring tape = textOf(program().tape());
  chooseFromMenu('E', "N");
  expectInNotepad(tape);
}

// Whatever is in front instead would get the keys.
TEST_F(NotepadTest, KeepsItsKeysWhileAnotherProgramTakesTheFront) {
  OtherProgram other;
  start();
  const std::wstring tape = makeTape(10);
  pressWith(VK_CONTROL, 'N');
  expectMessage(kNote);
  answer(VK_RETURN);
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

}  // namespace
}  // namespace program
