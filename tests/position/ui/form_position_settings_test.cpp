// The key of the settings in the measuring window: when the dialog opens, and what the window does around it.

#include <QAction>

#include "position_stand.h"

namespace korvin {
namespace {

class SettingsKey : public test::PositionStand {
 protected:
  /// What the next dialogs do.
  void inDialog(std::function<void()> action) {
    settings = [this, action = std::move(action)](QWidget& window, const auto&) {
      ++opened;
      EXPECT_EQ(&window, form.get());
      if (action) action();
    };
  }
  int opened = 0;
};

TEST_F(SettingsKey, KeyAndMenuEntryOpenTheDialog) {
  inDialog({});
  show();
  EXPECT_FALSE(key("EINRICHTEN")->toolTip().contains(QStringLiteral("D7030")));
  click("EINRICHTEN");
  EXPECT_EQ(opened, 1);
  entry("M_EinrichtInfo")->trigger();
  EXPECT_EQ(opened, 2);
}

TEST_F(SettingsKey, ARunLocksIt) {
  inDialog({});
  show();
  click("XYMPN");
  run(0.3);
  EXPECT_FALSE(key("EINRICHTEN")->isEnabled());
  EXPECT_FALSE(entry("M_EinrichtInfo")->isEnabled());
  click("EINRICHTEN");
  EXPECT_EQ(opened, 0);
  click("XYMPN");
  run(0.3);
  EXPECT_TRUE(key("EINRICHTEN")->isEnabled());
  EXPECT_TRUE(entry("M_EinrichtInfo")->isEnabled());
  click("EINRICHTEN");
  EXPECT_EQ(opened, 1);
}

TEST_F(SettingsKey, AClickDuringATelegramWaitsForItsEnd) {
  inDialog({});
  show();
  world.head.delay = 0.2;
  world.clock.after(0.1, [this] {
    click("EINRICHTEN");
    EXPECT_EQ(opened, 0);
  });
  run(0.5);
  EXPECT_EQ(opened, 1);
}

TEST_F(SettingsKey, ARunThatTheHeadBeganMeanwhileKeepsItClosed) {
  inDialog({});
  show();
  world.head.delay = 0.2;
  headKey('J');
  world.clock.after(0.1, [this] { click("EINRICHTEN"); });
  run(1);
  EXPECT_TRUE(pressed("XYMPN"));
  EXPECT_EQ(opened, 0);
}

TEST_F(SettingsKey, TheHeadsKeysBeginNothingWhileItIsOpen) {
  show();
  inDialog([this] {
    headKey('J');
    run(1);
    headKey('M');
    run(1);
    headKey('K');
    run(1);
  });
  click("EINRICHTEN");
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(info().AnzahlMP, 0);
  EXPECT_FALSE(pressed("XYMPN"));
  headKey('M');
  run(0.2);
  EXPECT_GE(info().AnzahlMP, 1) << "the keys are back";
}

TEST_F(SettingsKey, AllIsShownAnewAfterIt) {
  show();
  takePoints(2);
  click("OFFSET");
  ASSERT_TRUE(pressed("OFFSET"));
  inDialog([this] {
    erfassung().M_MessLöschen();
    info().NKStellen = 1;
    info().Montage = 2;
    info().RestMP = 7;
    info().Intervall = 1.5;
    info().StopAktiv = true;
    info().StopZeit = 45000.75;
    world.system.FilterVorgabe = '4';
  });
  const QImage before = label("ImgMontage")->pixmap().toImage();
  click("EINRICHTEN");
  EXPECT_FALSE(pressed("OFFSET"));
  EXPECT_EQ(text("lblMPsTotal"), "- ");
  EXPECT_EQ(text("PanelxWertNormal"), "-.--");
  EXPECT_NE(label("ImgMontage")->pixmap().toImage(), before);
  EXPECT_EQ(text("lblKamera"), "D3003: D3204");
  EXPECT_EQ(text("PanelMpsStart"), "7");
  EXPECT_EQ(text("PanelMessRate"), "1.5");
  EXPECT_FALSE(shown("PanelZeit(0)"));
  EXPECT_EQ(text("PanelZeit(1)"), "  18:00:00");
  EXPECT_TRUE(shown("PanelZeit(2)"));
}

}  // namespace
}  // namespace korvin
