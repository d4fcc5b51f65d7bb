#include "position/ui/position_starter.h"

#include "position_stand.h"

namespace korvin {
namespace {

class Starter : public test::PositionStand {
 protected:
  PositionStarter starter() {
    ZyklusUmgebung zyklus{world.clock,  world.clock,   world.clock,  world.messages, dictionary(),
                          world.profil, world.meldung, world.korCom, world.answer,   world.system};
    return PositionStarter({zyklus, services(),
                            [this] {
                              auto control = std::make_unique<test::ScriptedHead>(world.clock);
                              controls.push_back(control.get());
                              return control;
                            }},
                           formpos, erfassung(), dateien);
  }
  /// Looks at the window once it is shown, and closes it.
  void whenShown(std::function<void(FormPosition&)> look) {
    QTimer::singleShot(0, [this, look = std::move(look)] {
      auto* window = qobject_cast<FormPosition*>(QApplication::activeModalWidget());
      ASSERT_NE(window, nullptr);
      look(*window);
      world.messages.answers.push_back(MessageAnswer::no);
      window->close();
      world.clock.advance(1);
    });
  }

  std::vector<test::ScriptedHead*> controls;
};

TEST_F(Starter, NewDataStartWithTheDefaultsWhateverWasThereBefore) {
  info().AnzahlMP = 7;
  info().DateiStatus = 2;
  bool seen = false;
  PositionStarter start = starter();
  whenShown([&](FormPosition& window) {
    seen = true;
    EXPECT_TRUE(window.isModal());
    EXPECT_EQ(info().AnzahlMP, 0);
    EXPECT_EQ(info().DateiStatus, 0);
    EXPECT_TRUE(controls.at(0)->PortOpen());
  });
  start.zeigen(0);
  EXPECT_TRUE(seen);
}

TEST_F(Starter, LoadedFileIsShownAsLoaded) {
  const std::string name = folder.copyOf("reference/point.O");
  PositionStarter start = starter();
  EXPECT_FALSE(start.laden(name)) << "its point file is missing";
  EXPECT_EQ(world.messages.shown.size(), 1U);
  folder.copyOf("reference/point.O1");
  ASSERT_TRUE(start.laden(name));
  formpos.bild().Info.DateiStatus = 2;
  whenShown([this](FormPosition& window) {
    EXPECT_EQ(info().AnzahlMP, 40);
    EXPECT_EQ(info().DateiStatus, 1) << "loaded, whatever its file says";
    EXPECT_EQ(window.findChild<PointList*>()->model()->rowCount(), 40);
  });
  start.zeigen(1);
}

TEST_F(Starter, EachWindowHasAControlOfItsOwn) {
  PositionStarter start = starter();
  for (int i = 0; i < 2; ++i) {
    whenShown([](FormPosition&) {});
    start.zeigen(0);
  }
  EXPECT_EQ(controls.size(), 2U);
}

}  // namespace
}  // namespace korvin
