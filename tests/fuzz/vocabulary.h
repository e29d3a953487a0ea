#pragma once

#include <random>
#include <string>
#include <vector>

namespace fuzz {

/// Random commands of the driver: each control and menu item of the windows, each key with each
/// modifier, each setting is as likely as the next.
class Vocabulary {
 public:
  /// Without the commands that only the driver on controls in memory has.
  enum class For { InMemory, BothKinds };
  explicit Vocabulary(For use);

  std::string command(std::mt19937& random) const;
  /// The command that each template begins with.
  bool covers(std::string_view name) const;

 private:
  void add(std::string_view pattern) { patterns_.emplace_back(pattern); }
  void addKeys();
  void addWindows(For use);
  void addTexts();
  void addSettings();
  void addWorld();

  // Commands with placeholders: %amount and the like.
  std::vector<std::string> patterns_;
};

}  // namespace fuzz
