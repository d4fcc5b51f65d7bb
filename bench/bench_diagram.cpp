// The XY diagram with 29999 points: drawing all anew, and one point more, against a loop that sets dots of 3
// by 3 pixels in an image of the same size and shows it; and, where QCustomPlot was found at configuring,
// against a scatter plot of it. Prints the ratios of this run.
#include <QApplication>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "frame/posix_file_system.h"
#include "frame/ui/theme.h"
#include "in_turns.h"
#include "position/ui/xy_diagram_view.h"

#ifdef KORVIN_QCUSTOMPLOT
#include <qcustomplot.h>
#endif

namespace korvin {
namespace {

constexpr QSize windowSize(585, 550);  // the picture fills it
constexpr double reach = 0.0049;       // of the points, mm: the range is ±5 um

std::vector<DataPoint> somePoints() {
  std::mt19937 generator(4711);
  std::uniform_real_distribution<double> place(-reach, reach);
  std::vector<DataPoint> points(MaxPunkteO);
  for (DataPoint& point : points) point = {place(generator), place(generator)};
  return points;
}

/// Shows the window, and waits until it is there: before that nothing is painted.
void showNow(QWidget& window) {
  window.show();
  QApplication::processEvents();
}

/// The barest way to show points: an image, dots of 3 by 3 pixels, one blit.
class DotLoop : public QWidget {
 public:
  DotLoop() : image_(windowSize, QImage::Format_RGB32) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(windowSize);
  }
  void all(const std::vector<DataPoint>& points) {
    image_.fill(Qt::white);
    for (const DataPoint point : points) dot(point);
    repaint();
  }
  void one(DataPoint point) { repaint(dot(point)); }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter(this).drawImage(event->rect(), image_, event->rect());
  }

 private:
  QRect dot(DataPoint point) {
    const int x = 70 + static_cast<int>((point.x + reach) / (2 * reach) * 500);
    const int y = 20 + static_cast<int>((reach - point.y) / (2 * reach) * 500);
    for (int row = y - 1; row <= y + 1; ++row) {
      auto* line = reinterpret_cast<QRgb*>(image_.scanLine(row));
      for (int column = x - 1; column <= x + 1; ++column) line[column] = 0xff00008b;
    }
    return {x - 1, y - 1, 3, 3};
  }
  QImage image_;
};

class NoDialog : public FileDialog {
 public:
  std::string choose(const FileDialogRequest&) override { return {}; }
};
class NoMessages : public MessagePort {
 public:
  MessageAnswer show(const Meldung&, MessageIcon, MessageButtons) override { return MessageAnswer::ok; }
  void beep() override {}
};
class NoTexts : public Dictionary {
 public:
  std::string DicText(std::int16_t) override { return {}; }
};

/// The program's diagram with its measurement.
class Diagram {
 public:
  Diagram() {
    formpos_.Info().RestMP = -1;
    formpos_.Info().Gitter = true;
    view_.resize(windowSize);
    showNow(view_);
  }
  /// Has the first `count` points, and has shown them.
  void setCount(const std::vector<DataPoint>& points, int count) {
    formpos_.messungLoeschen();
    for (int i = 0; i < count; ++i) take(points[static_cast<std::size_t>(i)]);
    all();
  }
  void all() {
    view_.reload();
    view_.repaint();
  }
  void one(DataPoint point) {
    take(point);
    view_.follow();
    QApplication::processEvents();
  }

 private:
  void take(DataPoint point) {
    formpos_.arbeit().X.Aktuell = point.x;
    formpos_.arbeit().Y.Aktuell = point.y;
    formpos_.punktHinzufuegen(45000);
  }
  FORMPOS formpos_;
  PosixFileSystem files_;
  NoDialog dialog_;
  NoMessages messages_;
  NoTexts texts_;
  PictureXYDiagramm view_{formpos_, 0, PictureDesk{dialog_, messages_, texts_, files_, {}, {}}};
};

#ifdef KORVIN_QCUSTOMPLOT
/// A scatter plot of the library: a curve without a line.
class Scatter {
 public:
  explicit Scatter(QCPScatterStyle::ScatterShape shape) : curve_(new QCPCurve(plot_.xAxis, plot_.yAxis)) {
    plot_.resize(windowSize);
    plot_.xAxis->setRange(-reach, reach);
    plot_.yAxis->setRange(-reach, reach);
    curve_->setLineStyle(QCPCurve::lsNone);
    curve_->setScatterStyle(QCPScatterStyle(shape, QColor(0, 0, 0x8b), 4));
    showNow(plot_);
  }
  void setCount(const std::vector<DataPoint>& points, int count) {
    curve_->data()->clear();
    for (int i = 0; i < count; ++i) add(points[static_cast<std::size_t>(i)]);
    all();
  }
  void all() { plot_.replot(QCustomPlot::rpImmediateRefresh); }
  void one(DataPoint point) {
    add(point);
    all();
  }

 private:
  void add(DataPoint point) { curve_->addData(point.x, point.y); }
  QCustomPlot plot_;
  QCPCurve* curve_;
};
#endif

void drawingAll(const std::vector<DataPoint>& points) {
  DotLoop loop;
  showNow(loop);
  Diagram diagram;
  diagram.setCount(points, MaxPunkteO);
  // The library in turns of its own with the loop: it would sweep the caches between the other two.
  const std::vector<double> times = inTurns(100, {[&] { loop.all(points); }, [&] { diagram.all(); }});
  std::printf("all of %d points: %.0f us, loop of dots %.0f us, ratio %.2f (aim: 2.5)\n", MaxPunkteO,
              times[1], times[0], times[1] / times[0]);
#ifdef KORVIN_QCUSTOMPLOT
  Scatter squares(QCPScatterStyle::ssSquare);
  Scatter circles(QCPScatterStyle::ssCircle);
  squares.setCount(points, MaxPunkteO);
  circles.setCount(points, MaxPunkteO);
  const std::vector<double> plots =
      inTurns(30, {[&] { loop.all(points); }, [&] { squares.all(); }, [&] { circles.all(); }});
  std::printf("  QCustomPlot with squares %.0f us, ratio %.1f; with circles %.0f us, ratio %.1f\n", plots[1],
              plots[1] / plots[0], plots[2], plots[2] / plots[0]);
#endif
}

void onePointMore(const std::vector<DataPoint>& points, int already) {
  constexpr int rounds = 900;
  DotLoop loop;
  showNow(loop);
  loop.all(points);
  Diagram diagram;
  diagram.setCount(points, already);
  std::size_t dot = 0;
  std::size_t next = static_cast<std::size_t>(already);
  std::vector<Work> works = {[&] { loop.one(points[dot++]); }, [&] { diagram.one(points[next++]); }};
  const std::vector<double> times = inTurns(rounds, works);
  std::printf("one point more after %d: %.1f us, one dot %.1f us, ratio %.1f (aim: 10)\n", already, times[1],
              times[0], times[1] / times[0]);
#ifdef KORVIN_QCUSTOMPLOT
  Scatter squares(QCPScatterStyle::ssSquare);
  squares.setCount(points, already);
  next = static_cast<std::size_t>(already);
  const double plot = inTurns(60, {[&] { squares.one(points[next++]); }}).front();
  std::printf("  QCustomPlot with squares %.1f us, ratio %.0f\n", plot, plot / times[0]);
#endif
}

}  // namespace
}  // namespace korvin

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  korvin::applyTheme(korvin::Appearance::light, 1, 0);
  const auto points = korvin::somePoints();
  korvin::drawingAll(points);
  korvin::onePointMore(points, 1000);
  korvin::onePointMore(points, 29000);
}
