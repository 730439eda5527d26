// SPDX-License-Identifier: GPL-3.0-or-later
// The main window, put together from its parts.
#include "app/main_window/main_window.h"

#include <QMenuBar>
#include <QScopedValueRollback>
#include <QToolTip>

#include "app/common/announcement.h"
#include "app/common/text.h"
#include "app/controls/form_surface.h"
#include "app/controls/main_menu.h"
#include "app/logic/form_phrase.h"
#include "app/logic/spoken_verb.h"
#include "app/logic/start_up.h"
#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

// What a conjugation changes before it is known what was typed: put back unless it is discarded.
class ConjugationBackup {
 public:
  explicit ConjugationBackup(engine::Conjugation& conjugation)
      : conjugation_(conjugation),
        flags_(conjugation.flags),
        information_(conjugation.information),
        infinitive_(conjugation.forms[engine::slot::kInfinitive]),
        storedInfinitive_(conjugation.storedInfinitive),
        source_(conjugation.source),
        model_(conjugation.model) {}
  ConjugationBackup(const ConjugationBackup&) = delete;
  ConjugationBackup& operator=(const ConjugationBackup&) = delete;
  ~ConjugationBackup() {
    if (isDiscarded_) return;
    conjugation_.flags = flags_;
    conjugation_.information = information_;
    conjugation_.forms[engine::slot::kInfinitive] = infinitive_;
    conjugation_.storedInfinitive = storedInfinitive_;
    conjugation_.source = source_;
    conjugation_.model = model_;
  }

  void discard() { isDiscarded_ = true; }

 private:
  engine::Conjugation& conjugation_;
  engine::EngineFlags flags_;
  engine::VerbInformation information_;
  std::string infinitive_;
  std::string storedInfinitive_;
  engine::Source source_;
  Utf8View model_;
  bool isDiscarded_ = false;
};

}  // namespace

MainWindow::MainWindow(Conjugators conjugators, std::function<bool()> mayContinue)
    : conjugators_(conjugators),
      surface_(*new FormSurface(this)),
      controls_(surface_),
      columns_(controls_),
      colours_(controls_, surface_),
      scaling_(*this, surface_, controls_, columns_, std::move(mayContinue)),
      boxes_(controls_),
      information_(controls_),
      auxiliary_(controls_.get<QCheckBox>(positionOf("chkZAvoir"))) {
  setObjectName(fromUtf8(kMainWindow[0].name));
  setWindowTitle(fromUtf8(kMainWindow[0].caption));
  setCentralWidget(&surface_);
  setAnimated(false);  // the layout stands where the window's size says, at once
  buildMainMenu(*menuBar());
  for (int slot = 0; slot < engine::kPersonalSlotCount; ++slot)
    surface_.pronouns().setBox(slot, boxes_[slot].geometry());
  resize(sizeHint());
  connectControls();
}

MainWindow::~MainWindow() = default;

void MainWindow::showEmptyTable() {
  engine::Display& shown = conjugation_.shown;
  engine::chooseSubjectPronouns(conjugation_.forms, conjugation_.flags.hAspirate, shown.pronouns);
  engine::chooseSubjunctiveCaptions(conjugation_.forms, shown.captions);
  surface_.pronouns().show(shown.pronouns);
  boxes_.showCaptions(shown.captions);
  information_.show(conjugation_.information);
  auxiliary_.show(conjugation_);
  emit shownChanged();
}

bool MainWindow::showsVerb() const {
  const bool isConjugated =
      conjugation_.flags.isConjugationShown && conjugation_.source != engine::Source::none;
  return isEditing_ || isConjugated;
}

void MainWindow::selectEntryWord() {
  boxes_.entry().setText(fromUtf8(kEntryWord));
  boxes_.selectEntry();
}

void MainWindow::goToEntry() {
  activateWindow();
  boxes_.selectEntry();
}

void MainWindow::connectControls() {
  // From the list too.
  menuItem(*menuBar(), "mnuCzasownikBezokolicznik").setShortcutContext(Qt::ApplicationShortcut);
  // Not `clicked`: a screen reader ticks the box without clicking it.
  connect(&auxiliary_.widget(), &QCheckBox::toggled, this, &MainWindow::toggleAuxiliary);
}

