#include "driver/native_stage.h"

#include <chrono>
#include <exception>
#include <utility>

#include "driver/command.h"
#include "driver/native_handles.h"
#include "driver/native_screen.h"
#include "support/clipboard.h"
#include "support/retries.h"
#include "support/wine.h"
#include "win32/message_loop.h"

namespace driver {

namespace {

// The interval at which open dialogs are looked for.
constexpr DWORD kGlance = 2;
// Longer than any handler or program start takes.
constexpr DWORD kPatience = 30000;
// A mark never takes this long while the program is in front.
constexpr DWORD kMarkIsLate = 200;
constexpr auto kLoopIsInner = std::chrono::milliseconds(200);

void sendInputs(std::vector<INPUT> inputs) {
  const auto count = static_cast<UINT>(inputs.size());
  if (SendInput(count, inputs.data(), sizeof(INPUT)) != count)
    throw CommandError("the system takes no input");
}

}  // namespace

NativeStage::NativeStage() {
  support::setClipboardText({});
  clearAllStored();
  desktop_.clearTapes();
}

NativeStage::~NativeStage() {
  desktop_.closeLaunched();
  desktop_.tapeSafe().clear();
  desktop_.clearTapes();
  clearAllStored();
}

void NativeStage::run() {
  win32::runMessageLoop(desktop_);
  ended_.set_value();
}

// A loop of the system's, as while the frame of a window is dragged, takes the end for its own;
// that of an open menu goes on in spite of it.
void NativeStage::end() {
  std::future<void> ended = ended_.get_future();
  do
    ui_.post([] {
      EndMenu();
      win32::endMessageLoop();
    });
  while (ended.wait_for(kLoopIsInner) == std::future_status::timeout);
}

controls::Window* NativeStage::findWindow(std::string_view name) {
  return app_ ? app_->findWindow(name) : nullptr;
}

bool NativeStage::running() {
  bool runs = false;
  inspect([&] { runs = app_ && !app_->ended(); });
  return runs;
}

// Waits until the program has finished, and answers the boxes that it shows meanwhile.
void NativeStage::settle() {
  support::noteAction();
  const ULONGLONG start = GetTickCount64();
  ULONGLONG marked = start;
  bool starting = false;
  for (;;) {
    const bool reached = ui_.waitUntilReached(kGlance);
    // Waits once more after a program has been started, since marks arrive during that too.
    const bool wasStarting = std::exchange(starting, desktop_.isStarting());
    if (boxes_.attend() || starting || wasStarting) {
      // The mark may have arrived while the box was open: its handler continues only now.
      ui_.post([] {});
    } else if (reached) {
      return checkScreen();
    }
    const ULONGLONG now = GetTickCount64();
    if (now - start > kPatience) throw CommandError("the program does not answer");
    if (now - marked < kMarkIsLate) continue;
    marked = now;
    remark();
  }
}

// Answers report the program's own state; this verifies that the screen shows the same.
void NativeStage::checkScreen() {
  std::string difference;
  inspect([&] {
    for (const auto name : {"frmCalc", "frmAnnuity", "frmAbout"}) {
      const controls::Window* window = findWindow(name);
      if (window && difference.empty()) difference = differenceOnScreen(*window);
    }
  });
  if (!difference.empty()) throw CommandError("on the screen: " + difference);
}

// A mark is lost if no window of the program was in front.
void NativeStage::remark() {
  if (isInFront()) return sendInputs({ui_.nextMark()});
  ui_.forgetMarks();
  ui_.markRest();
}

// Runs `body` on the program's thread, after all messages posted so far.
void NativeStage::act(const std::function<void()>& body) {
  clearAway();
  std::exception_ptr failure;
  ui_.post([&] {
    try {
      body();
    } catch (...) {
      failure = std::current_exception();
    }
  });
  // Runs after the tasks that the program posted during that event.
  ui_.post([] {});
  settle();
  if (failure) std::rethrow_exception(failure);
}

// Posts a message as the system would for an action of the user.
void NativeStage::deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  clearAway();
  PostMessageW(window, message, wParam, lParam);
  ui_.post([] {});
  settle();
}

// Closes windows of started programs before the user continues. Wine may then give the keys to
// another window of ours than the one that had them before.
void NativeStage::clearAway() {
  const controls::Window* active = nullptr;
  inspect([&] {
    if (desktop_.closeLaunched()) active = desktop_.activeWindow();
  });
  if (active && support::isWine()) raise(*active);
}

// Wine gives a window the keys without raising it where another has just come to the front.
void NativeStage::putInFront(const controls::Window& window) {
  if (GetForegroundWindow() != handleOf(window)) raise(window);
}

void NativeStage::raise(const controls::Window& window) {
  HWND handle = handleOf(window);
  act([handle] {
    SetForegroundWindow(handle);
    BringWindowToTop(handle);
  });
}

// Makes sure that keys go to the program and to no other.
void NativeStage::putProgramInFront() {
  clearAway();
  if (isInFront()) return;
  const controls::Window* active = nullptr;
  inspect([&] { active = desktop_.activeWindow(); });
  if (active && support::isWine()) {
    support::noteRetry("the program brought to the front");
    putInFront(*active);
  }
  if (!isInFront()) throw CommandError("the program is not in front");
}

// Another program may be in front for a moment, but the mouse still reaches ours.
void NativeStage::send(std::vector<INPUT> inputs) {
  const bool inFront = isInFront();
  if (inFront) inputs.push_back(ui_.nextMark());
  sendInputs(std::move(inputs));
  if (!inFront) ui_.markRest();
  settle();
}

void NativeStage::sendKeys(std::vector<INPUT> inputs) {
  putProgramInFront();
  ui_.expectKey(0);
  send(std::move(inputs));
}

void NativeStage::start(const std::string& name) {
  act([&] {
    app_.reset();
    desktop_.setProgramName(name);
    app_ = std::make_unique<app::Application>(desktop_);
    desktop_.events().runEvent([&] { app_->start(); });
  });
}

// The end of a process closes its files and windows.
void NativeStage::crash() {
  act([&] {
    desktop_.loseTape();
    app_.reset();
  });
}

}  // namespace driver
