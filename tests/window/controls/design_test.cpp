// SPDX-License-Identifier: GPL-3.0-or-later
// The window against its table of controls.
#include <QGroupBox>
#include <QSet>

#include "app/common/text.h"
#include "app/controls/control_table.h"
#include "app/controls/placement.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using app::ControlKind;
using app::ControlRow;

bool isWidget(const ControlRow& row) {
  return row.kind != ControlKind::window && row.kind != ControlKind::panel &&
         row.kind != ControlKind::shape && row.kind != ControlKind::line;
}

QString nameOf(const ControlRow& row) {
  const QString name = app::fromUtf8(row.name);
  return row.index < 0 ? name : name + '_' + QString::number(row.index);
}

}  // namespace

class DesignSuite : public QObject {
  Q_OBJECT

 private slots:
  void everyControlOfTheTableStandsOnceAtItsPlace();
  void everyBoxHasAnAccessibleNameOfItsOwn();
  void labelsHaveNoAccessibleName();
  void theFormBoxesAreLockedAndTheEntryBoxIsNot();
  void tabGoesThroughTheControlsInTheTablesOrder();
  void slotOneHundredHasAHeadingOfItsOwn();
  void deliberateHeadingsKeepTheirSpellings();
  void everyLabelHasRoomForItsLongestText();
  void everyButtonHasRoomForItsCaption();
  void noTwoVisibleControlsOverlap();
  void theLettersStandInBothArrays();
  void theWindowFitsAScreenOf800By600();

 private:
  ProgramUnderTest program_;
};

void DesignSuite::everyControlOfTheTableStandsOnceAtItsPlace() {
  int widgets = 0;
  for (const ControlRow& row : app::mainWindowRows()) {
    if (!isWidget(row)) continue;
    const auto found = program_.window.findChildren<QWidget*>(nameOf(row));
    QVERIFY2(found.size() == 1, qPrintable(nameOf(row)));
    QCOMPARE(found.front()->geometry(), app::place(row));
    ++widgets;
  }
  QVERIFY(widgets > 101);
  QCOMPARE(program_.window.objectName(), "frmCzasowniki");
}

void DesignSuite::everyBoxHasAnAccessibleNameOfItsOwn() {
  QSet<QString> names;
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    names.insert(program_.box(slot).accessibleName());
  QCOMPARE(names.size(), engine::kSlotCount);
  QCOMPARE(program_.box(0).accessibleName(), "Indicatif présent, je");
  QCOMPARE(program_.box(69).accessibleName(), "Subjonctif plus-que-parfait, nous");
  QCOMPARE(program_.box(83).accessibleName(), "Conditionnel passé 1re forme, ils");
  QCOMPARE(program_.box(95).accessibleName(), "Impératif passé, vous");
  QCOMPARE(program_.box(96).accessibleName(), "Infinitif présent");
  QCOMPARE(program_.box(100).accessibleName(), "Participe passé composé");
}

void DesignSuite::labelsHaveNoAccessibleName() {
  program_.conjugate("parler");
  const auto labels = program_.window.findChildren<QLabel*>();
  QVERIFY(labels.size() > 40);
  for (const QLabel* label : labels) QCOMPARE(label->accessibleName(), QString());
}

void DesignSuite::theFormBoxesAreLockedAndTheEntryBoxIsNot() {
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    QCOMPARE(program_.box(slot).isReadOnly(), slot != engine::slot::kInfinitive);
}

