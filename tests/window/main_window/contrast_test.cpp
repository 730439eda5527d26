// SPDX-License-Identifier: GPL-3.0-or-later
// What can be seen and read in every theme, measured on what is painted.
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QStyleOptionButton>

#include "tests/window/edited_program.h"
#include "tests/window/suites.h"
#include "tests/window/themes.h"

namespace odmiennik::window_test {
namespace {

constexpr double kVisible = 3;

// The strongest contrast of a part of a picture to a colour: that of its letters or edges.
double strongest(const QImage& picture, const QRect& part, const QColor& ground) {
  double found = 1;
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x)
      found = std::max(found, contrast(picture.pixelColor(x, y), ground));
  return found;
}

QByteArray told(double ratio) { return QByteArray::number(ratio) + " : 1"; }

// The parts of a check box: its square and what is behind that.
struct TickBox {
  explicit TickBox(QCheckBox& box) : picture(box.grab().toImage()) {
    QStyleOptionButton option;
    option.initFrom(&box);
    square = box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    caption = QRect(square.right() + 4, 0, box.width() - square.right() - 4, box.height());
    ground = picture.pixelColor(0, 0);
  }
  QImage picture;
  QRect square, caption;
  QColor ground;
};

// The window of a verb that leaves no choice of the auxiliary.
struct ThemedProgram {
  explicit ThemedProgram(const QPalette& palette) : theme(palette) { program.conjugate("aller"); }
  Theme theme;
  EditedProgram program;
};

}  // namespace

class ContrastSuite : public QObject {
  Q_OBJECT

 private slots:
  void theSquareOfAnUntickedBoxIsVisible_data() { addThemes(); }
  void theSquareOfAnUntickedBoxIsVisible();
  void theTickOfADisabledBoxIsVisible_data() { addThemes(); }
  void theTickOfADisabledBoxIsVisible();
  void theDisabledCaptionOfTheAuxiliaryIsReadable_data() { addThemes(); }
  void theDisabledCaptionOfTheAuxiliaryIsReadable();
  void disabledMenuItemsAreReadableAndLookDisabled_data() { addThemes(); }
  void disabledMenuItemsAreReadableAndLookDisabled();
};

void ContrastSuite::theSquareOfAnUntickedBoxIsVisible() {
  QFETCH(QPalette, palette);
  const ThemedProgram themed(palette);
  QCheckBox& box = themed.program.auxiliary();
  QVERIFY(!box.isChecked());
  for (const bool isEnabled : {false, true}) {
    box.setEnabled(isEnabled);
    const TickBox seen(box);
    const QPoint left(seen.square.left(), seen.square.center().y());
    const double ratio = contrast(seen.picture.pixelColor(left), seen.ground);
    QVERIFY2(ratio >= kVisible, told(ratio));
  }
}

void ContrastSuite::theTickOfADisabledBoxIsVisible() {
  QFETCH(QPalette, palette);
  const ThemedProgram themed(palette);
  QCheckBox& box = themed.program.auxiliary();
  box.setChecked(true);
  box.setEnabled(false);
  const TickBox seen(box);
  const QRect inside = seen.square.adjusted(2, 2, -2, -2);
  const double ratio = strongest(seen.picture, inside, seen.picture.pixelColor(inside.topLeft()));
  QVERIFY2(ratio >= kVisible, told(ratio));
}

void ContrastSuite::theDisabledCaptionOfTheAuxiliaryIsReadable() {
  QFETCH(QPalette, palette);
  const ThemedProgram themed(palette);
  const QCheckBox& box = themed.program.auxiliary();
  QVERIFY(!box.isEnabled());
  const TickBox seen(themed.program.auxiliary());
  const double ratio = strongest(seen.picture, seen.caption, seen.ground);
  QVERIFY2(ratio >= kVisible, told(ratio));
}

// "Zapisz Czasownik" has a meaning while a verb is edited only.
void ContrastSuite::disabledMenuItemsAreReadableAndLookDisabled() {
  QFETCH(QPalette, palette);
  const ThemedProgram themed(palette);
  auto& menu = themed.program.widget<QMenu>("mnuPlik");
  QVERIFY(!themed.program.item("mnuPlikZapiszCzasownik").isEnabled());
  menu.popup(QPoint());
  const QImage picture = menu.grab().toImage();
  const auto ratioOf = [&](const char* name) {
    const QRect place = menu.actionGeometry(&themed.program.item(name)).adjusted(4, 2, -4, -2);
    return strongest(picture, place, picture.pixelColor(place.topLeft()));
  };
  const double disabled = ratioOf("mnuPlikZapiszCzasownik");
  const double enabled = ratioOf("mnuPlikKoniec");
  menu.close();
  QVERIFY2(disabled >= kVisible, told(disabled));
  QVERIFY2(enabled > disabled * 1.5, told(enabled));
}

std::unique_ptr<QObject> contrastSuite() { return std::make_unique<ContrastSuite>(); }

}  // namespace odmiennik::window_test

#include "contrast_test.moc"
