// Edit mode.
#include "dictionary/edit_mode.h"

#include <utility>

#include "dictionary/messages.h"
#include "dictionary/saving.h"
#include "engine/windows1252.h"

namespace odmiennik::dictionary {
namespace {

using enum EditStep;

// deliberate: three captions; the one at the start never comes back.
constexpr std::string_view kCaptionAtStart = "E&dytuj";
constexpr std::string_view kCaptionWhileEditing = "&Koniec edycji";
constexpr std::string_view kCaptionOnceLeft = "&Edytuj czasownik";

std::string editingCaption(std::string_view infinitive) {
  return std::string(kApplicationTitle) + " - edycja \"" + engine::toUtf8(infinitive) + '"';
}

}  // namespace

EditTurn EditMode::begin(EditCommand command, std::string_view entryText) {
  if (awaited_ != Awaited::nothing) return {{}, EditProgress::stopped};
  command_ = command;
  if (command == EditCommand::save)
    return isEditing_ ? save(entryText) : EditTurn{{}, EditProgress::stopped};
  if (command == EditCommand::restore)
    return isEditing_ ? EditTurn{{}, EditProgress::stopped}
                      : await(Awaited::consent, {askToRestore});
  if (hasUnsavedChanges()) return await(Awaited::answer, {askToSave});
  return carryOut(entryText);
}

EditTurn EditMode::goOn(bool isYes, std::string_view entryText) {
  switch (std::exchange(awaited_, Awaited::nothing)) {
    case Awaited::answer:
      if (isYes) return save(entryText);
      isGivenUp_ = true;
      return carryOut(entryText);
    case Awaited::record:
      return isYes ? recordWritten() : EditTurn{{}, EditProgress::stopped};
    case Awaited::conjugation:
      return carryOut(entryText);
    case Awaited::consent:
      if (isYes) return await(Awaited::removal, {removeRecord});
      break;
    case Awaited::removal:
      if (isYes) return {{showShownInfinitive, EditStep::conjugate}};
      break;
    case Awaited::nothing:
      break;
  }
  return {{}, EditProgress::stopped};
}

EditTurn EditMode::await(Awaited awaited, std::vector<EditStep> steps) {
  awaited_ = awaited;
  return {std::move(steps), EditProgress::waiting};
}

EditTurn EditMode::save(std::string_view entryText) {
  if (!isInfinitive(entryText)) return {{refuseInfinitive}, EditProgress::stopped};
  return await(Awaited::record, {writeRecord});
}

// Saving ends with the Conjugate command, and a command that wanted nothing but that is over with
// it; a new verb is still to be started.
EditTurn EditMode::recordWritten() {
  EditTurn turn = leaveAndConjugate();
  if (command_ == EditCommand::newVerb) return await(Awaited::conjugation, std::move(turn.steps));
  return turn;
}

EditTurn EditMode::carryOut(std::string_view entryText) {
  switch (command_) {
    case EditCommand::edit:
      return isEditing_ ? leaveAndConjugate() : enter(entryText);
    case EditCommand::newVerb:
      return startNewVerb();
    case EditCommand::conjugate:
      return isEditing_ ? leaveAndConjugate() : EditTurn{{EditStep::conjugate}};
    case EditCommand::close:
    case EditCommand::restore:
    case EditCommand::save:
      break;
  }
  return {};
}

EditTurn EditMode::enter(std::string_view entryText) {
  isEditing_ = true;
  infinitive_ = entryText;
  return {{showHourglass, present, conjugateForEditing, present, showPointer}};
}

// In edit mode already, it is entered once more: the boxes are filled anew.
EditTurn EditMode::startNewVerb() {
  EditTurn turn = enter({});
  turn.steps.insert(turn.steps.begin(), clearBoxes);
  turn.steps.push_back(restoreInfinitive);
  return turn;
}

EditTurn EditMode::leaveAndConjugate() {
  isEditing_ = false;
  hasBeenLeft_ = true;
  return {{present, EditStep::conjugate}};
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
  if (hasBeenLeft_) return {false, kCaptionOnceLeft, std::string(kApplicationTitle)};
  return {false, kCaptionAtStart, captionAtStart_};
}

}  // namespace odmiennik::dictionary
