// SPDX-License-Identifier: GPL-3.0-or-later
// The seam on desktops other than Windows.
#include <sys/socket.h>
#include <unistd.h>

#include <QCursor>
#include <QGuiApplication>
#include <QLibrary>
#include <QProcess>
#include <QScreen>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QString>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <initializer_list>
#include <utility>

#include "app/platform/platform.h"

namespace odmiennik::app::platform {

namespace {

// The first of the programs that is on the path; empty when none is.
std::string firstFound(std::initializer_list<const char*> programs) {
  for (const char* program : programs) {
    const QString found = QStandardPaths::findExecutable(QLatin1String(program));
    if (!found.isEmpty()) return found.toStdString();
  }
  return {};
}

QWindow* windowOf(std::uintptr_t handle) {
  for (QWindow* window : QGuiApplication::topLevelWindows())
    if (window->handle() != nullptr && window->winId() == handle) return window;
  return nullptr;
}

// What a signal writes into and the event loop reads from: nearly nothing may be called in a
// handler.
int termination[2];

constexpr int kTerminating[] = {SIGTERM, SIGHUP, SIGINT};

// Whoever asks twice does not want to wait: the second signal ends the program by itself.
void passOn(int /*signal*/) {
  for (const int signal : kTerminating) std::signal(signal, SIG_DFL);
  const char any = 1;
  [[maybe_unused]] const ssize_t written = write(termination[1], &any, sizeof any);
}

// A place of the desktop in the pixels that Qt reckons in: a screen's corner stays, what is in it
// is scaled.
QPoint scaledPlace(QPoint place) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QPoint corner = screen->geometry().topLeft();
    const QRect pixels(corner, screen->size() * screen->devicePixelRatio());
    if (pixels.contains(place)) return corner + (place - corner) / screen->devicePixelRatio();
  }
  return place;
}

// Lays a window over a place with the frame that it has.
void layOver(QWindow& window, const WindowPlace& place) {
  const double ratio = window.devicePixelRatio();
  const auto scaled = [ratio](int pixels) { return qRound(pixels / ratio); };
  const QSize framed(scaled(place.width), scaled(place.height));
  window.resize(framed.shrunkBy(window.frameMargins()));
  window.setFramePosition(QPoint(scaled(place.x), scaled(place.y)));
}

// A maximised window has a thinner frame, and which one it gets when it no longer is, the system
// tells a while after: then the window is laid over its place once more. Qt learns of the new frame
// without an event, on a busy machine behind the last change of the size.
class AwaitedFrame final : public QObject {
 public:
  AwaitedFrame(QWindow& window, const WindowPlace& place)
      : QObject(&window), window_(window), place_(place), margins_(window.frameMargins()) {
    constexpr std::chrono::milliseconds kPause(50);
    constexpr std::chrono::seconds kLongEnough(5);
    QObject::connect(&again_, &QTimer::timeout, this, [this] { follow(); });
    again_.start(kPause);
    window.installEventFilter(this);
    QTimer::singleShot(kLongEnough, this, &QObject::deleteLater);
  }

  bool eventFilter(QObject* /*window*/, QEvent* event) override {
    if (event->type() == QEvent::Resize) follow();
    return false;
  }

 private:
  void follow() {
    if (window_.frameMargins() == margins_) return;
    margins_ = window_.frameMargins();
    layOver(window_, place_);
  }

  QWindow& window_;
  WindowPlace place_;
  QMargins margins_;
  QTimer again_;
};

}  // namespace

std::vector<Utf8Text> arguments(int count, char** values) {
  if (count < 2) return {};
  return {values + 1, values + count};
}

void chooseFontEngine() {}

void tell(Utf8View text, bool isError) {
  std::FILE* stream = isError ? stderr : stdout;
  std::fwrite(text.data(), 1, text.size(), stream);
  std::fflush(stream);
}

std::string characterMap() { return firstFound({"gucharmap", "gnome-characters", "kcharselect"}); }

std::string systemInformation() { return firstFound({"hardinfo2", "hardinfo", "kinfocenter"}); }

// CUPS. The default is written by the print system's own tool into the user's options.
bool makeDefaultPrinter(const Utf8Text& printer) {
  constexpr int kLimitMilliseconds = 10'000;
  if (printer.empty()) return false;
  QProcess tool;
  tool.start(QStringLiteral("lpoptions"), {QStringLiteral("-d"), QString::fromUtf8(printer)});
  return tool.waitForFinished(kLimitMilliseconds) && tool.exitStatus() == QProcess::NormalExit &&
         tool.exitCode() == 0;
}

// Qt loads the same library to hand documents over; where it is absent there is no printer either.
bool hasPrintSystemRefused() {
  using LastError = int (*)();
  static const auto lastError =
      reinterpret_cast<LastError>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
  constexpr int kLastSuccessfulStatus = 0xFF;  // of the printing protocol, RFC 8011
  if (lastError == nullptr) return false;
  const int status = lastError();
  return status < 0 || status > kLastSuccessfulStatus;
}

bool mayPlaceWindows() {
  return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

// The flag of the living window is changed: a window made anew would leave the screen for a moment.
void setAlwaysOnTop(std::uintptr_t handle, bool isOnTop, const Screen& screen) {
  QWindow* window = windowOf(handle);
  if (window == nullptr) return;
  const WindowPlace place = limitedPlaceOnTop(isOnTop, screen);
  if (window->windowStates() != Qt::WindowNoState) new AwaitedFrame(*window, place);
  window->setFlag(Qt::WindowStaysOnTopHint, isOnTop);
  window->setWindowStates(Qt::WindowNoState);
  layOver(*window, place);
}

bool start(const std::string& program) {
  return QProcess::startDetached(QString::fromStdString(program), {});
}

// A desktop that refuses says nothing: the pointer is where it was.
bool movePointer(int x, int y) {
  if (!mayPlaceWindows()) return false;
  const QPoint place = scaledPlace({x, y});
  const QPoint before = QCursor::pos();
  QCursor::setPos(place);
  return QCursor::pos() != before || place == before;
}

void onTermination(std::function<void()> end) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, termination) != 0) return;
  auto* notifier = new QSocketNotifier(termination[0], QSocketNotifier::Read, qApp);
  QObject::connect(notifier, &QSocketNotifier::activated, qApp, [notifier, end = std::move(end)] {
    notifier->setEnabled(false);
    end();
  });
  struct sigaction action {};
  action.sa_handler = passOn;
  action.sa_flags = SA_RESTART;
  for (const int signal : kTerminating) sigaction(signal, &action, nullptr);
}

// X11 and Wayland number the keys by their place: "1" is 10, "0" is 19.
int virtualKey(std::uint32_t scanCode, std::uint32_t /*nativeKey*/) {
  constexpr std::uint32_t kKeyOf1 = 10;
  constexpr std::uint32_t kKeyOf0 = 19;
  if (scanCode < kKeyOf1 || scanCode > kKeyOf0) return 0;
  return scanCode == kKeyOf0 ? '0' : '1' + static_cast<int>(scanCode - kKeyOf1);
}

}  // namespace odmiennik::app::platform
