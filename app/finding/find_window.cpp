// SPDX-License-Identifier: GPL-3.0-or-later
// Which verb a form belongs to.
#include "app/finding/find_window.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include "app/common/announcement.h"
#include "app/common/list_keys.h"
#include "app/common/text.h"
#include "app/controls/form_box.h"

namespace odmiennik::app {
namespace {

constexpr int kFewestLetters = 40;
constexpr int kLettersWide = 90;  // all readings but the longest
constexpr int kFewestLines = 4;
constexpr int kLinesHigh = 10;

// "que nous allions – aller, Subjonctif présent, nous"
QString lineOf(const finder::Reading& reading) {
  return fromFrench(finder::phraseOf(reading)) + QStringLiteral(" – ") +
         fromFrench(finder::infinitiveOf(reading)) + QStringLiteral(", ") +
         fromUtf8(finder::placeInWords(reading));
}

// What is said of the readings as a whole.
QString answerTo(const QString& typed, const finder::Readings& readings) {
  if (typed.trimmed().isEmpty()) return {};
  if (readings.empty()) return QStringLiteral("Nie znaleziono takiej formy.");
  const QString number = QString::number(readings.size());
  switch (readings.front().match) {
    case finder::Match::exact:
      return QStringLiteral("Możliwości: %1").arg(number);
    case finder::Match::accents:
      return QStringLiteral("Z innymi akcentami: %1").arg(number);
    case finder::Match::slip:
      break;
  }
  return QStringLiteral("Nie znaleziono takiej formy, może: %1").arg(number);
}

}  // namespace

// Created in the order of the Tab key.
FindWindow::FindWindow(dictionary::UserVerbsFile& userVerbs, Choose choose, QWidget* mainWindow)
    : SteadyWindow(mainWindow),
      finder_(userVerbs),
      choose_(std::move(choose)),
      field_(*new QLineEdit(this)),
      answer_(*new QLabel(this)),
      list_(*new QListWidget(this)),
      conjugate_(*new QPushButton(QStringLiteral("&Odmień"), this)),
      close_(*new QPushButton(QStringLiteral("&Zamknij"), this)) {
  setObjectName(QStringLiteral("frmZnajdź"));
  setWindowTitle(QStringLiteral("Znajdź formę"));
  furnish();
  layOut();
  new ListKeys(field_, list_);
  connect(&field_, &QLineEdit::textChanged, this, &FindWindow::search);
  connect(&list_, &QListWidget::doubleClicked, this, &FindWindow::choose);
  connect(&conjugate_, &QPushButton::clicked, this, &FindWindow::choose);
  connect(&close_, &QPushButton::clicked, this, &FindWindow::close);
  search();
}

void FindWindow::furnish() {
  field_.setObjectName(QStringLiteral("txtForma"));
  field_.setValidator(new FrenchLetters(&field_));
  field_.setPlaceholderText(fromUtf8("allions, j'aurais mangé"));
  answer_.setObjectName(QStringLiteral("lblOdpowiedź"));
  list_.setObjectName(QStringLiteral("lstOdczytania"));
  list_.setAccessibleName(QStringLiteral("Czym może być ta forma"));
  list_.setWordWrap(true);  // the longest readings take two lines
  list_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  conjugate_.setObjectName(QStringLiteral("cmdOdmień"));
  conjugate_.setDefault(true);  // the Enter key
  close_.setObjectName(QStringLiteral("cmdZamknij"));
}

void FindWindow::layOut() {
  auto* caption = new QLabel(QStringLiteral("&Forma:"), this);
  caption->setBuddy(&field_);
  const QFontMetrics letters = fontMetrics();
  list_.setMinimumSize(letters.averageCharWidth() * kFewestLetters,
                       letters.lineSpacing() * kFewestLines);
  auto* top = new QHBoxLayout;
  top->addWidget(caption);
  top->addWidget(&field_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&conjugate_);
  buttons->addWidget(&close_);
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(top);
  rows->addWidget(&answer_);
  rows->addWidget(&list_, 1);
  rows->addLayout(buttons);
}

QSize FindWindow::sizeHint() const {
  const QFontMetrics letters = fontMetrics();
  const QSize more(letters.averageCharWidth() * (kLettersWide - kFewestLetters),
                   letters.lineSpacing() * (kLinesHigh - kFewestLines));
  const QSize least = minimumSizeHint();
  return (least + more).boundedTo(screen()->availableSize() * 9 / 10).expandedTo(least);
}

void FindWindow::showWith(const QString& word) {
  if (!word.isEmpty()) field_.setText(word);
  search();  // the user's own verbs may be others by now
  show();
  raise();
  activateWindow();
  field_.setFocus();
  field_.selectAll();
}

void FindWindow::search() {
  finder_.lookAgain();
  finder_.find(toFrench(field_.text()), readings_);
  list();
  const QString answer = answerTo(field_.text(), readings_);
  if (answer == answer_.text()) return;
  answer_.setText(answer);
  field_.setAccessibleDescription(answer);
  if (isVisible() && !answer.isEmpty()) announce(answer);
}

// A screen reader reads the chosen one out, here and when the arrow keys choose another.
void FindWindow::list() {
  list_.clear();
  for (const finder::Reading& reading : readings_) list_.addItem(lineOf(reading));
  if (!readings_.empty()) list_.setCurrentRow(0);
  conjugate_.setEnabled(!readings_.empty());
}

// Queued, since conjugating may ask whether to save: whoever pressed the key is answered first.
void FindWindow::choose() {
  const int row = list_.currentRow();
  if (row < 0 || row >= static_cast<int>(readings_.size())) return;
  const finder::Reading& reading = readings_[static_cast<std::size_t>(row)];
  QMetaObject::invokeMethod(
      this,
      [this, infinitive = finder::infinitiveOf(reading), slot = int{reading.slot}] {
        choose_(infinitive, slot);
      },
      Qt::QueuedConnection);
}

}  // namespace odmiennik::app
