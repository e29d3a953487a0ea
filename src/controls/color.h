#pragma once

#include <cstdint>

namespace controls {

/// A background color: a number (red + 256 x green + 65536 x blue), or a color of the user's
/// scheme.
class Color {
 public:
  enum class Scheme { None, Window, ButtonFace };

  static constexpr Color rgb(std::uint32_t value) { return Color(Scheme::None, value); }
  static constexpr Color window() { return Color(Scheme::Window, 0); }
  static constexpr Color buttonFace() { return Color(Scheme::ButtonFace, 0); }

  constexpr Scheme scheme() const { return scheme_; }
  /// The color number. Meaningless for a color of the scheme.
  constexpr std::uint32_t value() const { return value_; }

  bool operator==(const Color&) const = default;

 private:
  constexpr Color(Scheme scheme, std::uint32_t value) : scheme_(scheme), value_(value) {}

  Scheme scheme_;
  std::uint32_t value_;
};

}  // namespace controls
