#pragma once

#include "controls/buttons.h"
#include "engine/entry.h"

namespace engine {

/// The memory and its indicator. The memory keys neither print nor change the total.
class Memory {
 public:
  Memory(Entry& entry, controls::Button& light, controls::Desktop& desktop)
      : entry_(entry), light_(light), desktop_(desktop) {}

  /// Adds the entry to the memory, or replaces the memory by it.
  void add();
  void store();
  /// Puts the memory into the entry box, as if it had been typed.
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
