// SPDX-License-Identifier: GPL-3.0-or-later
// Edit mode.
#include "app/logic/edit_mode.h"

#include <optional>

#include "data/messages.h"
#include "engine/normalization.h"
#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using dictionary::UserVerbRecord;

// deliberate: three captions; the one at the start never comes back.
constexpr Utf8View kCaptionAtStart = "E&dytuj";
constexpr Utf8View kCaptionWhileEditing = "&Koniec edycji";
constexpr Utf8View kCaptionOnceLeft = "&Edytuj czasownik";

Utf8Text editingCaption(std::string_view infinitive) {
  return Utf8Text(dictionary::kApplicationTitle) + " - edycja \"" + engine::toUtf8(infinitive) +
         '"';
}

}  // namespace

// Saving ends with the Conjugate command: a command that wanted nothing but that is over with it.
bool EditMode::edit() {
  const Turn turn(isBusy_);
  const Changes changes = turn.mayRun() ? settleChanges() : Changes::kept;
  if (changes == Changes::none && isEditing_)
    leave();
  else if (changes == Changes::none)
    enter(window_.entryText());
  return changes != Changes::kept;
}

bool EditMode::conjugate() {
  const Turn turn(isBusy_);
  const Changes changes = turn.mayRun() ? settleChanges() : Changes::kept;
  if (changes == Changes::none && isEditing_)
    leave();
  else if (changes == Changes::none)
    filled(window_.conjugate());
  return changes != Changes::kept;
}

// In edit mode already, it is entered once more: the boxes are filled anew.
bool EditMode::newVerb() {
  const Turn turn(isBusy_);
  if (!turn.mayRun() || settleChanges() == Changes::kept) return false;
  const std::string typed = window_.entryText();
  isEditing_ = true;
  window_.clearBoxes();
  enter({});
  window_.setEntryText(engine::trimmed(typed));
  return true;
}

bool EditMode::save() {
  const Turn turn(isBusy_);
  return turn.mayRun() && isEditing_ && saveNow();
}

bool EditMode::restore() {
  const Turn turn(isBusy_);
  const std::string stored = window_.storedInfinitive();
  if (!turn.mayRun() || isEditing_ || stored.empty()) return false;
  if (!ask(MessageId::restoreProgramForms, stored)) return false;
  if (!window_.remove(window_.storedInfinitive())) return false;
  window_.setEntryText(window_.shownInfinitive());
  filled(window_.conjugate());
  return true;
}

bool EditMode::leaveForClosing() {
  const Turn turn(isBusy_);
  return turn.mayRun() && settleChanges() != Changes::kept;
}

EditMode::Changes EditMode::settleChanges() {
  if (!hasUnsavedChanges()) return Changes::none;
  if (ask(MessageId::saveEditedVerb, window_.entryText()))
    return saveNow() ? Changes::saved : Changes::kept;
  isGivenUp_ = true;
  return Changes::none;
}

bool EditMode::saveNow() {
  if (!isInfinitive(window_.entryText())) {
    messages_.show(MessageId::infinitiveNeeded);
    return false;
  }
  const UserVerbRecord record = window_.record();
  if (!mayBeWritten(record) || !window_.write(record)) return false;
  leave();
  return true;
}

bool EditMode::ask(MessageId question, std::string_view infinitive) {
  return messages_.show(question, engine::toUtf8(infinitive)) == Button::yes;
}

// Tells or asks about the form that stands in the way, and leads to it.
bool EditMode::mayBeWritten(const UserVerbRecord& record) {
  const auto show = [&](MessageId message, int slot) {
    return messages_.show(message, engine::toUtf8(record.forms[slot]));
  };
  std::optional<int> faulty = dictionary::quotedForm(record);
  if (faulty) {
    show(MessageId::formCannotBeSaved, *faulty);
  } else {
    faulty = formWithComma(record);
    if (faulty && show(MessageId::commaInForm, *faulty) == Button::yes) faulty.reset();
  }
  if (faulty) window_.focusForm(*faulty);
  return !faulty;
}

void EditMode::enter(std::string_view infinitive) {
  isEditing_ = true;
  infinitive_ = infinitive;
  window_.showHourglass(true);
  window_.present(presentation());
  filled(window_.conjugateForEditing());
  window_.present(presentation());
  window_.showHourglass(false);
}

void EditMode::leave() {
  isEditing_ = false;
  hasBeenLeft_ = true;
  window_.present(presentation());
  filled(window_.conjugate());
}

bool EditMode::boxChanged(std::string_view entryText) {
  isSaved_ = isGivenUp_ = false;
  if (isEditing_) infinitive_ = entryText;
  return isEditing_;
}

void EditMode::filled(std::string_view infinitive) {
  isSaved_ = true;
  if (isEditing_) infinitive_ = infinitive;
}

EditPresentation EditMode::presentation() const {
  if (isEditing_) return {true, kCaptionWhileEditing, editingCaption(infinitive_)};
  if (hasBeenLeft_) return {false, kCaptionOnceLeft, Utf8Text(dictionary::kApplicationTitle)};
  return {false, kCaptionAtStart, captionAtStart_};
}

}  // namespace odmiennik::app
