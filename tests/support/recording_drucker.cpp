#include "support/recording_drucker.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace korvin::test {
namespace {

constexpr double mmJePunkt = 25.4 / 72;
constexpr double gleichMm = 0.001;

bool nahe(double a, double b) {
  return std::fabs(a - b) < gleichMm;
}

std::size_t zeichen(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

void RecordingDrucker::setSkala(double left, double top, double right, double bottom) {
  if (left == right || top == bottom || !std::isfinite(left + top + right + bottom))
    throw std::logic_error("a scale of no extent");
  left_ = left;
  top_ = top;
  right_ = right;
  bottom_ = bottom;
}

void RecordingDrucker::neueSeite() {
  if (enden > 0) throw std::logic_error("a page behind the end");
  ++seite_;
  setSkala(0, 0, 210, 292);
  if (beiNeuerSeite) beiNeuerSeite();
}

void RecordingDrucker::dokumentEnde() {
  if (++enden > 1) throw std::logic_error("ended twice");
}

void RecordingDrucker::setSchriftGroesse(double points) {
  if (!(points > 0)) throw std::logic_error("a font of no size");
  groesse_ = points;
}

double RecordingDrucker::breiteMm(std::string_view text) const {
  return static_cast<double>(zeichen(text)) * groesse_ / 2 * mmJePunkt;
}

double RecordingDrucker::hoeheMm() const {
  return groesse_ * 1.2 * mmJePunkt;
}

double RecordingDrucker::textBreite(std::string_view text) {
  return breiteMm(text) * std::fabs(right_ - left_) / 210;
}

double RecordingDrucker::textHoehe(std::string_view /*text*/) {
  return hoeheMm() * std::fabs(bottom_ - top_) / 292;
}

DruckMarke& RecordingDrucker::neu(DruckMarke::Art art, double x1, double y1, double x2, double y2,
                                  Farbe farbe) {
  if (enden > 0) throw std::logic_error("a mark behind the end");
  if (!std::isfinite(x1 + y1 + x2 + y2)) throw std::logic_error("a mark at no place");
  if (!merken) alle.clear();
  DruckMarke marke{.art = art, .seite = seite_, .x = mmX(x1), .y = mmY(y1), .x2 = mmX(x2), .y2 = mmY(y2)};
  marke.breite = breite_;
  marke.farbe = farbe;
  return alle.emplace_back(std::move(marke));
}

void RecordingDrucker::drucke(std::string_view text) {
  if (vorText) vorText();
  DruckMarke& marke = neu(DruckMarke::Art::text, x_, y_, x_, y_, farbe_);
  marke.x2 = marke.x + breiteMm(text);
  marke.y2 = marke.y + hoeheMm();
  marke.groesse = groesse_;
  marke.fett = fett_;
  if (merken) {
    marke.text = text;
    marke.schrift = schrift_;
  }
  x_ += textBreite(text) * (right_ > left_ ? 1 : -1);
}

void RecordingDrucker::linie(double x1, double y1, double x2, double y2, Farbe farbe) {
  neu(DruckMarke::Art::linie, x1, y1, x2, y2, farbe);
}

void RecordingDrucker::kreis(double x, double y, double radius, Farbe farbe) {
  neu(DruckMarke::Art::kreis, x, y, x, y, farbe).radius = radius / std::fabs(right_ - left_) * 210;
}

void RecordingDrucker::flaeche(double x1, double y1, double x2, double y2, Farbe farbe) {
  neu(DruckMarke::Art::flaeche, x1, y1, x2, y2, farbe);
}

std::vector<DruckMarke> RecordingDrucker::marken(int seite, DruckMarke::Art art) const {
  std::vector<DruckMarke> gefunden;
  for (const DruckMarke& marke : alle)
    if (marke.seite == seite && marke.art == art) gefunden.push_back(marke);
  return gefunden;
}

DruckMarke RecordingDrucker::textBei(int seite, double x, double y) const {
  for (const DruckMarke& marke : texte(seite))
    if (nahe(marke.x, x) && nahe(marke.y, y)) return marke;
  return {};
}

DruckMarke RecordingDrucker::textBis(int seite, double x, double y) const {
  for (const DruckMarke& marke : texte(seite))
    if (nahe(marke.x2, x) && nahe(marke.y, y)) return marke;
  return {};
}

}  // namespace korvin::test
