#pragma once

#include <QPointF>
#include <QRgb>
#include <QSize>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "frame/ui/pixels.h"

namespace korvin {

/// Draws thin smooth lines into a picture of pixels: for curves that are drawn anew with each reading, where
/// a general painter, which makes an outline of the line and fills that, takes ten times as long.
///
/// A pixel is covered by as much as its centre lies within the line's width, along the shortest way to the
/// line. Where pieces of the line overlap the greatest share holds, so that joints and crossings do not show.
class LineBrush {
 public:
  /// Wider lines are left to the painter: here joints of theirs would cost too much.
  static constexpr double widest = 6;

  /// Draws a line through all of `places`, in pixels from the picture's corner and within ±1e6. `width` is 0
  /// to `widest` pixels. The ends are cut straight; places that repeat the one before add nothing, so a line
  /// without any length draws nothing.
  void draw(const Pixels& picture, std::span<const QPointF> places, double width, QRgb colour);

 private:
  /// The way from one place to the next.
  struct Piece {
    QPointF from;
    QPointF to;
    double length = 0;
    bool begins = false;  ///< no piece before it
    bool ends = false;    ///< nor behind it
  };

  std::vector<Piece> piecesOf(std::span<const QPointF> places) const;
  template <class Axis>
  void cover(const Piece& piece, double reach);
  void raise(std::size_t pixel, double share);
  void blend(const Pixels& picture, QRgb colour);

  QSize size_;                         ///< of the picture
  std::size_t perRow_ = 0;             ///< its pixels from one row to the next
  std::vector<std::uint16_t> shares_;  ///< of each pixel, 0 to `fullAlpha`; all 0 between two lines
  std::vector<std::size_t> touched_;   ///< pixels whose share is above 0
};

}  // namespace korvin
