#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <string>

#include "korvin-head/head_protocol.h"

namespace korvin::head {

/// Where the beam strikes the head, in mm from its centre, counted as the head counts: raw counts rise with
/// both, and the program may show Y with the other sign.
struct Spot {
  double xMm = 0;
  double yMm = 0;
};

/// What a beam goes by: seconds since the head's start, and how often the head was carried on: with each M
/// answer, and by hand.
struct Moment {
  double seconds = 0;
  long measured = 0;
};

/// Where the beam is at a moment. Another kind of beam is another function.
using Beam = std::function<Spot(const Moment& moment)>;

/// A beam that starts at `start` and moves evenly by `mmPerHour`.
Beam driftingBeam(Spot start, Spot mmPerHour);

/// The guideway that a head stands on, in um: after n points it lies tilt · n + bow · n² off the line of the
/// beam.
struct LineShape {
  double tiltUm = 0;
  double bowUm = 0;
};

/// `beam` as a head sees it that is carried along a guideway, to the next point after each M answer: X moves
/// by the shape, Y by half of it the other way.
Beam alongLine(Beam beam, LineShape shape);

/// The circle that a head is turned on: so many positions at even angles, from the side of the rising X
/// towards the rising Y, as the head counts them.
struct CircleShape {
  double radiusMm = 0;
  int positions = 4;
};

/// `beam` as a head sees it that is turned round it, to the next position after each M answer.
Beam onCircle(Beam beam, CircleShape shape);

/// What makes one head differ from another.
struct HeadProperties {
  char headClass = '1';  ///< '1' is the small head (active to 2.1 mm), any other the large one (7.1 mm)
  char id = '1';         ///< answers to requests for this id and for '0'
  int intensity = 85;    ///< percent, 0 to 99 (two columns)
  double noiseUm = 0.5;  ///< standard deviation of one axis in um after 1 s of averaging
  double batteryLowAfter = std::numeric_limits<double>::infinity();  ///< seconds until the battery is low
  double timeScale = 1;  ///< factor on the answer times, not on the averaging that the noise is computed from
  std::uint64_t seed = 1;  ///< of the noise
};

/// How long the head averages for `request`, in seconds: M by its level 0.5, 1, 2, 5 and 10 s, J 0.2 s, both
/// 0.05 s at the levels '5' to '7', T not at all. A level that the head does not know counts as '2'.
double averagingSeconds(const Request& request);

/// Standard deviation in um after averaging for `seconds` (above 0) white noise of `oneSecondUm` after one
/// second: it falls with the square root of the time.
double noiseAfter(double oneSecondUm, double seconds);

/// Raw count of a length in mm: 250000 is the centre, 10000 counts are 1 mm; held within the six digits 0 to
/// 999999.
long rawCount(double mm);

/// The head without its line: gives the columns of each answer.
class HeadModel {
 public:
  HeadModel(const HeadProperties& properties, Beam beam);

  /// Whether `request` is for this head: its own id or '0'.
  bool isMeant(const Request& request) const;
  /// Seconds from a request to its answer.
  double answerSeconds(const Request& request) const;
  /// Columns of the answer at the moment `now` (seconds since the start), without the check character: 5 for
  /// T, 28 for M and J. `key` is the letter of the key that is reported, 'K' for none. With L and R a T
  /// answer is of the kind of its key.
  std::string answer(const Request& request, char key, double now);

  /// Carries the head on to its next place by hand, as an M answer does.
  void carryOn() { ++measured_; }

 private:
  std::string reading(const Request& request, double now);

  HeadProperties properties_;
  Beam beam_;
  std::mt19937_64 generator_;
  std::normal_distribution<double> normal_;
  long measured_ = 0;
};

}  // namespace korvin::head
