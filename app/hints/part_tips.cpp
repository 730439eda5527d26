// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the main window's parts.
#include "app/hints/part_tips.h"

#include <QAbstractButton>

#include "app/common/text.h"
#include "app/controls/form_surface.h"
#include "app/logic/form_phrase.h"
#include "app/logic/hints.h"
#include "app/logic/tense_topics.h"
#include "app/main_window/main_window.h"
#include "dictionary/verb_labels.h"

namespace odmiennik::app {
namespace {

struct NamedTip {
  Utf8View name;
  HintId hint;
};
constexpr NamedTip kPronouns[] = {{"ns", HintId::abbreviations},
                                  {"vs", HintId::abbreviations},
                                  {"il", HintId::pronounIl},
                                  {"ils", HintId::pronounIls}};

Utf8Text letterTip(const QWidget& control) {
  const QString letter = static_cast<const QAbstractButton&>(control).text();
  return hint(HintId::letter, toUtf8(letter));
}

Utf8Text labelTip(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  const bool isUnknown = label != nullptr && label->text() == fromUtf8(dictionary::kNoData);
  return isUnknown ? Utf8Text(hint(HintId::unknown)) : Utf8Text();
}

}  // namespace

QString PartTips::tipOf(const QWidget& control) const {
  const ControlRow* row = window_.controls().rowOf(control);
  return row == nullptr ? QString() : fromUtf8(textOf(*row, control));
}

QString PartTips::tipAt(const QPoint& place) const {
  FormSurface& surface = window_.surface();
  const auto slot = surface.pronouns().slotAt(place, surface.font());
  const Utf8Text pronoun = slot ? toUtf8(surface.pronouns().pronoun(*slot)) : Utf8Text();
  for (const NamedTip& tip : kPronouns)
    if (tip.name == pronoun) return fromUtf8(hint(tip.hint));
  return {};
}

Utf8Text PartTips::textOf(const ControlRow& row, const QWidget& control) const {
  if (row.name == "txtCzasownik") return formTipOf(row.index);
  if (row.name == "lblSubjoncif") return toUtf8(control.accessibleDescription());
  if (row.name == "cmdFrancuskaLitera" || row.name == "chkFrancuskaLitera")
    return letterTip(control);
  if (row.name == "lblCzas")
    return Utf8Text(row.index < kTopicHeadings ? hint(HintId::heading) : Utf8View());
  if (row.name == "chkZAvoir")
    return Utf8Text(hint(control.isEnabled() ? HintId::auxiliary : HintId::auxiliaryFixed));
  if (row.name == "cmdOdmień") return Utf8Text(hint(HintId::conjugateButton));
  return labelTip(control);
}

Utf8Text PartTips::formTipOf(int slot) const {
  const engine::Conjugation& conjugation = window_.conjugation();
  const std::string text = toFrench(window_.boxes()[slot].text());
  const bool isShown = text == conjugation.shown.boxes[static_cast<std::size_t>(slot)];
  return formTip({.slot = slot,
                  .text = text,
                  .flags = conjugation.flags,
                  .isOwn = isShown && conjugation.source == engine::Source::user,
                  .isEditing = window_.isEditing(),
                  .norm = isShown ? window_.normOf(slot) : std::string_view()});
}

}  // namespace odmiennik::app
