#include "frame/ui/painter_surface.h"

#include <QApplication>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "frame/ui/qt_colour.h"
#include "frame/ui/qt_text.h"

namespace korvin {
namespace {

constexpr double textsInSide = 44;       ///< texts of size 1 that fill the shorter side
constexpr double smallestText = 9.5;     ///< in pixels of a screen with the pixel ratio 1
constexpr double pixelsForALine = 1000;  ///< length of the shorter side per pixel of the thinnest line
/// Farther out nothing is handed to the painter: its arithmetic has limits.
constexpr double farOut = 30000;

bool isFinite(DataPoint point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

bool isNear(QPointF p) {
  return std::fabs(p.x()) < farOut && std::fabs(p.y()) < farOut;
}

/// Moves an end of a line that lies beyond ±farOut along one axis onto that edge. The other axis is
/// computed from the line, or stays in range where numbers are too large for that.
template <class Get>
void pullIn(QPointF& end, QPointF other, Get coordinate, Get across) {
  const double beyond = coordinate(end);
  if (std::fabs(beyond) <= farOut) return;
  const double edge = std::copysign(farOut, beyond);
  const double share = (edge - beyond) / (coordinate(other) - beyond);
  const double moved = across(end) + share * (across(other) - across(end));
  coordinate(end) = edge;
  across(end) = moved;
}

/// The part of a line that can be seen, or somewhat more; nothing if it passes the picture by.
std::optional<QLineF> nearPart(QPointF from, QPointF to) {
  const auto x = [](QPointF& p) -> double& { return p.rx(); };
  const auto y = [](QPointF& p) -> double& { return p.ry(); };
  using Get = double& (*)(QPointF&);
  const auto pastOneSide = [](double a, double b) {
    return std::min(a, b) > farOut || std::max(a, b) < -farOut;
  };
  for (const auto& [along, across] : {std::pair<Get, Get>{x, y}, std::pair<Get, Get>{y, x}}) {
    if (pastOneSide(from.x(), to.x()) || pastOneSide(from.y(), to.y())) return std::nullopt;
    pullIn(from, to, along, across);
    pullIn(to, from, along, across);
  }
  return QLineF(from, to);
}

Qt::PenStyle penStyle(LineStyle style) {
  switch (style) {
    case LineStyle::dashed:
      return Qt::DashLine;
    case LineStyle::dotted:
      return Qt::DotLine;
    case LineStyle::solid:
      break;
  }
  return Qt::SolidLine;
}

/// Up to this width, in pixels, round corners cannot be told from cut ones, which take half the time.
constexpr double thinLine = 2.5;

QPen pen(const Stroke& stroke, double width) {
  return {qColour(stroke.colour), width, penStyle(stroke.style), Qt::FlatCap,
          width > thinLine ? Qt::RoundJoin : Qt::BevelJoin};
}

QRectF boundsOf(QPointF a, QPointF b, double margin) {
  return QRectF(a, b).normalized().adjusted(-margin, -margin, margin, margin);
}

}  // namespace

PictureMetrics pictureMetrics(const QSizeF& size, double pixelRatio) {
  const double side = std::min(size.width(), size.height());
  PictureMetrics metrics;
  metrics.size = size;
  metrics.lineWidth = std::max({1.0, std::round(pixelRatio), std::round(side / pixelsForALine)});
  metrics.textPixels = std::max(smallestText * pixelRatio, side / textsInSide);
  return metrics;
}

PainterSurface::PainterSurface(QPainter& painter, const PictureMetrics& metrics, Edges edges)
    : painter_(&painter), metrics_(metrics), edges_(edges) {}

void PainterSurface::setWindow(const DataWindow& window) {
  mapping_ = {window, metrics_.size.width() / (window.right - window.left),
              metrics_.size.height() / (window.bottom - window.top)};
}

double PainterSurface::radiusOnPicture(double radius) const {
  return radius * std::fabs(mapping_.scaleX);
}

DataSize PainterSurface::lineWidth() {
  return {metrics_.lineWidth / std::fabs(mapping_.scaleX), metrics_.lineWidth / std::fabs(mapping_.scaleY)};
}

void PainterSurface::clear(Farbe ground) {
  const QRectF all(QPointF(), metrics_.size);
  painter().fillRect(all, qColour(ground));
  touched(all);
}

// ---- Lines ----

bool PainterSurface::alongAxis(QPointF from, QPointF to, const Stroke& stroke) const {
  return edges_ == Edges::crisp && stroke.style == LineStyle::solid &&
         (from.x() == to.x() || from.y() == to.y());
}

void PainterSurface::crispLine(QPointF from, QPointF to, const Stroke& stroke) {
  // A bar of whole pixels with a pen's square ends, so that lines which meet in a corner close it.
  const double width = std::max(1.0, std::round(widthOnPicture(stroke)));
  const auto snapped = [width](QPointF p) {
    return QPointF(std::round(p.x() - width / 2), std::round(p.y() - width / 2));
  };
  const QPointF a = snapped(from);
  const QPointF b = snapped(to);
  const QRectF bar(std::min(a.x(), b.x()), std::min(a.y(), b.y()), std::fabs(a.x() - b.x()) + width,
                   std::fabs(a.y() - b.y()) + width);
  painter().fillRect(bar, qColour(stroke.colour));
  touched(bar);
}

void PainterSurface::line(DataPoint from, DataPoint to, const Stroke& stroke) {
  if (!isFinite(from) || !isFinite(to)) return;
  const auto part = nearPart(place(from), place(to));
  if (!part) return;
  if (alongAxis(part->p1(), part->p2(), stroke)) {
    crispLine(part->p1(), part->p2(), stroke);
    return;
  }
  const double width = widthOnPicture(stroke);
  painter().setRenderHint(QPainter::Antialiasing);
  painter().setPen(pen(stroke, width));
  painter().drawLine(*part);
  touched(boundsOf(part->p1(), part->p2(), width));
}

void PainterSurface::polyline(std::span<const DataPoint> points, const Stroke& stroke) {
  if (points.size() < 2 || !std::all_of(points.begin(), points.end(), isFinite)) return;
  QPolygonF places;
  places.reserve(static_cast<qsizetype>(points.size()));
  for (const DataPoint point : points) places.append(place(point));
  if (!std::all_of(places.cbegin(), places.cend(), isNear)) {
    for (std::size_t i = 1; i < points.size(); ++i) line(points[i - 1], points[i], stroke);
    return;
  }
  const double width = widthOnPicture(stroke);
  painter().setRenderHint(QPainter::Antialiasing);
  painter().setPen(pen(stroke, width));
  painter().setBrush(Qt::NoBrush);
  painter().drawPolyline(places);
  touched(places.boundingRect().adjusted(-width, -width, width, width));
}

// ---- Areas ----

void PainterSurface::circle(DataPoint centre, double radius, const Stroke& stroke) {
  const QPointF middle = place(centre);
  const double r = radiusOnPicture(radius);
  if (!isFinite(centre) || !std::isfinite(r) || !isNear(middle) || r > farOut) return;
  const double width = widthOnPicture(stroke);
  painter().setRenderHint(QPainter::Antialiasing);
  painter().setPen(pen(stroke, width));
  painter().setBrush(Qt::NoBrush);
  painter().drawEllipse(middle, r, r);
  touched(boundsOf(middle, middle, r + width));
}

void PainterSurface::disc(DataPoint centre, double radius, Farbe colour) {
  const QPointF middle = place(centre);
  const double r = radiusOnPicture(radius);
  if (!isFinite(centre) || !std::isfinite(r) || !isNear(middle) || r > farOut) return;
  painter().setRenderHint(QPainter::Antialiasing);
  painter().setPen(Qt::NoPen);
  painter().setBrush(qColour(colour));
  painter().drawEllipse(middle, r, r);
  touched(boundsOf(middle, middle, r + 1));
}

void PainterSurface::fill(DataPoint corner, DataPoint opposite, Farbe colour) {
  if (!isFinite(corner) || !isFinite(opposite)) return;
  const QRectF picture(QPointF(), metrics_.size);
  QRectF area = QRectF(place(corner), place(opposite)).normalized().intersected(picture);
  if (edges_ == Edges::crisp) {
    area = QRectF(QPointF(std::round(area.left()), std::round(area.top())),
                  QPointF(std::round(area.right()), std::round(area.bottom())));
  }
  painter().fillRect(area, qColour(colour));
  touched(area);
}

// ---- Texts ----

PainterSurface::Letters& PainterSurface::letters(const TextLook& look) {
  const int pixels = std::max(1, static_cast<int>(std::lround(metrics_.textPixels * look.size)));
  if (letters_ && letters_->pixels == pixels && letters_->bold == look.bold) return *letters_;
  QFont font = QApplication::font();
  font.setPixelSize(pixels);
  font.setBold(look.bold);
  // Coloured edges of letters look right on one screen only, and pictures travel.
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  return letters_.emplace(Letters{pixels, look.bold, font, QFontMetricsF(font)});
}

double PainterSurface::Letters::width(std::string_view utf8) {
  const auto known = widths.find(utf8);
  if (known != widths.end()) return known->second;
  return widths.emplace(utf8, metrics.horizontalAdvance(qText(utf8))).first->second;
}

DataSize PainterSurface::textSize(std::string_view utf8, const TextLook& look) {
  Letters& set = letters(look);
  return {set.width(utf8) / std::fabs(mapping_.scaleX), set.metrics.height() / std::fabs(mapping_.scaleY)};
}

void PainterSurface::text(DataPoint at, std::string_view utf8, const TextLook& look, Anchor anchor) {
  const QPointF told = place(at);
  if (!isFinite(at) || !isNear(told)) return;
  Letters& set = letters(look);
  const QFontMetricsF& size = set.metrics;
  const double width = set.width(utf8);
  const double across = anchor.horizontal == HorizontalAnchor::left     ? 0
                        : anchor.horizontal == HorizontalAnchor::centre ? 0.5
                                                                        : 1;
  const double down = anchor.vertical == VerticalAnchor::top      ? 0
                      : anchor.vertical == VerticalAnchor::middle ? 0.5
                                                                  : 1;
  QPointF corner = told - QPointF(across * width, down * size.height());
  if (edges_ == Edges::crisp) corner = QPointF(std::round(corner.x()), std::round(corner.y()));
  painter().setRenderHint(QPainter::TextAntialiasing);
  painter().setFont(set.font);
  painter().setPen(qColour(look.colour));
  painter().drawText(corner + QPointF(0, size.ascent()), qText(utf8));
  touched(boundsOf(corner, corner + QPointF(width, size.height()), 2));
}

}  // namespace korvin
