#include "shell/settings.h"

#include "common/number_text.h"

namespace shell {

namespace {

constexpr std::string_view kSection = "Settings";

}  // namespace

double Settings::number(std::string_view key, double fallback) const {
  return common::readNumber(store_, kSection, key, fallback);
}

controls::Twips Settings::twips(std::string_view key, controls::Twips fallback) const {
  return controls::clampedTwips(number(key, fallback));
}

bool Settings::truth(std::string_view key) const {
  return common::readTruth(store_, kSection, key, false);
}

std::string Settings::text(std::string_view key, std::string_view fallback) const {
  return common::readText(store_, kSection, key, fallback);
}

void Settings::write(std::string_view key, std::string_view text) {
  store_.write(kSection, key, text);
}

void Settings::writeNumber(std::string_view key, double number) {
  write(key, common::toText(number));
}

void Settings::writeTruth(std::string_view key, bool truth) {
  write(key, common::truthText(truth));
}

}  // namespace shell
