// An environment analysis over a real line, with a virtual head whose noise is known.
#include <gtest/gtest.h>

#include <cmath>

#include "environment/ui/form_umgebungs_analyse.h"
#include "straightness/numeric/student_t.h"
#include "system/window_place.h"

namespace korvin {
namespace {

/// The day passes so many times as fast, the head's answers with it: the run keeps its 31 seconds of the day.
constexpr double hurry = 5;

class AnalysisPlace : public test::WindowPlace {
 public:
  using WindowPlace::WindowPlace;

  QMainWindow& window() override { return *form; }
  void show() {
    form = std::make_unique<FormUmgebungsAnalyse>(
        UmgebungsUmgebung{surroundings(), link.port, formpos, task, {fileDialog, fileSystem, {}}});
    form->resize(1024, 768);
    form->zeigen();
  }
  double panel(const char* name) { return label(name)->text().toDouble(); }

  FORMPOS formpos;
  AdaptSet result{profil};
  UmgebungsErfassung task{{clock, link.messages, dictionary, profil, message, system, formpos}, result};
  std::unique_ptr<FormUmgebungsAnalyse> form;
};

class AnalysisOverALine : public ::testing::Test {
 protected:
  /// Ends a run; false if it took too long.
  bool analyse() {
    place.show();
    place.click("XYMPNN");
    return place.until([this] { return place.pressed("XYMPNN"); }) &&
           place.until([this] { return !place.pressed("XYMPNN"); }, 60);
  }

  test::HurriedClock clock{hurry};
  AnalysisPlace place{clock};
};

TEST_F(AnalysisOverALine, ReachesWhatTheHeadsNoiseGives) {
  constexpr double noiseUm = 20;  // after 1 s of averaging
  constexpr double averaging = 0.2;
  const double sigma = noiseUm / std::sqrt(averaging) / 1000;
  auto head = place.link.startHead(1, {"--noise", "20", "--time-scale", "0.2", "--x", "0.4", "--seed", "7"});
  ASSERT_TRUE(analyse());
  ASSERT_TRUE(place.task.fertig()) << place.info();
  const int n = place.task.AnalyseAnzahl();
  EXPECT_GT(n, 40);
  EXPECT_EQ(n, place.formpos.Info().AnzahlMP);
  EXPECT_GE(place.task.AnalyseSekunden(), 31);
  EXPECT_LE(place.task.AnalyseSekunden(), 33);

  // The two ends of the curve from the true spread; the table stands one step above its end at position N.
  const double largest = StudentT(5, 5) * sigma / std::sqrt(6.0);
  const double last = StudentT(n - 1, 5) * sigma / std::sqrt(n);
  const double expected = last + (largest - last) / n;
  // s of n readings scatters by 1 / sqrt(2 (n - 1)) of itself (JCGM 100:2008, E.4.3): four of it, and the
  // last decimal.
  const double tolerance = 4 * expected / std::sqrt(2.0 * (n - 1)) + 0.00005;
  for (const char* panel : {"PanelFx(1)", "PanelFx(2)"})
    EXPECT_NEAR(place.panel(panel), expected, tolerance) << panel << ", n = " << n;
  EXPECT_NEAR(std::stod(place.text("PanelXStatistik(5)").substr(8)), largest, tolerance / expected * largest);
}

TEST_F(AnalysisOverALine, AQuietHeadReachesTheLowestUncertainty) {
  auto head = place.link.startHead(1, {"--noise", "0", "--time-scale", "0.2"});
  ASSERT_TRUE(analyse());
  EXPECT_EQ(place.text("PanelFx(1)"), "0.0002");
  EXPECT_EQ(place.text("PanelXStatistik(5)"), "MAX_Fx: 0.0000");
}

TEST_F(AnalysisOverALine, ALostHeadEmptiesTheWindow) {
  auto head = place.link.startHead(1, {"--time-scale", "0.2"});
  place.show();
  place.click("XYMPNN");
  ASSERT_TRUE(place.until([this] { return place.formpos.Info().AnzahlMP > 10; }));
  head.end();
  ASSERT_TRUE(place.until([this] { return place.info() == IconFunk; }));
  EXPECT_EQ(place.formpos.Info().AnzahlMP, 0);
  EXPECT_FALSE(place.pressed("XYMPNN"));
}

}  // namespace
}  // namespace korvin
