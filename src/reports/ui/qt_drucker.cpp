#include "reports/ui/qt_drucker.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace korvin {
namespace {

constexpr double paperWidth = 210;
/// Where the user scale ends: the paper goes on for another 5 mm.
constexpr double scaleHeight = 292;

}  // namespace

void QtDrucker::setSkala(double left, double top, double right, double bottom) {
  const Axis x{left, (right - left) / paperWidth};
  const Axis y{top, (bottom - top) / scaleHeight};
  const auto usable = [](const Axis& axis) {
    return std::isfinite(axis.origin) && std::isfinite(axis.unitsPerMm) && axis.unitsPerMm != 0;
  };
  if (!usable(x) || !usable(y)) throw std::invalid_argument("a scale of paper without extent");
  skalaX_ = x;
  skalaY_ = y;
}

void QtDrucker::completePage() {
  if (beendet_) throw std::logic_error("printing after the end of the document");
  sink_.page(std::exchange(marks_, {}));
}

void QtDrucker::neueSeite() {
  completePage();
  ++seite_;
  skalaX_ = {};
  skalaY_ = {};
  x_ = 0;
  y_ = 0;
}

void QtDrucker::dokumentEnde() {
  completePage();
  beendet_ = true;
  sink_.end();
}

void QtDrucker::setSchrift(std::string_view name) {
  schrift_.name = name;
}

void QtDrucker::setSchriftGroesse(double points) {
  schrift_.points = points;
}

void QtDrucker::setFett(bool fett) {
  schrift_.bold = fett;
}

std::uint16_t QtDrucker::fontOnPage() {
  auto& fonts = marks_.fonts;
  const auto found = std::find(fonts.begin(), fonts.end(), schrift_);
  const auto index = found - fonts.begin();
  if (found == fonts.end()) fonts.push_back(schrift_);
  return static_cast<std::uint16_t>(index);
}

void QtDrucker::addMark(PageMark::Kind kind, double x1, double y1, double x2, double y2, Farbe farbe) {
  for (const double figure : {x1, y1, x2, y2}) {
    if (!std::isfinite(figure)) return;
  }
  PageMark mark;
  mark.kind = kind;
  mark.x1 = static_cast<float>(x1);
  mark.y1 = static_cast<float>(y1);
  mark.x2 = static_cast<float>(x2);
  mark.y2 = static_cast<float>(y2);
  mark.width = static_cast<float>(breite_);
  mark.colour = farbe;
  marks_.marks.push_back(mark);
}

void QtDrucker::drucke(std::string_view text) {
  const double width = shaper_.width(text, schrift_);
  const double end = x_ + width;
  const std::size_t before = marks_.marks.size();
  addMark(PageMark::Kind::text, x_, y_, end, y_, farbe_);
  x_ = end;
  if (marks_.marks.size() == before) return;
  PageMark& mark = marks_.marks.back();
  mark.font = fontOnPage();
  mark.textBegin = static_cast<std::uint32_t>(marks_.letters.size());
  mark.textLength = static_cast<std::uint32_t>(text.size());
  marks_.letters += text;
}

void QtDrucker::linie(double x1, double y1, double x2, double y2, Farbe farbe) {
  addMark(PageMark::Kind::line, skalaX_.paper(x1), skalaY_.paper(y1), skalaX_.paper(x2), skalaY_.paper(y2),
          farbe);
}

void QtDrucker::kreis(double x, double y, double radius, Farbe farbe) {
  addMark(PageMark::Kind::circle, skalaX_.paper(x), skalaY_.paper(y), std::abs(radius / skalaX_.unitsPerMm),
          0, farbe);
}

void QtDrucker::flaeche(double x1, double y1, double x2, double y2, Farbe farbe) {
  addMark(PageMark::Kind::fill, skalaX_.paper(x1), skalaY_.paper(y1), skalaX_.paper(x2), skalaY_.paper(y2),
          farbe);
}

double QtDrucker::textBreite(std::string_view text) {
  return shaper_.width(text, schrift_) * std::abs(skalaX_.unitsPerMm);
}

double QtDrucker::textHoehe(std::string_view /*text*/) {
  return shaper_.height(schrift_) * std::abs(skalaY_.unitsPerMm);
}

}  // namespace korvin
