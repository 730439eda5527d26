// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the two colours.
#include "app/view/colour_window.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "app/common/colours.h"
#include "app/common/text.h"
#include "app/logic/hints.h"

namespace odmiennik::app {
namespace {

struct SampleRow {
  const char* label;
  const char* caption;
  HintId hint;
};
constexpr SampleRow kSampleRows[] = {{"lblKolorTrybu", "Kolor pierwszy", HintId::moodColour},
                                     {"lblKolorCzasu", "Kolor drugi", HintId::tenseColour}};
constexpr QSize kSampleSize(72, 24);
constexpr int kMargin = 16;

Rgb rgbOf(const QColor& colour) {
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  return {part(colour.red()), part(colour.green()), part(colour.blue())};
}

}  // namespace

ColourSample::ColourSample(QWidget* parent) : QWidget(parent) { setFixedSize(kSampleSize); }

void ColourSample::setColour(const QColor& colour) {
  colour_ = colour;
  setAccessibleDescription(colour.name().toUpper());
  update();
}

void ColourSample::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setBrush(colour_);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

ColourWindow::ColourWindow(LiveColours& live, ColourChooser& chooser, QWidget* parent)
    : SteadyWindow(parent), live_(live), chooser_(chooser), dialog_(live.live()) {
  setObjectName(QStringLiteral("frmKolory"));
  setWindowTitle(QStringLiteral("Kolory"));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  for (std::size_t index = 0; index < samples_.size(); ++index) addSample(index);
  addButtons();
  refresh();
}

void ColourWindow::addSample(std::size_t index) {
  const auto [name, caption, tip] = kSampleRows[index];
  const auto row = static_cast<int>(index);
  auto* label = new QLabel(QString::fromUtf8(caption), this);
  label->setObjectName(QLatin1String(name));
  auto* sample = samples_[index] = new ColourSample(this);
  sample->setObjectName(QStringLiteral("shpKolor_%1").arg(row));
  sample->setAccessibleName(label->text());
  for (QWidget* explained : {static_cast<QWidget*>(label), static_cast<QWidget*>(sample)})
    explained->setToolTip(fromUtf8(hint(tip)));
  auto& button = addButton("cmdZmień", QStringLiteral("Zmień"));
  button.setObjectName(QStringLiteral("cmdZmień_%1").arg(row));
  button.setAccessibleDescription(label->text());
  button.setToolTip(fromUtf8(hint(HintId::changeColour)));
  label->setBuddy(&button);
  connect(&button, &QPushButton::clicked, this, [this, index] { change(index); });
  auto& grid = static_cast<QGridLayout&>(*layout());
  grid.addWidget(label, row, 0);
  grid.addWidget(sample, row, 1);
  grid.addWidget(&button, row, 2);
}

QPushButton& ColourWindow::addButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(QString::fromUtf8(name));
  return *button;
}

void ColourWindow::addButtons() {
  applyButton_ = &addButton("cmdZastosuj", QStringLiteral("&Zastosuj"));
  auto& okButton = addButton("cmdOk", QStringLiteral("OK"));
  auto& cancelButton = addButton("cmdAnuluj", QStringLiteral("&Anuluj"));
  okButton.setDefault(true);
  connect(applyButton_, &QPushButton::clicked, this, [this] { apply(dialog_.apply()); });
  connect(&okButton, &QPushButton::clicked, this, [this] {
    apply(dialog_.accept());
    accept();
  });
  connect(&cancelButton, &QPushButton::clicked, this, &QDialog::reject);
  auto& grid = static_cast<QGridLayout&>(*layout());
  auto* row = new QHBoxLayout;
  for (QPushButton* button : {applyButton_, &okButton, &cancelButton}) row->addWidget(button);
  grid.setRowMinimumHeight(2, kMargin);
  grid.addLayout(row, 3, 0, 1, 3);
}

// The button comes alive before the chooser is shown, whatever comes of it.
void ColourWindow::change(std::size_t index) {
  applyButton_->setEnabled(true);
  const auto chosen = chooser_.choose(*this, samples_.at(index)->colour());
  dialog_.choose(index, chosen ? std::optional(rgbOf(*chosen)) : std::nullopt);
  refresh();
}

void ColourWindow::apply(ColourNumbers colours) {
  live_.ApplyColours(colours.mood, colours.tense);
  refresh();
}

void ColourWindow::refresh() {
  applyButton_->setEnabled(dialog_.canApply());
  const QColor text = palette().color(QPalette::WindowText);
  for (std::size_t index = 0; index < samples_.size(); ++index)
    samples_[index]->setColour(colourOfNumber(dialog_.sample(index), text));
}

}  // namespace odmiennik::app
