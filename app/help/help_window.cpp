// The help viewer.
#include "app/help/help_window.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPrintDialog>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "app/common/text.h"
#include "app/logic/tense_topics.h"

namespace odmiennik::app {
namespace {

constexpr QSize kDesignedSize(940, 660);
constexpr int kContentsWidth = 260;
constexpr int kEntryHeight = 18;
constexpr int kPageRole = Qt::UserRole;

QPushButton* button(const char* name, const char* caption) {
  auto* made = new QPushButton(QString::fromUtf8(caption));
  made->setObjectName(QString::fromUtf8(name));
  made->setAutoDefault(false);
  return made;
}

}  // namespace

HelpWindow::HelpWindow(HelpBook& book, QWidget* parent)
    : SteadyWindow(parent, Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      book_(book) {
  setObjectName(QStringLiteral("frmPomoc"));
  setWindowTitle(QStringLiteral("Odmiennik – pomoc"));
  create();
  arrange();
  connectControls();
  connectKeys();
  resize(kDesignedSize.boundedTo(screen()->availableSize() * 9 / 10));
}

void HelpWindow::create() {
  pages_ = new HelpBrowser(book_, this);
  search_ = new HelpSearch(*pages_, this);
  contents_ = new QTreeWidget;
  contents_->setObjectName(QStringLiteral("treSpis"));
  contents_->setAccessibleName(QStringLiteral("Spis treści"));
  contents_->setHeaderHidden(true);
  contents_->setUniformRowHeights(true);
  back_ = button("cmdWstecz", "&Wstecz");
  forward_ = button("cmdDalej", "&Dalej");
  home_ = button("cmdPoczątek", "&Początek");
  print_ = button("cmdDrukuj", "D&rukuj…");
  back_->setEnabled(false);
  forward_->setEnabled(false);
}

void HelpWindow::arrange() {
  auto* row = new QHBoxLayout;
  for (QPushButton* each : {back_, forward_, home_, print_}) row->addWidget(each);
  row->addSpacing(12);
  row->addWidget(search_, 1);
  auto* halves = new QSplitter;
  halves->setChildrenCollapsible(false);
  halves->addWidget(contents_);
  halves->addWidget(pages_);
  halves->setStretchFactor(1, 1);
  halves->setSizes({kContentsWidth, kDesignedSize.width() - kContentsWidth});
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
  connect(pages_, &QTextBrowser::sourceChanged, this, &HelpWindow::followPage);
  const auto openEntry = [this](const QTreeWidgetItem* entry) {
    const QString page = entry->data(0, kPageRole).toString();
    if (!page.isEmpty()) pages_->setSource(helpAddress(page));
  };
  connect(contents_, &QTreeWidget::itemClicked, this, openEntry);
  connect(contents_, &QTreeWidget::itemActivated, this, openEntry);
}

void HelpWindow::connectKeys() {
  const auto key = [this](QKeySequence keys, auto receiver, auto action) {
    connect(new QShortcut(keys, this), &QShortcut::activated, receiver, action);
  };
  key(QKeySequence::Back, pages_, &QTextBrowser::backward);
  key(QKeySequence::Forward, pages_, &QTextBrowser::forward);
  key(QKeySequence::Find, search_, &HelpSearch::begin);
  key(QKeySequence::Print, print_, &QPushButton::click);
}

// Modal only where a modal window is open, whose Help button would else lead to a window that
// cannot be used.
void HelpWindow::showPage(const QString& page) {
  if (book_.open()) fillContents();
  const QUrl address = helpAddress(page);
  if (pages_->source() == address)
    pages_->reload();
  else
    pages_->setSource(address);
  if (!isVisible())
    setWindowModality(QApplication::activeModalWidget() ? Qt::ApplicationModal : Qt::NonModal);
  show();
  raise();
  activateWindow();
}

void HelpWindow::fillContents() {
  contents_->clear();
  std::vector<QTreeWidgetItem*> path{contents_->invisibleRootItem()};
  for (const HelpContentsEntry& entry : book_.contents()) {
    path.resize(std::min<std::size_t>(path.size(), static_cast<std::size_t>(entry.level)));
    auto* item = new QTreeWidgetItem(path.back(), QStringList(entry.title));
    item->setData(0, kPageRole, entry.page);
    item->setSizeHint(0, QSize(0, kEntryHeight));
    path.push_back(item);
  }
  contents_->expandAll();
}

// The entry that was chosen stays chosen where several lead to the page; else it is a page's own
// entry, not that of its chapter.
void HelpWindow::followPage(const QUrl& address) {
  const auto leadsThere = [&](const QTreeWidgetItem& entry) {
    return helpAddress(entry.data(0, kPageRole).toString()).path() == address.path();
  };
  if (contents_->currentItem() != nullptr && leadsThere(*contents_->currentItem())) return;
  QTreeWidgetItemIterator entry(contents_, QTreeWidgetItemIterator::NoChildren);
  while (*entry != nullptr && !leadsThere(**entry)) ++entry;
  contents_->setCurrentItem(*entry);
}

void HelpWindow::choosePrinter() {
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  auto* dialog = new SteadyWindow<QPrintDialog>(printer.get(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, printer] { printTo(*printer); });
  dialog->open();
}

}  // namespace odmiennik::app
