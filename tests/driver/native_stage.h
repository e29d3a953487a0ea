#pragma once

#include <future>
#include <memory>

#include "app/application.h"
#include "driver/native_boxes.h"
#include "driver/native_desktop.h"
#include "driver/native_keyboard.h"
#include "driver/native_mouse.h"
#include "driver/native_settings.h"
#include "driver/native_ui_thread.h"
#include "driver/stage.h"

namespace driver {

/// The program in its real windows. Created on the program's thread, which then runs the message
/// loop; all other functions are called from the user's thread.
class NativeStage : public Stage {
 public:
  NativeStage();
  ~NativeStage() override;

  /// Runs the message loop until `end` is called from the user's thread.
  void run();
  void end();

  /// Sends keyboard input in one call, and waits until the program has processed it.
  void sendKeys(std::vector<INPUT> inputs);
  /// Drags with the left mouse button from one place of the screen to another.
  void dragFrame(POINT from, POINT to);

  void inspect(const std::function<void()>& body) override { ui_.inspect(body); }
  controls::Window* findWindow(std::string_view name) override;
  bool running() override;
  void start(const std::string& name) override;
  void crash() override;
  void close(controls::Window& window) override {
    deliver(handleOf(window), WM_SYSCOMMAND, SC_CLOSE, 0);
  }
  void bringToFront(controls::Window& window) override { putInFront(window); }
  void keyDown(const controls::KeyStroke& stroke, controls::KeyAscii character) override;
  void keyUp(const controls::KeyStroke& stroke) override;
  void click(controls::Control& control) override { clickWithMouse(control, 1); }
  void doubleClick(controls::Control& control) override { clickWithMouse(control, 2); }
  void focus(controls::Control& control) override;
  void useBoxMenu(controls::TextBox& box, controls::BoxCommand command) override;
  void choose(controls::MenuItem& item) override;
  void setState(controls::Window& window, controls::WindowState state) override;
  std::optional<std::string> clipboardText() override;
  void setClipboard(const std::optional<std::string>& text) override;
  std::optional<std::string> readSetting(const std::string& section,
                                         const std::string& key) override {
    return readStored(desktop_.programName(), section, key);
  }
  void writeSetting(const std::string& section, const std::string& key,
                    const std::string& text) override {
    writeStored(desktop_.programName(), section, key, text);
  }
  void deleteSetting(const std::string& section, const std::string& key) override {
    deleteStored(desktop_.programName(), section, key);
  }
  void clearSettings() override { clearStored(desktop_.programName()); }
  Json dumpSettings() override { return dumpStored(desktop_.programName()); }
  void receive(const Request& request) override;
  void queueRequest(const Request& request) override {
    boxes_.queueRequest([this, request] { sendRequest(request); });
  }
  void queueAnswer(int answer) override { boxes_.queueAnswer(answer); }
  void queueColor(const std::optional<std::uint32_t>& color) override { boxes_.queueColor(color); }
  Events takeEvents() override;
  bool arrange(const std::string&, const std::vector<std::string>&) override { return false; }

 private:
  void send(std::vector<INPUT> inputs);
  void act(const std::function<void()>& body) override;
  void deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void sendRequest(const Request& request);
  void settle();
  void remark();
  void checkScreen();
  void clearAway();
  void putInFront(const controls::Window& window);
  void raise(const controls::Window& window);
  void putProgramInFront();
  HWND windowAt(POINT place);
  bool reach(controls::Control& control, POINT& place);
  bool openBoxMenu(controls::TextBox& box);
  void clickWithMouse(controls::Control& control, int times);
  void clickByMessages(HWND control, int times);
  void clickThrough(const std::vector<MenuPlace>& way, POINT place);
  bool clickAt(POINT place, MouseButton button);
  void clickSurely(POINT place);
  bool moveButton(MouseButton button, bool up, POINT place, HWND seen, HWND pressed);
  void moveMouse(POINT place);
  void cancelMouse();

  UiThread ui_;
  NativeBoxes boxes_;
  NativeDesktop desktop_{boxes_};
  NativeKeyboard keyboard_;
  std::unique_ptr<app::Application> app_;
  std::promise<void> ended_;
};

}  // namespace driver
