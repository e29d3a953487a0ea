#include "driver/in_memory_stage.h"

#include <utility>

#include "inmemory/window.h"

namespace driver {

controls::Window* InMemoryStage::findWindow(std::string_view name) {
  return app_ ? app_->findWindow(name) : nullptr;
}

void InMemoryStage::start(const std::string& name) {
  app_.reset();
  desktop_.name = name;
  app_ = std::make_unique<app::Application>(desktop_);
  act([this] { app_->start(); });
}

void InMemoryStage::crash() {
  desktop_.tapeSafe().lose();
  app_.reset();
}

void InMemoryStage::keyUp(const controls::KeyStroke& stroke) {
  if (!stroke.alt) keyboard_.up(stroke.key);
}

// A click brings the window to the front and gives the control the focus.
void InMemoryStage::focus(controls::Control& control) {
  bringToFront(control.window());
  act([&] { control.setFocus(); });
}

void InMemoryStage::click(controls::Control& control) {
  focus(control);
  if (auto* clickable = dynamic_cast<controls::ClickControl*>(&control))
    act([clickable] { clickable->click(); });
}

// For a button it is two clicks, unless the first one removed the button.
void InMemoryStage::doubleClick(controls::Control& control) {
  if (!dynamic_cast<controls::ClickControl*>(&control)) {
    focus(control);
    return act([&] { control.doubleClick(); });
  }
  const std::string window = control.window().name();
  const std::string name = control.name();
  click(control);
  const controls::Window* still = findWindow(window);
  if (!still || !still->visible() || !still->enabled()) return;
  controls::Control* again = still->findControl(name);
  if (again->visible() && again->enabled()) click(*again);
}

void InMemoryStage::useBoxMenu(controls::TextBox& box, controls::BoxCommand command) {
  focus(box);
  act([&] { box.closeMenu(command); });
}

// Only the main window has a menu.
void InMemoryStage::choose(controls::MenuItem& item) {
  bringToFront(*findWindow("frmCalc"));
  act([&] { item.choose(); });
}

void InMemoryStage::setState(controls::Window& window, controls::WindowState state) {
  act([&] {
    if (state != controls::WindowState::Normal) return window.setState(state);
    dynamic_cast<inmemory::Window&>(window).restore();
  });
}

void InMemoryStage::deleteSetting(const std::string& section, const std::string& key) {
  auto& sections = desktop_.stores[desktop_.name].sections;
  const auto found = sections.find(section);
  if (found == sections.end()) return;
  found->second.erase(key);
  if (found->second.empty()) sections.erase(found);
}

Json InMemoryStage::dumpSettings() {
  Json dump = Json::object();
  for (const auto& [section, values] : desktop_.stores[desktop_.name].sections)
    for (const auto& [key, text] : values) dump[section][key] = text;
  return dump;
}

void InMemoryStage::receive(const Request& request) {
  act([&] {
    if (request.window.empty()) return desktop_.endSession();
    if (controls::Window* window = findWindow(request.window)) window->requestClose();
  });
}

Events InMemoryStage::takeEvents() {
  Events events = {.beeps = std::exchange(desktop_.beeps, 0),
                   .helpRequests = std::exchange(desktop_.helpRequests, {})};
  for (const auto& [box, answer] : std::exchange(desktop_.boxes, {}))
    events.boxes.push_back({box.text, box.title,
                            box.buttons == controls::Buttons::Ok ? "OK" : "YesNo",
                            box.icon == controls::Icon::None ? "none" : "question", answer});
  for (const auto& [program, keys, text] : std::exchange(desktop_.launches, {}))
    events.launches.push_back({program, keys, text});
  return events;
}

bool InMemoryStage::arrange(const std::string& command, const std::vector<std::string>& texts) {
  if (command == "programs") {
    desktop_.programs = {texts.begin(), texts.end()};
  } else if (command == "files") {
    desktop_.files = {texts.begin(), texts.end()};
  } else {
    desktop_.registry[{texts[0], texts[1]}] = texts[2];
  }
  return true;
}

}  // namespace driver
