// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the tenses.
#include "app/logic/tense_topics.h"

#include "engine/slots.h"

namespace odmiennik::app {
namespace {

constexpr Utf8View kPageFolder = "strony\\";

struct WindowTopic {
  Utf8View window;
  Utf8View page;
};

constexpr WindowTopic kWindowTopics[] = {
    {"frmLista", "strony\\Lista.htm"},
    {"frmZnajdź", "strony\\OdFormy.htm"},
    {"frmSkąd", "strony\\OdFormy.htm"},
    {"frmZapisListy", "strony\\ZapisOdmiany.htm"},
    {"dlgZapiszJako", "strony\\ZapisOdmiany.htm"},
    {"frmKolory", "strony\\Litery.htm"},
    {"dlgCommonDialog", "strony\\Drukowanie.htm"},
    {"frmPomoc", "strony\\OknoPomocy.htm"},
    {"frmTip", kWelcomePage},
    {"frmAbout", kWelcomePage},
};

Utf8Text inFolder(Utf8View page) { return Utf8Text(kPageFolder).append(page); }

constexpr bool onlyTheFirstHaveAPage() {
  for (int heading = 0; heading < kTenseHeadings; ++heading)
    if (kTenseTopics[static_cast<std::size_t>(heading)].page.empty() != (heading >= kTopicHeadings))
      return false;
  return true;
}
static_assert(onlyTheFirstHaveAPage());

}  // namespace

std::optional<Utf8Text> topicOf(int heading) {
  if (heading < 0 || heading >= kTopicHeadings) return std::nullopt;
  return inFolder(kTenseTopics[static_cast<std::size_t>(heading)].page);
}

std::optional<Utf8Text> topicOfSlot(int slot) {
  const auto tense = &engine::tenseOf(slot) - engine::kTenses.data();
  const Utf8View page = kTensePages[static_cast<std::size_t>(tense)];
  return page.empty() ? std::nullopt : std::optional(inFolder(page));
}

std::optional<Utf8View> topicOfWindow(Utf8View window) {
  for (const WindowTopic& topic : kWindowTopics)
    if (topic.window == window) return topic.page;
  return std::nullopt;
}

TopicHover::Change TopicHover::moved(int heading) {
  Change change;
  if (heading < 0 || heading >= kTopicHeadings) return change;
  bool& previous = underlined_[static_cast<std::size_t>(last_)];
  bool& current = underlined_[static_cast<std::size_t>(heading)];
  if (heading != last_ && previous) change.off = last_;
  if (heading != last_) previous = false;
  if (!current) change.on = heading;
  current = true;
  last_ = heading;
  return change;
}

std::optional<Utf8Text> TopicHover::clicked(int heading) const {
  return isUnderlined(heading) ? topicOf(heading) : std::nullopt;
}

}  // namespace odmiennik::app