void MainWindow::conjugate() {
  if (isConjugating_) return;
  const QScopedValueRollback<bool> conjugating(isConjugating_, true);
  const std::string typed = toFrench(boxes_.entry().text());
  ConjugationBackup backup(conjugation_);
  isAuxiliaryChosen_ = false;
  const engine::Outcome outcome = conjugators_.driver.conjugate(conjugation_, typed);
  if (outcome == engine::Outcome::reset) return;
  backup.discard();
  emit conjugated();
  showConjugation();
  if (outcome == engine::Outcome::conjugated) announce(spokenInformation());
  boxes_.selectEntry();
}

void MainWindow::conjugateForEditing() {
  const std::string typed = toFrench(boxes_.entry().text());
  ConjugationBackup backup(conjugation_);
  if (conjugators_.driver.conjugateForEditing(conjugation_, typed) == engine::Outcome::reset)
    return;
  backup.discard();
  showConjugation();
}

void MainWindow::setEditing(bool isEditing) {
  const FormColumns::Pause pause(columns_);
  isEditing_ = isEditing;
  boxes_.setEditable(isEditing);
  showDepartures();
  emit shownChanged();
}

// The auxiliary that the user has chosen and what is being typed stay.
void MainWindow::setVariety(engine::Variety variety) {
  conjugation_.variety = variety;
  if (isEditing_ || infinitive().empty()) return;
  const QString typed = boxes_.entry().text();
  const std::uint8_t chosen = auxiliary();
  conjugators_.silentDriver.conjugate(conjugation_, infinitive());
  if (isAuxiliaryChosen_ && chosen != auxiliary())
    engine::Driver::toggleAuxiliary(conjugation_, chosen == engine::kAvoir, false);
  showConjugation();
  if (typed != boxes_.entry().text()) boxes_.entry().setText(typed);
}

std::string_view MainWindow::normOf(int slot) const {
  return isEditing_ ? std::string_view() : conjugators_.norm.of(slot);
}

// A form that was typed and not saved is none of the program's.
void MainWindow::showDepartures() {
  if (isEditing_)
    conjugators_.norm.forget();
  else
    conjugators_.norm.compareWith(conjugation_, isAuxiliaryChosen_);
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    FormBox& box = boxes_[slot];
    const bool isShown =
        box.text() == fromFrench(conjugation_.shown.boxes[static_cast<std::size_t>(slot)]);
    box.markDeparture(isShown ? fromUtf8(normLine(conjugators_.norm.of(slot))) : QString());
  }
  for (int number = 0; number < static_cast<int>(conjugation_.shown.captions.size()); ++number)
    boxes_.caption(number).markDeparture(fromUtf8(normLine(conjugators_.norm.ofCaption(number))));
}

// deliberate: the whole table is displayed, the entry box with it, also where nothing was
// conjugated. While a verb is edited the boxes are the user's.
void MainWindow::toggleAuxiliary(bool isAvoir) {
  isAuxiliaryChosen_ = true;
  engine::Driver::toggleAuxiliary(conjugation_, isAvoir, isEditing_);
  if (isEditing_)
    auxiliary_.show(conjugation_);
  else
    showConjugation();
  announce(auxiliary_.widget().text().remove('&'));
  if (isEditing_) emit auxiliaryEdited();
}

QString MainWindow::spokenInformation() const {
  const Utf8Text verb = engine::toUtf8(infinitive());
  const bool isOwn = conjugation_.source == engine::Source::user;
  return fromUtf8(spokenVerb(verb, conjugation_.information) +
                  (isOwn ? " Formy z Twojego pliku." : ""));
}

// Said, and shown for a moment beside the frame that holds it.
void MainWindow::tellInformation() {
  const QWidget& frame = controls_.get<QWidget>(positionOf("frmInformacjeOCzasowniku"));
  QToolTip::showText(frame.mapToGlobal(frame.rect().bottomLeft()), spokenInformation(), this);
  announce(spokenInformation());
}

// All texts change before anything is painted: one repaint a conjugation.
void MainWindow::showConjugation() {
  const FormColumns::Pause pause(columns_);
  const ChangesUnheard unheard;
  surface_.setUpdatesEnabled(false);
  controls_.get<QLabel>(positionOf("lblPodpowiedź")).hide();  // the first verb has come
  surface_.pronouns().show(conjugation_.shown.pronouns);
  boxes_.show(conjugation_.shown);
  information_.show(conjugation_.information);
  auxiliary_.show(conjugation_);
  showDepartures();
  surface_.setUpdatesEnabled(true);
  emit shownChanged();
}

}  // namespace odmiennik::app
