#pragma once

#include <QRgb>
#include <array>
#include <cstdint>
#include <vector>

#include "frame/ui/pixels.h"

namespace korvin {

/// A small round mark, ready to be pressed into a picture of pixels: a disc, or the ring of a circle. Its
/// smooth edge is computed once; each impression is then a handful of pixels, and all of them look the same.
class MarkStamp {
 public:
  /// What a stamp shows. Lengths in pixels. `inner` 0 or less is a disc.
  struct Shape {
    double outer = 1;
    double inner = 0;
    QRgb colour = 0xff000000;
    friend bool operator==(const Shape&, const Shape&) = default;
  };

  explicit MarkStamp(const Shape& shape);

  const Shape& shape() const { return shape_; }

  /// Presses the mark into `picture` around the pixel (x, y), as far as it lies within.
  void press(const Pixels& picture, int x, int y) const;

  /// How far it reaches from its middle pixel, in pixels.
  int reach() const { return reach_; }

 private:
  /// Two pixels beside each other, channel by channel: what is kept of the ground (of 256), and what is added
  /// (in 256ths).
  struct Pair {
    std::array<std::uint16_t, 8> keep{};
    std::array<std::uint16_t, 8> add{};
  };

  void pressPart(const Pixels& picture, int x, int y) const;
  std::uint32_t alphaAt(int dx, int dy) const;
  void fillPairs();

  Shape shape_;
  int reach_;
  int pairsPerRow_;
  std::vector<std::uint32_t> alpha_;  ///< 0 to 256, row by row
  std::vector<Pair> pairs_;           ///< row by row, each filled up with an untouched pixel
};

}  // namespace korvin
