#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <vector>

#include "printing.h"
#include "straightness/numeric/kennwerte.h"

namespace korvin {
namespace {

constexpr double L = Leerwert;
const Kennwert NoResult{};
const Extremwerte NoExtremes{};

// Rows are points, row 0 the counts; column 0 holds nothing that may be looked at.
struct Table {
  std::size_t columns;
  std::vector<double> cells;
  MatrixAnsicht view() const { return {cells, cells.size() / columns, columns}; }
};

const Table Three{4,
                  {777, 3, 2, 3,     //
                   777, 1, 10, L,    //
                   777, 2, 20, 100,  //
                   777, 6, 555, 300}};

TEST(MatrixAnsicht, FindsCellsByPointAndFile) {
  const MatrixAnsicht view = Three.view();
  EXPECT_EQ(view.zeilen(), 4u);
  EXPECT_EQ(view.spalten(), 4u);
  EXPECT_EQ(view.at(1, 2), 10);
  EXPECT_EQ(view.at(3, 1), 6);
  EXPECT_EQ(view.anzahl(2), 2u);
  EXPECT_THROW(view.at(4, 1), std::out_of_range);
  EXPECT_THROW(view.at(1, 4), std::out_of_range);
}

TEST(MatrixAnsicht, CellsMustFillRowsAndColumns) {
  const std::vector<double> cells(6);
  EXPECT_NO_THROW(MatrixAnsicht(cells, 2, 3));
  EXPECT_THROW(MatrixAnsicht(cells, 2, 2), std::invalid_argument);
  EXPECT_THROW(MatrixAnsicht(cells, 3, 3), std::invalid_argument);
  EXPECT_THROW(MatrixAnsicht(cells, 1, 5), std::invalid_argument);
  EXPECT_THROW(MatrixAnsicht(cells, 0, 3), std::invalid_argument);
  EXPECT_THROW(MatrixAnsicht(cells, 3, 0), std::invalid_argument);
  EXPECT_THROW(MatrixAnsicht({}, 0, 0), std::invalid_argument);
  EXPECT_THROW(MatrixAnsicht({}, 0, 3), std::invalid_argument);
}

TEST(OfAFile, PointsUpToItsCount) {
  const MatrixAnsicht view = Three.view();
  EXPECT_EQ(MittelwertDatei(view, 1), (Kennwert{3, true}));
  EXPECT_EQ(MittelwertDatei(view, 2), (Kennwert{15, true}));
  EXPECT_EQ(MittelwertDatei(view, 3), (Kennwert{200, true}));
  EXPECT_EQ(StandardabweichungDatei(view, 2), (Kennwert{std::sqrt(50.0), true}));
  EXPECT_EQ(MinMaxDatei(view, 1), (Extremwerte{6, 1, true}));
  EXPECT_EQ(MinMaxDatei(view, 2), (Extremwerte{20, 10, true}));
  EXPECT_EQ(MinMaxDatei(view, 3), (Extremwerte{300, 100, true}));
}

TEST(OfAPoint, FilesThatReachIt) {
  const MatrixAnsicht view = Three.view();
  EXPECT_EQ(MittelwertPunkt(view, 3, 1), (Kennwert{5.5, true}));
  EXPECT_EQ(MittelwertPunkt(view, 1, 1), (Kennwert{1, true}));
  EXPECT_EQ(MittelwertPunkt(view, 3, 3), (Kennwert{153, true}));
  EXPECT_EQ(StandardabweichungPunkt(view, 3, 1), (Kennwert{std::sqrt(40.5), true}));
  EXPECT_EQ(StandardabweichungPunkt(view, 1, 1), NoResult);
  EXPECT_EQ(MinMaxPunkt(view, 3, 2), (Extremwerte{100, 2, true}));
  EXPECT_EQ(MinMaxPunkt(view, 3, 1), (Extremwerte{10, 1, true}));
}

TEST(OfAPoint, WithoutAValueThereIsNone) {
  const Table table{3,
                    {0, 1, 0,  //
                     0, L, 4}};
  EXPECT_EQ(MittelwertPunkt(table.view(), 2, 1), NoResult);
  EXPECT_EQ(StandardabweichungPunkt(table.view(), 2, 1), NoResult);
  EXPECT_EQ(MinMaxPunkt(table.view(), 2, 1), NoExtremes);
  EXPECT_EQ(MittelwertPunkt(table.view(), 0, 1), NoResult);
}

TEST(OfAPoint, RowZeroAndRowsBeyondThrow) {
  const MatrixAnsicht view = Three.view();
  EXPECT_THROW(MittelwertPunkt(view, 3, 0), std::out_of_range);
  EXPECT_THROW(MittelwertPunkt(view, 3, 4), std::out_of_range);
  EXPECT_THROW(StandardabweichungPunkt(view, 3, 4), std::out_of_range);
  EXPECT_THROW(MinMaxPunkt(view, 3, 0), std::out_of_range);
}

TEST(OfTheWhole, EveryCellOfAllFiles) {
  const MatrixAnsicht view = Three.view();
  EXPECT_EQ(MittelwertGesamt(view, 3), (Kennwert{439.0 / 7, true}));
  EXPECT_EQ(MittelwertGesamt(view, 2), (Kennwert{39.0 / 5, true}));
  const double square = (5 * 541.0 - 39.0 * 39) / 20;
  EXPECT_EQ(StandardabweichungGesamt(view, 2), (Kennwert{std::sqrt(square), true}));
  EXPECT_EQ(MinMaxGesamt(view, 3), (Extremwerte{300, 1, true}));
  EXPECT_EQ(MinMaxGesamt(view, 2), (Extremwerte{20, 1, true}));
}

TEST(OfTheWhole, FilesOneAfterTheOther) {
  // 1 is lost beside 1e16; file by file it comes after the two large ones have gone.
  const Table table{3,
                    {0, 2, 2,     //
                     0, 1e16, 1,  //
                     0, -1e16, 1}};
  EXPECT_EQ(MittelwertGesamt(table.view(), 2).wert, 0.5);
}

TEST(OfTheWhole, WithoutFilesOrValuesThereIsNone) {
  const MatrixAnsicht view = Three.view();
  EXPECT_EQ(MittelwertGesamt(view, 0), NoResult);
  EXPECT_EQ(StandardabweichungGesamt(view, 0), NoResult);
  EXPECT_EQ(MinMaxGesamt(view, 0), NoExtremes);
  const Table one{2,
                  {0, 1,  //
                   0, 5}};
  EXPECT_EQ(StandardabweichungGesamt(one.view(), 1), NoResult);
  EXPECT_EQ(MinMaxGesamt(one.view(), 1), (Extremwerte{5, 5, true}));
}

TEST(OfTheWhole, ExtremesNeedAPointThatNoFileLacks) {
  // File 1 has its first value at point 2, file 2 ends at point 1.
  const Table table{3,
                    {0, 2, 1,  //
                     0, L, 7,  //
                     0, 5, 8}};
  EXPECT_EQ(ersterGemeinsamerPunkt(table.view(), 2), std::nullopt);
  EXPECT_EQ(MinMaxGesamt(table.view(), 2), NoExtremes);
  EXPECT_EQ(MinMaxGesamt(table.view(), 1), (Extremwerte{5, 5, true}));
  EXPECT_EQ(MittelwertGesamt(table.view(), 2), (Kennwert{6, true}));
}

TEST(OfTheWhole, OnceThereIsACommonPointAllCellsCount) {
  const Table table{3,
                    {0, 3, 2,   //
                     0, L, -7,  //
                     0, 5, 1,   //
                     0, 9, L}};
  EXPECT_EQ(ersterGemeinsamerPunkt(table.view(), 2), 2u);
  EXPECT_EQ(MinMaxGesamt(table.view(), 2), (Extremwerte{9, -7, true}));
}

TEST(ErsterGemeinsamerPunkt, IsTheFirstAtWhichEachFileHasAValue) {
  EXPECT_EQ(ersterGemeinsamerPunkt(Three.view(), 3), 2u);
  EXPECT_EQ(ersterGemeinsamerPunkt(Three.view(), 2), 1u);
  EXPECT_EQ(ersterGemeinsamerPunkt(Three.view(), 0), std::nullopt);
  const Table last{3,
                   {0, 2, 3,  //
                    0, 1, L,  //
                    0, 2, 4,  //
                    0, L, 5}};
  EXPECT_EQ(ersterGemeinsamerPunkt(last.view(), 2), 2u);
  const Table empty{3,
                    {0, 2, 0,  //
                     0, 1, 2,  //
                     0, 2, 4}};
  EXPECT_EQ(ersterGemeinsamerPunkt(empty.view(), 2), std::nullopt);
}

TEST(Bounds, AFileOutsideOrACountAboveTheRowsThrows) {
  const MatrixAnsicht view = Three.view();
  EXPECT_THROW(MittelwertDatei(view, 4), std::out_of_range);
  EXPECT_THROW(MittelwertGesamt(view, 4), std::out_of_range);
  EXPECT_THROW(MinMaxGesamt(view, 4), std::out_of_range);
  EXPECT_THROW(MittelwertPunkt(view, 4, 1), std::out_of_range);
  const Table tooMany{2,
                      {0, 2,  //
                       0, 1}};
  EXPECT_THROW(MittelwertDatei(tooMany.view(), 1), std::out_of_range);
  EXPECT_THROW(StandardabweichungGesamt(tooMany.view(), 1), std::out_of_range);
  EXPECT_THROW(MinMaxGesamt(tooMany.view(), 1), std::out_of_range);
  EXPECT_THROW(MinMaxPunkt(tooMany.view(), 1, 1), std::out_of_range);
}

TEST(Bounds, TheLargestSetOfFiles) {
  Table table{22, std::vector<double>(202 * 22, 1.0)};
  for (std::size_t datei = 1; datei <= 21; ++datei) table.cells[datei] = 201;
  table.cells[201 * 22 + 21] = 4222;
  EXPECT_EQ(MittelwertGesamt(table.view(), 21), (Kennwert{2, true}));
  EXPECT_EQ(MinMaxPunkt(table.view(), 21, 201), (Extremwerte{4222, 1, true}));
  EXPECT_THROW(MittelwertGesamt(table.view(), 22), std::out_of_range);
}

}  // namespace
}  // namespace korvin
