#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "win32/paths.h"
#include "win32/tape_safe.h"

// Tests that make sense only for files on a disk.
namespace contract {
namespace {

class NativeTapeSafe : public testing::Test {
 protected:
  NativeTapeSafe() {
    wchar_t temporary[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, temporary);
    parent_ = temporary + std::wstring(L"TallyrexTapes") + std::to_wstring(GetCurrentProcessId());
    folder_ = parent_ + L"\\Tallyrex";
  }

  ~NativeTapeSafe() override {
    clearLost();
    DeleteFileW(folder_.c_str());
    RemoveDirectoryW(parent_.c_str());
  }

  void clearLost() {
    win32::TapeSafe safe(folder_);
    safe.lostTapes();
    safe.forgetLostTapes();
  }

  static void post(win32::TapeSafe& safe, const std::string& lines) {
    safe.record({.inserted = "Top"});
    safe.record({.start = 3, .inserted = lines});
  }

  std::string lostTapes() const { return win32::TapeSafe(folder_).lostTapes(); }

  /// The files in the tape folder.
  std::vector<std::wstring> files() const {
    std::vector<std::wstring> names;
    std::error_code absent;
    for (const auto& entry : std::filesystem::directory_iterator(folder_, absent))
      if (entry.is_regular_file()) names.push_back(entry.path().wstring());
    return names;
  }

  bool folderExists() const {
    return GetFileAttributesW(folder_.c_str()) != INVALID_FILE_ATTRIBUTES;
  }

  std::wstring parent_;
  std::wstring folder_;
};

TEST_F(NativeTapeSafe, KeepsTheTapeOfAKilledRun) {
  {
    win32::TapeSafe run(folder_);
    post(run, "\r\n1.00 + ");
    EXPECT_EQ(files().size(), 1u);
  }
  EXPECT_EQ(lostTapes(), "Top\r\n1.00 + ");
  EXPECT_EQ(lostTapes(), "Top\r\n1.00 + ") << "asked for by a run that did not forget it";
  clearLost();
  EXPECT_EQ(lostTapes(), "");
  EXPECT_FALSE(folderExists());
}

TEST_F(NativeTapeSafe, LeavesNothingBehindAfterANormalEnd) {
  win32::TapeSafe run(folder_);
  EXPECT_FALSE(folderExists()) << "before the first line";
  post(run, "\r\n1.00 + ");
  run.clear();
  EXPECT_FALSE(folderExists());
}

TEST_F(NativeTapeSafe, ParallelRunsHaveSeparateFiles) {
  win32::TapeSafe one(folder_);
  post(one, "\r\n1.00 + ");
  {
    win32::TapeSafe other(folder_);
    EXPECT_EQ(other.lostTapes(), "") << "the first one goes on";
    post(other, "\r\n2.00 + ");
    EXPECT_EQ(files().size(), 2u);
  }
  EXPECT_EQ(lostTapes(), "Top\r\n2.00 + ");
  clearLost();
  EXPECT_EQ(files().size(), 1u);
  one.record({.start = 12, .inserted = "\r\n3.00 + "});
  one.clear();
  EXPECT_FALSE(folderExists());
}

TEST_F(NativeTapeSafe, OfTwoSimultaneousStartsOneFindsALostTape) {
  { post(*std::make_unique<win32::TapeSafe>(folder_), "\r\n1.00 + "); }
  win32::TapeSafe one(folder_);
  win32::TapeSafe other(folder_);
  EXPECT_EQ(one.lostTapes(), "Top\r\n1.00 + ");
  EXPECT_EQ(other.lostTapes(), "");
  one.forgetLostTapes();
}

TEST_F(NativeTapeSafe, FileOpenInAnotherProgramIsNotTakenForAnActiveRun) {
  { post(*std::make_unique<win32::TapeSafe>(folder_), "\r\n1.00 + "); }
  const HANDLE reader = CreateFileW(files().at(0).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
  EXPECT_NE(reader, INVALID_HANDLE_VALUE);
  EXPECT_EQ(lostTapes(), "Top\r\n1.00 + ");
  CloseHandle(reader);
}

// Prevents the folder from being created, as on a read-only disk.
TEST_F(NativeTapeSafe, WithoutAFolderTheTapeIsNotKept) {
  CreateDirectoryW(parent_.c_str(), nullptr);
  const HANDLE file =
      CreateFileW(folder_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  CloseHandle(file);
  for (const std::wstring& folder : {folder_, std::wstring()}) {
    win32::TapeSafe run(folder);
    post(run, "\r\n1.00 + ");
    EXPECT_EQ(run.lostTapes(), "");
    run.clear();
    run.forgetLostTapes();
  }
}

}  // namespace
}  // namespace contract
