// The dialog of a failed adaptive point: words, values, colours, buttons and keys, in every language.
#include "straightness/ui/form_adapt_fehler.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

const QColor green(0, 255, 0);
const QColor red(255, 0, 0);

/// A point of two samples whose half widths are `x` and `y` mm, after a measuring time of 10 s.
class FailedPoint {
 public:
  FailedPoint(double x, double y, Profil& profil) : profil_(profil) {
    goals.X_Genauigkeit = 0.01;
    goals.Y_Genauigkeit = 0.01;
    goals.MessZeitMin = 5;
    goals.MessZeitMax = 10;
    point.starten(goals, 1000);
    // Two samples ±d have the standard deviation √2·d; their mean's half width is Student's factor times d.
    point.probe(x / factor, y / factor, goals, 1001);
    point.probe(-x / factor, -y / factor, goals, 1020);
  }
  AdaptFehler failure() { return AdaptFehler({point, goals, profil_, "MessInfo_G", 1020}); }

  AdaptivMessung point;
  AdaptVorgaben goals;

 private:
  static constexpr double factor = 4.303;  ///< `StudentT(1, 5)`
  Profil& profil_;
};

class FailureDialog : public ::testing::Test {
 protected:
  void open(double x, double y, std::int16_t units = 0) {
    failed = std::make_unique<FailedPoint>(x, y, profil);
    failure = std::make_unique<AdaptFehler>(failed->failure());
    dialog =
        std::make_unique<FormAdaptFehler>(*failure, QStringLiteral("FormAdaptFehlerG"), dictionary(), units);
    dialog->show();
    QApplication::processEvents();
  }
  virtual Dictionary& dictionary() { return words; }
  QLabel* label(const QString& name) { return dialog->findChild<QLabel*>(name); }
  std::string text(const char* name) { return utf8Text(label(QString::fromUtf8(name))->text()); }
  QColor colour(const char* name) {
    return label(QString::fromUtf8(name))->palette().color(QPalette::WindowText);
  }
  QPushButton* button(int index) {
    return dialog->findChild<QPushButton*>(QStringLiteral("CmdAdaptCont(%1)").arg(index));
  }

  test::MemorySettingsTree tree;
  Profil profil{tree};
  test::TestDictionary words;
  std::unique_ptr<FailedPoint> failed;
  std::unique_ptr<AdaptFehler> failure;
  std::unique_ptr<FormAdaptFehler> dialog;
};

TEST_F(FailureDialog, WordsStandInTheirLabelsAndButtons) {
  open(0.02, 0.005);
  EXPECT_EQ(utf8Text(dialog->objectName()), "FormAdaptFehlerG");
  EXPECT_EQ(utf8Text(dialog->windowTitle()), "AutoAdapt Fehlmessung!");
  EXPECT_EQ(text("lblAdaptMsg(0)"), "D1006");
  EXPECT_EQ(text("lblAdaptMsg(1)"), "D2241");
  EXPECT_EQ(text("lblAdaptMsg(3)"), "X-D1100");
  EXPECT_EQ(text("lblAdaptMsg(5)"), "D2218 18 s ?");
  EXPECT_EQ(text("lblAdaptMsg(6)"), "Y-D1100");
  EXPECT_EQ(text("lblAdaptMsg(9)"), "D2240");
  EXPECT_EQ(text("lblAdaptMsg(10)"), "D5001 - D5005");
  EXPECT_EQ(text("lblAdaptMsg(11)"), "D5000 - D5005");
  EXPECT_EQ(utf8Text(button(0)->text()), "D2217");
  EXPECT_EQ(utf8Text(button(1)->text()), "D3020");
}

TEST_F(FailureDialog, ValuesInMmAreGreenWhereTheAccuracyWasReached) {
  open(0.02, 0.005);
  EXPECT_EQ(text("lblSollX"), "0.0100");
  EXPECT_EQ(text("lblIstX"), "0.0200");
  EXPECT_EQ(text("lblSollY"), "0.0100");
  EXPECT_EQ(text("lblIstY"), "0.0050");
  EXPECT_EQ(text("lblEinheit"), "[mm]");
  for (const char* each : {"lblSollX", "lblIstX"}) EXPECT_EQ(colour(each), red) << each;
  for (const char* each : {"lblSollY", "lblIstY"}) EXPECT_EQ(colour(each), green) << each;
}

TEST_F(FailureDialog, ValuesInInchAreMil) {
  open(0.0254, 0.0508, 1);
  EXPECT_EQ(text("lblSollX"), "0.39");
  EXPECT_EQ(text("lblIstX"), "1.00");
  EXPECT_EQ(text("lblIstY"), "2.00");
  EXPECT_EQ(text("lblEinheit"), "[mil]");
  EXPECT_EQ(colour("lblIstY"), red);
}

TEST_F(FailureDialog, ValuesStandBesideTheirAxisAndBelowTheirHeading) {
  open(0.02, 0.005);
  const auto at = [&](const char* name) {
    QLabel* found = label(QString::fromUtf8(name));
    return QRect(found->mapTo(dialog.get(), QPoint(0, 0)), found->size());
  };
  EXPECT_LT(at("lblAdaptMsg(3)").right(), at("lblSollX").left());
  EXPECT_LT(at("lblSollX").right(), at("lblIstX").left());
  EXPECT_EQ(at("lblSollX").right(), at("lblAdaptMsg(11)").right());
  EXPECT_EQ(at("lblIstY").right(), at("lblAdaptMsg(10)").right());
  EXPECT_LT(at("lblIstX").bottom(), at("lblIstY").top());
}

