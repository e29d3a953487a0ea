#include "support/started_programs.h"

#include <stdexcept>

#include "support/wait.h"
#include "support/windows.h"

namespace support {
namespace {

// Closed by the system when this process ends.
HANDLE job = nullptr;

}  // namespace

void bindStartedPrograms() {
  job = CreateJobObjectW(nullptr, nullptr);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
  limits.BasicLimitInformation.LimitFlags =
      JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_BREAKAWAY_OK;
  if (!job ||
      !SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits) ||
      !AssignProcessToJobObject(job, GetCurrentProcess()))
    throw std::runtime_error("the programs that a test starts cannot be tied to it");
}

HANDLE startProgram(std::wstring commandLine, DWORD flags, WORD show) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = show != SW_SHOWDEFAULT ? STARTF_USESHOWWINDOW : 0;
  startup.wShowWindow = show;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, flags, nullptr, nullptr,
                      &startup, &process))
    throw NotSeen("a program that starts");
  CloseHandle(process.hThread);
  return process.hProcess;
}

bool isStartedHere(HWND window) {
  const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, processOf(window));
  if (!process) return false;
  BOOL bound = FALSE;
  IsProcessInJob(process, job, &bound);
  CloseHandle(process);
  return job && bound;
}

}  // namespace support
