// One answer of a running straightness measurement: from the head's answer to the drawn pixels of the whole
// window at 1280 by 1024, over the real serial port on a pseudo-terminal. The line has 201 points, and all
// that the window can show of them is switched on. Prints the ratios of this run against the limit.
#include <pthread.h>

#include <QApplication>
#include <QEvent>
#include <QToolButton>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "answering_head.h"
#include "frame/memory_settings_tree.h"
#include "frame/posix_file_system.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/qt_event_pump.h"
#include "frame/ui/qt_random_source.h"
#include "frame/ui/qt_timer.h"
#include "frame/ui/theme.h"
#include "link/ui/qt_mscomm.h"
#include "straightness/ui/form_geradheit.h"

namespace korvin {
namespace {

constexpr QSize windowSize(1280, 1024);
constexpr std::int16_t pointCount = 201;
constexpr double lineLength = 2500;  // mm
constexpr std::size_t answers = 500;
constexpr double limit = 5;  // ms

/// Milliseconds on a processor, and by the clock on the wall.
struct Moment {
  double processor = 0;
  double wall = 0;
};

double milliseconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// The moment as the thread of the windows has it; may be asked from any thread.
class WindowThread {
 public:
  WindowThread() { pthread_getcpuclockid(pthread_self(), &clock_); }
  Moment now() const { return {milliseconds(clock_), milliseconds(CLOCK_MONOTONIC)}; }

 private:
  clockid_t clock_{};
};

/// The application; tells when a window's painting is on the screen.
class PaintingApplication : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override {
    const bool painting = event->type() == QEvent::UpdateRequest;
    const bool handled = QApplication::notify(receiver, event);
    if (painting && painted) painted(receiver);
    return handled;
  }
  std::function<void(QObject* window)> painted;
};

class NoMessages : public MessagePort {
 public:
  MessageAnswer show(const Meldung&, MessageIcon, MessageButtons) override { return MessageAnswer::no; }
  void beep() override {}
};
class NoDialog : public FileDialog {
 public:
  std::string choose(const FileDialogRequest&) override { return {}; }
};
class Ending : public ProgramEnd {
 public:
  [[noreturn]] void end(const std::string& systemText, long) override { fail(systemText.c_str()); }
};

double quantile(std::vector<double> values, double share) {
  std::sort(values.begin(), values.end());
  return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
}

void tell(const char* what, const std::vector<double>& times) {
  const double median = quantile(times, 0.5);
  const double late = quantile(times, 0.99);
  std::printf("  %-14s median %.2f ms, ratio %.2f; p99 %.2f ms, ratio %.2f\n", what, median, median / limit,
              late, late / limit);
}

/// The window in a running measurement.
class RunningLine {
 public:
  explicit RunningLine(PaintingApplication& application) : application_(application) {
    dictionary_.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    profil_.schreiben(einstellung::FormGeradheit::AnzMPs, std::to_string(pointCount));
    profil_.schreiben(einstellung::FormGeradheit::Distanz, std::to_string(lineLength));
    form_ = std::make_unique<FormGeradheit>(GeradUmgebung{
        {clock_, pump_, timers_, messages_, dictionary_, profil_, message_, korCom_, answer_, system_},
        port_,
        formgera_,
        task_,
        dateien_,
        {dialog_, files_, {}}});
    form_->resize(windowSize);
    form_->show();
    form_->zeigen();
    fillLine();
    press("t");
    press("R");
    press("s");
    press("x");
    application_.painted = [this](QObject* window) { painted(window); };
    press("XYMPN");
  }
  void measure() {
    while (processor_.size() < answers) pump_.waitForEvents(std::chrono::milliseconds{20});
    application_.painted = nullptr;
    std::printf("answer of a running measurement to the pixels, %d x %d (limit: %.0f ms, ratio 1)\n",
                form_->width(), form_->height(), limit);
    tell("processor time", processor_);
    tell("wall time", wall_);
  }

 private:
  void press(const char* key) { form_->findChild<QToolButton*>(QString::fromLatin1(key))->click(); }

  /// Readings at all points, so that every point is drawn.
  void fillLine() {
    GeradReihe& series = formgera_.reihe();
    for (std::size_t i = 1; i <= pointCount; ++i) {
      series.X.Wert.at(i) = 0.002 * static_cast<double>((i * 7919) % 13);
      series.Y.Wert.at(i) = 0.002 * static_cast<double>((i * 104729) % 11);
    }
    series.X.Gesamt = series.Y.Gesamt = 0.02;
    series.X.WertPro = series.Y.WertPro = 0.005;
    series.X.ProEinheit = series.Y.ProEinheit = lineLength / 5;
  }

  /// In the head's thread: each answer another reading, so that all is evaluated and drawn anew.
  std::string answer() {
    ++count_;
    std::string frame = answerFrame(250000 + count_ % 97, 250000 - count_ % 89);
    const std::lock_guard lock(mutex_);
    answered_ = thread_.now();
    return frame;
  }

  void painted(QObject* window) {
    // The first painting that follows on an answer shows it.
    const std::uint32_t taken = formgera_.eingetragen();
    if (window != form_.get() || taken == shown_) return;
    shown_ = taken;
    const Moment now = thread_.now();
    const std::lock_guard lock(mutex_);
    processor_.push_back(now.processor - answered_.processor);
    wall_.push_back(now.wall - answered_.wall);
  }

  PaintingApplication& application_;
  WindowThread thread_;
  std::vector<double> processor_;
  std::vector<double> wall_;
  int count_ = 0;
  std::uint32_t shown_ = 0;
  std::mutex mutex_;
  Moment answered_;

  AnsweringHead head_{[this] { return answer(); }};
  SystemClock clock_;
  QtEventPump pump_;
  QtTimerSource timers_;
  QtRandomSource random_;
  NoMessages messages_;
  NoDialog dialog_;
  Ending end_;
  PosixFileSystem files_;
  MemorySettingsTree tree_;
  Profil profil_{tree_};
  Systemwerte system_;
  Meldung message_;
  KameraAntwort answer_;
  SqliteDictionary dictionary_{system_.SpracheSpalte, end_};
  KorCom korCom_{clock_, pump_, random_, messages_};
  QtMSComm port_{[this](int) { return QString::fromStdString(head_.path()); }};
  FORMGERA formgera_;
  GeradErfassung task_{{messages_, dictionary_, profil_, system_, formgera_}};
  GeradDateien dateien_{{files_, messages_, message_, dictionary_, profil_, system_, formgera_}};
  std::unique_ptr<FormGeradheit> form_;
};

}  // namespace
}  // namespace korvin

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (!qEnvironmentVariableIsSet("QT_NO_GLIB")) qputenv("QT_NO_GLIB", "1");  // as the program has it
  korvin::PaintingApplication application(argc, argv);
  korvin::applyTheme(korvin::Appearance::light, 1, 0);
  korvin::RunningLine line(application);
  line.measure();
}
