// SPDX-License-Identifier: GPL-3.0-or-later
// The form table: one bare conjugated form a slot.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "engine/letters.h"
#include "engine/slots.h"

namespace odmiennik::engine {

// What a slot may hold instead of a form.
inline constexpr std::string_view kPlaceholder = "*";  // to be produced by rule
inline constexpr std::string_view kMissing = "@";      // does not exist; only in built-in data
inline constexpr std::string_view kShownMissing = " -- ";

// 101 texts in Windows-1252. Buffers are kept when a slot is rewritten, so that a program that
// conjugates verb after verb stops allocating.
class FormTable {
 public:
  [[nodiscard]] std::string& operator[](int slot) { return forms_[static_cast<std::size_t>(slot)]; }
  [[nodiscard]] const std::string& operator[](int slot) const {
    return forms_[static_cast<std::size_t>(slot)];
  }

  // Empties every slot.
  void clear() {
    for (std::string& form : forms_) form.clear();
  }

  [[nodiscard]] bool isPlaceholder(int slot) const { return (*this)[slot] == kPlaceholder; }

  [[nodiscard]] auto begin() const { return forms_.begin(); }
  [[nodiscard]] auto end() const { return forms_.end(); }

 private:
  std::array<std::string, kSlotCount> forms_;
};

// Sets `target` to the parts in a row; no part may be a view of `target`.
template <typename... Parts>
void setTo(std::string& target, const Parts&... parts) {
  const std::size_t size = (parts.size() + ...);
  // Not the size that is handed over: the library of GCC 12 hands over the capacity instead.
  target.resize_and_overwrite(size, [&](char* end, std::size_t /*capacity*/) {
    ((end = copyLetters(end, parts)), ...);
    return size;
  });
}

// `text` without its last `count` letters; a shorter text gives nothing: less("parler", 2) ->
// "parl".
[[nodiscard]] constexpr std::string_view less(std::string_view text, std::size_t count) {
  return text.substr(0, text.size() > count ? text.size() - count : 0);
}

// How a participle says that it agrees: "lavé(e)".
inline constexpr std::string_view kAgreementMarker = "(e)";

// A participle as it stands in a dictionary: withoutMarker("lavé(e)") -> "lavé".
[[nodiscard]] constexpr std::string_view withoutMarker(std::string_view participle) {
  return participle.ends_with(kAgreementMarker) ? less(participle, kAgreementMarker.size())
                                                : participle;
}

}  // namespace odmiennik::engine
