#include <unistd.h>

#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <mutex>
#include <optional>
#include <thread>

#include "guideway.h"
#include "head_process.h"
#include "journal.h"
#include "korvin/application.h"
#include "korvin/station.h"
#include "platform.h"
#include "spindle.h"
#include "walk.h"

namespace korvin::tour {
namespace {

constexpr int timeLimit = 600;             ///< seconds for the whole walk
constexpr qsizetype longestFileName = 75;  ///< bytes for a path in a measuring file
const QString fileName = QStringLiteral("walk.O");
const QString lineName = QStringLiteral("walk.G");
const QString adaptiveName = QStringLiteral("adaptive.G");
const QString reportName = QStringLiteral("walk.pdf");
const QString lineReportName = QStringLiteral("adaptive.pdf");

/// Folders of the walk's own: never the user's settings, never their files.
class Places {
 public:
  explicit Places(const QString& out) : out_(QDir(out).absolutePath()) {
    if (!own_.isValid() || !QDir().mkpath(out_)) throw std::runtime_error("no folder " + out_.toStdString());
    removeOldFiles();
    blockOtherPorts();
  }

  QString out() const { return out_; }
  QString config() const { return own_.filePath(QStringLiteral("config")); }

  FolderEnvironment environment() const {
    FolderEnvironment environment = folderEnvironment();
    environment.executableFolderWritable = false;
    environment.xdgDataHome = own_.filePath(QStringLiteral("data")).toStdString();
    environment.xdgConfigHome = config().toStdString();
    return environment;
  }

  QString file() const { return measuringFile(fileName); }
  WalkPlaces forWalk() const {
    return {out_,
            file(),
            QDir(out_).filePath(reportName),
            measuringFile(lineName),
            measuringFile(adaptiveName),
            QDir(out_).filePath(lineReportName),
            Folders(chooseFolders(environment())).settingsFile()};
  }
  void bringFiles() const {
    if (QFileInfo(file()).absolutePath() == out_) return;
    for (const QString& name : measuringFiles()) QFile::copy(own_.filePath(name), QDir(out_).filePath(name));
  }
  void remove() { own_.remove(); }

 private:
  /// All that belongs to the measurements.
  static QStringList measuringFiles() {
    return {fileName,
            fileName + QLatin1Char('1'),
            fileName + QLatin1Char('$'),
            lineName,
            lineName + QLatin1Char('$'),
            adaptiveName,
            adaptiveName + QLatin1Char('$')};
  }

  /// In `out`, unless its path does not fit a measuring file; then `bringFiles` copies it there.
  QString measuringFile(const QString& name) const {
    const QString direct = QDir(out_).filePath(name);
    return direct.toUtf8().size() <= longestFileName ? direct : own_.filePath(name);
  }

  /// What an earlier walk left and this one would meet. Pictures are written over.
  void removeOldFiles() const {
    const QStringList left =
        measuringFiles() +
        QStringList{reportName, lineReportName, QStringLiteral("walk.txt"), QStringLiteral("failed-*.png")};
    for (const QString& old : QDir(out_).entryList(left, QDir::Files))
      QFile::remove(QDir(out_).filePath(old));
  }

  /// The walk asks no device that may be connected to this machine: all ports but the head's lead nowhere.
  void blockOtherPorts() const {
    const QString ports = config() + QStringLiteral("/korvin/ports");
    QDir().mkpath(ports);
    for (int port = 1; port <= 16; ++port) {
      if (port != 7)
        QFile::link(QStringLiteral("/dev/null"), QStringLiteral("%1/com%2").arg(ports).arg(port));
    }
  }

  QTemporaryDir own_;
  QString out_;
};

using Deadline = std::chrono::steady_clock::time_point;

/// Ends the program when the walk takes too long, whatever hangs.
class Watchdog {
 public:
  Watchdog(Deadline deadline, std::function<void()> tooLate)
      : thread_([this, deadline, tooLate = std::move(tooLate)] {
          std::unique_lock lock(mutex_);
          if (!ended_.wait_until(lock, deadline, [this] { return over_; })) tooLate();
        }) {}
  ~Watchdog() {
    {
      const std::lock_guard lock(mutex_);
      over_ = true;
    }
    ended_.notify_one();
    thread_.join();
  }
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

