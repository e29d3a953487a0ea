#include "support/started_programs.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "driver/native_launches.h"
#include "support/wait.h"
#include "support/windows.h"

namespace desktop {
namespace {

using namespace support;

/// Notepad, until the end of the test.
class OpenNotepad {
 public:
  explicit OpenNotepad(DWORD flags) : process_(startProgram(L"notepad.exe", flags)) {
    window_ = awaitWindow("Notepad", [this] {
      const auto isIts = [this](HWND shown) { return processOf(shown) == GetProcessId(process_); };
      const std::vector<HWND> windows = shownWindows();
      const auto found = std::ranges::find_if(windows, isIts);
      return found == windows.end() ? nullptr : *found;
    });
  }
  ~OpenNotepad() {
    TerminateProcess(process_, 0);
    WaitForSingleObject(process_, INFINITE);
    CloseHandle(process_);
  }
  OpenNotepad(const OpenNotepad&) = delete;
  OpenNotepad& operator=(const OpenNotepad&) = delete;

  HWND window() const { return window_; }

 private:
  HANDLE process_;
  HWND window_ = nullptr;
};

// The driver closes the windows of started programs, and discards their texts.
TEST(StartedProgramsTest, AWindowOfSomebodyElseIsNotOneOfTheirs) {
  const OpenNotepad own(0);
  const OpenNotepad foreign(CREATE_BREAKAWAY_FROM_JOB);
  EXPECT_EQ(driver::windowsOfStarted(), std::vector{own.window()});
}

}  // namespace
}  // namespace desktop
