#pragma once

#include <QImage>
#include <QRgb>
#include <cstddef>
#include <cstdint>

namespace korvin {

/// The pixels of an opaque picture with 32 bits each, for as long as no one else touches it.
struct Pixels {
  explicit Pixels(QImage& picture)
      : bytes(picture.bits()),
        bytesPerLine(static_cast<std::ptrdiff_t>(picture.bytesPerLine())),
        width(picture.width()),
        height(picture.height()) {}

  QRgb& at(int x, int y) const { return reinterpret_cast<QRgb*>(bytes + y * bytesPerLine)[x]; }

  std::uint8_t* bytes;
  std::ptrdiff_t bytesPerLine;
  int width;
  int height;
};

/// All of a colour, for `mixed`.
inline constexpr std::uint32_t fullAlpha = 256;

/// `colour` over `ground` with `alpha` of `fullAlpha`, two channels at a time.
inline QRgb mixed(QRgb ground, QRgb colour, std::uint32_t alpha) {
  constexpr std::uint32_t twoChannels = 0x00ff00ff;
  const std::uint32_t rest = fullAlpha - alpha;
  const std::uint32_t redBlue =
      (((colour & twoChannels) * alpha + (ground & twoChannels) * rest) >> 8) & twoChannels;
  const std::uint32_t alphaGreen =
      (((colour >> 8) & twoChannels) * alpha + ((ground >> 8) & twoChannels) * rest) & ~twoChannels;
  return redBlue | alphaGreen;
}

}  // namespace korvin
