#include "driver/native_stage.h"

#include <chrono>
#include <exception>
#include <utility>

#include "driver/command.h"
#include "driver/native_handles.h"
#include "driver/native_screen.h"
#include "driver/native_settings.h"
#include "support/clipboard.h"
#include "support/retries.h"
#include "win32/message_loop.h"

namespace driver {

namespace {

// How long a dialog may stand open before it is noticed.
constexpr DWORD kGlance = 2;
// Longer than any handler takes, and than a program needs to start.
constexpr DWORD kPatience = 30000;
// No mark takes that long while the program is in front.
constexpr DWORD kMarkIsLate = 200;
constexpr auto kLoopIsInner = std::chrono::milliseconds(200);

void sendInputs(std::vector<INPUT> inputs) {
  const auto count = static_cast<UINT>(inputs.size());
  if (SendInput(count, inputs.data(), sizeof(INPUT)) != count)
    throw CommandError("the system takes no input");
}

}  // namespace

NativeStage::NativeStage() {
  support::setClipboardText({}, ui_.window());
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

// A loop of the system's, as while the frame of a window is dragged, takes the end for its own.
void NativeStage::end() {
  std::future<void> ended = ended_.get_future();
  do ui_.post(win32::endMessageLoop);
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

// Until the program has done what it was asked for, with all boxes answered that it showed
// meanwhile.
void NativeStage::settle() {
  const ULONGLONG start = GetTickCount64();
  ULONGLONG marked = start;
  bool starting = false;
  for (;;) {
    const bool reached = ui_.waitUntilReached(kGlance);
    // Also once more behind the start of a program, during which marks pass as well.
    const bool wasStarting = std::exchange(starting, desktop_.isStarting());
    if (boxes_.attend() || starting || wasStarting) {
      // The box itself may have let the mark pass: the handler behind it goes on from here.
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

// What is answered is what the program believes to show; here it proves to be what is seen.
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

// A mark is lost when no window of the program was there to take it.
void NativeStage::remark() {
  support::noteRetry("a mark");
  if (isInFront()) return sendInputs({ui_.nextMark()});
  ui_.forgetMarks();
  ui_.markRest();
}

// On the program's thread, behind everything that the system has told it so far.
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
  // What the program has put off until the end of that event comes before this.
  ui_.post([] {});
  settle();
  if (failure) std::rethrow_exception(failure);
}

// A message that the system would send for what the person does.
void NativeStage::deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  clearAway();
  PostMessageW(window, message, wParam, lParam);
  ui_.post([] {});
  settle();
}

// What a program that was started leaves in front goes before the person goes on.
void NativeStage::clearAway() {
  inspect([this] { desktop_.closeLaunched(); });
}

void NativeStage::putInFront(const controls::Window& window) {
  HWND handle = handleOf(window);
  if (GetForegroundWindow() == handle) return;
  act([handle] { SetForegroundWindow(handle); });
}

// Keys go to the program alone: to no other, whatever has come to the front.
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

// The window in front may be another program's for a moment, and the mouse reaches ours all the
// same.
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
    app_->start();
  });
}

// A process that ends lets go of its files, and its windows are gone.
void NativeStage::crash() {
  act([&] {
    desktop_.loseTape();
    app_.reset();
  });
}

}  // namespace driver
