// Carries out what edit mode asks for.
#include "dictionary/edit_mode_runner.h"

#include "data/messages.h"
#include "dictionary/saving.h"
#include "engine/normalization.h"
#include "engine/windows1252.h"

namespace odmiennik::dictionary {
namespace {

class EditRun {
 public:
  EditRun(EditMode& mode, EditWindow& window, MessageBoxes& messages)
      : mode_(mode), window_(window), messages_(messages) {}

  // Takes the steps in order; the last one's answer.
  bool take(const EditTurn& turn) {
    bool isYes = true;
    for (const EditStep step : turn.steps) isYes = take(step);
    return isYes;
  }

 private:
  bool take(EditStep step) {
    switch (step) {
      case EditStep::askToSave:
        return askToSave();
      case EditStep::askToRestore:
        return askToRestore();
      case EditStep::writeRecord:
        return writeRecord();
      case EditStep::removeRecord:
        return window_.remove(window_.storedInfinitive());
      case EditStep::refuseInfinitive:
        messages_.show(MessageId::infinitiveNeeded);
        break;
      case EditStep::present:
        window_.present(mode_.presentation());
        break;
      case EditStep::showHourglass:
      case EditStep::showPointer:
        window_.showHourglass(step == EditStep::showHourglass);
        break;
      default:
        fillBoxes(step);
    }
    return true;
  }

  void fillBoxes(EditStep step) {
    if (step == EditStep::conjugate) mode_.filled(window_.conjugate());
    if (step == EditStep::conjugateForEditing) mode_.filled(window_.conjugateForEditing());
    if (step == EditStep::clearBoxes) clearBoxes();
    if (step == EditStep::showShownInfinitive) window_.setEntryText(window_.shownInfinitive());
    if (step == EditStep::restoreInfinitive) window_.setEntryText(remembered_);
  }

  void clearBoxes() {
    remembered_ = engine::trimmed(window_.entryText());
    window_.clearBoxes();
  }

  bool askToSave() {
    const std::string infinitive = engine::toUtf8(window_.entryText());
    return messages_.show(MessageId::saveEditedVerb, infinitive) == Button::yes;
  }

  bool askToRestore() {
    const std::string infinitive = engine::toUtf8(window_.storedInfinitive());
    return !infinitive.empty() &&
           messages_.show(MessageId::restoreProgramForms, infinitive) == Button::yes;
  }

  bool writeRecord() {
    const UserVerbRecord record = window_.record();
    const auto faulty = faultySlot(record);
    if (faulty) window_.focusForm(*faulty);
    return !faulty && window_.write(record);
  }

  // The slot whose form keeps the record from being saved, once the user has been told or asked.
  std::optional<int> faultySlot(const UserVerbRecord& record) {
    const auto show = [&](MessageId message, int slot) {
      return messages_.show(message, engine::toUtf8(record.forms[slot]));
    };
    if (const auto quoted = quotedForm(record)) {
      show(MessageId::formCannotBeSaved, *quoted);
      return quoted;
    }
    const auto split = formWithComma(record);
    if (split && show(MessageId::commaInForm, *split) == Button::yes) return std::nullopt;
    return split;
  }

  EditMode& mode_;
  EditWindow& window_;
  MessageBoxes& messages_;
  std::string remembered_;
};

}  // namespace

bool runEditCommand(EditCommand command, EditMode& mode, EditWindow& window,
                    MessageBoxes& messages) {
  EditRun run(mode, window, messages);
  EditTurn turn = mode.begin(command, window.entryText());
  bool isYes = run.take(turn);
  while (turn.progress == EditProgress::waiting) {
    turn = mode.goOn(isYes, window.entryText());
    isYes = run.take(turn);
  }
  return turn.progress == EditProgress::done;
}

}  // namespace odmiennik::dictionary