 private:
  std::mutex mutex_;
  std::condition_variable ended_;
  bool over_ = false;
  std::thread thread_;
};

const QString anyHead = QStringLiteral("--port 7 --baud 19200 --modulus 95 ");
/// Stands in one place, about which the beam wanders.
const QString standingHead = anyHead + QStringLiteral("--x 0.12 --y -0.08 --noise 2 --drift 6,-4");
/// Is carried along the guideway, in a hurry.
const QString carriedHead = anyHead + QStringLiteral("--time-scale 0.25 ") + Guideway::headOptions();

/// Is turned on a spindle. No faster than this: an analysis takes 500 readings at the most.
const QString turnedHead = anyHead + QStringLiteral("--time-scale 0.5 ") + Spindle::headOptions();

/// The walk came to a bad end: windows may still be open, so the process ends here and now.
[[noreturn]] void endBadly(Places& places, const HeadProcess& head) {
  head.endNow();
  places.bringFiles();
  places.remove();
  std::fflush(nullptr);
  std::_Exit(EXIT_FAILURE);
}

/// One start of the program, with a part of the walk beside it.
template <class Part>
void startProgram(Places& places, const HeadProcess& head, Journal& journal, Part part) {
  Station station(places.environment(), Appearance::light);
  std::thread walker([&] {
    if (part()) return;
    try {
      Hand(places.out()).pictureOfAll(QStringLiteral("failed"));
    } catch (const StepFailed&) {
      journal.line("The windows gave no picture.");
    }
    endBadly(places, head);
  });
  if (station.start()) {
    Application::exec();
  } else {
    journal.failed("The program starts", "it ended at its start");
    endBadly(places, head);
  }
  walker.join();
}

/// A virtual head on the port, and the starts of the program that meet it.
void walkWithHead(const QString& options, Places& places, Journal& journal, Deadline deadline,
                  std::initializer_list<bool (Walk::*)()> starts) {
  const HeadProcess head(QCoreApplication::applicationDirPath() + QStringLiteral("/korvin-head"),
                         options.split(QLatin1Char(' ')), places.config());
  journal.line("\nkorvin-head " + options.toStdString() + "\n");
  const Watchdog watchdog(deadline, [&] {
    journal.failed("The whole walk", "it took longer than " + std::to_string(timeLimit) + " s");
    endBadly(places, head);
  });
  Walk walk(places.forWalk(), head, journal);
  for (const auto start : starts) startProgram(places, head, journal, [&] { return (walk.*start)(); });
}

int walkThrough(const QString& out) {
  Places places(out);
  Journal journal(QDir(places.out()).filePath(QStringLiteral("walk.txt")).toStdString());
  journal.line("KORVIN: a walk through the windows, " +
               QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")).toStdString());
  const Deadline deadline = std::chrono::steady_clock::now() + std::chrono::seconds(timeLimit);
  walkWithHead(standingHead, places, journal, deadline, {&Walk::firstStart, &Walk::secondStart});
  walkWithHead(carriedHead, places, journal, deadline, {&Walk::thirdStart});
  walkWithHead(turnedHead, places, journal, deadline, {&Walk::fourthStart});
  places.bringFiles();
  journal.line("\nAll steps went well.");
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace korvin::tour

int main(int argc, char** argv) {
  using namespace korvin;
  QTemporaryDir screenFolder;
  tour::choosePlatform(screenFolder.path().toStdString());
  if (!preparePlatform()) return EXIT_FAILURE;
  Application application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Walks the real windows of KORVIN through its measurements with a virtual head, by clicks and keys:\n"
      "positions, a straight line, an environment analysis, adaptive points, the centre of a circle.\n"
      "Leaves the measuring files, pictures of the windows and walk.txt in the folder DIR.\n"
      "Exit status: 0 if every step went well, 1 if one failed, with the reason on standard error."));
  parser.addHelpOption();
  const QCommandLineOption out(QStringLiteral("out"),
                               QStringLiteral("Folder for what comes of it (default: out)."),
                               QStringLiteral("DIR"), QStringLiteral("out"));
  parser.addOption(out);
  parser.process(application);
  try {
    return tour::walkThrough(parser.value(out));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "korvin-tour: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
