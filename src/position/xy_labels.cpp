#include "position/xy_labels.h"

#include <algorithm>
#include <array>
#include <utility>

namespace korvin {
namespace {

/// Factors of the text size, tried in turn until all labels have their place. Smaller ones can't be read.
constexpr std::array<double, 4> textSizes = {1, 0.9, 0.8, 0.75};
/// Every how many ticks are labelled.
constexpr std::array<int, 3> strides = {1, 2, 4};
constexpr int lastTick = 4;
/// Nine ticks, name and range of each axis.
constexpr std::size_t allLabels = 22;

DataWindow boxOf(DataPoint at, Anchor anchor, DataSize size) {
  double left = at.x;
  if (anchor.horizontal == HorizontalAnchor::centre) left -= size.width / 2;
  if (anchor.horizontal == HorizontalAnchor::right) left -= size.width;
  double bottom = at.y;
  if (anchor.vertical == VerticalAnchor::middle) bottom -= size.height / 2;
  if (anchor.vertical == VerticalAnchor::top) bottom -= size.height;
  return {left, bottom + size.height, left + size.width, bottom};
}

/// True if two labels of a row stand `clearance` apart, or in different rows.
bool apart(const DataWindow& a, const DataWindow& b, double clearance) {
  return a.right + clearance <= b.left || b.right + clearance <= a.left || a.top <= b.bottom ||
         b.top <= a.bottom;
}

bool inside(const DataWindow& box, const DataWindow& window) {
  return box.left >= window.left && box.right <= window.right && box.bottom >= window.bottom &&
         box.top <= window.top;
}

/// The smallest stride at which labels of this extent stand free of each other; 0 if none does.
int strideFor(double extent, double tickDistance) {
  for (const int stride : strides)
    if (extent <= stride * tickDistance) return stride;
  return 0;
}

/// Sets the labels at one text size, the more important ones first; one that has no room is left out.
class Setter {
 public:
  Setter(DrawingSurface& surface, const XYRahmen& frame, const XYBeschriftung& words, double textSize)
      : surface_(surface),
        frame_(frame),
        words_(words),
        look_{FarbeBeschriftung, textSize},
        window_(xyFenster(frame.X.bereich, frame.Y.bereich)),
        gapX_(frame.X.bereich / 50),
        gapY_(frame.Y.bereich / 150),
        clearance_(size("0").width) {}

  std::vector<XYText> set() {
    setRanges();
    setTicksX();
    setTicksY();
    return std::move(set_);
  }

 private:
  DataSize size(const std::string& text) const { return surface_.textSize(text, look_); }
  double rowTop() const { return window_.bottom + gapY_ + size(std::string(frame_.X.text)).height; }

  void place(const std::string& text, DataPoint at, Anchor anchor) {
    const DataWindow box = boxOf(at, anchor, size(text));
    if (!inside(box, window_)) return;
    for (const XYText& other : set_)
      if (!apart(box, other.box, clearance_ / 2)) return;
    const bool reachesIn = box.right > -frame_.X.bereich && box.top > -frame_.Y.bereich;
    set_.push_back({text, at, anchor, look_, box, reachesIn});
  }

  /// The labels of the ranges in the lowest row, that of Y on the left, under its values, each behind the
  /// name of its axis if there is room for both names.
  void setRanges() {
    const std::string rangeX(frame_.X.text);
    const std::string rangeY(frame_.Y.text);
    const double y = window_.bottom + gapY_;
    double left = window_.left + gapX_;
    const double right = window_.right - gapX_;
    const double nameX = size(words_.X).width + clearance_;
    const double nameY = size(words_.Y).width + clearance_;
    const double startX = right - size(rangeX).width;
    if (left + nameY + size(rangeY).width + clearance_ + nameX <= startX) {
      place(words_.Y, {left, y}, {HorizontalAnchor::left, VerticalAnchor::bottom});
      place(words_.X, {startX - clearance_, y}, {HorizontalAnchor::right, VerticalAnchor::bottom});
      left += nameY;
    }
    place(rangeY, {left, y}, {HorizontalAnchor::left, VerticalAnchor::bottom});
    place(rangeX, {right, y}, {HorizontalAnchor::right, VerticalAnchor::bottom});
  }

  /// Right below the square; in the row of the ranges if there is no room for two.
  void setTicksX() {
    const double y = -frame_.Y.bereich - gapY_;
    const bool twoRows = y - widest(frame_.X).height >= rowTop();
    const DataPoint row{0, twoRows ? y : window_.bottom + gapY_};
    const Anchor anchor{HorizontalAnchor::centre, twoRows ? VerticalAnchor::top : VerticalAnchor::bottom};
    forTicks(strideFor(widest(frame_.X).width + clearance_, frame_.X.schritt), [&](int i) {
      place(tick(frame_.X, i), {xyTeilstrich(frame_.X.bereich, i), row.y}, anchor);
    });
  }

  /// Left of the square, or from the picture's edge into it if the margin is too narrow.
  void setTicksY() {
    forTicks(strideFor(widest(frame_.Y).height, frame_.Y.schritt), [&](int i) {
      const std::string text = tick(frame_.Y, i);
      const double leftmost = window_.left + gapX_ / 2 + size(text).width;
      place(text, {std::max(-frame_.X.bereich - gapX_, leftmost), xyTeilstrich(frame_.Y.bereich, i)},
            {HorizontalAnchor::right, VerticalAnchor::middle});
    });
  }

  template <class F>
  static void forTicks(int stride, F&& perTick) {
    for (int i = -lastTick; i <= lastTick; ++i)
      if (stride != 0 && i % stride == 0) perTick(i);
  }

  std::string tick(const DiagrammBereich& axis, int i) const {
    return xyTeilungsText(axis, i, words_.inBereichsEinheit);
  }

  /// Room that every tick label of the axis keeps within.
  DataSize widest(const DiagrammBereich& axis) const {
    DataSize room;
    forTicks(1, [&](int i) {
      const DataSize one = size(tick(axis, i));
      room = {std::max(room.width, one.width), std::max(room.height, one.height)};
    });
    return room;
  }

  DrawingSurface& surface_;
  const XYRahmen& frame_;
  const XYBeschriftung& words_;
  TextLook look_;
  DataWindow window_;
  double gapX_;
  double gapY_;
  double clearance_;
  std::vector<XYText> set_;
};

bool allInTheMargins(const std::vector<XYText>& labels) {
  return labels.size() == allLabels &&
         std::none_of(labels.begin(), labels.end(), [](const XYText& label) { return label.imFeld; });
}

}  // namespace

std::vector<XYText> xyBeschriften(DrawingSurface& surface, const XYRahmen& rahmen,
                                  const XYBeschriftung& beschriftung) {
  std::vector<XYText> labels;
  for (const double textSize : textSizes) {
    labels = Setter(surface, rahmen, beschriftung, textSize).set();
    if (allInTheMargins(labels)) break;
  }
  return labels;
}

}  // namespace korvin
