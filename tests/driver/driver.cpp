#include "driver/driver.h"

#include "common/unicode.h"
#include "driver/keys.h"

namespace driver {

struct Driver::Entry {
  std::string_view name;
  Handler handler;
};

const Driver::Entry Driver::kCommands[] = {
    {"start", &Driver::start},
    {"crash", &Driver::crash},
    {"close", &Driver::close},
    {"askclose", &Driver::askToClose},
    {"endsession", &Driver::endSession},
    {"during", &Driver::queueRequest},
    {"window", &Driver::bringToFront},
    {"type", &Driver::type},
    {"roll", &Driver::roll},
    {"press", &Driver::press},
    {"click", &Driver::click},
    {"dblclick", &Driver::doubleClick},
    {"focus", &Driver::focus},
    {"select", &Driver::select},
    {"mousepaste", &Driver::mousePaste},
    {"mousecut", &Driver::mouseCut},
    {"mousedelete", &Driver::mouseDelete},
    {"mouseundo", &Driver::mouseUndo},
    {"menu", &Driver::choose},
    {"resize", &Driver::resize},
    {"move", &Driver::move},
    {"minimize", &Driver::minimize},
    {"maximize", &Driver::maximize},
    {"restore", &Driver::restore},
    {"clipboard", &Driver::clipboard},
    {"store", &Driver::store},
    {"answer", &Driver::queueAnswer},
    {"color", &Driver::queueColor},
    {"programs", &Driver::programs},
    {"registry", &Driver::registry},
    {"files", &Driver::files},
    {"call", &Driver::call},
    {"get", &Driver::get},
    {"snapshot", &Driver::snapshot},
    {"events", &Driver::events},
    {"reset", &Driver::reset},
    {"quit", &Driver::quit},
};

std::string Driver::answer(const std::string& line) {
  const auto first = line.find_first_not_of(" \t\r");
  if (first == std::string::npos || line[first] == '#') return "";
  value_ = {{"ok", true}};
  try {
    Command command(line);
    carryOut(command);
  } catch (const std::runtime_error& error) {
    value_ = {{"error", error.what()}};
  }
  return value_.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::vector<std::string_view> Driver::commandNames() {
  std::vector<std::string_view> names;
  for (const Entry& entry : kCommands) names.push_back(entry.name);
  return names;
}

void Driver::carryOut(Command& command) {
  const std::string name = command.word();
  for (const Entry& entry : kCommands) {
    if (entry.name == name) return (this->*entry.handler)(command);
  }
  throw CommandError("no such command: " + name);
}

void Driver::requireRunning() {
  if (!stage_.running()) throw CommandError("the program does not run");
}

controls::Window& Driver::window(const std::string& name) {
  requireRunning();
  controls::Window* window = nullptr;
  stage_.inspect([&] { window = stage_.findWindow(name); });
  if (!window) throw CommandError("no such window: " + name);
  return *window;
}

controls::Window& Driver::freeWindow(const std::string& name) {
  controls::Window& found = window(name);
  if (!found.enabled()) throw CommandError("a dialog is in front of it");
  return found;
}

controls::Control& Driver::control(const std::string& name) {
  const auto point = name.find('.');
  controls::Window& owner = window(point == std::string::npos ? "frmCalc" : name.substr(0, point));
  controls::Control* control = owner.findControl(name.substr(point + 1));
  if (!control) throw CommandError("no such control: " + name);
  return *control;
}

controls::Control& Driver::usableControl(const std::string& name) {
  controls::Control& found = control(name);
  bool usable = false;
  stage_.inspect([&] {
    controls::Window& owner = found.window();
    usable = found.enabled() && found.visible() && owner.visible() && owner.enabled();
  });
  if (!usable) throw CommandError("disabled or not visible: " + name);
  return found;
}

controls::TextBox& Driver::textBox(const std::string& name) {
  auto* box = dynamic_cast<controls::TextBox*>(&control(name));
  if (!box) throw CommandError("not a text box: " + name);
  return *box;
}

void Driver::start(Command& command) {
  const std::string name = command.atEnd() ? "Tallyrex" : command.word();
  command.end();
  if (stage_.running()) throw CommandError("the program runs already");
  stage_.start(name);
}

void Driver::crash(Command& command) {
  command.end();
  requireRunning();
  stage_.crash();
}

void Driver::close(Command& command) {
  controls::Window& closing = freeWindow(command.word());
  command.end();
  stage_.close(closing);
}

void Driver::askToClose(Command& command) {
  const Request request = {command.word()};
  command.end();
  window(request.window);
  stage_.receive(request);
}

void Driver::endSession(Command& command) {
  command.end();
  requireRunning();
  stage_.receive({});
}

void Driver::queueRequest(Command& command) {
  const std::string name = command.word();
  Request request;
  if (name == "askclose") {
    request.window = command.word();
  } else if (name != "endsession") {
    throw CommandError("not one that comes from outside: " + name);
  }
  command.end();
  stage_.queueRequest(request);
}

void Driver::bringToFront(Command& command) {
  controls::Window& wanted = freeWindow(command.word());
  command.end();
  if (!wanted.visible()) throw CommandError("the window is not visible");
  stage_.bringToFront(wanted);
}

void Driver::type(Command& command) {
  const std::u16string text = common::toUtf16(command.text());
  command.end();
  requireRunning();
  for (const char16_t character : text) {
    const Stroke stroke = strokeOf(character);
    stage_.keyDown(stroke.key, stroke.character);
    stage_.keyUp(stroke.key);
  }
}

void Driver::roll(Command& command) {
  const std::u16string text = common::toUtf16(command.text());
  command.end();
  requireRunning();
  for (std::size_t i = 0; i < text.size(); ++i) {
    const Stroke stroke = strokeOf(text[i]);
    stage_.keyDown(stroke.key, stroke.character);
    if (i > 0) stage_.keyUp(strokeOf(text[i - 1]).key);
  }
  if (!text.empty()) stage_.keyUp(strokeOf(text.back()).key);
}

void Driver::press(Command& command) {
  const Stroke stroke = strokeNamed(command.word());
  command.end();
  requireRunning();
  stage_.keyDown(stroke.key, stroke.character);
  stage_.keyUp(stroke.key);
}

void Driver::click(Command& command) {
  controls::Control& wanted = usableControl(command.word());
  command.end();
  stage_.click(wanted);
}

void Driver::doubleClick(Command& command) {
  controls::Control& wanted = usableControl(command.word());
  command.end();
  stage_.doubleClick(wanted);
}

void Driver::focus(Command& command) {
  controls::Control& wanted = usableControl(command.word());
  command.end();
  bool takes = false;
  stage_.inspect([&] { takes = wanted.takesFocus(); });
  if (!takes) throw CommandError("it takes no focus");
  stage_.focus(wanted);
}

void Driver::select(Command& command) {
  controls::TextBox& box = textBox(command.word());
  const int start = command.number();
  const int length = command.number();
  command.end();
  stage_.select(box, start, length);
}

// Restores the clipboard afterwards.
void Driver::mousePaste(Command& command) {
  const std::string text = command.text();
  command.end();
  auto& box = dynamic_cast<controls::TextBox&>(usableControl("txtEntry"));
  const auto before = stage_.clipboardText();
  stage_.setClipboard(text);
  try {
    stage_.useBoxMenu(box, controls::BoxCommand::Paste);
  } catch (const CommandError&) {
    stage_.setClipboard(before);
    throw;
  }
  stage_.setClipboard(before);
}

void Driver::useEntryMenu(controls::BoxCommand chosen, Command& command) {
  command.end();
  stage_.useBoxMenu(dynamic_cast<controls::TextBox&>(usableControl("txtEntry")), chosen);
}

void Driver::choose(Command& command) {
  const std::string name = command.word();
  command.end();
  controls::Window& owner = window("frmCalc");
  controls::MenuItem* item = owner.findMenuItem(name);
  if (!item) throw CommandError("no such menu item: " + name);
  bool can = false;
  stage_.inspect([&] { can = item->canBeChosen() && owner.visible() && owner.enabled(); });
  if (!can) throw CommandError("disabled, or a menu of its own: " + name);
  stage_.choose(*item);
}

void Driver::resize(Command& command) {
  controls::Window& sized = freeWindow(command.word());
  const int width = command.number();
  const int height = command.number();
  command.end();
  stage_.resize(sized, width, height);
}

void Driver::move(Command& command) {
  controls::Window& moved = freeWindow(command.word());
  const int left = command.number();
  const int top = command.number();
  command.end();
  stage_.move(moved, left, top);
}

void Driver::setState(Command& command, controls::WindowState state) {
  controls::Window& wanted = freeWindow(command.word());
  command.end();
  stage_.setState(wanted, state);
}

void Driver::queueAnswer(Command& command) {
  const int answer = command.number();
  command.end();
  if (answer != controls::kAnswerYes && answer != controls::kAnswerNo)
    throw CommandError("6 is Yes, 7 is No");
  stage_.queueAnswer(answer);
}

void Driver::queueColor(Command& command) {
  const std::string color = command.word();
  command.end();
  if (color == "cancel") return stage_.queueColor({});
  const Json number = Json::parse(color, nullptr, false);
  if (!number.is_number_unsigned()) throw CommandError("a color number, or cancel");
  stage_.queueColor(number.get<std::uint32_t>());
}

void Driver::end(Command& command, Ending ending) {
  command.end();
  ending_ = ending;
}

}  // namespace driver
