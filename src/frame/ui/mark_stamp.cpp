#include "frame/ui/mark_stamp.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace korvin {
namespace {

constexpr int samples = 16;  ///< of a pixel's side
constexpr std::uint32_t full = 256;

/// How much of the pixel (dx, dy) from the middle lies on the mark, 0 to 256.
std::uint32_t coverage(const MarkStamp::Shape& shape, int dx, int dy) {
  const double outer = shape.outer * shape.outer;
  const double inner = shape.inner > 0 ? shape.inner * shape.inner : -1;
  int hits = 0;
  for (int row = 0; row < samples; ++row) {
    for (int column = 0; column < samples; ++column) {
      const double x = dx - 0.5 + (column + 0.5) / samples;
      const double y = dy - 0.5 + (row + 0.5) / samples;
      const double square = x * x + y * y;
      if (square <= outer && square > inner) ++hits;
    }
  }
  return static_cast<std::uint32_t>(hits) * full / (samples * samples);
}

/// `colour` over `ground` with `alpha` of 256, two channels at a time.
QRgb mixed(QRgb ground, QRgb colour, std::uint32_t alpha) {
  constexpr std::uint32_t twoChannels = 0x00ff00ff;
  const std::uint32_t rest = full - alpha;
  const std::uint32_t redBlue =
      (((colour & twoChannels) * alpha + (ground & twoChannels) * rest) >> 8) & twoChannels;
  const std::uint32_t alphaGreen =
      (((colour >> 8) & twoChannels) * alpha + ((ground >> 8) & twoChannels) * rest) & ~twoChannels;
  return redBlue | alphaGreen;
}

}  // namespace

MarkStamp::MarkStamp(const Shape& shape)
    : shape_(shape), reach_(static_cast<int>(std::ceil(std::max(0.0, shape.outer - 0.5)))) {
  shape_.colour |= 0xff000000;
  for (int dy = -reach_; dy <= reach_; ++dy) {
    for (int dx = -reach_; dx <= reach_; ++dx) {
      const std::uint32_t alpha = coverage(shape_, dx, dy);
      if (alpha > 0) dots_.push_back({static_cast<std::int16_t>(dx), static_cast<std::int16_t>(dy), alpha});
    }
  }
}

void MarkStamp::layOut(std::ptrdiff_t pixelsPerLine) {
  pixelsPerLine_ = pixelsPerLine;
  solid_.clear();
  blended_.clear();
  for (const Dot& dot : dots_) {
    const std::ptrdiff_t distance = dot.dy * pixelsPerLine + dot.dx;
    if (dot.alpha == full) {
      solid_.push_back(distance);
    } else {
      blended_.emplace_back(distance, dot.alpha);
    }
  }
}

QRect MarkStamp::press(QImage& picture, int x, int y) {
  const std::ptrdiff_t pixelsPerLine = picture.bytesPerLine() / std::ptrdiff_t{sizeof(QRgb)};
  if (pixelsPerLine != pixelsPerLine_) layOut(pixelsPerLine);
  auto* const pixels = reinterpret_cast<QRgb*>(picture.bits());
  const QRect area(x - reach_, y - reach_, 2 * reach_ + 1, 2 * reach_ + 1);
  if (x >= reach_ && y >= reach_ && x < picture.width() - reach_ && y < picture.height() - reach_) {
    QRgb* const middle = pixels + y * pixelsPerLine + x;
    const QRgb colour = shape_.colour;
    for (const std::ptrdiff_t distance : solid_) middle[distance] = colour;
    for (const auto& [distance, alpha] : blended_) {
      middle[distance] = mixed(middle[distance], colour, alpha);
    }
    return area;
  }
  const QRect inside = area & picture.rect();
  for (const Dot& dot : dots_) {
    if (!inside.contains(x + dot.dx, y + dot.dy)) continue;
    QRgb& pixel = pixels[(y + dot.dy) * pixelsPerLine + x + dot.dx];
    pixel = mixed(pixel, shape_.colour, dot.alpha);
  }
  return inside;
}

}  // namespace korvin
