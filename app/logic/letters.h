// The French letters that are typed by clicking.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "engine/french.h"

namespace odmiennik::app {

using Letters = std::array<std::string_view, 13>;

// The captions of the two arrays, Windows-1252; the letter typed is always the caption.
// deliberate: é and ê stand in opposite order in the two arrays.
inline constexpr Letters kCheckBoxLetters = [] {
  using namespace engine::literals;
  return Letters{"à"_fr, "â"_fr, "ä"_fr, "ç"_fr, "è"_fr, "é"_fr, "ê"_fr,
                 "ë"_fr, "î"_fr, "ï"_fr, "ô"_fr, "ù"_fr, "û"_fr};
}();
inline constexpr Letters kButtonLetters = [] {
  using namespace engine::literals;
  return Letters{"à"_fr, "â"_fr, "ä"_fr, "ç"_fr, "è"_fr, "ê"_fr, "é"_fr,
                 "ë"_fr, "î"_fr, "ï"_fr, "ô"_fr, "ù"_fr, "û"_fr};
}();

// What one run of a check box's click handler does.
struct LetterClick {
  bool insertsLetter = false;
  bool unticks = false;  // which raises the click once more
};

// `isTicked` is the value that the click has left. One click of the user so runs the handler twice,
// inserts the letter once and leaves the box unticked.
[[nodiscard]] LetterClick letterBoxClicked(bool isTicked, bool isReadOnly);

// A box's text (Windows-1252) and what is selected in it.
struct TextSelection {
  std::string text;
  std::size_t start = 0;
  std::size_t length = 0;

  bool operator==(const TextSelection&) const = default;
};

// The text with the letter in the place of the selection, the caret behind it; places outside the
// text count as its end.
[[nodiscard]] TextSelection withLetter(const TextSelection& box, std::string_view letter);

}  // namespace odmiennik::app
