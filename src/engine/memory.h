#pragma once

#include "controls/buttons.h"
#include "engine/entry.h"

namespace engine {

/// The memory and its light. Its keys neither print nor change the total.
class Memory {
 public:
  Memory(Entry& entry, controls::Button& light, controls::Desktop& desktop)
      : entry_(entry), light_(light), desktop_(desktop) {}

  /// Adds the entry, or takes it in the place of what was stored.
  void add();
  void store();
  /// Puts what is stored into the entry box, as if it had been typed.
  void recall();
  void clear();

 private:
  void keep(double base);

  Entry& entry_;
  controls::Button& light_;
  controls::Desktop& desktop_;
  double stored_ = 0;
};

}  // namespace engine
