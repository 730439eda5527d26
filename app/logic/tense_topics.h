// SPDX-License-Identifier: GPL-3.0-or-later
// The headings of the tenses and their pages in the help.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "data/tense_help.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// The headings lblCzas; the first of them open a page, the others none.
inline constexpr int kTenseHeadings = static_cast<int>(kTenseTopics.size());
inline constexpr int kTopicHeadings = [] {
  int count = 0;
  for (const TenseHeading& heading : kTenseTopics) count += heading.page.empty() ? 0 : 1;
  return count;
}();

// Pages of the help that no heading opens, and the help context of the hint's Help button.
inline constexpr Utf8View kWelcomePage = "strony\\default.htm";
inline constexpr Utf8View kHowToPage = "strony\\JakOdmienic.htm";
inline constexpr int kHowToContext = 2;

// The page inside the help file: topicOf(0) -> "strony\PresentIndicatif.htm"; nothing for a heading
// without a page.
[[nodiscard]] std::optional<Utf8Text> topicOf(int heading);

// The page of the tense or form that a box belongs to: topicOfSlot(98) ->
// "strony\ParticipePresent.htm"; nothing for the box in which the infinitive is typed.
[[nodiscard]] std::optional<Utf8Text> topicOfSlot(int slot);

// The page of a window that is open beside the main one, by its object name:
// topicOfWindow("frmLista")
// -> "strony\Lista.htm"; nothing for windows without a page.
[[nodiscard]] std::optional<Utf8View> topicOfWindow(Utf8View window);

// The underlining of the headings under the pointer.
// deliberate: a heading stays underlined when the pointer leaves it, until another one is pointed
// at.
class TopicHover {
 public:
  struct Change {
    std::optional<int> off;  // heading whose underline goes
    std::optional<int> on;   // heading to be underlined

    bool operator==(const Change&) const = default;
  };

  // The pointer has moved over a heading; one without a page changes nothing.
  [[nodiscard]] Change moved(int heading);

  // The page that a click on the heading opens: that of an underlined heading only.
  [[nodiscard]] std::optional<Utf8Text> clicked(int heading) const;

  [[nodiscard]] bool isUnderlined(int heading) const {
    return underlined_.at(static_cast<std::size_t>(heading));
  }

 private:
  std::array<bool, kTenseHeadings> underlined_{};
  int last_ = 0;
};

}  // namespace odmiennik::app
