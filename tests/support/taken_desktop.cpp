#include "support/taken_desktop.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "support/kept_state.h"
#include "support/started_programs.h"
#include "support/wait.h"
#include "support/windows.h"

namespace support {
namespace {

constexpr DWORD kMillisecondsPerSecond = 1000;
// Ample for what is left of an interrupted run.
constexpr ULONGLONG kEndOfLeftovers = 2000;

/// The right to use the desktop. Of a process that ends, the system takes it back.
class Turn {
 public:
  explicit Turn(DWORD patience) : mutex_(CreateMutexW(nullptr, FALSE, L"Local\\TallyrexTests")) {
    if (!mutex_) throw std::runtime_error("the system gives them no lock");
    if (WaitForSingleObject(mutex_, 0) != WAIT_TIMEOUT) return;
    std::fprintf(stderr,
                 "Another run of the tests uses the desktop. Waiting for it, at most %lu s\n",
                 patience / kMillisecondsPerSecond);
    if (WaitForSingleObject(mutex_, patience) == WAIT_TIMEOUT)
      throw std::runtime_error("another run of the tests still uses the desktop; one at a time");
  }
  ~Turn() {
    ReleaseMutex(mutex_);
    CloseHandle(mutex_);
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

 private:
  HANDLE mutex_;
};

void putBackWhatIsLeft() {
  if (!isAnythingKept()) return;
  std::fputs("An earlier run of the tests was interrupted. Putting back what it had changed\n",
             stderr);
  putBackEverything();
}

// Some systems open a text in the Notepad that is there already.
void expectNoNotepad() {
  const auto isNotepad = [](HWND window) { return classOf(window) == L"Notepad"; };
  if (!eventually([&] { return std::ranges::none_of(shownWindows(), isNotepad); }, kEndOfLeftovers))
    throw std::runtime_error("Notepad is open; close it, since the tests write into Notepad");
}

void putBackNow() {
  try {
    putBackEverything();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "The next run will put back what the tests have changed: %s\n",
                 error.what());
  }
}

// The process then ends as usual.
BOOL WINAPI putBackAtCtrlC(DWORD) {
  putBackNow();
  return FALSE;
}

/// Puts back at its end what the tests change, and ends what they start.
class Borrowed {
 public:
  Borrowed() {
    bindStartedPrograms();
    keepDesktop();
    SetConsoleCtrlHandler(putBackAtCtrlC, TRUE);
    // Who starts this program may have told it to ignore Ctrl+C.
    SetConsoleCtrlHandler(nullptr, FALSE);
  }
  ~Borrowed() {
    SetConsoleCtrlHandler(putBackAtCtrlC, FALSE);
    putBackNow();
  }
  Borrowed(const Borrowed&) = delete;
  Borrowed& operator=(const Borrowed&) = delete;
};

}  // namespace

int withDesktop(const std::function<int()>& body, DWORD patience) {
  try {
    const Turn turn(patience);
    putBackWhatIsLeft();
    expectNoNotepad();
    const Borrowed desktop;
    return body();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "The tests end: %s\n", error.what());
    return 1;
  }
}

}  // namespace support
