// A program that looks into the current folder, which shows that what is planted there is found:
//   careless LIBRARY PROGRAM
#include <windows.h>

int main(int count, char** arguments) {
  if (count != 3 || LoadLibraryA(arguments[1]) == nullptr) return 1;
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (CreateProcessA(nullptr, arguments[2], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &process) == 0) {
    return 2;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return 0;
}
