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

void UserStore::setTipShownAtStart(bool isShown) { write(kTipAtStartKey, isShown ? 1 : 0); }

bool UserStore::isCompletionOn() const { return isOne(kCompletionKey); }

void UserStore::setCompletionOn(bool isOn) { write(kCompletionKey, isOn ? 1 : 0); }

int UserStore::helpZoom() const { return settings_.value(pathOf(kHelpZoomKey), 100).toInt(); }

void UserStore::setHelpZoom(int percent) { write(kHelpZoomKey, percent); }

bool UserStore::isOne(std::string_view key) const {
  const QVariant stored = settings_.value(pathOf(key));
  return !stored.isValid() || stored.toInt() == 1;
}

void UserStore::write(std::string_view key, int value) {
  settings_.setValue(pathOf(key), value);
  settings_.sync();
}

}  // namespace odmiennik::app
