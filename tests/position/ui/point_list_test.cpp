#include "link/ui/point_list.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>

#include "frame/leerwert.h"
#include "frame/ui/qt_text.h"
#include "position/formpos.h"
#include "position/ui/point_list_model.h"

namespace korvin {
namespace {

constexpr double noon = 45000.5;

class PointListTest : public ::testing::Test {
 protected:
  void add(int count) {
    for (int i = 0; i < count; ++i) {
      formpos.arbeit().X.Aktuell = formpos.Info().AnzahlMP + 1;
      formpos.arbeit().Y.Aktuell = -0.25;
      formpos.punktHinzufuegen(noon + formpos.Info().AnzahlMP / 86400.0);
    }
  }
  std::string cell(int row, int column) { return utf8Text(model.index(row, column).data().toString()); }

  FORMPOS formpos = [] {
    FORMPOS fresh;
    fresh.Info().RestMP = -1;
    fresh.Info().NKStellen = 1;
    return fresh;
  }();
  PointListModel model{formpos.punkte(), formpos.arbeit()};
  QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(PointListTest, NewPointsAreAppendedWithoutAReset) {
  QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
  QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
  for (int i = 0; i < 3; ++i) {
    add(1);
    model.follow();
  }
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(inserts.size(), 3);
  EXPECT_EQ(inserts.last().at(1).toInt(), 2);
  EXPECT_TRUE(resets.isEmpty());
}

TEST_F(PointListTest, TextsOfARow) {
  add(2);
  model.follow();
  EXPECT_EQ(cell(1, PointListModel::Number), "2");
  EXPECT_EQ(cell(1, PointListModel::Time), "15.03.2023 / 12:00:01");
  EXPECT_EQ(cell(1, PointListModel::X), "2.00");
  EXPECT_EQ(cell(1, PointListModel::Y), "-0.25");
}

TEST_F(PointListTest, EmptyValueReadsAsNoMeasurement) {
  add(1);
  formpos.punkte().X().at(1) = Leerwert;
  formpos.punkte().T().at(1) = Leerwert;
  model.follow();
  EXPECT_EQ(cell(0, PointListModel::X), "?.?");
  EXPECT_EQ(cell(0, PointListModel::Time), "?.?");
}

TEST_F(PointListTest, ANewPointOnlyHasTwoRowsPaintedAnew) {
  add(100);
  model.follow();
  QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
  add(1);
  model.follow();
  ASSERT_EQ(changes.size(), 2);
  EXPECT_EQ(changes.at(0).at(0).toModelIndex().row(), 99);
  EXPECT_EQ(changes.at(0).at(1).toModelIndex().row(), 99);
  EXPECT_EQ(changes.at(1).at(0).toModelIndex().row(), 100);
}

TEST_F(PointListTest, OffsetAndDecimalsHaveAllRowsPaintedAnew) {
  add(10);
  model.follow();
  QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
  formpos.arbeit().X.Offset = 3;
  model.follow();
  ASSERT_EQ(changes.size(), 1);
  EXPECT_EQ(changes.at(0).at(1).toModelIndex().row(), 9);
  EXPECT_EQ(cell(0, PointListModel::X), "-2.00");
  formpos.Info().NKStellen = 3;
  model.follow();
  EXPECT_EQ(changes.size(), 2);
  EXPECT_EQ(cell(0, PointListModel::X), "-2.0000");
}

TEST_F(PointListTest, FewerPointsAreAnotherMeasurement) {
  add(10);
  model.follow();
  formpos.messungLoeschen();
  QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
  model.follow();
  EXPECT_EQ(resets.size(), 1);
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(PointListTest, AllPointsThereMayBe) {
  PointList list(model);
  list.resize(500, 400);
  list.show();
  add(MaxPunkteO);
  list.follow();
  EXPECT_EQ(model.rowCount(), 29999);
  EXPECT_EQ(cell(29998, PointListModel::Number), "29999");
  EXPECT_EQ(list.currentIndex().row(), 29998);
  EXPECT_TRUE(list.viewport()->rect().intersects(list.visualRect(model.index(29998, 0))));
  list.selectAll();
  list.copy();
  EXPECT_EQ(QApplication::clipboard()->text().count(QLatin1Char('\n')), 29999);
}

TEST_F(PointListTest, CursorMovedByOthersIsNotReportedAsChosen) {
  PointList list(model);
  int chosen = 0;
  list.onChosen = [&](int number) { chosen = number; };
  add(5);
  list.follow();
  formpos.Info().MPAktuell = 2;
  list.follow();
  EXPECT_EQ(list.currentIndex().row(), 1);
  EXPECT_EQ(chosen, 0);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(chosen, 3);
}

TEST_F(PointListTest, CopyWithoutASelectionTakesAllRows) {
  PointList list(model);
  add(2);
  list.follow();
  list.clearSelection();
  list.copy();
  EXPECT_EQ(utf8Text(QApplication::clipboard()->text()),
            "1\t15.03.2023 / 12:00:00\t1.00\t-0.25\n2\t15.03.2023 / 12:00:01\t2.00\t-0.25\n");
}

TEST_F(PointListTest, CursorOutsideThePointsOfAnOddFileIsHarmless) {
  PointList list(model);
  add(2);
  formpos.Info().MPAktuell = 7;
  list.follow();
  formpos.Info().MPAktuell = -3;
  list.follow();
  EXPECT_EQ(model.rowCount(), 2);
}

}  // namespace
}  // namespace korvin
