// The window in all eight languages at 1024 by 768: every word is there, and none is cut off.

#include <QHeaderView>
#include <QPushButton>

#include "gerad_stand.h"
#include "support/window_words.h"

namespace korvin {
namespace {

using test::expectKeysTell;
using test::expectLabelsFit;
using test::expectMenusFit;
using test::expectNothingCovered;

class LineWords : public test::InEachLanguage<test::GeradStand> {
 protected:
  LineWords() { world.profil.ProfilSchreiben("", "MessInfo_G", "BiDi_Messen", "-1"); }

  /// The window with all keys, bars and rows, and with long values.
  void showAll() {
    show();
    takePoints({-20.1234, 20.1234, -20.1234, 20.1234, -20.1234, 20.1234});
    for (GeradAchse* axis : {&series().X, &series().Y}) {
      axis->Gesamt = 12.345;
      axis->WertPro = 12.345;
      axis->ProEinheit = 1000;
    }
    for (const char* each : {"REF", "STATISTIK", "x", "s", "R", "t", "XYAMPL"}) click(each);
    settle();
  }
};

TEST_P(LineWords, NothingIsCutOff) {
  showAll();
  EXPECT_EQ(form->size(), QSize(1024, 768));
  EXPECT_LE(form->minimumSizeHint().width(), 1024);
  EXPECT_LE(form->minimumSizeHint().height(), 700) << "room for the desktop's bars";
  expectLabelsFit(*form);
  expectNothingCovered(*form);
  for (const char* each : {"XNZOOM", "YNZOOM"}) {
    click(each);
    settle();
    expectLabelsFit(*form);
    expectNothingCovered(*form);
  }
}

TEST_P(LineWords, NothingIsCutOffInTheFrameOfMultiPointMeasuring) {
  show();
  click("XYMPKMP");
  settle();
  auto& frame = *form->findChild<MultiPointFrame*>();
  beam(-20.1234, 20.1234);
  auto* take = form->findChild<QPushButton*>(QStringLiteral("CmdMehrPunkt(0)"));
  for (int i = 0; i < 3; ++i) {
    expectLabelsFit(frame);
    EXPECT_TRUE(form->rect().contains(QRect(frame.mapTo(form.get(), QPoint()), frame.size())));
    for (const QAbstractButton* each : frame.findChildren<QAbstractButton*>())
      EXPECT_LE(each->sizeHint().width(), each->width()) << utf8Text(each->text());
    if (i < 2) take->click();
    settle();
  }
  world.korCom.setSensorHalbbereich(HalbbereichGross);
  beam(-12.1234, 12.1234);
  frame.onButton(2);
  click("XYMPKMP");
  world.head.behaviour = [this](char command) {
    return test::answerFrame(
        test::answerBody(command == 'M' ? 'm' : 'T', 'K', world.head.x, world.head.y, 80, '2'));
  };
  for (int i = 0; i < 3; ++i) take->click();
  settle();
  EXPECT_FALSE(text("LblMittelwert").empty());
  expectLabelsFit(frame);
}

TEST_P(LineWords, NothingIsCutOffDuringAnAdaptivePoint) {
  world.profil.ProfilSchreiben("", "MessInfo_G", "AutoAdapt", "-1");
  show();
  click("XYMP1");
  run(4);
  ASSERT_TRUE(shown("AdaptProgress"));
  ASSERT_TRUE(shown("FrmKonvergenz"));
  EXPECT_EQ(form->size(), QSize(1024, 768));
  EXPECT_LE(form->minimumSizeHint().width(), 1024);
  expectLabelsFit(*form);
  const QLabel* line = label("lblMSCommInput(1)");
  EXPECT_LE(line->sizeHint().width(), line->width()) << "the figures of the point are not cut";
}

TEST_P(LineWords, AllKeysStandInTheBarAndTellWhatTheyDo) {
  showAll();
  expectKeysTell(bar());
  EXPECT_TRUE(key("XYMP1")->toolTip().contains(QStringLiteral("F5")));
}

TEST_P(LineWords, MenusFitAndHaveDistinctAccessKeys) {
  show();
  ASSERT_EQ(form->menuBar()->actions().size(), 6);
  expectMenusFit(*form->menuBar());
}

TEST_P(LineWords, HeadingsOfTheTableFit) {
  show();
  for (int column = 0; column < LineTableModel::ColumnCount; ++column)
    EXPECT_LE(list().horizontalHeader()->sectionSizeHint(column), list().columnWidth(column)) << column;
}

INSTANTIATE_TEST_SUITE_P(Languages, LineWords, ::testing::Range(0, 8), [](const auto& language) {
  return std::string(SpalteVonSprache(static_cast<std::int16_t>(language.param)));
});

}  // namespace
}  // namespace korvin
