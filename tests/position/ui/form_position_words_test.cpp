// The window in all eight languages at 1024 by 768: every word is there, and none is cut off.

#include <QAction>
#include <QDialog>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/theme.h"
#include "position_stand.h"

namespace korvin {
namespace {

class Words : public test::PositionStand, public ::testing::WithParamInterface<int> {
 protected:
  Words() {
    texts.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), GetParam());
    world.system.SpracheSpalte = SpalteVonSprache(static_cast<std::int16_t>(GetParam()));
  }
  ~Words() override { applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), 0); }
  Dictionary& dictionary() override { return texts; }

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
  static void expectLabelsFit(const QWidget& window) {
    for (const QLabel* each : window.findChildren<QLabel*>()) {
      if (!each->isVisibleTo(&window) || each->text().isEmpty()) continue;
      if (each->objectName().startsWith(QStringLiteral("lblMSCommInput"))) continue;  // cut on purpose
      const QFontMetrics metrics(each->font());
      EXPECT_LE(metrics.horizontalAdvance(each->text()), each->contentsRect().width())
          << utf8Text(each->objectName()) << ": " << utf8Text(each->text());
      EXPECT_LE(metrics.height(), each->contentsRect().height() + 1) << utf8Text(each->text());
      const QRect place(each->mapTo(&window, QPoint(0, 0)), each->size());
      EXPECT_TRUE(window.rect().contains(place)) << utf8Text(each->text());
    }
  }

  static void expectDistinctAccessKeys(const QStringList& texts) {
    QString seen;
    for (const QString& text : texts) {
      const qsizetype mark = text.indexOf(QLatin1Char('&'));
      ASSERT_GE(mark, 0) << utf8Text(text);
      const QChar letter = text.at(mark + 1).toLower();
      EXPECT_FALSE(seen.contains(letter)) << utf8Text(texts.join(QStringLiteral(", ")));
      seen += letter;
    }
  }

  test::TestProgramEnd programEnd;
  SqliteDictionary texts{world.system.SpracheSpalte, programEnd};
};

TEST_P(Words, NothingIsCutOff) {
  showAll();
  EXPECT_EQ(form->size(), QSize(1024, 768));
  EXPECT_LE(form->minimumSizeHint().width(), 1024);
  EXPECT_LE(form->minimumSizeHint().height(), 700) << "room for the desktop's bars";
  expectLabelsFit(*form);
  click("NZOOM");
  settle();
  expectLabelsFit(*form);
}

TEST_P(Words, AllKeysStandInTheBarAndTellWhatTheyDo) {
  show();
  for (QAction* action : bar().actions()) {
    auto* button = qobject_cast<QToolButton*>(bar().widgetForAction(action));
    if (button == nullptr) continue;
    EXPECT_TRUE(button->isVisible()) << utf8Text(button->objectName());
    EXPECT_FALSE(button->toolTip().isEmpty()) << utf8Text(button->objectName());
    EXPECT_FALSE(button->icon().isNull()) << utf8Text(button->objectName());
  }
  EXPECT_TRUE(key("XYMP1")->toolTip().contains(QStringLiteral("F5")));
}

TEST_P(Words, MenusFitAndHaveDistinctAccessKeys) {
  show();
  ASSERT_EQ(form->menuBar()->actions().size(), 6);
  QStringList bar;
  for (QAction* top : form->menuBar()->actions()) {
    EXPECT_LE(form->menuBar()->actionGeometry(top).right(), 1024);
    bar << top->text();
    QStringList entries;
    for (QAction* action : top->menu()->actions()) {
      if (action->isSeparator()) continue;
      EXPECT_FALSE(action->text().isEmpty()) << utf8Text(action->objectName());
      entries << action->text();
    }
    if (entries.size() > 1) expectDistinctAccessKeys(entries);
  }
  expectDistinctAccessKeys(bar);
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
