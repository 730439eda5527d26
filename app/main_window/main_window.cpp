// The main window, put together from its parts.
#include "app/main_window/main_window.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>

#include "app/common/text.h"
#include "app/controls/form_surface.h"
#include "app/controls/main_menu.h"
#include "app/controls/placement.h"
#include "app/platform/character_map.h"

namespace odmiennik::app {
namespace {

// "Odmiennik v.1.0.0"
QString captionWithVersion() {
  return fromUtf8(kMainWindow[0].caption) + QStringLiteral(" v.") +
         QCoreApplication::applicationVersion();
}

void colour(QWidget& label, const QColor& colour) {
  QPalette palette;
  palette.setColor(QPalette::WindowText, colour);
  label.setPalette(palette);
}

}  // namespace

MainWindow::MainWindow(engine::Driver& driver)
    : driver_(driver),
      surface_(*new FormSurface(this)),
      controls_(surface_),
      boxes_(controls_),
      information_(controls_),
      auxiliary_(controls_.get<QCheckBox>(positionOf("chkZAvoir"))) {
  setObjectName(fromUtf8(kMainWindow[0].name));
  setWindowTitle(captionWithVersion());
  surface_.setFixedSize(place(kMainWindow[0]).size());
  setCentralWidget(&surface_);
  buildMainMenu(*menuBar());
  for (int slot = 0; slot < engine::kPersonalSlotCount; ++slot)
    surface_.pronouns().setBox(slot, boxes_[slot].geometry());
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  applyDesignColours();
  startWithEmptyTable();
  connectCommands();
}

MainWindow::~MainWindow() = default;

void MainWindow::startWithEmptyTable() {
  engine::Display& shown = conjugation_.shown;
  engine::chooseSubjectPronouns(conjugation_.forms, conjugation_.flags.hAspirate, shown.pronouns);
  engine::chooseSubjunctiveCaptions(conjugation_.forms, shown.captions);
  surface_.pronouns().show(shown.pronouns);
  boxes_.showCaptions(shown.captions);
  information_.show(conjugation_.information.labels);
  auxiliary_.show(conjugation_);
  boxes_.entry().setText(QStringLiteral("infinitif"));
  boxes_.selectEntry();
}

// Queued, since a command may open a message box: whoever gave it (a screen reader, the menu) is
// answered before the box waits.
void MainWindow::connectCommands() {
  connect(&boxes_.entry(), &QLineEdit::returnPressed, this, &MainWindow::conjugate,
          Qt::QueuedConnection);
  connect(&controls_.get<QPushButton>(positionOf("cmdOdmień")), &QPushButton::clicked, this,
          &MainWindow::conjugate, Qt::QueuedConnection);
  connect(&menuItem(*menuBar(), "mnuEdycjaOdmień"), &QAction::triggered, this,
          &MainWindow::conjugate, Qt::QueuedConnection);
  connect(&menuItem(*menuBar(), "mnuPlikKoniec"), &QAction::triggered, this, &MainWindow::close,
          Qt::QueuedConnection);
  connect(&auxiliary_.widget(), &QCheckBox::clicked, this, &MainWindow::toggleAuxiliary);
  offerCharacterMap(menuItem(*menuBar(), "mnuEdycjaTablica"));
}

void MainWindow::conjugate() {
  if (isConjugating_) return;
  const QScopedValueRollback<bool> conjugating(isConjugating_, true);
  const std::string typed = toFrench(boxes_.entry().text());
  if (driver_.conjugate(conjugation_, typed) == engine::Outcome::reset) return;
  showConjugation();
  boxes_.selectEntry();
}

// deliberate: the whole table is displayed, the entry box with it, also where nothing was
// conjugated.
void MainWindow::toggleAuxiliary(bool isAvoir) {
  engine::Driver::toggleAuxiliary(conjugation_, isAvoir, false);
  showConjugation();
}

// All texts change before anything is painted: one repaint a conjugation.
void MainWindow::showConjugation() {
  surface_.setUpdatesEnabled(false);
  surface_.pronouns().show(conjugation_.shown.pronouns);
  boxes_.show(conjugation_.shown);
  information_.show(conjugation_.information.labels);
  auxiliary_.show(conjugation_);
  surface_.setUpdatesEnabled(true);
}

void MainWindow::applyDesignColours() {
  const HeadingColours colours = designColours(palette());
  surface_.setMoodColour(colours.mood);
  const auto inMoodColour = [&](const ControlRow&, QWidget& label) { colour(label, colours.mood); };
  const auto inTenseColour = [&](const ControlRow&, QWidget& label) {
    colour(label, colours.tense);
  };
  controls_.forEach("lblTryb", inMoodColour);
  controls_.forEach("lblCzas", inTenseColour);
  controls_.forEach("lblImiesłówZłożony", inTenseColour);
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) applyDesignColours();
  QMainWindow::changeEvent(event);
}

}  // namespace odmiennik::app
