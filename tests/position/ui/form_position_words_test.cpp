// The window in all eight languages at 1024 by 768: every word is there, and none is cut off.

#include <QDialog>
#include <QHeaderView>
#include <QPushButton>

#include "position_stand.h"
#include "support/window_words.h"

namespace korvin {
namespace {

using test::expectKeysTell;
using test::expectLabelsFit;
using test::expectMenusFit;
using test::expectNothingCovered;

class Words : public test::InEachLanguage<test::PositionStand> {
 protected:
  /// The window with all its panels shown: plan, service panel, and the widest values.
  void showAll() {
    world.head.x = 499999;
    show();
    info().StartAktiv = true;
    info().StartZeit = world.clock.now() + 1;
    info().StopAktiv = true;
    info().StopZeit = world.clock.now() + 2;
    info().Intervall = 86399;
    info().RestMP = 29999;
    click("XYMP1");
    run(0.2);
    click("OFFSET");
    for (const char* each : {"x", "s", "R", "XYAMPL"}) click(each);
    QTest::mouseDClick(label("lblMSCommInput(0)"), Qt::LeftButton);
    click("XYMPN");
    run(0.5);
  }
};

TEST_P(Words, NothingIsCutOff) {
  showAll();
  EXPECT_EQ(form->size(), QSize(1024, 768));
  EXPECT_LE(form->minimumSizeHint().width(), 1024);
  EXPECT_LE(form->minimumSizeHint().height(), 700) << "room for the desktop's bars";
  expectLabelsFit(*form);
  expectNothingCovered(*form);
  click("NZOOM");
  settle();
  expectLabelsFit(*form);
  expectNothingCovered(*form);
}

TEST_P(Words, AllKeysStandInTheBarAndTellWhatTheyDo) {
  show();
  expectKeysTell(bar());
  EXPECT_TRUE(key("XYMP1")->toolTip().contains(QStringLiteral("F5")));
}

TEST_P(Words, MenusFitAndHaveDistinctAccessKeys) {
  show();
  ASSERT_EQ(form->menuBar()->actions().size(), 6);
  expectMenusFit(*form->menuBar());
}

TEST_P(Words, HeadingsOfTheListFit) {
  show();
  auto* list = form->findChild<PointList*>();
  for (int column = 0; column < PointListModel::ColumnCount; ++column) {
    EXPECT_LE(list->horizontalHeader()->sectionSizeHint(column), list->columnWidth(column)) << column;
  }
}

TEST_P(Words, FileInformationFits) {
  show();
  FormDateiInfo dialog(dictionary(), QStringLiteral("FormDateiInfoO"), dateiKopf(info()));
  dialog.show();
  settle();
  EXPECT_LE(dialog.width(), 1024);
  EXPECT_FALSE(dialog.windowTitle().isEmpty());
  expectLabelsFit(dialog);
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
    EXPECT_LE(button->sizeHint().width(), button->width()) << utf8Text(button->text());
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, Words, ::testing::Range(0, 8), [](const auto& language) {
  return std::string(SpalteVonSprache(static_cast<std::int16_t>(language.param)));
});

}  // namespace
}  // namespace korvin
