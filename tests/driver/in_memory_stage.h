#pragma once

#include <memory>

#include "app/application.h"
#include "driver/stage.h"
#include "inmemory/desktop.h"
#include "inmemory/keyboard.h"

namespace driver {

/// The program on controls without a screen.
class InMemoryStage : public Stage {
 public:
  void inspect(const std::function<void()>& body) override { body(); }
  controls::Window* findWindow(std::string_view name) override;
  bool running() override { return app_ && !app_->ended(); }
  void start(const std::string& name) override;
  void crash() override;
  void close(controls::Window& window) override {
    act([&] { window.requestClose(); });
  }
  void bringToFront(controls::Window& window) override {
    act([&] { window.show(); });
  }
  void keyDown(const controls::KeyStroke& stroke, controls::KeyAscii character) override {
    keyboard_.down(stroke, character);
  }
  void keyUp(const controls::KeyStroke& stroke) override;
  void click(controls::Control& control) override;
  void doubleClick(controls::Control& control) override;
  void focus(controls::Control& control) override;
  void useBoxMenu(controls::TextBox& box, controls::BoxCommand command) override;
  void choose(controls::MenuItem& item) override;
  void setState(controls::Window& window, controls::WindowState state) override;
  std::optional<std::string> clipboardText() override { return desktop_.clipboard; }
  void setClipboard(const std::optional<std::string>& text) override { desktop_.clipboard = text; }
  std::optional<std::string> readSetting(const std::string& section,
                                         const std::string& key) override {
    return desktop_.settings().read(section, key);
  }
  void writeSetting(const std::string& section, const std::string& key,
                    const std::string& text) override {
    desktop_.settings().write(section, key, text);
  }
  void deleteSetting(const std::string& section, const std::string& key) override;
  void clearSettings() override { desktop_.stores[desktop_.name].sections.clear(); }
  Json dumpSettings() override;
  void receive(const Request& request) override;
  void queueRequest(const Request& request) override {
    desktop_.meanwhile.push_back([this, request] { receive(request); });
  }
  void queueAnswer(int answer) override { desktop_.answers.push_back(answer); }
  void queueColor(const std::optional<std::uint32_t>& color) override {
    desktop_.colors.push_back(color);
  }
  Events takeEvents() override;
  bool arrange(const std::string& command, const std::vector<std::string>& texts) override;

 private:
  void act(const std::function<void()>& body) override { desktop_.events().runEvent(body); }

  inmemory::Desktop desktop_;
  inmemory::Keyboard keyboard_{desktop_};
  std::unique_ptr<app::Application> app_;
};

}  // namespace driver
