#include "controls/menu.h"

#include "controls/desktop.h"
#include "controls/window.h"

namespace controls {

MenuItem::MenuItem(Window& window, const MenuItemLayout& layout, MenuItem* parent)
    : window_(window),
      parent_(parent),
      name_(layout.name),
      caption_(layout.caption),
      shortcut_(layout.shortcut),
      checked_(layout.checked) {
  if (parent) parent->items_.push_back(this);
}

void MenuItem::setCaption(std::string_view caption) {
  caption_ = caption;
  showCaption();
}

void MenuItem::setChecked(bool checked) {
  checked_ = checked;
  showChecked();
}

void MenuItem::setEnabled(bool enabled) {
  enabled_ = enabled;
  showEnabled();
}

bool MenuItem::canBeChosen() const {
  if (!items_.empty() || isSeparator()) return false;
  for (const MenuItem* item = this; item; item = item->parent_)
    if (!item->enabled_) return false;
  return true;
}

bool MenuItem::choose() {
  if (!canBeChosen() || !window_.enabled()) return false;
  raise(onClick);
  return true;
}

// All menu shortcuts use Ctrl.
bool MenuItem::hasShortcut(const KeyStroke& stroke) const {
  return !shortcut_.empty() && stroke.control && !stroke.shift && stroke.key == shortcut_.back();
}

}  // namespace controls
