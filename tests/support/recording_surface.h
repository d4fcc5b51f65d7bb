#pragma once

#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/drawing_surface.h"

namespace korvin::test {

/// One operation on a surface. Members that the operation doesn't have stay as they are here.
struct DrawingOp {
  enum class Kind { window, clear, line, polyline, circle, disc, fill, text };

  Kind kind = Kind::clear;
  std::vector<DataPoint> points{};  ///< ends of a line, centre of a circle, corners, place of a text
  double radius = 0;
  Farbe colour = 0;
  double width = 0;  ///< of the stroke
  LineStyle style = LineStyle::solid;
  std::string text{};
  double textSize = 0;
  bool bold = false;
  HorizontalAnchor horizontal = HorizontalAnchor::left;
  VerticalAnchor vertical = VerticalAnchor::top;
  DataSize room{};      ///< of the text when it was drawn, in data units
  DataWindow window{};  ///< the one in force then, or the new one
};

/// Remembers what is drawn on it. The picture is `width` by `height` pixels; a text is as high as
/// `lineHeight` and as wide as `charWidth` for each of its characters, both times its size.
class RecordingSurface : public DrawingSurface {
 public:
  explicit RecordingSurface(double pixelWidth = 600, double pixelHeight = 600)
      : width(pixelWidth), height(pixelHeight) {}

  using Kind = DrawingOp::Kind;

  void setWindow(const DataWindow& newWindow) override {
    window = newWindow;
    add({.kind = Kind::window, .points = {}});
  }
  void clear(Farbe ground) override { add({.kind = Kind::clear, .points = {}, .colour = ground}); }
  void line(DataPoint from, DataPoint to, const Stroke& stroke) override {
    add(stroked({.kind = Kind::line, .points = {from, to}}, stroke));
  }
  void polyline(std::span<const DataPoint> points, const Stroke& stroke) override {
    add(stroked({.kind = Kind::polyline, .points = {points.begin(), points.end()}}, stroke));
  }
  void circle(DataPoint centre, double radius, const Stroke& stroke) override {
    add(stroked({.kind = Kind::circle, .points = {centre}, .radius = radius}, stroke));
  }
  void disc(DataPoint centre, double radius, Farbe colour) override {
    add({.kind = Kind::disc, .points = {centre}, .radius = radius, .colour = colour});
  }
  void fill(DataPoint corner, DataPoint opposite, Farbe colour) override {
    add({.kind = Kind::fill, .points = {corner, opposite}, .colour = colour});
  }
  void text(DataPoint at, std::string_view utf8, const TextLook& look, Anchor anchor) override {
    add({.kind = Kind::text,
         .points = {at},
         .colour = look.colour,
         .text = std::string(utf8),
         .textSize = look.size,
         .bold = look.bold,
         .horizontal = anchor.horizontal,
         .vertical = anchor.vertical,
         .room = textSize(utf8, look)});
  }

  DataSize textSize(std::string_view utf8, const TextLook& look) override {
    return {textPixels(utf8) * look.size * unitX(), lineHeight * look.size * unitY()};
  }
  DataSize lineWidth() override { return {unitX(), unitY()}; }

  /// All operations of one kind, in their order.
  std::vector<DrawingOp> all(Kind kind) const {
    std::vector<DrawingOp> found;
    std::copy_if(ops.begin(), ops.end(), std::back_inserter(found),
                 [&](const DrawingOp& op) { return op.kind == kind; });
    return found;
  }
  /// The texts that were drawn, in their order.
  std::vector<std::string> texts() const {
    std::vector<std::string> found;
    for (const DrawingOp& op : all(Kind::text)) found.push_back(op.text);
    return found;
  }
  /// The same drawing as readable lines, one for each operation: "line (-1, 0) (1, 0) 808080",
  /// "circle (0, 0.5) r 0.008 8B0000", "text (0, -1.006) +0.2", …
  std::vector<std::string> lines() const;

  double width;
  double height;
  double charWidth = 7;
  double lineHeight = 15;
  DataWindow window;
  std::vector<DrawingOp> ops;

 private:
  double unitX() const { return std::abs(window.right - window.left) / width; }
  double unitY() const { return std::abs(window.top - window.bottom) / height; }
  /// Characters, not bytes: those that go on with a character don't count.
  double textPixels(std::string_view utf8) const {
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return charWidth * static_cast<double>(std::count_if(utf8.begin(), utf8.end(), begins));
  }
  static DrawingOp stroked(DrawingOp op, const Stroke& stroke) {
    op.colour = stroke.colour;
    op.width = stroke.width;
    op.style = stroke.style;
    return op;
  }
  void add(DrawingOp op) {
    op.window = window;
    ops.push_back(std::move(op));
  }
};

}  // namespace korvin::test
