// SPDX-License-Identifier: GPL-3.0-or-later
// Proof of the main window's table while the program is compiled; no code comes of it.
#include "app/controls/control_table.h"

#include "app/logic/tense_topics.h"
#include "engine/slots.h"

namespace odmiennik::app {
namespace {

constexpr bool isWithinWindow(const ControlRow& row) {
  const ControlRow& window = kMainWindow[0];
  return row.left >= 0 && row.top >= 0 && row.left + row.width <= window.width &&
         row.top + row.height <= window.height;
}

constexpr bool everyControlIsWithinTheWindow() {
  for (const ControlRow& row : mainWindowRows())
    if (!isWithinWindow(row)) return false;
  return true;
}

constexpr bool everyNameIsUnique() {
  for (const ControlRow& row : mainWindowRows())
    for (const ControlRow* other = &row + 1; other != std::end(kMainWindow); ++other)
      if (row.index == other->index && row.name == other->name) return false;
  return true;
}

// Together with uniqueness: the elements of every array are numbered from 0 without a gap.
constexpr bool everyIndexIsBelowItsCount() {
  for (const ControlRow& row : mainWindowRows())
    if (row.index >= 0 && row.index >= countOf(row.name)) return false;
  return true;
}

// Widgets are created in the table's order, which makes it the order of the Tab key.
constexpr bool rowsAreInTabOrder() {
  int next = 0;
  for (const ControlRow& row : mainWindowRows())
    if (row.tabOrder >= 0 && row.tabOrder != next++) return false;
  return true;
}

constexpr bool everyControlMovesWithTheWindow() {
  for (const ControlRow& row : mainWindowRows())
    if (row.tag.empty() && row.kind != ControlKind::window) return false;
  return true;
}

// A label that shows a changing text would lose it to an accessible name.
constexpr bool noLabelHasAnAccessibleName() {
  for (const ControlRow& row : mainWindowRows())
    if (row.kind == ControlKind::label && !row.accessibleName.empty()) return false;
  return true;
}

constexpr bool hasTopicPage(const ControlRow& row) { return row.tag.ends_with(".htm"); }

// The first tense headings, and only they, open a page of the help.
constexpr bool topicsBelongToTheFirstHeadings() {
  for (const ControlRow& row : mainWindowRows())
    if (hasTopicPage(row) != (row.name == "lblCzas" && row.index < kTopicHeadings)) return false;
  return true;
}

static_assert(kMainWindow[0].kind == ControlKind::window);
static_assert(countOf("txtCzasownik") == engine::kSlotCount);
static_assert(countOf("lblTryb") == 6 && countOf("shpLiniaTrybu") == 5);
static_assert(countOf("shpOzdobaTrybu") == 5);
static_assert(countOf("lblCzas") == kTenseHeadings && countOf("lblImiesłówZłożony") == 1);
static_assert(countOf("lblSubjoncif") == 4);
static_assert(countOf("cmdFrancuskaLitera") == 13 && countOf("chkFrancuskaLitera") == 13);
static_assert(everyControlIsWithinTheWindow());
static_assert(everyNameIsUnique());
static_assert(everyIndexIsBelowItsCount());
static_assert(rowsAreInTabOrder());
static_assert(everyControlMovesWithTheWindow());
static_assert(noLabelHasAnAccessibleName());
static_assert(topicsBelongToTheFirstHeadings());

}  // namespace
}  // namespace odmiennik::app
