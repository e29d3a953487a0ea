#include <set>

#include "desktop/program/program_test.h"
#include "support/picture.h"
#include "support/wine.h"

namespace program {
namespace {

constexpr DWORD kTopic = 23;

// Only its image tells which page the viewer shows; so it is compared with the page that the viewer
// shows when asked for it directly.
class HelpTest : public ProgramTest {
 protected:
  using Page = std::vector<COLORREF>;

  void SetUp() override {
    ProgramTest::SetUp();
    if (!isWine()) GTEST_SKIP() << "only Wine still has the viewer of this kind of help";
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

  void expectPage(const Page& page) {
    const HWND viewer = awaitViewer();
    EXPECT_TRUE(eventually([&] { return pageIn(viewer) == page; }));
  }

  const Page& contents() const { return contents_; }
  const Page& topic() const { return topic_; }

 private:
  // The area below the buttons, without the frame.
  static Page pageIn(HWND viewer) {
    RECT client = {};
    GetClientRect(viewer, &client);
    MapWindowPoints(viewer, nullptr, reinterpret_cast<POINT*>(&client), 2);
    return Picture(client).points();
  }

  static HWND awaitViewer() {
    const HWND viewer = awaitWindow("the help viewer", [] { return openedWindow(L"MS_WINHELP"); });
    SetForegroundWindow(viewer);
    return viewer;
  }

  /// The image of a page in the viewer; empty without a viewer.
  static Page pageOf(UINT command, ULONG_PTR data) {
    if (!WinHelpW(GetDesktopWindow(), pathForViewer().c_str(), command, data)) return {};
    const HWND viewer = awaitViewer();
    // The image is complete when it has not changed for a while.
    constexpr ULONGLONG kRest = 1000;
    Page page;
    ULONGLONG since = GetTickCount64();
    await("a page of the help", [&] {
      Page now = pageIn(viewer);
      if (now != page || isEmpty(now)) since = GetTickCount64();
      page = std::move(now);
      return GetTickCount64() - since >= kRest;
    });
    endProcessOf(viewer);
    return page;
  }

  // The viewer only supports ASCII paths, and the program is in a folder with other letters.
  static std::wstring pathForViewer() {
    wchar_t path[MAX_PATH] = L"";
    GetShortPathNameW(program().helpFile().c_str(), path, MAX_PATH);
    return path;
  }

  // Every page has text in several colors.
  static bool isEmpty(const Page& page) {
    constexpr std::size_t kFewestColors = 4;
    return std::set(page.begin(), page.end()).size() < kFewestColors;
  }

  Page contents_;
  Page topic_;
};

TEST_F(HelpTest, HelpMenuOpensTheContents) {
  start();
  chooseFromMenu('H', "H");
  expectPage(contents());
}

TEST_F(HelpTest, HelpButtonOfTheFinancialCalculatorOpensItsTopic) {
  start();
  const HWND calculator = openCalculator(0, L"Loan Annuities");
  clickUntil(middleOf(TestedProgram::key(calculator, L"Help")),
             [] { return openedWindow(L"MS_WINHELP") != nullptr; });
  expectPage(topic());
}

}  // namespace
}  // namespace program
