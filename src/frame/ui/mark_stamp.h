#pragma once

#include <QImage>
#include <QRect>
#include <QRgb>
#include <cstdint>
#include <vector>

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

  /// Presses the mark into `picture` (32 bits a pixel, opaque) around the pixel (x, y), as far as it lies
  /// within. Returns the area that it may have changed.
  QRect press(QImage& picture, int x, int y);

 private:
  struct Dot {
    std::int16_t dx;
    std::int16_t dy;
    std::uint32_t alpha;  ///< 1 to 256
  };

  void layOut(std::ptrdiff_t pixelsPerLine);

  Shape shape_;
  int reach_;
  std::vector<Dot> dots_;
  std::ptrdiff_t pixelsPerLine_ = 0;
  std::vector<std::ptrdiff_t> solid_;                              ///< distances from the middle pixel
  std::vector<std::pair<std::ptrdiff_t, std::uint32_t>> blended_;  ///< the same with their alpha
};

}  // namespace korvin
