// The commands that return a value, or prepare the environment of the program.
#include "driver/calls.h"
#include "driver/driver.h"
#include "driver/properties.h"

namespace driver {

namespace {

Json valueOf(const std::optional<std::string>& text) {
  return {{"value", text ? Json(*text) : Json(nullptr)}};
}

}  // namespace

void Driver::clipboard(Command& command) {
  const std::string what = command.word();
  if (what == "set") {
    const std::string text = command.text();
    command.end();
    stage_.setClipboard(text);
  } else if (what == "clear") {
    command.end();
    stage_.setClipboard({});
  } else if (what == "get") {
    command.end();
    value_ = valueOf(stage_.clipboardText());
  } else {
    throw CommandError("set, get or clear");
  }
}

void Driver::store(Command& command) {
  const std::string what = command.word();
  if (what == "clear") {
    command.end();
    return stage_.clearSettings();
  }
  if (what == "dump") {
    command.end();
    value_ = {{"value", stage_.dumpSettings()}};
    return;
  }
  const std::string section = command.word();
  const std::string key = command.word();
  if (what == "set") {
    const std::string text = command.text();
    command.end();
    return stage_.writeSetting(section, key, text);
  }
  command.end();
  if (what == "get") {
    value_ = valueOf(stage_.readSetting(section, key));
  } else if (what == "delete") {
    stage_.deleteSetting(section, key);
  } else {
    throw CommandError("set, get, delete, clear or dump");
  }
}

void Driver::registry(Command& command) {
  if (command.word() != "set") throw CommandError("registry set KEY NAME TEXT");
  std::vector<std::string> texts = {command.text(), command.text(), command.text()};
  command.end();
  if (!stage_.arrange("registry", texts)) throw CommandError("not in the real windows");
}

void Driver::arrange(const std::string& name, Command& command) {
  std::vector<std::string> texts;
  while (!command.atEnd()) texts.push_back(command.text());
  if (!stage_.arrange(name, texts)) throw CommandError("not in the real windows");
}

void Driver::call(Command& command) {
  const std::string name = command.word();
  std::vector<Json> arguments;
  while (!command.atEnd()) arguments.push_back(command.value());
  value_ = callFunction(name, arguments);
}

void Driver::get(Command& command) {
  const std::string name = command.word();
  const std::string property = command.word();
  command.end();
  Json value;
  std::string failure;
  stage_.inspect([&] {
    try {
      value = readProperty(stage_, name, property);
    } catch (const CommandError& error) {
      failure = error.what();
    }
  });
  if (!failure.empty()) throw CommandError(failure);
  value_ = {{"value", value}};
}

void Driver::snapshot(Command& command) {
  command.end();
  controls::Window& main = window("frmCalc");
  stage_.inspect([&] { value_ = takeSnapshot(main); });
}

void Driver::events(Command& command) {
  command.end();
  const Events events = stage_.takeEvents();
  Json boxes = Json::array();
  for (const SeenBox& box : events.boxes)
    boxes.push_back({{"text", box.text},
                     {"title", box.title},
                     {"buttons", box.buttons},
                     {"icon", box.icon},
                     {"answer", box.answer}});
  Json launches = Json::array();
  for (const auto& [program, keys, text] : events.launches) {
    launches.push_back({{"program", program}, {"keys", keys}});
    if (text) launches.back()["text"] = *text;
  }
  Json help = Json::array();
  for (const auto& request : events.helpRequests) {
    const bool winHelp = request.caller == controls::HelpRequest::Caller::WinHelp;
    help.push_back({{"call", winHelp ? "WinHelp" : "CommonDialog"},
                    {"file", request.file},
                    {"command", request.command},
                    {"data", request.data}});
  }
  value_ = {{"beeps", events.beeps}, {"boxes", boxes}, {"launches", launches}, {"help", help}};
}

}  // namespace driver
