#include "position/xy_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "position/xy_labels.h"
#include "support/recording_surface.h"

namespace korvin {
namespace {

using test::DrawingOp;
using test::RecordingSurface;
using Kind = DrawingOp::Kind;

XYRahmen frameOf(double rangeX, double rangeY, int unitSystem = 0) {
  return {bereichAnpassen(rangeX, unitSystem), bereichAnpassen(rangeY, unitSystem), true};
}

/// All half ranges of a ladder, from the lowest.
std::vector<double> ladder(int unitSystem) {
  std::vector<double> rungs = {bereichAnpassen(0, unitSystem).bereich};
  while (bereichGroesser(rungs.back(), unitSystem) > rungs.back())
    rungs.push_back(bereichGroesser(rungs.back(), unitSystem));
  return rungs;
}

std::vector<std::string> ticks(const DiagrammBereich& range, bool inUnitOfLabel = false) {
  std::vector<std::string> texts;
  for (int i = -4; i <= 4; ++i) texts.push_back(xyTeilungsText(range, i, inUnitOfLabel));
  return texts;
}

using Texts = std::vector<std::string>;

// ---- Ticks and window ----

TEST(XYFrame, TicksTellTheirValueInTheUnitOfTheData) {
  EXPECT_EQ(ticks(bereichAnpassen(0.001, 0)), (Texts{"-0.0008", "-0.0006", "-0.0004", "-0.0002", "0.0000",
                                                     "+0.0002", "+0.0004", "+0.0006", "+0.0008"}));
  EXPECT_EQ(ticks(bereichAnpassen(0.05, 0)),
            (Texts{"-0.04", "-0.03", "-0.02", "-0.01", "0.00", "+0.01", "+0.02", "+0.03", "+0.04"}));
  EXPECT_EQ(ticks(bereichAnpassen(20, 0)), (Texts{"-16", "-12", "-8", "-4", "0", "+4", "+8", "+12", "+16"}));
  EXPECT_EQ(ticks(bereichAnpassen(0.02, 1)),
            (Texts{"-0.016", "-0.012", "-0.008", "-0.004", "0.000", "+0.004", "+0.008", "+0.012", "+0.016"}));
  EXPECT_EQ(ticks(bereichAnpassen(1000, 1)),
            (Texts{"-800", "-600", "-400", "-200", "0", "+200", "+400", "+600", "+800"}));
}

TEST(XYFrame, TicksOfPaperAreInTheUnitOfTheLabelWithADecimalAtLeast) {
  EXPECT_EQ(ticks(bereichAnpassen(0.1, 0), true),
            (Texts{"-80.0", "-60.0", "-40.0", "-20.0", "0.0", "+20.0", "+40.0", "+60.0", "+80.0"}));
  EXPECT_EQ(xyTeilungsText(bereichAnpassen(0.001, 0), 1, true), "+0.2");
  EXPECT_EQ(xyTeilungsText(bereichAnpassen(20, 0), 4, true), "+16.0");
  EXPECT_EQ(xyTeilungsText(bereichAnpassen(0.02, 1), 1, true), "+0.004");
  EXPECT_EQ(xyTeilungsText(bereichAnpassen(1000, 1), 4, true), "+0.8");
}

TEST(XYFrame, EveryTickOfEveryRangeReadsBackAsItsValue) {
  for (const int unitSystem : {0, 1}) {
    for (const double range : ladder(unitSystem)) {
      for (int i = -4; i <= 4; ++i) {
        const std::string text = xyTeilungsText(bereichAnpassen(range, unitSystem), i);
        EXPECT_NEAR(std::stod(text), range * i / 5, range * 1e-12) << text;
        EXPECT_EQ(text.front() == '+', i > 0) << text;
      }
    }
  }
}

TEST(XYFrame, OuterTicksAreExactlyTheEndsOfTheRange) {
  for (const int unitSystem : {0, 1}) {
    for (const double range : ladder(unitSystem)) {
      EXPECT_EQ(xyTeilstrich(range, 5), range);
      EXPECT_EQ(xyTeilstrich(range, -5), -range);
    }
  }
}

TEST(XYFrame, WindowLeavesRoomForTheLabels) {
  EXPECT_EQ(xyFenster(50, 500), (DataWindow{-62, 530, 55, -570}));
}

TEST(XYFrame, UnitsOfTheLabels) {
  EXPECT_EQ(xyBereichsEinheit(bereichAnpassen(0.5, 0)), "um");
  EXPECT_EQ(xyBereichsEinheit(bereichAnpassen(1, 0)), "mm");
  EXPECT_EQ(xyBereichsEinheit(bereichAnpassen(0.02, 1)), "mil");
  EXPECT_EQ(xyBereichsEinheit(bereichAnpassen(1000, 1)), "in");
  const XYBeschriftung paper = xyPapierBeschriftung(bereichAnpassen(0.1, 0), bereichAnpassen(5, 0));
  EXPECT_EQ(paper.X, "X [um]");
  EXPECT_EQ(paper.Y, "Y [mm]");
  EXPECT_TRUE(paper.inBereichsEinheit);
}

// ---- Grid and axes ----

std::vector<DrawingOp> linesOf(const RecordingSurface& surface, Farbe colour) {
  std::vector<DrawingOp> lines = surface.all(Kind::line);
  std::erase_if(lines, [&](const DrawingOp& op) { return op.colour != colour; });
  return lines;
}

TEST(XYFrame, GridIsElevenLinesEachWayInGrey) {
  RecordingSurface surface;
  xyRahmenZeichnen(surface, frameOf(5, 10), {});
  std::vector<DrawingOp> grid = linesOf(surface, 0xC0C0C0);
  ASSERT_EQ(grid.size(), 22U);
  for (int i = -5; i <= 5; ++i) {
    const std::vector<DataPoint> across = {{-5, 2.0 * i}, {5, 2.0 * i}};
    const std::vector<DataPoint> upright = {{1.0 * i, -10}, {1.0 * i, 10}};
    for (const auto& ends : {across, upright}) {
      EXPECT_EQ(std::count_if(grid.begin(), grid.end(), [&](const auto& op) { return op.points == ends; }), 1)
          << i;
    }
  }
}

TEST(XYFrame, AxesGoThroughTheCentreInDarkerGreyOverTheGrid) {
  RecordingSurface surface;
  xyRahmenZeichnen(surface, frameOf(5, 10), {});
  const std::vector<DrawingOp> lines = surface.all(Kind::line);
  EXPECT_EQ(lines.at(22).points, (std::vector<DataPoint>{{-5, 0}, {5, 0}}));
  EXPECT_EQ(lines.at(23).points, (std::vector<DataPoint>{{0, -10}, {0, 10}}));
  EXPECT_EQ(lines.at(22).colour, 0x808080);
  EXPECT_EQ(lines.at(23).colour, 0x808080);
  EXPECT_TRUE(std::all_of(lines.begin(), lines.end(), [](const auto& op) { return op.width == 1; }));
}

TEST(XYFrame, EveryLabelledTickHasItsMarkOnTheAxis) {
  RecordingSurface surface;
  xyRahmenZeichnen(surface, frameOf(5, 10), {});
  const std::vector<DrawingOp> dark = linesOf(surface, 0x808080);
  ASSERT_EQ(dark.size(), 2U + 16U);
  for (const int i : {-4, -3, -2, -1, 1, 2, 3, 4}) {
    const std::vector<DataPoint> onX = {{1.0 * i, -0.1}, {1.0 * i, 0.1}};
    const std::vector<DataPoint> onY = {{-0.05, 2.0 * i}, {0.05, 2.0 * i}};
    for (const auto& ends : {onX, onY})
      EXPECT_TRUE(std::any_of(dark.begin(), dark.end(), [&](const auto& op) { return op.points == ends; }))
          << i;
  }
}

TEST(XYFrame, WithoutGridOnlyAxesAndLabels) {
  RecordingSurface surface;
  XYRahmen frame = frameOf(5, 10);
  frame.gitter = false;
  xyRahmenZeichnen(surface, frame, {});
  EXPECT_TRUE(linesOf(surface, 0xC0C0C0).empty());
  EXPECT_EQ(linesOf(surface, 0x808080).size(), 18U);
  EXPECT_EQ(surface.all(Kind::text).size(), 22U);
}

TEST(XYFrame, ClearsTheGroundThenSetsTheWindow) {
  RecordingSurface surface;
  xyRahmenZeichnen(surface, frameOf(5, 10), {});
  EXPECT_EQ(surface.ops.at(0).kind, Kind::clear);
  EXPECT_EQ(surface.ops.at(0).colour, 0xFFFFFF);
  EXPECT_EQ(surface.ops.at(1).kind, Kind::window);
  EXPECT_EQ(surface.ops.at(1).window, xyFenster(5, 10));
}

// ---- Labels ----

DataWindow boxOf(const DrawingOp& op) {
  const DataPoint at = op.points.at(0);
  DataWindow box{at.x, at.y, at.x, at.y};
  const double overX = op.horizontal == HorizontalAnchor::left     ? 0
                       : op.horizontal == HorizontalAnchor::centre ? 0.5
                                                                   : 1;
  const double overY = op.vertical == VerticalAnchor::top      ? 1
                       : op.vertical == VerticalAnchor::middle ? 0.5
                                                               : 0;
  box.left -= overX * op.room.width;
  box.right = box.left + op.room.width;
  box.bottom -= overY * op.room.height;
  box.top = box.bottom + op.room.height;
  return box;
}

const DrawingOp* find(const std::vector<DrawingOp>& texts, const std::string& text, auto&& also) {
  const auto found =
      std::find_if(texts.begin(), texts.end(), [&](const auto& op) { return op.text == text && also(op); });
  return found == texts.end() ? nullptr : &*found;
}

TEST(XYFrame, LabelsStandAtTheirTicksOutsideTheSquare) {
  RecordingSurface surface(1170, 1100);
  xyRahmenZeichnen(surface, frameOf(5, 10), {});
  const std::vector<DrawingOp> texts = surface.all(Kind::text);
  for (int i = -4; i <= 4; ++i) {
    const auto* onX = find(texts, xyTeilungsText(bereichAnpassen(5, 0), i), [&](const auto& op) {
      return op.horizontal == HorizontalAnchor::centre && op.points.at(0).x == i;
    });
    const auto* onY = find(texts, xyTeilungsText(bereichAnpassen(10, 0), i), [&](const auto& op) {
      return op.vertical == VerticalAnchor::middle && op.points.at(0).y == 2.0 * i;
    });
    ASSERT_TRUE(onX && onY) << i;
    EXPECT_LT(boxOf(*onX).top, -10);
    EXPECT_LT(boxOf(*onY).right, -5);
    EXPECT_EQ(onX->textSize, 1);
    EXPECT_EQ(onX->colour, FarbeBeschriftung);
  }
}

TEST(XYFrame, RangesStandUnderTheAxesBehindTheirNames) {
  RecordingSurface surface(1170, 1100);
  xyRahmenZeichnen(surface, frameOf(5, 10), {});
  const std::vector<DrawingOp> texts = surface.all(Kind::text);
  const auto any = [](const DrawingOp&) { return true; };
  const DataWindow rangeX = boxOf(*find(texts, "±5mm", any));
  const DataWindow rangeY = boxOf(*find(texts, "±10mm", any));
  const DataWindow nameX = boxOf(*find(texts, "X", any));
  const DataWindow nameY = boxOf(*find(texts, "Y", any));
  const DataWindow tickX =
      boxOf(*find(texts, "0", [](const auto& op) { return op.horizontal == HorizontalAnchor::centre; }));
  for (const DataWindow& box : {rangeX, rangeY, nameX, nameY}) EXPECT_LT(box.top, tickX.bottom);
  EXPECT_LT(rangeY.right, 0);
  EXPECT_GT(rangeX.left, 0);
  const double blank = 7.0 / 1170 * 11.7;  // one character
  EXPECT_NEAR(rangeX.left - nameX.right, blank, 1e-9);
  EXPECT_NEAR(rangeY.left - nameY.right, blank, 1e-9);
}

bool overlap(const DataWindow& a, const DataWindow& b) {
  return a.left < b.right && b.left < a.right && a.bottom < b.top && b.bottom < a.top;
}

/// What holds for the labels of any picture.
void expectLegible(const RecordingSurface& surface, const XYRahmen& frame, const std::string& where) {
  const std::vector<DrawingOp> texts = surface.all(Kind::text);
  const std::vector<DrawingOp> fills = surface.all(Kind::fill);
  std::vector<DataWindow> boxes;
  for (const DrawingOp& op : texts) {
    ASSERT_GE(op.textSize, 0.75) << where;
    const DataWindow box = boxOf(op);
    const DataWindow window = surface.window;
    const double fine = 1e-9 * (window.right - window.left);
    ASSERT_TRUE(box.left >= window.left - fine && box.right <= window.right + fine &&
                box.bottom >= window.bottom - fine && box.top <= window.top + fine)
        << where << ": " << op.text;
    const bool inTheSquare = box.right > -frame.X.bereich && box.top > -frame.Y.bereich;
    const auto covers = [&](const DrawingOp& fill) {
      return fill.points.at(0) == DataPoint{box.left, box.bottom} &&
             fill.points.at(1) == DataPoint{box.right, box.top} && fill.colour == FarbeGrund;
    };
    ASSERT_EQ(inTheSquare, std::any_of(fills.begin(), fills.end(), covers)) << where << ": " << op.text;
    boxes.push_back(box);
  }
  for (std::size_t i = 0; i < boxes.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      ASSERT_FALSE(overlap(boxes[i], boxes[j]))
          << where << ": " << texts[i].text << " over " << texts[j].text;
}

TEST(XYFrame, LabelsNeverOverlapAtAnySizeRangeOrFont) {
  for (const int unitSystem : {0, 1}) {
    for (const double rangeX : ladder(unitSystem)) {
      for (const double rangeY : ladder(unitSystem)) {
        const XYRahmen frame = frameOf(rangeX, rangeY, unitSystem);
        for (double size = 16; size < 3000; size *= 1.31) {
          for (const double character : {4.5, 7.0, 14.0}) {
            for (const bool paper : {false, true}) {
              RecordingSurface surface(size, size);
              surface.charWidth = character;
              surface.lineHeight = 2.1 * character;
              xyRahmenZeichnen(surface, frame,
                               paper ? xyPapierBeschriftung(frame.X, frame.Y) : XYBeschriftung{});
              const std::string where = std::string(frame.X.text) + " " + std::string(frame.Y.text) + " at " +
                                        std::to_string(size) + ", font " + std::to_string(character);
              ASSERT_NO_FATAL_FAILURE(expectLegible(surface, frame, where));
            }
          }
        }
      }
    }
  }
}

Texts ticksOfX(const RecordingSurface& surface) {
  Texts texts;
  for (const DrawingOp& op : surface.all(Kind::text))
    if (op.horizontal == HorizontalAnchor::centre) texts.push_back(op.text);
  return texts;
}

Texts ticksOfY(const RecordingSurface& surface) {
  Texts texts;
  for (const DrawingOp& op : surface.all(Kind::text))
    if (op.vertical == VerticalAnchor::middle) texts.push_back(op.text);
  return texts;
}

RecordingSurface drawnAt(double size, double range = 0.001) {
  RecordingSurface surface(size, size);
  xyRahmenZeichnen(surface, frameOf(range, range), {});
  return surface;
}

TEST(XYFrame, AllLabelsAtTheFullSizeWhereThereIsRoom) {
  for (const double size : {680.0, 1000.0, 2000.0}) {
    const RecordingSurface surface = drawnAt(size);
    EXPECT_EQ(surface.all(Kind::text).size(), 22U) << size;
    EXPECT_EQ(surface.all(Kind::text).front().textSize, 1) << size;
    EXPECT_TRUE(surface.all(Kind::fill).empty()) << size;
  }
}

TEST(XYFrame, ALittleTooSmallAPictureHasSmallerTextButAllOfIt) {
  const RecordingSurface surface = drawnAt(600);
  EXPECT_EQ(surface.all(Kind::text).size(), 22U);
  EXPECT_EQ(surface.all(Kind::text).front().textSize, 0.9);
  EXPECT_TRUE(surface.all(Kind::fill).empty());
}

TEST(XYFrame, ASmallPictureLabelsEverySecondThenEveryFourthTick) {
  EXPECT_EQ(ticksOfX(drawnAt(400)), (Texts{"-0.0008", "-0.0004", "0.0000", "+0.0004", "+0.0008"}));
  EXPECT_EQ(ticksOfX(drawnAt(240)), (Texts{"0.0000"})) << "the outer ones would meet the ranges' labels";
  EXPECT_EQ(ticksOfY(drawnAt(240)).size(), 9U);
  EXPECT_EQ(ticksOfY(drawnAt(120)), (Texts{"-0.0008", "-0.0004", "0.0000", "+0.0004", "+0.0008"}));
}

TEST(XYFrame, WithoutRoomForTwoRowsTheTicksStandInTheRowOfTheRanges) {
  const RecordingSurface surface = drawnAt(240);
  const std::vector<DrawingOp> texts = surface.all(Kind::text);
  const auto any = [](const DrawingOp&) { return true; };
  const DrawingOp* tick = find(texts, "0.0000", [](const auto& op) { return op.points.at(0).x == 0; });
  const DrawingOp* range = find(texts, "±1um", any);
  ASSERT_TRUE(tick && range);
  EXPECT_EQ(boxOf(*tick).bottom, boxOf(*range).bottom);
}

TEST(XYFrame, RangesAreLabelledEvenWhereNothingElseHasRoom) {
  for (const double size : {75.0, 100.0, 150.0}) {
    const RecordingSurface surface = drawnAt(size);
    const Texts texts = surface.texts();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "±1um"), 2) << size;
  }
}

TEST(XYFrame, NoPictureTooSmallToBeDrawn) {
  for (const double size : {1.0, 5.0, 15.0}) EXPECT_TRUE(drawnAt(size).texts().empty()) << size;
}

}  // namespace
}  // namespace korvin
