// The per-user settings store.
#include "app/common/user_store.h"

#include "app/common/text.h"
#include "app/logic/start_up.h"
#include "dictionary/messages.h"

namespace odmiennik::app {
namespace {

QString title() { return fromUtf8(dictionary::kApplicationTitle); }

QString pathOf(std::string_view key) {
  return fromUtf8(kStoreSection) + QLatin1Char('/') + fromUtf8(key);
}

}  // namespace

UserStore::UserStore() : settings_(title(), title()) {}

UserStore::UserStore(const QString& file) : settings_(file, QSettings::IniFormat) {}

bool UserStore::isTipShownAtStart() const { return isOne(kTipAtStartKey); }

void UserStore::setTipShownAtStart(bool isShown) { write(kTipAtStartKey, isShown); }

bool UserStore::isCompletionOn() const { return isOne(kCompletionKey); }

void UserStore::setCompletionOn(bool isOn) { write(kCompletionKey, isOn); }

bool UserStore::isOne(std::string_view key) const {
  const QVariant stored = settings_.value(pathOf(key));
  return !stored.isValid() || stored.toInt() == 1;
}

void UserStore::write(std::string_view key, bool value) {
  settings_.setValue(pathOf(key), value ? 1 : 0);
  settings_.sync();
}

}  // namespace odmiennik::app
