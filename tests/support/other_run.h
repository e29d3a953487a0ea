#pragma once

#include <windows.h>

#include <string>

namespace support {

/// Another run of the tests: this program once more, in one of the parts of `playPart`.
class OtherRun {
 public:
  explicit OtherRun(const std::wstring& part);
  ~OtherRun();
  OtherRun(const OtherRun&) = delete;
  OtherRun& operator=(const OtherRun&) = delete;

  /// Waits until it has the desktop, and has changed it if that is its part.
  void awaitReady() const;
  /// Has a run that waits go on to its end.
  void goOn() const;
  /// As a person or a time limit does.
  void kill() const;
  /// Waits until it has printed the text.
  void awaitPrinted(const std::string& text) const;
  /// Waits for its end, and returns its exit code.
  DWORD awaitEnd() const;
  std::string printed() const;

 private:
  std::wstring output_;
  HANDLE ready_;
  HANDLE goOn_;
  HANDLE process_ = nullptr;
};

/// What the other run does, in `main`; its exit code:
///   change     changes whatever is put back, starts Notepad, and waits
///   interrupt  the same, and then presses Ctrl+C
///   wait       waits, and changes nothing
///   hurry      has no patience with other runs
///   next       begins and ends
///   look       prints what the color is in a program that starts now
int playPart(const std::wstring& part);

/// The key of the registry in which another run changes values.
inline constexpr wchar_t kChangedKey[] = L"Software\\TallyrexSupportTests";
/// The color of the system that it changes.
inline constexpr int kChangedColor = COLOR_INFOBK;

}  // namespace support
