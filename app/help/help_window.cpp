// SPDX-License-Identifier: GPL-3.0-or-later
// The help viewer.
#include "app/help/help_window.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPrintDialog>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <memory>

#include "app/common/text.h"
#include "app/common/user_store.h"
#include "app/help/help_printing.h"
#include "app/layout/screen_room.h"
#include "app/logic/tense_topics.h"

namespace odmiennik::app {
namespace {

constexpr QSize kDesignedSize(940, 660);
constexpr int kContentsWidth = 260;
constexpr double kDesignedLine = 15;  // the height of a line of the window's font

// How much larger than designed the letters are; smaller ones leave the window as it is.
double enlargement(const QWidget& window) {
  return std::max(1.0, window.fontMetrics().lineSpacing() / kDesignedLine);
}

QPushButton* button(QWidget* parent, const char* name, const char* caption) {
  auto* made = new QPushButton(QString::fromUtf8(caption), parent);
  made->setObjectName(QString::fromUtf8(name));
  made->setAutoDefault(false);
  return made;
}

}  // namespace

HelpWindow::HelpWindow(HelpBook& book, UserStore& store, QWidget* parent)
    : SteadyWindow(parent, Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      book_(book),
      store_(store) {
  setObjectName(QStringLiteral("frmPomoc"));
  setWindowTitle(QStringLiteral("Odmiennik – pomoc"));
  create();
  arrange();
  connectControls();
  connectKeys();
  connectZoom();
  resize((kDesignedSize * enlargement(*this)).boundedTo(availableSize(*this) * 9 / 10));
}

// In the order of the Tab key.
void HelpWindow::create() {
  back_ = button(this, "cmdWstecz", "&Wstecz");
  forward_ = button(this, "cmdDalej", "&Dalej");
  home_ = button(this, "cmdPoczątek", "&Początek");
  print_ = button(this, "cmdDrukuj", "D&rukuj…");
  back_->setEnabled(false);
  forward_->setEnabled(false);
  panels_ = new SidePanels(book_, this);
  pages_ = new HelpBrowser(book_, this);
  pages_->setZoom(allowedZoom(store_.helpZoom()));
  search_ = new HelpSearch(*pages_, this);
}

void HelpWindow::arrange() {
  auto* row = new QHBoxLayout;
  for (QPushButton* each : {back_, forward_, home_, print_}) row->addWidget(each);
  row->addStretch(1);
  auto* right = new QWidget(this);
  auto* column = new QVBoxLayout(right);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(pages_, 1);
  column->addWidget(search_);
  auto* halves = new QSplitter(this);
  halves->setChildrenCollapsible(false);
  halves->addWidget(panels_);
  halves->addWidget(right);
  halves->setStretchFactor(1, 1);
  const auto enlarged = [this](int width) { return static_cast<int>(width * enlargement(*this)); };
  halves->setSizes({enlarged(kContentsWidth), enlarged(kDesignedSize.width() - kContentsWidth)});
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(8, 8, 8, 8);
  all->addLayout(row);
  all->addWidget(halves, 1);
  pages_->setFocus();
}

void HelpWindow::connectControls() {
  connect(back_, &QPushButton::clicked, pages_, &QTextBrowser::backward);
  connect(forward_, &QPushButton::clicked, pages_, &QTextBrowser::forward);
  connect(pages_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
  connect(pages_, &QTextBrowser::forwardAvailable, forward_, &QWidget::setEnabled);
  connect(home_, &QPushButton::clicked, this, [this] { showPage(fromUtf8(kWelcomePage)); });
  connect(print_, &QPushButton::clicked, this, &HelpWindow::choosePrinter, Qt::QueuedConnection);
  connect(pages_, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& address) { panels_->follow(address.path(QUrl::FullyDecoded)); });
  connect(panels_, &SidePanels::chosen, this, &HelpWindow::choose);
  connect(panels_, &SidePanels::entered, pages_, [this] { pages_->setFocus(); });
}

void HelpWindow::connectKeys() {
  const auto key = [this](QKeySequence keys, auto receiver, auto action) {
    connect(new QShortcut(keys, this), &QShortcut::activated, receiver, action);
  };
  key(QKeySequence::Back, pages_, &QTextBrowser::backward);
  key(QKeySequence::Forward, pages_, &QTextBrowser::forward);
  key(QKeySequence::Find, search_, &HelpSearch::begin);
  key(Qt::CTRL | Qt::Key_T, panels_, &SidePanels::beginContents);
  key(Qt::CTRL | Qt::Key_I, panels_, &SidePanels::beginIndex);
  key(Qt::CTRL | Qt::SHIFT | Qt::Key_F, panels_, &SidePanels::beginFind);
  key(Qt::Key_F6, this, [this] { moveOn(1); });
  key(Qt::SHIFT | Qt::Key_F6, this, [this] { moveOn(-1); });
  key(QKeySequence::Print, print_, &QPushButton::click);
}

void HelpWindow::connectZoom() {
  const auto key = [this](QKeySequence keys, auto action) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
  };
  for (const int plus : {Qt::Key_Plus, Qt::Key_Equal})
    key(QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(plus)), [this] { zoomBy(1); });
  key(Qt::CTRL | Qt::Key_Minus, [this] { zoomBy(-1); });
  key(Qt::CTRL | Qt::Key_0, [this] { zoomTo(kNormalZoom); });
  connect(pages_, &HelpBrowser::zoomTurned, this, &HelpWindow::zoomBy);
}

void HelpWindow::zoomBy(int direction) { zoomTo(nextZoom(pages_->zoom(), direction)); }

void HelpWindow::zoomTo(int percent) {
  pages_->setZoom(percent);
  store_.setHelpZoom(percent);
}

// From part to part: what stands at the left, the page, the search in it.
void HelpWindow::moveOn(int direction) {
  const std::array<QWidget*, 3> parts{panels_, pages_, search_};
  std::size_t part = 0;
  while (part + 1 < parts.size() && !parts[part]->isAncestorOf(focusWidget()) &&
         parts[part] != focusWidget())
    ++part;
  const std::size_t next = (part + parts.size() + static_cast<std::size_t>(direction)) % 3;
  if (parts[next] == panels_) return panels_->beginCurrent();
  if (parts[next] == search_) return search_->begin();
  pages_->setFocus();
}

void HelpWindow::choose(const QString& page, const QString& words) {
  pages_->setSource(helpAddress(page));
  if (!words.isEmpty()) pages_->mark(words);
}

void HelpWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) pages_->followTheme();
}

void HelpWindow::showPage(const QString& page) {
  if (book_.open()) panels_->fill();
  pages_->followTheme();
  const QUrl address = helpAddress(page);
  if (pages_->source() == address)
    pages_->reload();
  else
    pages_->setSource(address);
  standInFront();
}

// Modal only where a modal window is open that is not its own: beside it, the help could not be
// used.
void HelpWindow::standInFront() {
  const QWidget* modal = QApplication::activeModalWidget();
  const Qt::WindowModality modality = modal == nullptr ? Qt::NonModal : Qt::ApplicationModal;
  const bool isOwn = modal != nullptr && (modal == this || modal->parentWidget() == this);
  if (!isOwn && modality != windowModality()) {
    hide();
    setWindowModality(modality);
  }
  show();
  raise();
  activateWindow();
}

void HelpWindow::printTo(QPrinter& printer) { printHelpPage(book_, pages_->source(), printer); }

void HelpWindow::choosePrinter() {
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  auto* dialog = new SteadyWindow<QPrintDialog>(printer.get(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, printer] { printTo(*printer); });
  dialog->open();
}

}  // namespace odmiennik::app
