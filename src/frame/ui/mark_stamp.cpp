#include "frame/ui/mark_stamp.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace korvin {
namespace {

constexpr int samples = 16;  ///< of a pixel's side

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
  return static_cast<std::uint32_t>(hits) * fullAlpha / (samples * samples);
}

/// Puts two pixels of a stamp on those at `ground`: eight channels at once where the processor has SSE2, as
/// every 64-bit one of its family does.
inline void blend(std::uint8_t* ground, const std::uint16_t* keep, const std::uint16_t* add) {
#ifdef __SSE2__
  const auto load = [](const void* from) { return _mm_loadu_si128(static_cast<const __m128i*>(from)); };
  auto* const pixels = reinterpret_cast<__m128i*>(ground);
  const __m128i words = _mm_unpacklo_epi8(_mm_loadl_epi64(pixels), _mm_setzero_si128());
  const __m128i sum = _mm_add_epi16(_mm_mullo_epi16(words, load(keep)), load(add));
  const __m128i mixed = _mm_srli_epi16(sum, 8);
  _mm_storel_epi64(pixels, _mm_packus_epi16(mixed, mixed));
#else
  for (int i = 0; i < 8; ++i)
    ground[i] = static_cast<std::uint8_t>((static_cast<unsigned>(ground[i]) * keep[i] + add[i]) >> 8);
#endif
}

/// All of a stamp whose rows have so many pairs; a number that the compiler knows makes short work of a row.
template <int pairsPerRow, class Pair>
void pressRows(std::uint8_t* row, std::ptrdiff_t bytesPerLine, int rows, const Pair* pair) {
  for (int i = 0; i < rows; ++i, row += bytesPerLine) {
    for (int k = 0; k < pairsPerRow; ++k, ++pair) blend(row + 8 * k, pair->keep.data(), pair->add.data());
  }
}

}  // namespace

MarkStamp::MarkStamp(const Shape& shape)
    : shape_(shape),
      reach_(static_cast<int>(std::ceil(std::max(0.0, shape.outer - 0.5)))),
      pairsPerRow_(reach_ + 1) {
  shape_.colour |= 0xff000000;
  for (int dy = -reach_; dy <= reach_; ++dy) {
    for (int dx = -reach_; dx <= reach_; ++dx) alpha_.push_back(coverage(shape_, dx, dy));
  }
  fillPairs();
}

std::uint32_t MarkStamp::alphaAt(int dx, int dy) const {
  const bool within = std::abs(dx) <= reach_ && std::abs(dy) <= reach_;
  return within ? alpha_[static_cast<std::size_t>((dy + reach_) * (2 * reach_ + 1) + dx + reach_)] : 0;
}

void MarkStamp::fillPairs() {
  std::array<std::uint8_t, sizeof(QRgb)> channels{};  // in the order of the picture's bytes
  std::memcpy(channels.data(), &shape_.colour, sizeof(QRgb));
  for (int dy = -reach_; dy <= reach_; ++dy) {
    for (int pair = 0; pair < pairsPerRow_; ++pair) {
      Pair& made = pairs_.emplace_back();
      for (std::size_t i = 0; i < made.keep.size(); ++i) {
        const std::uint32_t alpha = alphaAt(2 * pair + static_cast<int>(i / 4) - reach_, dy);
        made.keep[i] = static_cast<std::uint16_t>(fullAlpha - alpha);
        made.add[i] = static_cast<std::uint16_t>(channels[i % 4] * alpha);
      }
    }
  }
}

void MarkStamp::press(const Pixels& picture, int x, int y) const {
  const int left = x - reach_;
  const int top = y - reach_;
  const int rows = 2 * reach_ + 1;
  const bool whole =
      left >= 0 && top >= 0 && left + 2 * pairsPerRow_ <= picture.width && top + rows <= picture.height;
  if (!whole) {
    pressPart(picture, x, y);
    return;
  }
  std::uint8_t* row = picture.bytes + top * picture.bytesPerLine + std::ptrdiff_t{4} * left;
  const Pair* pair = pairs_.data();
  switch (pairsPerRow_) {
    case 2:
      return pressRows<2>(row, picture.bytesPerLine, rows, pair);
    case 3:
      return pressRows<3>(row, picture.bytesPerLine, rows, pair);
    case 4:
      return pressRows<4>(row, picture.bytesPerLine, rows, pair);
    default:
      for (int i = 0; i < rows; ++i, row += picture.bytesPerLine, pair += pairsPerRow_) {
        for (int k = 0; k < pairsPerRow_; ++k) blend(row + 8 * k, pair[k].keep.data(), pair[k].add.data());
      }
  }
}

void MarkStamp::pressPart(const Pixels& picture, int x, int y) const {
  const int bottom = std::min(y + reach_, picture.height - 1);
  const int right = std::min(x + reach_, picture.width - 1);
  for (int row = std::max(y - reach_, 0); row <= bottom; ++row) {
    auto* const pixels = reinterpret_cast<QRgb*>(picture.bytes + row * picture.bytesPerLine);
    for (int column = std::max(x - reach_, 0); column <= right; ++column) {
      pixels[column] = mixed(pixels[column], shape_.colour, alphaAt(column - x, row - y));
    }
  }
}

}  // namespace korvin
