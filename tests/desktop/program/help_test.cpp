#include "desktop/program/picture.h"
#include "desktop/program/program_test.h"

namespace program {
namespace {

constexpr DWORD kTopic = 23;

// Nothing but what the viewer paints tells which page it shows; so it is compared with the page
// that it shows when it is asked for that one directly.
class HelpTest : public ProgramTest {
 protected:
  using Page = std::vector<std::uint32_t>;

  void SetUp() override {
    ProgramTest::SetUp();
    if (GetFileAttributesW(program().helpFile().c_str()) == INVALID_FILE_ATTRIBUTES)
      GTEST_SKIP() << "the help has not been built";
    contents_ = pageOf(HELP_INDEX, 0);
    if (contents_.empty()) GTEST_SKIP() << "this system has no viewer for the help";
    topic_ = pageOf(HELP_CONTEXT, kTopic);
    ASSERT_NE(contents_, topic_);
  }

  void TearDown() override {
    WinHelpW(nullptr, nullptr, HELP_QUIT, 0);
    ProgramTest::TearDown();
  }

  /// What the viewer shows, once that stays the same for a while.
  Page awaitPage() {
    const HWND viewer =
        awaitWindow("the help viewer", [this] { return openedWindow(L"MS_WINHELP"); });
    SetForegroundWindow(viewer);
    constexpr ULONGLONG kRest = 500;
    Page page;
    ULONGLONG since = GetTickCount64();
    await("a page of the help", [&] {
      Page now = pageIn(viewer);
      if (now != page) since = GetTickCount64();
      page = std::move(now);
      return GetTickCount64() - since >= kRest;
    });
    return page;
  }

  const Page& contents() const { return contents_; }
  const Page& topic() const { return topic_; }

 private:
  // The area below the buttons, without its frame.
  static Page pageIn(HWND viewer) {
    RECT client = {};
    GetClientRect(viewer, &client);
    MapWindowPoints(viewer, nullptr, reinterpret_cast<POINT*>(&client), 2);
    return Picture(client).dots();
  }

  Page pageOf(UINT command, ULONG_PTR data) {
    if (!WinHelpW(GetDesktopWindow(), program().helpFile().c_str(), command, data)) return {};
    Page page = awaitPage();
    closeViewer();
    return page;
  }

  void closeViewer() {
    PostMessageW(openedWindow(L"MS_WINHELP"), WM_CLOSE, 0, 0);
    await("the end of the viewer", [this] { return !openedWindow(L"MS_WINHELP"); });
  }

  Page contents_;
  Page topic_;
};

TEST_F(HelpTest, HelpMenuOpensTheContents) {
  start();
  chooseFromMenu('H', "H");
  EXPECT_TRUE(awaitPage() == contents());
}

TEST_F(HelpTest, HelpKeyOfTheFinancialCalculatorOpensItsTopic) {
  start();
  const HWND calculator = openCalculator(0, L"Loan Annuities");
  click(middleOf(TestedProgram::key(calculator, L"Help")));
  EXPECT_TRUE(awaitPage() == topic());
}

}  // namespace
}  // namespace program
