#include <filesystem>

#include "desktop/program/kept_tapes.h"
#include "desktop/program/machine_registry.h"
#include "desktop/program/program_test.h"
#include "support/wine.h"

namespace program {
namespace {

constexpr wchar_t kKeptTapeQuestion[] =
    L"Tallyrex did not end normally the last time.  Its tape was kept.  Open it in Notepad?";
constexpr int kPostings = 1000;

// Ends the process by various means, and then checks what its user sees.
class CrashTest : public ProgramTest {
 protected:
  static std::wstring linesOfTape() { return textOf(program().tape()); }
  /// A whole amount as printed on the tape.
  static std::wstring withPlaces(std::wstring amount) {
    if (amount.size() > 3) amount.insert(amount.size() - 3, L",");
    return amount + L".00";
  }

  /// Posts a thousand amounts, and returns the expected tape.
  std::wstring postAThousand() {
    start();
    chooseFromMenu('W', "OA");
    constexpr int kAtOnce = 100;
    for (int posted = 0; posted < kPostings; posted += kAtOnce) {
      std::string keys;
      for (int amount = 1; amount <= kAtOnce; ++amount)
        keys += std::to_string(posted + amount) + "+";
      type(keys);
      await("the last of them", [last = std::to_wstring(posted + kAtOnce)] {
        return linesOfTape().ends_with(L"\n" + withPlaces(last) + L" + ");
      });
    }
    const std::wstring tape = textOf(program().tape());
    EXPECT_TRUE(tape.starts_with(L"Top\r\n1.00 + \r\n2.00 + ")) << tape.size();
    return tape;
  }

  /// Starts the program again, which asks its question when its window has appeared.
  void startAgain() {
    program().launch();
    awaitDialog();
    EXPECT_NE(program().mainWindow(), nullptr);
    expectMessage(kKeptTapeQuestion);
  }

  static std::wstring textInNotepad() {
    const HWND text = awaitWindow("Notepad", [] {
      const HWND notepad = openedWindow(L"Notepad");
      return notepad ? childOfClass(notepad, L"Edit") : nullptr;
    });
    eventually([text] { return !textOf(text).empty(); });
    return textOf(text);
  }

  // A file that has just been made has nothing in it yet.
  static bool isTapeKept() {
    const auto files = keptTapes(program().name());
    return files.size() == 1 && std::filesystem::file_size(files.front()) > 0;
  }

  void expectInNotepad(const std::wstring& tape) {
    startAgain();
    answer('Y');
    const std::wstring opened = textInNotepad();
    EXPECT_TRUE(opened.starts_with(tape))
        << opened.size() << " characters instead of " << tape.size();
    EXPECT_TRUE(eventually([] { return keptTapes(program().name()).empty(); }));
  }
};

TEST_F(CrashTest, TapeOfAKilledProcessOpensInNotepad) {
  const std::wstring tape = postAThousand();
  EXPECT_EQ(keptTapes(program().name()).size(), 1u);
  program().kill();
  expectInNotepad(tape);
  // The new run begins as usual, and the question is not repeated.
  expectText(program().tape(), L"Top");
  close();
  start();
  EXPECT_EQ(program().dialog(), nullptr);
}

TEST_F(CrashTest, TapeOfACrashedProcessOpensInNotepad) {
  // On Wine, where the user of the tests may say so, the process ends without an error dialog.
  if (isWine())
    MachineKey(L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\AeDebug")
        .set(L"Debugger", L"none %ld %ld");
  const std::wstring tape = postAThousand();
  program().runAt(0x10);
  program().awaitEnd();
  program().kill();
  expectInNotepad(tape);
}

TEST_F(CrashTest, TapeOfAProcessOutOfMemoryOpensInNotepad) {
  const std::wstring tape = postAThousand();
  if (!program().takeMemory()) GTEST_SKIP() << "its memory is not given by a library of its own";
  type("1+");
  await("the end of the program, or its message",
        [] { return !program().running() || program().dialog(); });
  program().kill();
  expectInNotepad(tape);
}

TEST_F(CrashTest, AfterNoTheQuestionIsNotRepeated) {
  start();
  type("12+");
  await("a kept tape", isTapeKept);
  program().kill();
  startAgain();
  answer('N');
  await("no kept tape", [] { return keptTapes(program().name()).empty(); });
  type("7");
  expectText(program().entry(), L"7");
  EXPECT_EQ(openedWindow(L"Notepad"), nullptr);
}

TEST_F(CrashTest, NormalEndLeavesNothingBehind) {
  start();
  type("12+");
  await("a kept tape", isTapeKept);
  close();
  EXPECT_TRUE(keptTapes(program().name()).empty());
}

}  // namespace
}  // namespace program
