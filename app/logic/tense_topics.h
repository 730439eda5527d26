// The headings of the tenses and their pages in the help.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace odmiennik::app {

// The headings lblCzas; the first 17 of them open a page.
inline constexpr int kTenseHeadings = 21;
inline constexpr int kTopicHeadings = 17;

// One heading, in the order of lblCzas. `firstSlot` is that of the forms below it; `page` is empty
// where there is none.
struct TenseHeading {
  std::string_view caption;
  std::string_view mood;
  std::string_view page;
  int firstSlot;
};

// deliberate: the pages keep their mixture of spellings, since they name pages of the help file; so
// do the captions "CONDITIONEL" and "1-er forme".
inline constexpr std::array<TenseHeading, kTenseHeadings> kTenseTopics{{
    {"Présent", "INDICATIF", "PresentIndicatif.htm", 0},
    {"Imparfait", "INDICATIF", "ImparfaitIndicatif.htm", 6},
    {"Passé composé", "INDICATIF", "PasseCompose.htm", 24},
    {"Plus-que-parfait", "INDICATIF", "Plus-que-parfaitIndicatif.htm", 30},
    {"Futur antérieur", "INDICATIF", "FuturAnterieur.htm", 42},
    {"Passé antérieur", "INDICATIF", "PasséAntérieur.htm", 36},
    {"Futur simple", "INDICATIF", "FuturSimple.htm", 18},
    {"Passé simple", "INDICATIF", "PasseSimple.htm", 12},
    {"Présent", "SUBJONCTIF", "PresentSubjonctif.htm", 48},
    {"Imparfait", "SUBJONCTIF", "ImparfaitSubjonctif.htm", 54},
    {"Passé", "SUBJONCTIF", "Passé_Subjonctif.htm", 60},
    {"Plus-que-parfait", "SUBJONCTIF", "Plus-que-parfait_Subjonctif.htm", 66},
    {"Passé 2-e forme", "CONDITIONEL", "ConditionnelPassé2.htm", 84},
    {"Passé 1-er forme", "CONDITIONEL", "ConditionnelPassé1.htm", 78},
    {"Présent", "CONDITIONEL", "ConditionelPrésent.htm", 72},
    {"Passé", "IMPÉRATIF", "PasséImpératif.htm", 93},
    {"Présent", "IMPÉRATIF", "PrésentImpératif.htm", 90},
    {"Présent", "INFINITIF", "", 96},
    {"Passé", "INFINITIF", "", 97},
    {"Passé", "PARTICIPE", "", 99},
    {"Présent", "PARTICIPE", "", 98},
}};

// Pages of the help that no heading opens, and the help context of the hint's Help button.
inline constexpr std::string_view kWelcomePage = "strony\\default.htm";
inline constexpr std::string_view kHowToPage = "strony\\JakOdmienic.htm";
inline constexpr int kHowToContext = 2;

// The page inside the help file: topicOf(0) -> "strony\PresentIndicatif.htm"; nothing for a heading
// without a page.
[[nodiscard]] std::optional<std::string> topicOf(int heading);

// The page of the tense or form that a box belongs to: topicOfSlot(98) ->
// "strony\ParticipePresent.htm"; nothing for the box in which the infinitive is typed.
[[nodiscard]] std::optional<std::string> topicOfSlot(int slot);

// The page of a window that is open beside the main one, by its object name:
// topicOfWindow("frmLista")
// -> "strony\Lista.htm"; nothing for windows without a page.
[[nodiscard]] std::optional<std::string_view> topicOfWindow(std::string_view window);

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
  [[nodiscard]] std::optional<std::string> clicked(int heading) const;

  [[nodiscard]] bool isUnderlined(int heading) const {
    return underlined_.at(static_cast<std::size_t>(heading));
  }

 private:
  std::array<bool, kTenseHeadings> underlined_{};
  int last_ = 0;
};

}  // namespace odmiennik::app
