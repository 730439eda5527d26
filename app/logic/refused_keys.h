// SPDX-License-Identifier: GPL-3.0-or-later
// Keys whose letters a box has not taken, from the moment they go down until they go up.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace odmiennik::app {

// A text that comes without a key, from an input method, counts as this one.
inline constexpr std::uint32_t kNoPhysicalKey = 0;

class RefusedKeys {
 public:
  // A key goes down; what it types is not known yet.
  void pressed(std::uint32_t physicalKey) {
    pressed_ = physicalKey;
    std::erase(refused_, physicalKey);
  }

  // A letter of the key that went down last has been refused.
  void refuse() {
    if (!isRefused(pressed_)) refused_.push_back(pressed_);
  }

  [[nodiscard]] bool isRefused(std::uint32_t physicalKey) const {
    return std::ranges::find(refused_, physicalKey) != refused_.end();
  }

 private:
  std::uint32_t pressed_ = kNoPhysicalKey;
  std::vector<std::uint32_t> refused_;
};

}  // namespace odmiennik::app
