#include "support/recording_surface.h"

#include <array>
#include <cstdio>

#include "frame/number_format.h"

namespace korvin::test {
namespace {

std::string textOf(DataPoint point) {
  return "(" + formatGeneral(point.x) + ", " + formatGeneral(point.y) + ")";
}

std::string textOf(Farbe colour) {
  std::array<char, 16> hex{};
  std::snprintf(hex.data(), hex.size(), "%06X", static_cast<unsigned>(colour));
  return hex.data();
}

std::string nameOf(DrawingOp::Kind kind) {
  constexpr std::array<const char*, 8> names = {"window", "clear", "line", "polyline",
                                                "circle", "disc",  "fill", "text"};
  return names.at(static_cast<std::size_t>(kind));
}

std::string lineOf(const DrawingOp& op) {
  using Kind = DrawingOp::Kind;
  std::string line = nameOf(op.kind);
  if (op.kind == Kind::window) {
    return line + " " + textOf(DataPoint{op.window.left, op.window.top}) + " " +
           textOf(DataPoint{op.window.right, op.window.bottom});
  }
  for (const DataPoint& point : op.points) line += " " + textOf(point);
  if (op.kind == Kind::text) return line + " " + op.text;
  if (op.kind == Kind::circle || op.kind == Kind::disc) line += " r " + formatGeneral(op.radius);
  return line + " " + textOf(op.colour);
}

}  // namespace

std::vector<std::string> RecordingSurface::lines() const {
  std::vector<std::string> lines;
  for (const DrawingOp& op : ops) lines.push_back(lineOf(op));
  return lines;
}

}  // namespace korvin::test