TEST_F(FailureDialog, AProposalAboveTheLongestTimeDisablesItsButton) {
  open(0.1095, 0.005);  // 99.5 s, rounded to 100
  EXPECT_EQ(text("lblAdaptMsg(5)"), "D2219 > 100s !!!");
  EXPECT_FALSE(button(0)->isEnabled());
  EXPECT_TRUE(button(1)->isEnabled());
  QTest::mouseClick(button(0), Qt::LeftButton);
  EXPECT_TRUE(dialog->isVisible());
  open(0.1088, 0.005);  // 98.9 s
  EXPECT_EQ(text("lblAdaptMsg(5)"), "D2218 99 s ?");
  EXPECT_TRUE(button(0)->isEnabled());
}

TEST_F(FailureDialog, ButtonsKeysAndCornerEndItWithTheirNumber) {
  const auto endedBy = [this](auto act) {
    open(0.02, 0.02);
    EXPECT_TRUE(dialog->isVisible());
    act();
    EXPECT_FALSE(dialog->isVisible());
    return dialog->knopf();
  };
  EXPECT_EQ(endedBy([this] { QTest::mouseClick(button(0), Qt::LeftButton); }), 0);
  EXPECT_EQ(endedBy([this] { QTest::mouseClick(button(1), Qt::LeftButton); }), 1);
  EXPECT_EQ(endedBy([this] { QTest::keyClick(dialog.get(), Qt::Key_Escape); }), 1);
  EXPECT_EQ(endedBy([this] { QTest::keyClick(dialog.get(), Qt::Key_Return); }), 1);
  EXPECT_EQ(endedBy([this] { dialog->close(); }), 1);
  EXPECT_EQ(endedBy([this] { QTest::keyClick(button(0), Qt::Key_Space); }), 0);
}

// ---- The port ----

class FailureQuestion : public FailureDialog {
 protected:
  /// Shows the question and answers it by `act` as soon as it stands.
  void ask(const std::function<void(FormAdaptFehler&)>& act) {
    failed = std::make_unique<FailedPoint>(0.02, 0.005, profil);
    AdaptFehler question = failed->failure();
    QWidget parent;
    parent.setObjectName(QStringLiteral("window"));
    parent.show();
    QTimer::singleShot(0, &parent, [&] {
      auto* shown = parent.findChild<FormAdaptFehler*>();
      ASSERT_NE(shown, nullptr);
      asked = true;
      modal = shown->isModal();
      hourglass = hourglassShown();
      act(*shown);
    });
    QtAdaptFehlerFrage frage(QStringLiteral("FormAdaptFehlerG"), words, units, &parent);
    frage.zeigen(question);
  }

  const std::int16_t units = 0;
  bool asked = false;
  bool modal = false;
  bool hourglass = true;
};

TEST_F(FailureQuestion, TakingTheProposalWritesTheNewTime) {
  showHourglass();
  ask([](FormAdaptFehler& shown) {
    QTest::mouseClick(shown.findChild<QPushButton*>(QStringLiteral("CmdAdaptCont(0)")), Qt::LeftButton);
  });
  EXPECT_TRUE(asked);
  EXPECT_TRUE(modal);
  EXPECT_FALSE(hourglass) << "a box has the normal pointer";
  EXPECT_TRUE(hourglassShown());
  showNormalPointer();
  EXPECT_EQ(failed->goals.MessZeitMax, 18);
  EXPECT_EQ(profil.wert("MessInfo_G", "MessZeitMax", ""), "18");
  EXPECT_EQ(failed->point.zustand().AdaptN, 0);
  EXPECT_FALSE(failed->point.zustand().AdaptWeiter);
}

TEST_F(FailureQuestion, EscapeGivesThePointUpAndWritesNothing) {
  ask([](FormAdaptFehler& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
  EXPECT_TRUE(asked);
  EXPECT_EQ(failed->goals.MessZeitMax, 10);
  EXPECT_EQ(profil.wert("MessInfo_G", "MessZeitMax", "none"), "none");
  EXPECT_TRUE(failed->point.zustand().AdaptWeiter);
}

// ---- Languages ----

class FailureWords : public FailureDialog, public ::testing::WithParamInterface<int> {
 protected:
  FailureWords() {
    texts.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), GetParam());
    column = SpalteVonSprache(static_cast<std::int16_t>(GetParam()));
  }
  ~FailureWords() override { applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), 0); }
  Dictionary& dictionary() override { return texts; }
  void expectAllFits() {
    for (const QLabel* each : dialog->findChildren<QLabel*>()) {
      EXPECT_LE(each->sizeHint().width(), each->width()) << utf8Text(each->text());
      EXPECT_LE(each->sizeHint().height(), each->height()) << utf8Text(each->text());
      const QRect place(each->mapTo(dialog.get(), QPoint(0, 0)), each->size());
      EXPECT_TRUE(dialog->rect().contains(place)) << utf8Text(each->text());
    }
    for (int index : {0, 1}) EXPECT_LE(button(index)->sizeHint().width(), button(index)->width());
    EXPECT_LE(dialog->width(), 800);
    EXPECT_LE(dialog->height(), 600);
  }

  std::string column;
  test::TestProgramEnd programEnd;
  SqliteDictionary texts{column, programEnd};
};

TEST_P(FailureWords, NothingIsCutOff) {
  open(0.02, 0.005);
  expectAllFits();
  open(15, 12.5);  // no proposal, wide values
  expectAllFits();
  open(15, 12.5, 1);
  expectAllFits();
}

INSTANTIATE_TEST_SUITE_P(Languages, FailureWords, ::testing::Range(0, 8), [](const auto& language) {
  return std::string(SpalteVonSprache(static_cast<std::int16_t>(language.param)));
});

}  // namespace
}  // namespace korvin
