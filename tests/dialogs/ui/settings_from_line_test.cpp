// The settings dialog over the real straightness window: what is entered is what the series goes by.

#include <QComboBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

#include "dialogs/ui/form_options_g.h"
#include "straightness/ui/gerad_stand.h"

namespace korvin {
namespace {

class SettingsFromLine : public test::GeradStand {
 protected:
  SettingsFromLine() {
    settings = [this](QWidget& window, const auto& outsideOfTicks) {
      OffeneReihe open{formgera, erfassung()};
      FormOptionsG(
          {{dictionary(), world.messages, world.meldung, world.profil, world.system}, {}, outsideOfTicks},
          &open, &window)
          .ausfuehren();
    };
  }

  /// Opens the dialog by its key; `use` is what the user does in it.
  void inSettings(const std::function<void()>& use) {
    bool used = false;
    QTimer::singleShot(0, [&] {
      dialog = qobject_cast<FormOptionsG*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      QApplication::setActiveWindow(dialog);
      settle();
      use();
      used = true;
      if (dialog->isVisible()) dialog->reject();
    });
    click("EINRICHTEN");
    ASSERT_TRUE(used);
    QApplication::setActiveWindow(form.get());
  }
  void enter(int index, const char* what) {
    auto* box = dialog->findChild<QLineEdit*>(QStringLiteral("TextEinstellung(%1)").arg(index));
    box->clear();
    QTest::keyClicks(box, QString::fromUtf8(what));
    settle();
  }
  void choose(const char* list, int index) {
    dialog->findChild<QComboBox*>(QString::fromUtf8(list))->setCurrentIndex(index);
  }
  void mark(const char* check) { dialog->findChild<QAbstractButton*>(QString::fromUtf8(check))->click(); }
  void command(int index) {
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("Commands(%1)").arg(index)),
                      Qt::LeftButton);
    settle();
  }

  FormOptionsG* dialog = nullptr;
};

TEST_F(SettingsFromLine, AnotherLineIsMeasuredAndShown) {
  show();
  inSettings([this] {
    enter(8, "3");
    enter(9, "600");
    enter(13, "0.02");
    choose("cmbAnzStellen", 1);
    mark("CheckBidirMP");
    command(2);
  });
  EXPECT_EQ(list().model()->rowCount(), 3);
  EXPECT_EQ(text("lblDistanzMax"), "600.0 mm");
  EXPECT_TRUE(keyShown("AUTO_MESSRICHTUNG"));
  takePoints({0.1, 0.2, 0.3});
  EXPECT_EQ(cell(1, 1), "300.0");
  EXPECT_EQ(series().X.Wert.at(3), 0.3);
  EXPECT_EQ(series().Y.Gesamt, 0.02);
  EXPECT_EQ(info().NKStellen, 1);
}

TEST_F(SettingsFromLine, ApplyAndThenCancelShowsWhatWasTaken) {
  show();
  inSettings([this] {
    enter(8, "9");
    command(0);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(line().AnzMPs, 9);
    enter(8, "12");
    command(1);
  });
  EXPECT_EQ(list().model()->rowCount(), 9);
}

TEST_F(SettingsFromLine, NoKeepsTheReadingsAndTheNextOneGoesByTheChosenFilter) {
  show();
  takePoints({0.1, 0.2});
  world.messages.answers = {MessageAnswer::no};
  inSettings([this] {
    enter(9, "600");
    choose("cmbFilter", 4);
    choose("cmbKameraBefestigung", 1);
    command(2);
  });
  EXPECT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(series().X.Wert.at(2), 0.2);
  EXPECT_EQ(line().Distanz, 2500);
  EXPECT_EQ(info().Filter.full(), "2");
  EXPECT_EQ(info().Montage, 0);
  takePoints({0.3});
  EXPECT_EQ(world.head.filters.back(), '4');
  EXPECT_EQ(info().Filter.full(), "4");
  EXPECT_EQ(series().X.Wert.at(3), 0.3) << "turned by the mounting of the series";
}

TEST_F(SettingsFromLine, YesClearsTheSeriesAndTurnsReadingsByTheNewMounting) {
  show();
  takePoints({0.1, 0.2});
  world.messages.answers = {MessageAnswer::yes};
  inSettings([this] {
    choose("cmbKameraBefestigung", 2);
    command(2);
  });
  EXPECT_EQ(series().X.Wert.at(2), Leerwert);
  EXPECT_EQ(text("PanelMessPkt"), "1 / 6");
  EXPECT_EQ(info().KameraText.trimmed(), "D3003: D3031");
  takePoints({0.3});
  EXPECT_EQ(series().X.Wert.at(1), -0.3);
}

TEST_F(SettingsFromLine, EvenDistancesShowInTheWindowAfterCancel) {
  show();
  line().Z.at(2) = 700;
  inSettings([this] {
    mark("CheckzAquidistant");
    command(1);
  });
  EXPECT_EQ(cell(1, 1), "500.0");
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(SettingsFromLine, AdaptiveMeasuringShowsOnItsKey) {
  show();
  EXPECT_TRUE(pictured("XYMP1", "ICON81"));
  inSettings([this] {
    mark("CheckAdaptOn");
    command(2);
  });
  EXPECT_TRUE(pictured("XYMP1", "ICON85"));
}

TEST_F(SettingsFromLine, CancelLeavesTheSeriesAsItIs) {
  show();
  takePoints({0.1});
  const auto before = toBytes(series());
  inSettings([this] {
    enter(8, "9");
    enter(10, "1");
    choose("cmbFilter", 4);
    command(1);
  });
  const double drawn = series().X.BereichAlt;
  series().X.BereichAlt = drawn;
  EXPECT_EQ(toBytes(series()), before);
}

TEST_F(SettingsFromLine, InInchTheLineIsEnteredInInches) {
  world.system.Masssystem = 1;
  show();
  inSettings([this] {
    enter(9, "10");
    command(2);
  });
  EXPECT_EQ(line().Distanz, 254);
  EXPECT_EQ(text("lblDistanzMax"), "10.0 in");
}

}  // namespace
}  // namespace korvin
