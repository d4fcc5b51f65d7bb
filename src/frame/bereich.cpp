#include "frame/bereich.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <stdexcept>

#include "frame/leerwert.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

struct Rung {
  double value;
  std::string_view text;
};

constexpr std::array<Rung, 14> metricLadder = {{{0.001, "±1um"},
                                                {0.002, "±2um"},
                                                {0.005, "±5um"},
                                                {0.01, "±10um"},
                                                {0.02, "±20um"},
                                                {0.05, "±50um"},
                                                {0.1, "±100um"},
                                                {0.2, "±200um"},
                                                {0.5, "±500um"},
                                                {1, "±1mm"},
                                                {2, "±2mm"},
                                                {5, "±5mm"},
                                                {10, "±10mm"},
                                                {20, "±20mm"}}};

constexpr std::array<Rung, 15> inchLadder = {{{0.02, "±0.02mil"},
                                              {0.05, "±0.05mil"},
                                              {0.1, "±0.1mil"},
                                              {0.2, "±0.2mil"},
                                              {0.5, "±0.5mil"},
                                              {1, "±1mil"},
                                              {2, "±2mil"},
                                              {5, "±5mil"},
                                              {10, "±10mil"},
                                              {20, "±20mil"},
                                              {50, "±50mil"},
                                              {100, "±100mil"},
                                              {200, "±200mil"},
                                              {500, "±500mil"},
                                              {1000, "±1in"}}};

using Ladder = std::span<const Rung>;

Ladder ladderOf(int Masssystem) {
  return Masssystem == 1 ? Ladder(inchLadder) : Ladder(metricLadder);
}

/// The lowest rung that isn't below `value`; the top if there is none.
Ladder::iterator rungFor(Ladder ladder, double value) {
  const auto found =
      std::find_if(ladder.begin(), ladder.end(), [&](const Rung& rung) { return !(rung.value < value); });
  return found != ladder.end() ? found : std::prev(found);
}

/// The number of points that element 0 tells.
std::size_t pointCount(std::span<const double> werte) {
  if (werte.empty() || !(werte.front() >= 1)) return 0;
  if (werte.front() >= static_cast<double>(werte.size()))
    throw std::out_of_range("more points than the array holds");
  return static_cast<std::size_t>(werte.front());
}

/// Where the number of a range's label begins and where its unit does.
struct LabelParts {
  explicit LabelParts(std::string_view text)
      : number(text.find_first_of("0123456789")), unit(text.find_first_not_of("0123456789.", number)) {}
  std::size_t number;
  std::size_t unit;
};

}  // namespace

std::string_view bereichsEinheit(const DiagrammBereich& bereich) {
  return bereich.text.substr(LabelParts(bereich.text).unit);
}

double bereichsZahl(const DiagrammBereich& bereich) {
  const LabelParts parts(bereich.text);
  return zahlAusText(bereich.text.substr(parts.number, parts.unit - parts.number));
}

DiagrammBereich bereichAnpassen(double wert, int Masssystem) {
  const Rung& rung = *rungFor(ladderOf(Masssystem), wert);
  return {rung.value, rung.value / 5, rung.text};
}

double bereichKleiner(double bereich, int Masssystem) {
  const Ladder ladder = ladderOf(Masssystem);
  const auto rung = rungFor(ladder, bereich);
  const std::ptrdiff_t place = rung - ladder.begin();
  if (place == 0 || rung->value < bereich) return rung->value;
  const bool isLowestButOne = place == 1 && rung->value == bereich;
  return isLowestButOne ? rung->value : std::prev(rung)->value;
}

double bereichGroesser(double bereich, int Masssystem) {
  const Ladder ladder = ladderOf(Masssystem);
  const auto next =
      std::find_if(ladder.begin(), ladder.end(), [&](const Rung& rung) { return rung.value > bereich; });
  return next != ladder.end() ? next->value : ladder.back().value;
}

double bereichDerAchse(bool BereichHand, double Bereich, double Offset, std::span<const double> werte) {
  if (BereichHand) return Bereich;
  double highest = 0.001;
  for (const double value : werte.subspan(werte.empty() ? 0 : 1, pointCount(werte))) {
    if (!istLeer(value)) highest = std::max(highest, std::fabs(value - Offset));
  }
  return highest;
}

}  // namespace korvin
