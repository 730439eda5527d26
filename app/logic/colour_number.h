// SPDX-License-Identifier: GPL-3.0-or-later
// Colours as the settings file keeps them.
#pragma once

#include <cstdint>
#include <optional>

namespace odmiennik::app {

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  bool operator==(const Rgb&) const = default;
};

// red + 256 x green + 65536 x blue: colourNumber({255, 0, 0}) -> 255.
[[nodiscard]] constexpr std::int32_t colourNumber(Rgb colour) {
  return colour.red + 256 * colour.green + 65536 * colour.blue;
}

// The colour of a number; nothing for a negative one, which is a system colour of old files. What a
// number holds beyond the three colours is left out.
[[nodiscard]] constexpr std::optional<Rgb> colourOf(std::int32_t number) {
  if (number < 0) return std::nullopt;
  const auto byte = [number](int shift) { return static_cast<std::uint8_t>(number >> shift); };
  return Rgb{byte(0), byte(8), byte(16)};
}

}  // namespace odmiennik::app
