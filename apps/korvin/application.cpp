#include "korvin/application.h"

#include <QLocale>
#include <QScopedValueRollback>
#include <cstdio>
#include <exception>

#include "frame/ui/icons.h"

namespace korvin {

bool preparePlatform() {
  // Qt's own dispatcher answers a byte on the line faster than GLib's, and nothing here needs GLib.
  if (!qEnvironmentVariableIsSet("QT_NO_GLIB")) qputenv("QT_NO_GLIB", "1");
#ifdef Q_OS_LINUX
  const bool platformChosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
  const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!platformChosen && !display) {
    std::fputs("korvin: no display (neither DISPLAY nor WAYLAND_DISPLAY is set)\n", stderr);
    return false;
  }
#endif
  return true;
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("korvin"));
  // No display name: Qt would add it to the titles of the measuring windows.
  setDesktopFileName(QStringLiteral("korvin"));
  setWindowIcon(icon(QStringLiteral("ICONKORVIN")));
  // The decimal mark is the point, in every language.
  QLocale::setDefault(QLocale::c());
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    tell(error.what());
  }
  return true;
}

void Application::tell(const char* words) {
  std::fprintf(stderr, "korvin: %s\n", words);
  if (telling_ || !onUncaught) return;
  const QScopedValueRollback<bool> once(telling_, true);
  onUncaught(words);
}

}  // namespace korvin
