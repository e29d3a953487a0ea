#pragma once

#include <map>
#include <string>

#include "driver/driver.h"
#include "fuzz/money.h"

namespace fuzz {

/// Carries out commands, and looks after each for what always holds, whatever the user did.
class Watch {
 public:
  explicit Watch(driver::Driver& driver) : driver_(driver) {}

  /// Carries out a command. What is wrong then, or nothing.
  std::string carryOut(const std::string& command);

 private:
  driver::Json ask(const std::string& command);
  bool isTrue(const std::string& command);
  driver::Json value(const std::string& command) {
    return ask(command).value("value", driver::Json());
  }
  driver::Json snapshot();
  std::string findBrokenMarks(const driver::Json& shown);
  /// The fields of the financial calculator as they stand and as they are stored.
  std::map<std::string, std::string> fields();
  std::map<std::string, std::string> storedFields();
  std::string findReplacedField(const std::map<std::string, std::string>& shown,
                                const std::map<std::string, std::string>& stored);

  driver::Driver& driver_;
  Money money_;
};

}  // namespace fuzz
