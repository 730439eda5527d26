// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the verb list and their layout.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/list/verb_list_box.h"
#include "app/logic/verb_list.h"
#include "app/logic/verb_list_commands.h"

class QStackedLayout;

namespace odmiennik::app {

// Creates the controls as children of `window`, which owns them, and carries their states out.
class ListControls {
 public:
  explicit ListControls(QDialog& window);

  // Caption, hidden buttons and the place of cmdUsuń.
  void present(const ListAppearance& appearance);

  void enable(const ListEnabling& enabled);

  // Puts the label and the empty bar in the place of the list, and back.
  void showFilling(bool isFilling);

  // Makes the list as high as designed, lower where the window's screen has not the room.
  void fitToScreen();

  // Says `text` in the place of the verbs; nothing hides what says it.
  void showHint(const QString& text);

  // Lets the bar grow to `filled` of `number` verbs; painted at once.
  void growBar(int filled, int number);

  QDialog& window;
  QComboBox& cmbLista;
  VerbListBox& lstCzasowniki;
  QLabel& lblPustaLista;  // over the list, where it is empty
  QLabel& lblIlość;
  QLabel& lblIlośćCzasowników;
  QLabel& lblWPrzygotowaniu;
  QFrame& shpStatusBar;
  QWidget& shpNiebieska;
  QPushButton& cmdOdmień;
  QPushButton& cmdEdytuj;
  QPushButton& cmdNowy;
  QPushButton& cmdUsuń;
  QPushButton& cmdDrukuj;
  QPushButton& cmdZapiszListę;
  QPushButton& cmdZamknij;

 private:
  void furnish();
  void layOut();
  [[nodiscard]] QWidget* listPage();
  [[nodiscard]] QWidget* fillingPage();

  QVBoxLayout& buttons_;
  QStackedLayout& places_;  // the list, and what stands in its place while it is filled
};

}  // namespace odmiennik::app
