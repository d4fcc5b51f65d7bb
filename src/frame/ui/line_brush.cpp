#include "frame/ui/line_brush.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

#include "frame/ui/vector_registers.h"

namespace korvin {
namespace {

/// A piece that goes more across than down is covered column by column, any other row by row.
struct Across {
  static double major(QPointF p) { return p.x(); }
  static double minor(QPointF p) { return p.y(); }
};
struct Down {
  static double major(QPointF p) { return p.y(); }
  static double minor(QPointF p) { return p.x(); }
};

/// Pixels from the one that holds `first` to the one that holds `last`, as far as there are any.
struct PixelRange {
  PixelRange(double from, double upTo, int count)
      : first(static_cast<int>(std::floor(std::clamp(from, 0.0, static_cast<double>(count))))),
        last(static_cast<int>(std::floor(std::clamp(upTo, -1.0, count - 1.0)))) {}
  int first;
  int last;
};

constexpr double centre = 0.5;  ///< of a pixel, from its corner

}  // namespace

void LineBrush::draw(const Pixels& picture, std::span<const QPointF> places, double width, QRgb colour) {
  releaseVectorRegisters();
  size_ = {picture.width, picture.height};
  perRow_ = static_cast<std::size_t>(picture.bytesPerLine) / sizeof(QRgb);
  const std::size_t pixels = perRow_ * static_cast<std::size_t>(picture.height);
  if (shares_.size() < pixels) shares_.resize(pixels, 0);
  const double reach = width / 2 + centre;
  for (const Piece& piece : piecesOf(places)) {
    const QPointF way = piece.to - piece.from;
    if (std::fabs(way.x()) >= std::fabs(way.y())) {
      cover<Across>(piece, reach);
    } else {
      cover<Down>(piece, reach);
    }
  }
  blend(picture, colour);
}

std::vector<LineBrush::Piece> LineBrush::piecesOf(std::span<const QPointF> places) const {
  std::vector<Piece> pieces;
  pieces.reserve(places.size());
  for (std::size_t i = 1; i < places.size(); ++i) {
    const QPointF way = places[i] - places[i - 1];
    const double length = std::hypot(way.x(), way.y());
    if (length > 0) pieces.push_back({places[i - 1], places[i], length});
  }
  if (!pieces.empty()) {
    pieces.front().begins = true;
    pieces.back().ends = true;
  }
  return pieces;
}

template <class Axis>
void LineBrush::cover(const Piece& piece, double reach) {
  constexpr bool across = std::is_same_v<Axis, Across>;
  const double from = Axis::major(piece.from);
  const double fromMinor = Axis::minor(piece.from);
  const double way = Axis::major(piece.to) - from;
  const double wayMinor = Axis::minor(piece.to) - fromMinor;
  const double low = std::min(from, from + way);
  const double high = std::max(from, from + way);
  const double cosine = way / piece.length;
  const double sine = wayMinor / piece.length;
  const double reachMinor = reach / std::fabs(cosine);

  const PixelRange lines(low - reach, high + reach, across ? size_.width() : size_.height());
  const std::size_t alongLine = across ? perRow_ : 1;
  const std::size_t toNextLine = across ? 1 : perRow_;
  for (int line = lines.first; line <= lines.last; ++line) {
    const double place = line + centre;
    // Beside the ends this is wide enough for a round joint, too.
    const double middle = fromMinor + (place - from) * wayMinor / way;
    const PixelRange run(middle - reachMinor, middle + reachMinor, across ? size_.height() : size_.width());
    // Between the ends only the distance from the line counts.
    const bool inside = place - low >= reach && high - place >= reach;
    std::size_t pixel =
        static_cast<std::size_t>(line) * toNextLine + static_cast<std::size_t>(run.first) * alongLine;
    for (int i = run.first; i <= run.last; ++i, pixel += alongLine) {
      const double dx = place - from;
      const double dy = i + centre - fromMinor;
      const double aside = dy * cosine - dx * sine;
      if (inside) {
        raise(pixel, reach - std::fabs(aside));
        continue;
      }
      const double ahead = dx * cosine + dy * sine;
      const double behind = ahead - piece.length;
      // At a joint the next piece goes on from a round end; a straight one fades along the line.
      const double over = std::max({0.0, piece.begins ? 0 : -ahead, piece.ends ? 0 : behind});
      double share = reach - std::hypot(aside, over);
      if (piece.begins) share = std::min(share, centre + ahead);
      if (piece.ends) share = std::min(share, centre - behind);
      raise(pixel, share);
    }
  }
}

void LineBrush::raise(std::size_t pixel, double share) {
  const int parts = static_cast<int>(std::min(share, 1.0) * fullAlpha);
  if (parts <= 0) return;
  std::uint16_t& held = shares_[pixel];
  if (held == 0) touched_.push_back(pixel);
  held = std::max(held, static_cast<std::uint16_t>(parts));
}

void LineBrush::blend(const Pixels& picture, QRgb colour) {
  auto* const pixels = reinterpret_cast<QRgb*>(picture.bytes);
  for (const std::size_t pixel : touched_)
    pixels[pixel] = mixed(pixels[pixel], colour, std::exchange(shares_[pixel], std::uint16_t{0}));
  touched_.clear();
}

}  // namespace korvin
