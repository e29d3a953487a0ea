#include "support/taken_desktop.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/clipboard.h"
#include "support/kept_clipboard.h"
#include "support/kept_state.h"
#include "support/other_run.h"
#include "support/registry_key.h"
#include "support/started_programs.h"
#include "support/wait.h"
#include "support/windows.h"

namespace support {
namespace {

using namespace std::string_literals;

constexpr wchar_t kClipboard[] = L"Software\\TallyrexSupportTestsClipboard";
constexpr char kPuttingBack[] = "Putting back what it had changed";
constexpr char kWaiting[] = "Another run of the tests uses the desktop";

bool isDown(int key) {
  return GetAsyncKeyState(key) < 0;
}

/// A format of the clipboard that only one program knows.
UINT ownFormat() {
  return RegisterClipboardFormatW(L"Tallyrex Support Tests");
}

std::string bytesOnClipboard(UINT format) {
  std::string bytes;
  const OpenedClipboard opened;
  if (const HANDLE memory = GetClipboardData(format)) {
    bytes.assign(static_cast<const char*>(GlobalLock(memory)), GlobalSize(memory));
    GlobalUnlock(memory);
  }
  return bytes;
}

/// A person's desktop, which another run of the tests takes.
class TakenDesktopTest : public testing::Test {
 protected:
  // The clipboard of the real person who runs these tests, who may have interrupted them before.
  static void SetUpTestSuite() {
    putBackClipboard();
    writeClipboardTo(RegistryKey::make(HKEY_CURRENT_USER, kClipboard, REG_OPTION_VOLATILE));
  }

  static void TearDownTestSuite() { putBackClipboard(); }

  void SetUp() override {
    setClipboardText(L"of a person \u221A");
    const std::string own = "a person's\0own"s;
    OpenedClipboard().put(ownFormat(), own.data(), own.size());
    writeUserText(kChangedKey, L"text", L"of a person");
    seen_ = look();
  }

  void TearDown() override { RegDeleteTreeW(HKEY_CURRENT_USER, kChangedKey); }

  static HANDLE openNotepad() {
    const HWND window = awaitWindow("Notepad", [] { return FindWindowW(L"Notepad", nullptr); });
    return OpenProcess(SYNCHRONIZE, FALSE, processOf(window));
  }

  void expectChanged() const {
    EXPECT_EQ(clipboardText(), L"of the test");
    EXPECT_EQ(look(), "color 30201");
    EXPECT_NE(look(), seen_);
    EXPECT_EQ(readUserText(kChangedKey, L"text"), L"of the test");
    EXPECT_EQ(readUserText(kChangedKey, L"absent"), L"of the test");
    EXPECT_TRUE(eventually([] { return isDown(VK_SHIFT); }));
    EXPECT_TRUE(isAnythingKept());
  }

  void expectAsBefore() const {
    EXPECT_EQ(clipboardText(), L"of a person \u221A");
    EXPECT_EQ(bytesOnClipboard(ownFormat()), "a person's\0own"s);
    EXPECT_TRUE(eventually([this] { return look() == seen_; })) << look() << ", not " << seen_;
    EXPECT_EQ(readUserText(kChangedKey, L"text"), L"of a person");
    EXPECT_EQ(readUserText(kChangedKey, L"absent"), std::nullopt);
    EXPECT_FALSE(RegistryKey::open(HKEY_CURRENT_USER, kChangedKey + std::wstring(L"\\New")));
    EXPECT_FALSE(isDown(VK_SHIFT));
    EXPECT_FALSE(isAnythingKept());
  }

 private:
  static void putBackClipboard() {
    if (const RegistryKey key = RegistryKey::open(HKEY_CURRENT_USER, kClipboard))
      readClipboardFrom(key);
    RegDeleteTreeW(HKEY_CURRENT_USER, kClipboard);
  }

  static std::string look() {
    const OtherRun run(L"look");
    run.awaitEnd();
    return run.printed();
  }

  std::string seen_;
};

TEST_F(TakenDesktopTest, IsPutBackAtTheEnd) {
  const OtherRun run(L"change");
  run.awaitReady();
  expectChanged();
  const HANDLE notepad = openNotepad();
  run.goOn();
  EXPECT_EQ(run.awaitEnd(), 0U);
  expectAsBefore();
  EXPECT_EQ(WaitForSingleObject(notepad, kPatience), WAIT_OBJECT_0) << "Notepad goes on";
  CloseHandle(notepad);
}

TEST_F(TakenDesktopTest, IsPutBackByTheNextRunAfterAKill) {
  const OtherRun run(L"change");
  run.awaitReady();
  const HANDLE notepad = openNotepad();
  run.kill();
  EXPECT_EQ(WaitForSingleObject(notepad, kPatience), WAIT_OBJECT_0) << "Notepad goes on";
  CloseHandle(notepad);
  expectChanged();
  const OtherRun next(L"next");
  EXPECT_EQ(next.awaitEnd(), 0U) << next.printed();
  next.awaitPrinted(kPuttingBack);
  expectAsBefore();
}

TEST_F(TakenDesktopTest, IsPutBackAfterCtrlC) {
  const OtherRun run(L"interrupt");
  run.awaitReady();
  run.awaitEnd();
  expectAsBefore();
  const OtherRun next(L"next");
  EXPECT_EQ(next.awaitEnd(), 0U);
  EXPECT_EQ(next.printed(), "");
}

TEST_F(TakenDesktopTest, IsTakenByOneRunAtATime) {
  const OtherRun first(L"wait");
  first.awaitReady();
  const OtherRun hurried(L"hurry");
  EXPECT_EQ(hurried.awaitEnd(), 1U);
  hurried.awaitPrinted("another run of the tests still uses the desktop; one at a time");
  const OtherRun second(L"next");
  second.awaitPrinted(kWaiting);
  first.goOn();
  EXPECT_EQ(first.awaitEnd(), 0U);
  second.awaitReady();
  EXPECT_EQ(second.awaitEnd(), 0U);
}

TEST_F(TakenDesktopTest, IsNotTakenWhileAPersonHasNotepadOpen) {
  const HANDLE notepad = startProgram(L"notepad.exe");
  CloseHandle(openNotepad());
  const OtherRun run(L"next");
  EXPECT_EQ(run.awaitEnd(), 1U);
  run.awaitPrinted("Notepad is open; close it");
  EXPECT_EQ(WaitForSingleObject(notepad, 0), static_cast<DWORD>(WAIT_TIMEOUT));
  TerminateProcess(notepad, 0);
  CloseHandle(notepad);
}

}  // namespace
}  // namespace support

// With --part it is the other run of its own tests.
int wmain(int count, wchar_t** arguments) {
  constexpr std::wstring_view kPart = L"--part=";
  if (count == 2 && std::wstring_view(arguments[1]).starts_with(kPart))
    return support::playPart(arguments[1] + kPart.size());
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
