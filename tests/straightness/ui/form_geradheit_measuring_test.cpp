// Measuring in the real window: clicks, shortcuts and the head's keys, and what the panels show of it.

#include "gerad_stand.h"

namespace korvin {
namespace {

using Stand = test::GeradStand;

TEST_F(Stand, ShowingGoesOnlineAndPolls) {
  show();
  EXPECT_TRUE(world.head.PortOpen());
  EXPECT_TRUE(entry("M_KVNOnline")->isChecked());
  run(3);
  EXPECT_GE(world.head.commands.size(), 2U);
  EXPECT_EQ(world.head.commands.find_first_not_of('T'), std::string::npos);
  EXPECT_EQ(text("PanelxWertNormal"), "?.?");
  EXPECT_EQ(text("PanelMessPkt"), "1 / 6");
  EXPECT_EQ(text("LabelX"), "X1");
  EXPECT_EQ(z().text().toStdString(), "0.0");
  EXPECT_EQ(text("lblDistanzMax"), "/ 2500.0 mm");
  EXPECT_EQ(utf8Text(form->windowTitle()), "D5500");
}

TEST_F(Stand, SingleMeasurementsByTheToolbarWalkAlongTheLine) {
  show();
  click("ROH");
  beam(0.1234, 0.25);
  click("XYMP1");
  bool looked = false;
  world.clock.after(1.5, [&] {
    looked = true;
    EXPECT_EQ(text("PanelxWertNormal"), " 0.1234") << "shown for a second before the window steps on";
    EXPECT_EQ(text("PanelyWertNormal"), " 0.2500") << "the sign of Y is the head's";
    EXPECT_EQ(text("PanelMessPkt"), "1 / 6");
  });
  measured();
  EXPECT_TRUE(looked);
  EXPECT_EQ(text("PanelMessPkt"), "2 / 6");
  EXPECT_EQ(text("PanelxWertNormal"), "?.?");
  EXPECT_EQ(series().X.Wert.at(1), 0.1234);
  EXPECT_EQ(cell(0, LineTableModel::X), "0.1234");
  EXPECT_TRUE(info().Geaendert);
}

}  // namespace
}  // namespace korvin
