#pragma once

#include <windows.h>

#include <atomic>
#include <climits>
#include <cstdint>
#include <functional>

namespace driver {

/// Access to the program's thread from the user's thread. Created and destroyed on the program's
/// thread; all other functions are called from the user's.
class UiThread {
 public:
  UiThread();
  ~UiThread();
  UiThread(const UiThread&) = delete;
  UiThread& operator=(const UiThread&) = delete;

  /// An invisible window of the program's thread.
  HWND window() const { return window_; }

  /// Runs `body` there between two messages, and waits for it. `body` must not open a dialog, which
  /// nobody could answer. Exceptions are rethrown here.
  void inspect(const std::function<void()>& body);
  /// Queues `body` to be run there, after all messages posted so far.
  void post(std::function<void()> body);
  /// The release of a key that no keyboard has, which arrives after all input sent before it. The
  /// program never sees it.
  INPUT nextMark();
  /// The same without a key, for when no window of the program is in front: reached when no posted
  /// task and no input is left in the queue.
  void markRest();
  /// Waits until all posted bodies have run and the last marks have arrived. False if it takes
  /// longer.
  bool waitUntilReached(DWORD milliseconds);
  /// The system may report a mouse move late, so that a click goes elsewhere. Clicks with
  /// kAimedInput pass only at `place`, after a reported move to there, and while `seen` is the
  /// window there (null: any) and `pressed` has captured the mouse (null: any).
  void expectClick(POINT place, HWND seen, HWND pressed);
  /// It may also release a modifier key too early. Keystrokes with kHeldInput pass only while their
  /// modifiers are down, and only with that character (0: any).
  void expectKey(WPARAM character);
  /// Whether the last expected input has arrived and passed.
  bool hit() const { return aim_ == Aim::Good; }
  /// Whether it has arrived and was swallowed.
  bool missed() const { return aim_ == Aim::Missed; }
  /// A menu may close before the click, so only the command shows that the click was effective.
  void expectCommand(UINT command);
  /// Whether that command has arrived since expectCommand.
  bool commandTaken() const { return commandTaken_; }
  /// Whether the last reported mouse move led to `place`.
  bool isMouseAt(POINT place) const;
  /// Call before a move to `place`; waitForMove then waits for its report. False if it takes
  /// longer.
  void expectMove(POINT place);
  bool waitForMove(DWORD milliseconds);
  static constexpr ULONG_PTR kAimedInput = 0x7A5F0000;
  static constexpr ULONG_PTR kHeldInput = 0x7A600000;
  static constexpr ULONG_PTR kHeldShift = 1;
  static constexpr ULONG_PTR kHeldControl = 2;
  static constexpr ULONG_PTR kHeldAlt = 4;

  /// Stops waiting for marks that have not arrived, which went to another program. One that still
  /// arrives is not confused with a later one.
  void forgetMarks() { marksForgotten_ = marks_; }

 private:
  struct Call;
  enum class Aim { Open, Good, Missed };

  static constexpr POINT kNowhere = {LONG_MIN, LONG_MIN};

  static LRESULT CALLBACK handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK watchMessage(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK watchMouse(int code, WPARAM wParam, LPARAM lParam);
  void watchKey(MSG& message);
  void watchCharacter(MSG& message);
  static bool isHeld(const MSG& message, ULONG_PTR keys);
  void watchCommand(const MSG& message);
  void noteMove(POINT mouse);
  bool comesThrough(const MOUSEHOOKSTRUCT& mouse);
  bool isAimed(const MOUSEHOOKSTRUCT& mouse) const;
  void noteMark(ULONG_PTR extra);
  template <class Condition>
  bool waitFor(Condition condition, DWORD milliseconds);
  bool reached() const {
    return (marks_ == marksSeen_ || marks_ == marksForgotten_) && posts_ == postsRun_ &&
           !restAwaited_;
  }

  static UiThread* current_;
  // Shared by all instances, so that a late mark of one is not confused with a mark of the next.
  static std::uint16_t marks_;

  HWND window_ = nullptr;
  HHOOK messageHook_ = nullptr;
  HHOOK mouseHook_ = nullptr;
  HANDLE progress_ = nullptr;
  std::uint16_t marksForgotten_ = marks_;
  unsigned posts_ = 0;
  std::atomic<std::uint16_t> marksSeen_ = marks_;
  std::atomic<unsigned> postsRun_ = 0;
  std::atomic<bool> restAwaited_ = false;
  std::atomic<POINT> place_ = POINT{};
  std::atomic<HWND> seen_ = nullptr;
  std::atomic<HWND> pressed_ = nullptr;
  std::atomic<Aim> aim_ = Aim::Open;
  std::atomic<WPARAM> character_ = 0;
  std::atomic<UINT> command_ = 0;
  std::atomic<bool> commandTaken_ = false;
  std::atomic<POINT> mouse_ = kNowhere;
};

}  // namespace driver
