// Shows the pages of the help file, and nothing from anywhere else.
#pragma once

#include <QTextBrowser>

#include "app/help/help_book.h"

namespace odmiennik::app {

// Pages are dark on light in every theme: their style sheet chooses colours for paper. Pictures,
// local files and the network are never read, whatever a page asks for.
class HelpBrowser final : public QTextBrowser {
  Q_OBJECT

 public:
  // `book` outlives the browser.
  HelpBrowser(const HelpBook& book, QWidget* parent);

  QVariant loadResource(int type, const QUrl& name) override;

 private:
  const HelpBook& book_;
  QUrl page_;  // to which the addresses inside a page are relative
};

}  // namespace odmiennik::app
