#pragma once

#include <windows.h>

#include <atomic>
#include <climits>
#include <cstdint>
#include <functional>

namespace driver {

/// The program's thread, as the person in front of the program reaches it from a thread of their
/// own. Made and destroyed on the program's thread; everything else is called from the person's.
class UiThread {
 public:
  UiThread();
  ~UiThread();
  UiThread(const UiThread&) = delete;
  UiThread& operator=(const UiThread&) = delete;

  /// An invisible window of the program's thread.
  HWND window() const { return window_; }

  /// Runs `body` there between two messages, and returns when it is done. Not for a body that opens
  /// a dialog: there would be nothing left to answer it. What it throws is thrown here.
  void inspect(const std::function<void()>& body);
  /// Leaves `body` to be run there, behind every message that has been posted so far.
  void post(std::function<void()> body);
  /// The release of a key that no keyboard has, which ends up behind everything that was typed and
  /// clicked before it. The program never sees it.
  INPUT nextMark();
  /// The same without a key, for when no window of the program is in front to take one: the program
  /// has come there when nothing that was posted and no input is left to be taken.
  void markRest();
  /// Waits until everything left by post has run and the last marks have come in. False when it
  /// takes longer.
  bool waitUntilReached(DWORD milliseconds);
  /// The system may report late that the mouse was moved, and so carry a click elsewhere. Clicks
  /// that carry kAimedInput come through only at `place`, when the last move that was reported has
  /// led there, while `seen` is what is seen there (nothing: whatever is seen) and `pressed` holds
  /// the mouse (nothing: whatever does).
  void expectClick(POINT place, HWND seen, HWND pressed);
  /// It may also believe that a held key came up, and so take Shift or Alt from a stroke. Strokes
  /// that carry kHeldInput come through only while the keys are held that they name, and only with
  /// that character (0: whichever it is).
  void expectKey(WPARAM character);
  /// Whether what was expected last has come in, and come through.
  bool hit() const { return aim_ == Aim::Good; }
  /// Whether it has come in, and was swallowed.
  bool missed() const { return aim_ == Aim::Missed; }
  /// A menu may close before it is clicked on, so that what came of a click shows in the command
  /// alone.
  void expectCommand(UINT command);
  /// Whether the program has taken that command since the last call of expectCommand.
  bool commandTaken() const { return commandTaken_; }
  /// Whether the last move that the system has reported led to `place`.
  bool isMouseAt(POINT place) const;
  /// Before a move to `place`: waitForMove then waits for the report of that one. False when it
  /// takes longer.
  void expectMove(POINT place);
  bool waitForMove(DWORD milliseconds);
  static constexpr ULONG_PTR kAimedInput = 0x7A5F0000;
  static constexpr ULONG_PTR kHeldInput = 0x7A600000;
  static constexpr ULONG_PTR kHeldShift = 1;
  static constexpr ULONG_PTR kHeldControl = 2;
  static constexpr ULONG_PTR kHeldAlt = 4;

  /// Marks that have not come in yet went to another program, and are waited for no longer. One
  /// that comes in all the same is not taken for a later one.
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
  // Counted on from one of these to the next, so that a mark that was late for one is not taken for
  // a mark of the next.
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
