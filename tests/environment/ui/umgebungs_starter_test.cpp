#include "environment/ui/umgebungs_starter.h"

#include <QTimer>
#include <utility>
#include <vector>

#include "analysis_window.h"

namespace korvin {
namespace {

class AnalysisStarter : public test::AnalysisWindow {
 protected:
  UmgebungsStarter starter() {
    return {{surroundings(), services(),
             [this] {
               auto control = std::make_unique<test::ScriptedHead>(world.clock);
               controls.push_back(control.get());
               return control;
             }},
            formpos,
            task()};
  }
  void whenShown(std::function<void(FormUmgebungsAnalyse&)> look) {
    QTimer::singleShot(0, [this, look = std::move(look)] {
      auto* shown = qobject_cast<FormUmgebungsAnalyse*>(QApplication::activeModalWidget());
      ASSERT_NE(shown, nullptr);
      look(*shown);
      shown->close();
      world.clock.advance(1);
    });
  }

  std::vector<test::ScriptedHead*> controls;
};

TEST_F(AnalysisStarter, ShowsAnEmptyWindowOnAControlOfItsOwnAndReturnsAtItsEnd) {
  info().AnzahlMP = 7;
  info().DateiStatus = 1;
  int seen = 0;
  UmgebungsStarter start = starter();
  for (int i = 0; i < 2; ++i) {
    whenShown([&](FormUmgebungsAnalyse& shown) {
      ++seen;
      EXPECT_TRUE(shown.isModal());
      EXPECT_EQ(info().AnzahlMP, 0);
      EXPECT_EQ(info().DateiStatus, 0);
      EXPECT_TRUE(controls.back()->PortOpen());
    });
    start.zeigen(nullptr);
  }
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(controls.size(), 2U);
}

}  // namespace
}  // namespace korvin
