// SPDX-License-Identifier: GPL-3.0-or-later
// The program's help file.
#include "app/help/help_book.h"

#include <QFileInfo>

#include "app/common/text.h"
#include "app/logic/start_up.h"
#include "disk/program_folder.h"

namespace odmiennik::app {
namespace {

QString message(const char* heading, const QString& text) {
  return QStringLiteral("<h2>%1</h2><p>%2</p>").arg(QString::fromUtf8(heading), text);
}

QString nameOf(const QUrl& address) {
  return address.path(QUrl::FullyDecoded).section(QLatin1Char('/'), -1).toHtmlEscaped();
}

}  // namespace

QUrl helpAddress(const QString& page) {
  QString path = page;
  path.replace(QLatin1Char('\\'), QLatin1Char('/'));
  if (!path.startsWith(QLatin1Char('/'))) path.prepend(QLatin1Char('/'));
  QUrl address;
  address.setScheme(QLatin1String(kHelpScheme));
  address.setPath(path, QUrl::DecodedMode);
  return address;
}

QStringList helpFilePlaces() {
  const std::filesystem::path folder = disk::executablePath().parent_path();
  const std::filesystem::path shared = folder.parent_path() / "share" / "odmiennik";
  const auto place = [](const std::filesystem::path& in) {
    constexpr auto kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);
    const QString utf8 = QString::fromStdU16String(in.u16string());
    return fromUtf8(helpFilePath(toUtf8(utf8), kSeparator));
  };
  return {place(folder), place(shared)};
}

bool HelpBook::open() {
  if (file_) return false;
  state_ = State::missing;
  for (const QString& path : places_) {
    if (!QFileInfo::exists(path)) continue;
    file_ = HelpFile::open(path);
    state_ = file_ ? State::open : State::damaged;
    break;
  }
  return file_.has_value();
}

std::optional<QByteArray> HelpBook::content(const QUrl& address) const {
  if (!file_ || address.scheme() != QLatin1String(kHelpScheme)) return std::nullopt;
  return file_->content(address.path(QUrl::FullyDecoded));
}

QString HelpBook::page(const QUrl& address) const {
  const auto found = content(address);
  return found ? QString::fromUtf8(*found) : faultPage(address);
}

QByteArray HelpBook::part(const QUrl& address) const {
  return content(address).value_or(QByteArray());
}

QString HelpBook::faultPage(const QUrl& address) const {
  if (address.scheme() != QLatin1String(kHelpScheme))
    return message("Nie można otworzyć tego adresu",
                   QStringLiteral("Pomoc pokazuje tylko własne strony, a odsyłacz prowadzi poza "
                                  "nie: %1")
                       .arg(address.toDisplayString().toHtmlEscaped()));
  if (state_ == State::missing)
    return message("Nie znaleziono pliku pomocy",
                   QStringLiteral("Plik Werbolin.chm powinien znajdować się w folderze programu. "
                                  "Skopiuj go tam lub zainstaluj program ponownie."));
  if (state_ == State::damaged)
    return message("Plik pomocy jest uszkodzony",
                   QStringLiteral("Nie można odczytać pliku Werbolin.chm. Zainstaluj program "
                                  "ponownie."));
  return message("Nie znaleziono strony",
                 QStringLiteral("W pliku pomocy nie ma strony „%1” lub jest ona uszkodzona.")
                     .arg(nameOf(address)));
}

std::vector<HelpContentsEntry> HelpBook::contents() const { return entriesOf("/Werbolin.hhc"); }

std::vector<HelpContentsEntry> HelpBook::index() const { return entriesOf("/Werbolin.hhk"); }

std::vector<HelpContentsEntry> HelpBook::entriesOf(const char* file) const {
  if (!file_) return {};
  return readHelpContents(file_->content(QLatin1String(file)).value_or(QByteArray()));
}

}  // namespace odmiennik::app
