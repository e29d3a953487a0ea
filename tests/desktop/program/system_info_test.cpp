#include "desktop/program/machine_registry.h"
#include "desktop/program/program_test.h"

namespace program {
namespace {

constexpr wchar_t kMissing[] =
    L"Cannot Find The External Program For System Information (MSINFO32.EXE)";

// A second Tallyrex replaces the system information program, which not every system has.
class SystemInfoTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    if (!MachineKey::isWritable())
      GTEST_SKIP() << "only an administrator can say where the program is";
    path_.remove(L"PATH");
    location_.remove(L"MSINFO");
  }

  void TearDown() override {
    while (const HWND window = standIn()) endProcessOf(window);
    ProgramTest::TearDown();
    if (folder_.empty()) return;
    eventually([this] {
      DeleteFileW(fileInFolder().c_str());
      return RemoveDirectoryW(folder_.c_str()) != FALSE;
    });
  }

  /// A folder with the replacement under the expected name.
  const std::wstring& makeFolder() {
    wchar_t temporary[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, temporary);
    folder_ = temporary + std::wstring(L"TallyrexInfo");
    CreateDirectoryW(folder_.c_str(), nullptr);
    if (!CopyFileW(program().file().c_str(), fileInFolder().c_str(), FALSE))
      throw NotSeen("a copy of the program");
    return folder_;
  }

  void askForSystemInfo() {
    start();
    openAboutBox();
    pressWith(VK_MENU, 'S');
  }

  static HWND standIn() {
    for (HWND window : shownWindows())
      if (classOf(window) == L"TallyrexWindow" && isStartedHere(window) && !program().owns(window))
        return window;
    return nullptr;
  }

  static void expectStandIn() {
    EXPECT_TRUE(eventually([] { return standIn() || program().dialog(); }));
    EXPECT_TRUE(standIn()) << "the program was not found";
  }

  /// The message appears, nothing has been started, and the About box stays open.
  void expectMissing() {
    expectMessage(kMissing);
    EXPECT_FALSE(standIn());
    answer(VK_RETURN);
    EXPECT_TRUE(program().windowTitled(L"About Tallyrex"));
  }

  MachineKey& path() { return path_; }
  MachineKey& location() { return location_; }

 private:
  std::wstring fileInFolder() const { return folder_ + L"\\MSINFO32.EXE"; }

  MachineKey path_{L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"};
  MachineKey location_{L"SOFTWARE\\Microsoft\\Shared Tools Location"};
  std::wstring folder_;
};

TEST_F(SystemInfoTest, StartsTheProgramThatTheRegistryNames) {
  path().set(L"PATH", program().file());
  askForSystemInfo();
  expectStandIn();
}

TEST_F(SystemInfoTest, AcceptsANameWithoutATerminator) {
  path().setUnterminated(L"PATH", program().file());
  askForSystemInfo();
  expectStandIn();
}

TEST_F(SystemInfoTest, AcceptsANameWithATrailingHalfCharacter) {
  path().setWithAnOddSize(L"PATH", program().file());
  askForSystemInfo();
  expectStandIn();
}

TEST_F(SystemInfoTest, ExpandsAnExpandableName) {
  const std::wstring file = program().file();
  const auto separator = file.rfind(L'\\');
  SetEnvironmentVariableW(L"TALLYREX_TEST_FOLDER", file.substr(0, separator).c_str());
  path().setExpandable(L"PATH", L"%TALLYREX_TEST_FOLDER%" + file.substr(separator));
  askForSystemInfo();
  expectStandIn();
  SetEnvironmentVariableW(L"TALLYREX_TEST_FOLDER", nullptr);
}

TEST_F(SystemInfoTest, StartsTheProgramInTheFolderThatTheRegistryNames) {
  location().set(L"MSINFO", makeFolder());
  askForSystemInfo();
  expectStandIn();
}

TEST_F(SystemInfoTest, UsesTheFolderWhenTheNameIsTooLong) {
  path().set(L"PATH", program().file() + std::wstring(1024, L' '));
  location().set(L"MSINFO", makeFolder());
  askForSystemInfo();
  expectStandIn();
}

// A number is a value like any other: it is taken as the name, and the folder is not used.
TEST_F(SystemInfoTest, AcceptsANumberAsTheName) {
  path().set(L"PATH", 7);
  location().set(L"MSINFO", makeFolder());
  askForSystemInfo();
  expectMissing();
}

TEST_F(SystemInfoTest, ReportsAMissingProgram) {
  askForSystemInfo();
  expectMissing();
}

}  // namespace
}  // namespace program
