// The window in all eight languages at 1024 by 768: every word is there, and none is cut off.

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>

#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/theme.h"
#include "gerad_stand.h"

namespace korvin {
namespace {

class LineWords : public test::GeradStand, public ::testing::WithParamInterface<int> {
 protected:
  LineWords() {
    texts.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), GetParam());
    world.system.SpracheSpalte = SpalteVonSprache(static_cast<std::int16_t>(GetParam()));
    world.profil.ProfilSchreiben("", "MessInfo_G", "BiDi_Messen", "-1");
  }
  ~LineWords() override { applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), 0); }
  Dictionary& dictionary() override { return texts; }

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
  static void expectLabelsFit(const QWidget& window) {
    for (const QLabel* each : window.findChildren<QLabel*>()) {
      if (!each->isVisibleTo(&window) || each->text().isEmpty()) continue;
      if (each->objectName().startsWith(QStringLiteral("lblMSCommInput"))) continue;  // cut on purpose
      EXPECT_LE(QFontMetrics(each->font()).horizontalAdvance(each->text()), each->contentsRect().width())
          << utf8Text(each->objectName()) << ": " << utf8Text(each->text());
      const QRect place(each->mapTo(&window, QPoint(0, 0)), each->size());
      EXPECT_TRUE(window.rect().contains(place)) << utf8Text(each->text());
    }
  }

  /// No two controls that show something stand on each other.
  static void expectNothingCovered(const QWidget& window) {
    std::vector<const QWidget*> shown;
    for (const QWidget* each : window.findChildren<QWidget*>()) {
      const bool leaf = qobject_cast<const QLabel*>(each) || qobject_cast<const QLineEdit*>(each) ||
                        qobject_cast<const QToolButton*>(each) || qobject_cast<const PictureWidget*>(each) ||
                        qobject_cast<const PointList*>(each);
      const auto* label = qobject_cast<const QLabel*>(each);
      if (leaf && each->isVisibleTo(&window) && !(label && label->text().isEmpty())) shown.push_back(each);
    }
    ASSERT_GT(shown.size(), 20U);
    for (std::size_t i = 0; i < shown.size(); ++i) {
      const QRect mine(shown[i]->mapTo(&window, QPoint(0, 0)), shown[i]->size());
      for (std::size_t k = 0; k < i; ++k) {
        const QRect other(shown[k]->mapTo(&window, QPoint(0, 0)), shown[k]->size());
        EXPECT_TRUE((mine & other).isEmpty())
            << utf8Text(shown[i]->objectName()) << " on " << utf8Text(shown[k]->objectName());
      }
    }
  }

  test::TestProgramEnd programEnd;
  SqliteDictionary texts{world.system.SpracheSpalte, programEnd};
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
  for (QAction* action : bar().actions()) {
    auto* button = qobject_cast<QToolButton*>(bar().widgetForAction(action));
    if (button == nullptr) continue;
    EXPECT_TRUE(button->isVisible()) << utf8Text(button->objectName());
    EXPECT_FALSE(button->toolTip().isEmpty()) << utf8Text(button->objectName());
    EXPECT_FALSE(button->icon().isNull()) << utf8Text(button->objectName());
  }
  EXPECT_TRUE(key("XYMP1")->toolTip().contains(QStringLiteral("F5")));
}

TEST_P(LineWords, EntriesOfAMenuHaveDistinctAccessKeys) {
  show();
  for (QAction* top : form->menuBar()->actions()) {
    QString seen;
    for (QAction* action : top->menu()->actions()) {
      const qsizetype mark = action->text().indexOf(QLatin1Char('&'));
      if (mark < 0) continue;
      const QChar letter = action->text().at(mark + 1).toLower();
      EXPECT_FALSE(seen.contains(letter)) << utf8Text(top->text() + QStringLiteral(": ") + action->text());
      seen += letter;
    }
  }
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
