// SPDX-License-Identifier: GPL-3.0-or-later
// The command "Skąd ta forma?".
#include "app/explaining/explain_menu.h"

#include "app/common/text.h"
#include "app/logic/form_story.h"

namespace odmiennik::app {
namespace {

QString inLines(const std::vector<Utf8Text>& lines) {
  QStringList all;
  for (const Utf8Text& line : lines) all.append(fromUtf8(line));
  return all.join(QLatin1Char('\n'));
}

}  // namespace

ExplainMenu::ExplainMenu(MainWindow& main, engine::UserVerbs& userVerbs)
    : main_(main), userVerbs_(userVerbs) {}

void ExplainMenu::open(int slot) {
  if (window_ == nullptr) create();
  slot_ = slot;
  const FormBox& box = main_.boxes()[slot];
  const std::string text = toFrench(box.text());
  const std::vector<Utf8Text> story = storyOf(
      *explainer_,
      {.slot = slot, .text = text, .shown = main_.conjugation(), .isEditing = main_.isEditing()});
  window_->tell(box.accessibleName(), inLines(story), box);
}

void ExplainMenu::create() {
  if (!explainer_) explainer_.emplace(userVerbs_);
  window_ = new ExplainWindow(&main_);
  QObject::connect(window_, &QDialog::finished, &main_, [this] { goBack(); });
  QObject::connect(&main_, &MainWindow::conjugated, window_, &QWidget::hide);
}

// Hidden for another verb, which has the focus where it wants it, the window does not come here.
void ExplainMenu::goBack() {
  main_.activateWindow();
  main_.boxes()[slot_].setFocus(Qt::OtherFocusReason);
}

}  // namespace odmiennik::app
