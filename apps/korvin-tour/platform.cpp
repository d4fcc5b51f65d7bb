#include "platform.h"

#include <QByteArray>
#include <QString>
#include <cstdio>
#include <fstream>

namespace korvin::tour {
namespace {

/// The screen in memory has no window manager and says so at many windows.
void tellButForPlugin(QtMsgType, const QMessageLogContext&, const QString& words) {
  if (!words.contains(QLatin1String("This plugin does not support")))
    std::fprintf(stderr, "%s\n", qUtf8Printable(words));
}

}  // namespace

void choosePlatform(const std::string& folder) {
  const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
  const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (chosen.isEmpty() ? display : chosen != "offscreen") return;
  qInstallMessageHandler(tellButForPlugin);
  if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(folder));
  const std::string file = folder + "/screen.json";
  std::ofstream(file) << R"({"windowFrameMargins": false, "screens": [{"name": "walk", "x": 0, "y": 0,
 "width": 1280, "height": 1024, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
  qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString("offscreen:configfile=" + file));
}

}  // namespace korvin::tour
