#include "korvin-head/head_model.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <utility>

namespace korvin::head {

namespace {

constexpr double kSecondsPerHour = 3600;
constexpr double kCentre = 250000;
constexpr double kCountsPerMm = 10000;
constexpr double kUmPerMm = 1000;

char kindOf(const Request& request, char key) {
  if (request.command == 'M') return 'm';
  if (request.command == 'J') return 'j';
  return key == 'L' || key == 'R' ? key : 'T';
}

}  // namespace

Beam driftingBeam(Spot start, Spot mmPerHour) {
  return [start, mmPerHour](const Moment& moment) {
    const double hours = moment.seconds / kSecondsPerHour;
    return Spot{start.xMm + mmPerHour.xMm * hours, start.yMm + mmPerHour.yMm * hours};
  };
}

Beam alongLine(Beam beam, LineShape shape) {
  return [beam = std::move(beam), shape](const Moment& moment) {
    const Spot spot = beam(moment);
    const auto n = static_cast<double>(moment.measured);
    const double offMm = (shape.tiltUm * n + shape.bowUm * n * n) / kUmPerMm;
    return Spot{spot.xMm + offMm, spot.yMm - offMm / 2};
  };
}

Beam onCircle(Beam beam, CircleShape shape) {
  return [beam = std::move(beam), shape](const Moment& moment) {
    const Spot spot = beam(moment);
    const double turns = static_cast<double>(moment.measured) / shape.positions;
    const double angle = 2 * std::numbers::pi * turns;
    return Spot{spot.xMm + shape.radiusMm * std::cos(angle), spot.yMm + shape.radiusMm * std::sin(angle)};
  };
}

double averagingSeconds(const Request& request) {
  if (request.command == 'T') return 0;
  if (request.level >= '5' && request.level <= '7') return 0.05;
  if (request.command == 'J') return 0.2;
  constexpr std::array<double, 5> kByLevel{0.5, 1, 2, 5, 10};
  const bool known = request.level >= '0' && request.level <= '4';
  return kByLevel.at(static_cast<std::size_t>(known ? request.level - '0' : 2));
}

double noiseAfter(double oneSecondUm, double seconds) {
  return oneSecondUm / std::sqrt(seconds);
}

long rawCount(double mm) {
  return std::lround(std::clamp(kCentre + mm * kCountsPerMm, 0.0, 999999.0));
}

HeadModel::HeadModel(const HeadProperties& properties, Beam beam)
    : properties_(properties), beam_(std::move(beam)), generator_(properties.seed) {}

bool HeadModel::isMeant(const Request& request) const {
  return request.id == '0' || request.id == properties_.id;
}

double HeadModel::answerSeconds(const Request& request) const {
  return averagingSeconds(request) * properties_.timeScale;
}

std::string HeadModel::answer(const Request& request, char key, double now) {
  const char status = now >= properties_.batteryLowAfter ? 'B' : '-';
  std::string columns{properties_.headClass, '-', key, status, kindOf(request, key)};
  if (request.command != 'T') columns += reading(request, now);
  if (request.command == 'M') ++measured_;
  return columns;
}

std::string HeadModel::reading(const Request& request, double now) {
  const double sigmaMm = noiseAfter(properties_.noiseUm, averagingSeconds(request)) / kUmPerMm;
  const Spot spot = beam_({now, measured_});
  const long x = rawCount(spot.xMm + sigmaMm * normal_(generator_));
  const long y = rawCount(spot.yMm + sigmaMm * normal_(generator_));
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), " %06ld %06ld 00000 %02d", x, y,
                std::clamp(properties_.intensity, 0, 99));
  return text.data();
}

}  // namespace korvin::head
