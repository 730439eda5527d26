// SPDX-License-Identifier: GPL-3.0-or-later
// The per-user settings store.
#include "app/common/user_store.h"

#include <QFileInfo>
#include <QStandardPaths>

#include "app/common/text.h"
#include "app/logic/start_up.h"
#include "dictionary/messages.h"

namespace odmiennik::app {
namespace {

QString title() { return fromUtf8(dictionary::kApplicationTitle); }

QString pathOf(Utf8View key) { return fromUtf8(kStoreSection) + QLatin1Char('/') + fromUtf8(key); }

// A pipe would be waited for, a device read for ever: what has nothing of a store is left alone,
// and the program starts as if there were none.
bool isReadable(const QString& file) {
  constexpr qint64 kLongestStore = 1 << 20;
  const QFileInfo found(file);
  return !found.exists() || (found.isFile() && found.size() <= kLongestStore);
}

// A store below a file can be neither read nor written.
constexpr QLatin1String kNowhere("/-");
QString nowhereBeside(const QString& file) { return file + kNowhere; }

#ifdef Q_OS_UNIX

// QSettings reads the file while it is made, and the one that belongs to all programs of a name.
QString userFile() {
  const QString folder =
      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + title();
  const QString own = folder + u'/' + title() + QStringLiteral(".conf");
  const bool isSafe = isReadable(own) && isReadable(folder + QStringLiteral(".conf"));
  return isSafe ? QString() : nowhereBeside(own);
}

#else

// The system's own store is no file.
QString userFile() { return {}; }

#endif

std::unique_ptr<QSettings> userSettings() {
  const QString instead = userFile();
  if (instead.isEmpty()) return std::make_unique<QSettings>(title(), title());
  return std::make_unique<QSettings>(instead, QSettings::IniFormat);
}

}  // namespace

UserStore::UserStore() : settings_(userSettings()) {}

UserStore::UserStore(const QString& file)
    : settings_(std::make_unique<QSettings>(isReadable(file) ? file : nowhereBeside(file),
                                            QSettings::IniFormat)) {}

bool UserStore::isUsable() const {
  return settings_->status() == QSettings::NoError && !settings_->fileName().endsWith(kNowhere);
}

bool UserStore::isTipShownAtStart() const { return isOne(kTipAtStartKey); }

void UserStore::setTipShownAtStart(bool isShown) { write(kTipAtStartKey, isShown ? 1 : 0); }

bool UserStore::isCompletionOn() const { return isOne(kCompletionKey); }

void UserStore::setCompletionOn(bool isOn) { write(kCompletionKey, isOn ? 1 : 0); }

bool UserStore::isNormShown() const { return settings_->value(pathOf(kNormKey), 0).toInt() == 1; }

void UserStore::setNormShown(bool isShown) { write(kNormKey, isShown ? 1 : 0); }

int UserStore::helpZoom() const { return settings_->value(pathOf(kHelpZoomKey), 100).toInt(); }

void UserStore::setHelpZoom(int percent) { write(kHelpZoomKey, percent); }

bool UserStore::isOne(Utf8View key) const {
  const QVariant stored = settings_->value(pathOf(key));
  return !stored.isValid() || stored.toInt() == 1;
}

void UserStore::write(Utf8View key, int value) {
  settings_->setValue(pathOf(key), value);
  settings_->sync();
}

}  // namespace odmiennik::app
