#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/keys.h"
#include "controls/layout.h"

namespace controls {

class Window;

/// An item of a window's menu, or a menu that holds items.
class MenuItem {
 public:
  MenuItem(Window& window, const MenuItemLayout& layout, MenuItem* parent);
  virtual ~MenuItem() = default;
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  std::function<void()> onClick;

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption);
  /// "Ctrl+X", or empty.
  const std::string& shortcut() const { return shortcut_; }
  bool checked() const { return checked_; }
  void setChecked(bool checked);
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  MenuItem* parent() const { return parent_; }
  const std::vector<MenuItem*>& items() const { return items_; }
  bool isSeparator() const { return caption_ == "-"; }
  /// Whether it is an item, and it and every menu that contains it is enabled.
  bool canBeChosen() const;
  /// Raises Click if it can be chosen; returns whether it could.
  bool choose();
  bool hasShortcut(const KeyStroke& stroke) const;

 protected:
  virtual void showCaption() {}
  virtual void showChecked() {}
  virtual void showEnabled() {}

 private:
  Window& window_;
  MenuItem* parent_;
  std::vector<MenuItem*> items_;
  std::string name_;
  std::string caption_;
  std::string shortcut_;
  bool checked_;
  bool enabled_ = true;
};

}  // namespace controls
