#include "QtApplication.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QIcon>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>
#include <QThread>
#include <QWidget>
#include <exception>

#include "Colors.h"
#include "Failure.h"
#include "Pictures.h"
#include "ViewSite.h"

namespace tarnel::qt {
namespace {

constexpr const char* platformVariable = "QT_QPA_PLATFORM";
constexpr int answerPatience = 150;  // milliseconds that the desktop has to tell its colours

// What the desktop answers to org.freedesktop.appearance color-scheme: 1 is dark.
bool desktopPrefersDark() {
  if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return false;
  QDBusMessage question = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
  question << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
  const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, answerPatience);
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return false;
  QVariant value = answer.arguments().constFirst();
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value.toUInt() == 1;
}

QIcon ownIcon() {
  QIcon icon;
  for (const int side : {16, 32, 64, 128}) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintPicture(painter, QRectF(0, 0, side, side), "Tarnel");
    icon.addPixmap(pixmap);
  }
  return icon;
}

// A desktop that has a palette of its own keeps it.
QPalette desktopPalette() {
  QPalette given = QApplication::palette();
  if (given != QApplication::style()->standardPalette()) return given;
  return desktopPrefersDark() ? darkPalette() : lightPalette();
}

QPalette paletteFor(Colors colors) {
  if (colors == Colors::desktop) return desktopPalette();
  return colors == Colors::dark ? darkPalette() : lightPalette();
}

// What a view throws must not run through Qt's event loop either: its window hands it on. In a host's own application
// that is the host's to do.
class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (...) {
      auto* widget = qobject_cast<QWidget*>(receiver);
      auto* site = widget ? dynamic_cast<ViewSite*>(widget->window()) : nullptr;
      if (!site) throw;
      site->act([failure = std::current_exception()] { std::rethrow_exception(failure); });
      return false;
    }
  }
};

bool hostHasOne() {
  const QCoreApplication* there = QCoreApplication::instance();
  if (!there) return false;
  if (qobject_cast<const QApplication*>(there) && there->thread() == QThread::currentThread()) return true;
  throw Failure(failure::objectNotSet,
                "The window can't be opened because this program has a Qt application that is none for widgets or "
                "lives on another thread. Open the wizard on that application's thread.");
}

}  // namespace

QtApplication::QtApplication(int& argc, char** argv, Colors colors) {
  if (hostHasOne()) return;
  const QByteArray chosen = qgetenv(platformVariable);
  const QByteArray usual = qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? "xcb" : "wayland;xcb";
  // Qt ends the process when no platform answers; the last one always does, and is told apart below.
  qputenv(platformVariable, (chosen.isEmpty() ? usual : chosen) + ";offscreen");
  start(argc, argv, colors);
  chosen.isEmpty() ? qunsetenv(platformVariable) : qputenv(platformVariable, chosen);
  if (QGuiApplication::platformName() == QStringLiteral("offscreen") && !chosen.contains("offscreen"))
    throw Failure(failure::fileNotFound,
                  "The window can't be opened because no screen answers (DISPLAY=\"" +
                      qEnvironmentVariable("DISPLAY").toStdString() + "\", QT_QPA_PLATFORM=\"" + chosen.toStdString() +
                      "\"). Start the program inside a desktop session, or use \"tarnel drive\".");
}

QtApplication::QtApplication(WithoutScreen, int& argc, char** argv, Colors colors) {
  if (hostHasOne()) return;
  const bool chosen = qEnvironmentVariableIsSet(platformVariable);
  const QByteArray before = qgetenv(platformVariable);
  qputenv(platformVariable, "offscreen");
  start(argc, argv, colors);
  // A window that the same host opens later is to be seen.
  chosen ? qputenv(platformVariable, before) : qunsetenv(platformVariable);
}

QtApplication::~QtApplication() = default;

void QtApplication::start(int& argc, char** argv, Colors colors) {
  application_ = std::make_unique<GuardedApplication>(argc, argv);
  QApplication::setApplicationName(QStringLiteral("tarnel"));
  QApplication::setWindowIcon(ownIcon());
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setQuitOnLastWindowClosed(false);  // a wizard that closes hands back to its host
  QApplication::setPalette(paletteFor(colors));
}

}  // namespace tarnel::qt
