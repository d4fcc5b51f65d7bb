// One axis diagram of a line of 201 points: drawing it again after a reading, with its frame kept and with a
// new one, against showing a kept image and one polyline on it; and, where QCustomPlot was found at
// configuring, against a graph of it. Prints the ratios of this run.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <QWidget>
#include <cmath>
#include <cstdio>
#include <vector>

#include "frame/posix_file_system.h"
#include "frame/ui/theme.h"
#include "in_turns.h"
#include "straightness/achsen_anzeige.h"
#include "straightness/achsen_bereich.h"
#include "straightness/formgera.h"
#include "straightness/ui/axis_diagram_view.h"

#ifdef KORVIN_QCUSTOMPLOT
#include <qcustomplot.h>
#endif

namespace korvin {
namespace {

constexpr QSize windowSize(880, 330);
constexpr int pointCount = 201;
constexpr double lineLength = 2500;  // mm
constexpr double range = 0.02;       // mm, of all diagrams
constexpr double curveWidth = 2;     // pixels

/// A bowed line with some noise, all within the range; `round` moves it a little, as new readings do.
double reading(int point, int round) {
  const double share = static_cast<double>(point) / pointCount;
  return 0.012 * std::sin(6.28 * share) + 0.0003 * ((point * 7919 + round) % 13 - 6);
}

double zOf(int point) {
  return lineLength * (point - 1) / (pointCount - 1);
}

void showNow(QWidget& window) {
  window.resize(windowSize);
  window.show();
  QApplication::processEvents();
}

/// The barest way: an image that is kept, and one polyline on it.
class BarePolyline : public QWidget {
 public:
  BarePolyline() : image_(windowSize, QImage::Format_RGB32) {
    image_.fill(Qt::white);
    setAttribute(Qt::WA_OpaquePaintEvent);
    showNow(*this);
  }
  void redraw(int round) {
    line_.clear();
    for (int i = 1; i <= pointCount; ++i)
      line_ << QPointF(48 + zOf(i) / lineLength * 800, 150 - reading(i, round) / range * 140);
    repaint();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.drawImage(0, 0, image_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::red, curveWidth));
    painter.drawPolyline(line_);
  }

 private:
  QImage image_;
  QPolygonF line_;
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

/// The program's diagram with its series, evaluated at each redraw.
class Diagram {
 public:
  explicit Diagram(bool statistics) {
    series_.Linie.AnzMPs = pointCount;
    series_.Linie.Distanz = lineLength;
    ReiheLeeren(series_);
    GeradInfo& info = series_.Info;
    info.Auswertung = AuswertungROH;
    info.Gitter = true;
    info.ZeigeMittel = info.ZeigeStreuung = info.ZeigeSpanne = info.ZeigeAbschnitt = statistics;
    series_.X.Gesamt = range;
    series_.X.ProEinheit = lineLength / 5;
    series_.X.ToleranzBezug = BezugNull;
    showNow(view_);
  }
  void redraw(int round) {
    for (int i = 1; i <= pointCount; ++i) series_.X.Wert.at(static_cast<std::size_t>(i)) = reading(i, round);
    const AchsenAnzeigeDaten data = achseBerechnen(series_, series_.X, 0);
    const AchsenQuelle source = achsenQuelle(series_, series_.X, 0);
    view_.setPicture(achsenRahmen(source, data, true),
                     achsenInhalt(source, data, achsenSchalter(series_.Info, 0)), rahmenVeraltet(series_.X));
    view_.repaint();
  }
  void redrawWithFrame(int round) {
    series_.X.BereichAlt = 0;
    redraw(round);
  }

 private:
  GeradReihe series_;
  PosixFileSystem files_;
  NoDialog dialog_;
  NoMessages messages_;
  NoTexts texts_;
  PictureAchsenDiagramm view_{QStringLiteral("PictureXDiagramm"),
                              PictureDesk{dialog_, messages_, texts_, files_, {}, {}}};
};

#ifdef KORVIN_QCUSTOMPLOT
class Graph {
 public:
  Graph() : graph_(plot_.addGraph()) {
    plot_.xAxis->setRange(0, lineLength);
    plot_.yAxis->setRange(-range, range);
    graph_->setPen(QPen(Qt::red, curveWidth));
    graph_->setAntialiased(true);
    showNow(plot_);
  }
  void redraw(int round) {
    QVector<double> z;
    QVector<double> values;
    for (int i = 1; i <= pointCount; ++i) {
      z << zOf(i);
      values << reading(i, round);
    }
    graph_->setData(z, values, true);
    plot_.replot(QCustomPlot::rpImmediateRefresh);
  }

 private:
  QCustomPlot plot_;
  QCPGraph* graph_;
};
#endif

void drawing(bool statistics) {
  BarePolyline bare;
  Diagram kept(statistics);
  Diagram anew(statistics);
  int round = 0;
  std::vector<Work> works = {[&] { bare.redraw(++round); }, [&] { kept.redraw(round); },
                             [&] { anew.redrawWithFrame(round); }};
#ifdef KORVIN_QCUSTOMPLOT
  Graph graph;
  works.emplace_back([&] { graph.redraw(round); });
#endif
  const std::vector<double> times = inTurns(400, works);
  std::printf("%s\n", statistics ? "with mean, deviation, range and tolerance" : "the curve alone");
  std::printf("  image and polyline %.0f us\n", times[0]);
  std::printf("  frame kept %.0f us, ratio %.2f (aim: 1.5)\n", times[1], times[1] / times[0]);
  std::printf("  new frame %.0f us, ratio %.2f (aim: 2.5)\n", times[2], times[2] / times[0]);
  if (times.size() > 3)
    std::printf("  QCustomPlot %.0f us, %.1f times the kept frame's, %.1f the new one's\n", times[3],
                times[3] / times[1], times[3] / times[2]);
}

}  // namespace
}  // namespace korvin

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  korvin::applyTheme(korvin::Appearance::light, 1, 0);
  korvin::drawing(false);
  korvin::drawing(true);
}
