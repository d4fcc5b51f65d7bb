// The key of the settings in the straightness window: when the dialog opens, and what the window does around
// it.

#include <QAction>

#include "gerad_stand.h"

namespace korvin {
namespace {

class GeradSettingsKey : public test::GeradStand {
 protected:
  /// What the next dialogs do.
  void inDialog(std::function<void()> action) {
    settings = [this, action = std::move(action)](QWidget& window, const auto&) {
      ++opened;
      EXPECT_EQ(&window, form.get());
      if (action) action();
    };
  }
  std::size_t telegrams() const { return world.head.commands.size(); }
  int opened = 0;
};

TEST_F(GeradSettingsKey, KeyAndMenuEntryOpenTheDialog) {
  inDialog({});
  show();
  EXPECT_TRUE(enabled("EINRICHTEN"));
  EXPECT_FALSE(key("EINRICHTEN")->toolTip().contains(QStringLiteral("D7030")));
  click("EINRICHTEN");
  EXPECT_EQ(opened, 1);
  entry("M_EinrichtInfo")->trigger();
  EXPECT_EQ(opened, 2);
}

TEST_F(GeradSettingsKey, ARunLocksIt) {
  inDialog({});
  show();
  click("XYMPN");
  run(1);
  EXPECT_FALSE(enabled("EINRICHTEN"));
  EXPECT_FALSE(entry("M_EinrichtInfo")->isEnabled());
  click("XYMPN");
  run(1);
  EXPECT_TRUE(enabled("EINRICHTEN"));
  EXPECT_TRUE(entry("M_EinrichtInfo")->isEnabled());
}

TEST_F(GeradSettingsKey, ThePollingStandsStillWhileItIsOpen) {
  show();
  run(2);
  std::size_t before = 0;
  inDialog([&] {
    before = telegrams();
    world.head.key = 'J';
    run(5);
    EXPECT_EQ(telegrams(), before);
    world.head.key = 'K';
  });
  click("EINRICHTEN");
  ASSERT_EQ(opened, 1);
  EXPECT_FALSE(pressed("XYMPN"));
  run(2);
  EXPECT_GT(telegrams(), before) << "and goes on afterwards";
}

TEST_F(GeradSettingsKey, AClickDuringATelegramWaitsForItsEnd) {
  inDialog({});
  show();
  world.head.delay = 0.2;
  world.clock.after(0.85, [this] {
    click("EINRICHTEN");
    EXPECT_EQ(opened, 0);
  });
  run(2);
  EXPECT_EQ(opened, 1);
}

TEST_F(GeradSettingsKey, AnAdaptivePointThatTheHeadBeganMeanwhileKeepsItClosed) {
  inDialog({});
  show();
  series().Adapt.AutoAdapt = true;
  world.head.delay = 0.2;
  world.head.key = 'M';
  world.clock.after(0.85, [this] {
    world.head.key = 'K';
    click("EINRICHTEN");
  });
  run(2);
  EXPECT_FALSE(enabled("EINRICHTEN")) << "a point is under way";
  EXPECT_EQ(opened, 0);
}

TEST_F(GeradSettingsKey, TheSettingsAreReadIntoTheWindowAfterIt) {
  show();
  takePoints({0.1, 0.2});
  EXPECT_FALSE(keyShown("AUTO_MESSRICHTUNG"));
  inDialog([this] {
    Profil& p = world.profil;
    p.ProfilSchreiben("", "KorInfo", "PortNr", "9");
    p.ProfilSchreiben("", "KorInfo", "BaudRate", "0");
    p.ProfilSchreiben("", "MessInfo_G", "BiDi_Messen", "-1");
    p.ProfilSchreiben("", "MessInfo_G", "Montage", "2");
    info().NKStellen = 1;
    info().Montage = 2;
    series().Adapt.AutoAdapt = true;
    world.system.FilterVorgabe = '4';
  });
  const QImage mounting = label("ImgMontage")->pixmap().toImage();
  click("EINRICHTEN");
  EXPECT_EQ(info().PortNr, 9);
  EXPECT_EQ(info().BaudRate.trimmed(), "19200,N,8,1");
  EXPECT_EQ(info().KameraText.trimmed(), "D3003: D3031");
  EXPECT_TRUE(keyShown("AUTO_MESSRICHTUNG"));
  EXPECT_NE(label("ImgMontage")->pixmap().toImage(), mounting);
  EXPECT_EQ(text("lblKamera"), "D3003: D3204");
  EXPECT_EQ(world.system.FilterVorgabe, '4') << "what the dialog chose, not the filter of the series";
  EXPECT_TRUE(pictured("XYMP1", "ICON85"));
  EXPECT_EQ(series().X.Wert.at(2), 0.2) << "readings stay";
}

TEST_F(GeradSettingsKey, ANewSeriesGoesByItsOwnFilterAgain) {
  show();
  world.system.FilterVorgabe = '4';
  click("NEU");
  EXPECT_EQ(world.system.FilterVorgabe, '2');
}

TEST_F(GeradSettingsKey, AnotherNumberOfPointsIsShown) {
  show();
  takePoints({0.1});
  inDialog([this] {
    line().AnzMPs = 9;
    line().Distanz = 800;
    ReiheLeeren(series());
  });
  click("EINRICHTEN");
  EXPECT_EQ(list().model()->rowCount(), 9);
  EXPECT_EQ(text("PanelMessPkt"), "1 / 9");
  EXPECT_EQ(text("lblDistanzMax"), "800.0 mm");
}

}  // namespace
}  // namespace korvin