void DesignSuite::tabGoesThroughTheControlsInTheTablesOrder() {
  program_.entry().setFocus();
  for (const ControlRow& row : app::mainWindowRows()) {
    if (row.tabOrder < 0 || row.state == app::ControlState::disabled) continue;
    if (!program_.widget<QWidget>(nameOf(row)).isEnabled()) continue;
    QCOMPARE(QApplication::focusWidget()->objectName(), nameOf(row));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(QApplication::focusWidget(), &program_.entry());
}

void DesignSuite::slotOneHundredHasAHeadingOfItsOwn() {
  QCOMPARE(program_.label("lblImiesłówZłożony"), "Passé composé");
  QCOMPARE(program_.widget<QLabel>("lblImiesłówZłożony").palette().color(QPalette::WindowText),
           program_.widget<QLabel>("lblCzas_0").palette().color(QPalette::WindowText));
}

// deliberate: "CONDITIONEL" and "1-er forme" are spelled so.
void DesignSuite::deliberateHeadingsKeepTheirSpellings() {
  QStringList moods, tenses;
  for (int i = 0; i < 6; ++i) moods += program_.label(qPrintable(QString("lblTryb_%1").arg(i)));
  for (int i = 0; i < 21; ++i) tenses += program_.label(qPrintable(QString("lblCzas_%1").arg(i)));
  QCOMPARE(moods, (QStringList{"INDICATIF", "SUBJONCTIF", "CONDITIONEL", "IMPÉRATIF", "INFINITIF",
                               "PARTICIPE"}));
  QCOMPARE(tenses,
           (QStringList{"Présent",         "Imparfait",        "Passé composé", "Plus-que-parfait",
                        "Futur antérieur", "Passé antérieur",  "Futur simple",  "Passé simple",
                        "Présent",         "Imparfait",        "Passé",         "Plus-que-parfait",
                        "Passé 2-e forme", "Passé 1-er forme", "Présent",       "Passé",
                        "Présent",         "Présent",          "Passé",         "Passé",
                        "Présent"}));
}

void DesignSuite::everyLabelHasRoomForItsLongestText() {
  const auto fits = [](QLabel* label, const QString& text) {
    const QSize size = label->fontMetrics().size(Qt::TextSingleLine, text);
    return size.width() <= label->width() && size.height() <= label->height();
  };
  for (auto* label : program_.window.findChildren<QLabel*>()) {
    QVERIFY2(fits(label, label->text()), qPrintable(label->objectName()));
    if (label->objectName().endsWith("Wartość")) QVERIFY(fits(label, "avoir lub être"));
    if (label->objectName().startsWith("lblSubjoncif"))
      QVERIFY(fits(label, "Il ne croyais pas que ..."));
  }
}

void DesignSuite::everyButtonHasRoomForItsCaption() {
  for (auto* button : program_.window.findChildren<QAbstractButton*>()) {
    const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    QVERIFY2(text < button->width(), qPrintable(button->objectName()));
  }
  const auto& box = program_.auxiliary();
  QVERIFY(box.sizeHint().width() <= box.width());
}

void DesignSuite::noTwoVisibleControlsOverlap() {
  QList<QWidget*> controls;
  for (auto* control : program_.entry().parentWidget()->findChildren<QWidget*>(
           QString(), Qt::FindDirectChildrenOnly))
    if (control->isVisible() && qobject_cast<QGroupBox*>(control) == nullptr)
      controls.push_back(control);
  QVERIFY(controls.size() > 150);
  for (qsizetype i = 0; i < controls.size(); ++i)
    for (qsizetype k = i + 1; k < controls.size(); ++k)
      QVERIFY2(!controls[i]->geometry().intersects(controls[k]->geometry()),
               qPrintable(controls[i]->objectName() + " " + controls[k]->objectName()));
}

// deliberate: ê and é change places between the two arrays.
void DesignSuite::theLettersStandInBothArrays() {
  QString buttons, boxes;
  for (int i = 0; i < 13; ++i) {
    const auto& button = program_.widget<QPushButton>(QString("cmdFrancuskaLitera_%1").arg(i));
    const auto& box = program_.widget<QCheckBox>(QString("chkFrancuskaLitera_%1").arg(i));
    buttons += button.text();
    boxes += box.text();
    QCOMPARE(button.geometry(), box.geometry());
    QVERIFY(button.isVisible() && button.isEnabled() && !box.isVisible());
  }
  QCOMPARE(buttons, "àâäçèêéëîïôùû");
  QCOMPARE(boxes, "àâäçèéêëîïôùû");
}

void DesignSuite::theWindowFitsAScreenOf800By600() {
  constexpr int kTitleBar = 26;
  QVERIFY(program_.window.width() <= 800);
  QVERIFY(program_.window.height() + kTitleBar <= 600);
}

std::unique_ptr<QObject> designSuite() { return std::make_unique<DesignSuite>(); }

}  // namespace odmiennik::window_test

#include "design_test.moc"
