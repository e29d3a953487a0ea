#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "support/windows.h"

// Prints what the start of programs costs, from the making of the process to the moment at which
// its window is visible and painted and it waits for the user, and the memory that it then uses:
//   tallyrex-start-bench RUNS PROGRAM...
// The programs take turns; the ratios are to the first.
namespace {

constexpr DWORD kLongestStart = 20'000;

struct Program {
  std::wstring name;
  std::vector<double> milliseconds;
  std::vector<double> megabytes;
};

HWND visibleWindow(DWORD process) {
  for (HWND window : support::shownWindows())
    if (support::processOf(window) == process) return window;
  return nullptr;
}

double now() {
  LARGE_INTEGER frequency;
  LARGE_INTEGER count;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&count);
  return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// A thread that waits for input has finished painting. Looking for the window again and again
// meanwhile would take processor time from the program.
bool waitUntilPainted(const PROCESS_INFORMATION& process) {
  return WaitForInputIdle(process.hProcess, kLongestStart) == 0 &&
         visibleWindow(process.dwProcessId);
}

bool run(Program& program) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  std::wstring command = program.name;
  const double start = now();
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &startup, &process))
    return false;
  const bool painted = waitUntilPainted(process);
  program.milliseconds.push_back(now() - start);
  PROCESS_MEMORY_COUNTERS memory = {};
  GetProcessMemoryInfo(process.hProcess, &memory, sizeof memory);
  program.megabytes.push_back(static_cast<double>(memory.WorkingSetSize) / 1048576.0);
  PostMessageW(visibleWindow(process.dwProcessId), WM_CLOSE, 0, 0);
  if (WaitForSingleObject(process.hProcess, 5000) != WAIT_OBJECT_0)
    TerminateProcess(process.hProcess, 1);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return painted;
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const int runs = count > 2 ? std::stoi(arguments[1]) : 0;
  if (runs < 1) {
    std::fputs("tallyrex-start-bench RUNS PROGRAM...\n", stderr);
    return 2;
  }
  std::vector<Program> programs;
  for (int i = 2; i < count; ++i) programs.push_back({arguments[i], {}, {}});
  for (int i = 0; i < runs; ++i) {
    for (Program& program : programs) {
      if (run(program)) continue;
      std::printf("%ls does not start\n", program.name.c_str());
      return 1;
    }
  }
  const double firstTime = median(programs.front().milliseconds);
  const double firstMemory = median(programs.front().megabytes);
  for (const Program& program : programs) {
    const double time = median(program.milliseconds);
    const double memory = median(program.megabytes);
    std::printf("%ls: %.0f ms, ratio %.2f; %.1f MB, ratio %.2f\n", program.name.c_str(), time,
                time / firstTime, memory, memory / firstMemory);
  }
  return 0;
}
