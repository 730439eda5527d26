// SPDX-License-Identifier: GPL-3.0-or-later
// Style, font and language.
#include "app/common/look.h"

#include <QApplication>
#include <QEventLoop>
#include <QFontDatabase>
#include <QFontInfo>
#include <QIcon>
#include <QLocale>
#include <QPointer>
#include <QResource>
#include <QTimer>
#include <QTranslator>
#include <QWidget>
#include <functional>
#include <utility>

#include "app/common/accessible_line.h"
#include "app/common/program_style.h"
#include "app/common/text.h"
#include "dictionary/messages.h"

namespace odmiennik::app {
namespace {

// 9 points at 96 dots an inch, like everything in the table in pixels.
constexpr int kFontPixels = 12;

void speakPolish(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::Polish, QLocale::Poland));
  auto* translator = new QTranslator(&application);
  if (translator->load(QStringLiteral(":/odmiennik/qtbase_pl.qm")))
    QApplication::installTranslator(translator);
}

// By their data and not by their names, where Qt would copy each of them twice.
void carryFonts() {
  for (const char* file :
       {":/odmiennik/LiberationSans-Regular.ttf", ":/odmiennik/LiberationSans-Bold.ttf"})
    QFontDatabase::addApplicationFontFromData(QResource(QLatin1String(file)).uncompressedData());
}

// A system that lacks the font it names may offer a typewriter's instead.
void replaceMissingFont() {
  const QFont asked = QApplication::font();
  const QFontInfo found(asked);
  if (found.fixedPitch() && found.family() != asked.family()) QApplication::setFont(programFont());
}

QIcon programIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 128})
    icon.addFile(QStringLiteral(":/odmiennik/icon-%1.png").arg(size), QSize(size, size));
  return icon;
}

// Calls a function once the first picture of a window is on the screen, and is gone with it.
class FirstPicture final : public QObject {
 public:
  FirstPicture(QWidget& window, std::function<void()> then)
      : QObject(&window), then_(std::move(then)) {
    window.installEventFilter(this);
  }

  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    window->removeEventFilter(this);
    QTimer::singleShot(0, this, [this] {
      then_();
      deleteLater();
    });
    return false;
  }

 private:
  std::function<void()> then_;
};

}  // namespace

void giveIconLater(QWidget& window) {
  new FirstPicture(window, [] { QApplication::setWindowIcon(programIcon()); });
}

void waitForFirstPicture(QWidget& window) {
  constexpr int kLongestMilliseconds = 200;
  QEventLoop loop;
  const QPointer<FirstPicture> awaited(new FirstPicture(window, [&loop] { loop.quit(); }));
  QTimer::singleShot(kLongestMilliseconds, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  delete awaited;
}

void prepare(QApplication& application) {
  QApplication::setApplicationName(fromUtf8(dictionary::kApplicationTitle));
  QApplication::setApplicationVersion(QStringLiteral(ODMIENNIK_VERSION));
  QApplication::setOrganizationName(fromUtf8(dictionary::kApplicationTitle));
  QApplication::setStyle(new ProgramStyle);  // the application owns it
  answerForLines();
  carryFonts();
  replaceMissingFont();
  speakPolish(application);
}

QFont programFont() {
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPixelSize(kFontPixels);
  return font;
}

QFont enlarged(QFont font, qreal factor) {
  if (font.pixelSize() > 0)
    font.setPixelSize(qRound(font.pixelSize() * factor));
  else
    font.setPointSizeF(font.pointSizeF() * factor);
  return font;
}

}  // namespace odmiennik::app
