#include "contract/kind.h"
#include "inmemory/desktop.h"
#include "inmemory/keyboard.h"

namespace contract {

namespace {

class InMemoryKind : public Kind {
 public:
  controls::Desktop& desktop() override { return desktop_; }

  void press(const controls::KeyStroke& stroke, controls::KeyAscii character) override {
    keyboard_.down(stroke, character);
    if (!stroke.alt) keyboard_.up(stroke.key);
  }

  void click(controls::Control& control) override {
    desktop_.events().runEvent([&] {
      control.setFocus();
      if (auto* clickable = dynamic_cast<controls::ClickControl*>(&control)) clickable->click();
    });
  }

  void whileClipboardIsLocked(const std::function<void()>& body) override {
    desktop_.clipboardLocked = true;
    body();
    desktop_.clipboardLocked = false;
  }

  void settle() override {}

 private:
  inmemory::Desktop desktop_;
  inmemory::Keyboard keyboard_{desktop_};
};

}  // namespace

std::unique_ptr<Kind> makeKind() {
  return std::make_unique<InMemoryKind>();
}

}  // namespace contract
