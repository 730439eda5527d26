// SPDX-License-Identifier: GPL-3.0-or-later
// Finding the places of the demonstrations.
#include "app/demonstration/demonstration_places.h"

#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <algorithm>

#include "app/common/text.h"
#include "app/controls/control_table.h"
#include "app/controls/main_menu.h"

namespace odmiennik::app {
namespace {

using Target = std::optional<DemonstrationTarget>;

bool isUsable(const QWidget* widget) {
  return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

Target middleOf(QWidget* widget) {
  if (!isUsable(widget)) return std::nullopt;
  return DemonstrationTarget{widget, widget->rect().center()};
}

// Near its beginning, where the text is.
Target entryOf(QAbstractItemView& view, const QModelIndex& entry) {
  view.scrollTo(entry);
  const QRect place = view.visualRect(entry);
  if (!isUsable(&view) || !place.isValid()) return std::nullopt;
  return DemonstrationTarget{view.viewport(), {place.left() + 40, place.center().y()}};
}

}  // namespace

QDialog* DemonstrationPlaces::list() const {
  return window_.findChild<QDialog*>(QStringLiteral("frmLista"));
}

template <typename Widget>
Widget* DemonstrationPlaces::ofList(const char* name) const {
  const QDialog* window = list();
  if (window == nullptr || !window->isVisible()) return nullptr;
  return window->findChild<Widget*>(QString::fromUtf8(name));
}

Target DemonstrationPlaces::find(DemonstrationPlace place) const {
  switch (place) {
    case DemonstrationPlace::entryBox:
      return middleOf(window_.findChild<QWidget*>(QStringLiteral("txtCzasownik_96")));
    case DemonstrationPlace::verbMenu:
      return verbMenu();
    case DemonstrationPlace::listItem:
      return listItem();
    case DemonstrationPlace::letterChoice:
      return middleOf(ofList<QComboBox>("cmbLista"));
    case DemonstrationPlace::letter:
      return letter();
    case DemonstrationPlace::verb:
      return verb();
    case DemonstrationPlace::conjugateButton:
      return middleOf(ofList<QPushButton>("cmdOdmień"));
    case DemonstrationPlace::closeButton:
      return middleOf(ofList<QPushButton>("cmdZamknij"));
  }
  return std::nullopt;
}

Target DemonstrationPlaces::verbMenu() const {
  QMenuBar* bar = window_.menuBar();
  const auto* menu = bar->findChild<QMenu*>(QStringLiteral("mnuCzasownik"));
  if (menu == nullptr) return std::nullopt;
  return DemonstrationTarget{bar, bar->actionGeometry(menu->menuAction()).center()};
}

// Below the menu's heading: the way to the middle of a wide menu leads over the next heading, and
// that opens its own menu.
Target DemonstrationPlaces::listItem() const {
  QMenuBar& bar = *window_.menuBar();
  auto* menu = bar.findChild<QMenu*>(QStringLiteral("mnuCzasownik"));
  if (!isUsable(menu)) return std::nullopt;
  QPoint place = menu->actionGeometry(&menuItem(bar, "mnuEdycjaLista")).center();
  place.setX(std::min(place.x(), bar.actionGeometry(menu->menuAction()).width() / 2));
  return DemonstrationTarget{menu, place};
}

Target DemonstrationPlaces::letter() const {
  auto* choice = ofList<QComboBox>("cmbLista");
  if (choice == nullptr || !choice->view()->isVisible()) return std::nullopt;
  const int entry = choice->findText(QString(QLatin1Char(kPickedVerb.front())));
  return entryOf(*choice->view(), choice->model()->index(entry, choice->modelColumn()));
}

Target DemonstrationPlaces::verb() const {
  auto* verbs = ofList<QListWidget>("lstCzasowniki");
  if (!isUsable(verbs)) return std::nullopt;
  const auto found = verbs->findItems(fromUtf8(kPickedVerb), Qt::MatchExactly);
  if (found.isEmpty()) return std::nullopt;
  return entryOf(*verbs, verbs->indexFromItem(found.front()));
}

}  // namespace odmiennik::app
