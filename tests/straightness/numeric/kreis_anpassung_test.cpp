#include "straightness/numeric/kreis_anpassung.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <stdexcept>
#include <vector>

namespace korvin {
namespace {

// The last step is at most 0.0001 mm; the steps shrink at least tenfold on the arcs tried here.
constexpr double CentreMm = 1e-5;

struct Points {
  std::vector<double> x;
  std::vector<double> y;
  void add(double px, double py) {
    x.push_back(px);
    y.push_back(py);
  }
  KreisMitte fit() const { return KreisAnpassung(x.size(), x, y); }
};

struct Circle {
  double Xc;
  double Yc;
  double r;
};

// `n` points evenly over `degrees` from `from` on; 360 closes the circle.
Points arc(const Circle& circle, int n, double degrees, double from = 17) {
  Points points;
  const double step = degrees / (degrees < 360 ? n - 1 : n);
  for (int i = 0; i < n; ++i) {
    const double angle = (from + i * step) * M_PI / 180;
    points.add(circle.Xc + circle.r * std::cos(angle), circle.Yc + circle.r * std::sin(angle));
  }
  return points;
}

void addNoise(Points& points, double amplitude) {
  std::minstd_rand random(4711);
  const auto noise = [&] {
    return amplitude * (2.0 * static_cast<double>(random()) / std::minstd_rand::max() - 1);
  };
  for (double& x : points.x) x += noise();
  for (double& y : points.y) y += noise();
}

void expectCentre(const KreisMitte& found, const Circle& circle, double tolerance) {
  EXPECT_EQ(found.status, 0);
  EXPECT_NEAR(found.Xc, circle.Xc, tolerance);
  EXPECT_NEAR(found.Yc, circle.Yc, tolerance);
}

TEST(KreisAnpassung, FourPointsOnACircleGiveItsCentre) {
  const KreisMitte found =
      KreisAnpassung(4, std::vector<double>{3, 2, 1, 2}, std::vector<double>{5, 6, 5, 4});
  EXPECT_EQ(found.status, 0);
  EXPECT_EQ(found.Xc, 2);
  EXPECT_EQ(found.Yc, 5);
}

TEST(KreisAnpassung, ThreePointsAreOnTheirCircle) {
  // A right triangle with the sides 6, 8, 10: the centre is the middle of its longest side.
  const KreisMitte found = KreisAnpassung(3, std::vector<double>{0, 6, 0}, std::vector<double>{0, 0, 8});
  expectCentre(found, {3, 4, 5}, CentreMm);
}

TEST(KreisAnpassung, IdealCirclesOfTheHeadsRange) {
  for (const double r : {0.005, 0.05, 1.0, 7.1})
    for (const int n : {3, 4, 5, 36, 359, 360}) {
      SCOPED_TRACE(testing::Message() << n << " points, r " << r);
      const Circle circle{-1.3, 0.7, r};
      expectCentre(arc(circle, n, 360).fit(), circle, CentreMm);
    }
}

TEST(KreisAnpassung, PartialArcs) {
  for (const double degrees : {300, 240, 180, 120, 90, 45, 20, 5})
    for (const int n : {3, 4, 8, 36, 360})
      for (const double r : {0.05, 1.0, 5.0}) {
        SCOPED_TRACE(testing::Message() << n << " points over " << degrees << " degrees, r " << r);
        const Circle circle{0.7, -0.4, r};
        const Points points = arc(circle, n, degrees);
        expectCentre(points.fit(), circle, CentreMm);
      }
}

TEST(KreisAnpassung, UnevenPointsNeedSteps) {
  const Circle circle{2, -3, 1.5};
  Points points = arc(circle, 12, 100);
  const Points more = arc(circle, 3, 60, 200);
  for (std::size_t i = 0; i < more.x.size(); ++i) points.add(more.x[i], more.y[i]);
  expectCentre(points.fit(), circle, CentreMm);
}

TEST(KreisAnpassung, RippleThatIsEvenAllAroundDoesNotMoveTheCentre) {
  const Circle circle{0.25, 0.5, 2};
  Points points;
  for (int i = 0; i < 36; ++i) {
    const double angle = i * M_PI / 18;
    const double r = circle.r + 0.3 * std::cos(5 * angle);
    points.add(circle.Xc + r * std::cos(angle), circle.Yc + r * std::sin(angle));
  }
  expectCentre(points.fit(), circle, 1e-12);
}

TEST(KreisAnpassung, NoisyCircleAndArc) {
  const Circle circle{1, -2, 3};
  const double amplitude = 0.01;
  Points full = arc(circle, 360, 360);
  addNoise(full, amplitude);
  // The standard deviation of a centre coordinate: √(2 / n)·σ with σ = amplitude / √3; five of them.
  expectCentre(full.fit(), circle, 5 * std::sqrt(2.0 / 360) * amplitude / std::sqrt(3.0));
  Points half = arc(circle, 360, 180);
  addNoise(half, amplitude);
  // Half a circle tells the coordinate across its chord about 3.3 times worse.
  expectCentre(half.fit(), circle, 5 * 3.3 * std::sqrt(2.0 / 360) * amplitude / std::sqrt(3.0));
}

TEST(KreisAnpassung, StepsAreCountedInTheUnitOfThePoints) {
  // On a circle of 0.0001 even the first step is short enough: the fit ends there, closer to the mean point.
  const Circle circle{0, 0, 0.0001};
  const Points points = arc(circle, 9, 150);
  const KreisMitte found = points.fit();
  EXPECT_EQ(found.status, 0);
  EXPECT_GT(std::hypot(found.Xc, found.Yc), 1e-7);
  EXPECT_LT(std::hypot(found.Xc, found.Yc), 1e-4);
}

TEST(KreisAnpassung, WithoutConvergenceTheMeanPointIsTheResult) {
  const KreisMitte found =
      KreisAnpassung(4, std::vector<double>{2, -1, -1, -4}, std::vector<double>{4, 2, -1, -4});
  EXPECT_EQ(found.status, 2);
  EXPECT_EQ(found.Xc, -1);
  EXPECT_EQ(found.Yc, 0.25);
}

TEST(KreisAnpassung, StepsBeyondTheDoublesAreNoConvergence) {
  const KreisMitte found =
      KreisAnpassung(3, std::vector<double>{0, 6e76, 0}, std::vector<double>{0, 0, 8e76});
  EXPECT_EQ(found.status, 2);
  EXPECT_DOUBLE_EQ(found.Xc, 2e76);
}

TEST(KreisAnpassung, CollinearPointsThrow) {
  EXPECT_THROW(KreisAnpassung(3, std::vector<double>{1, 2, 3}, std::vector<double>{2, 4, 6}),
               std::domain_error);
  EXPECT_THROW(KreisAnpassung(3, std::vector<double>{1, 2, 3}, std::vector<double>{4, 4, 4}),
               std::domain_error);
  EXPECT_THROW(KreisAnpassung(3, std::vector<double>{4, 4, 4}, std::vector<double>{1, 2, 5}),
               std::domain_error);
  // Numbers that are rounded, in every direction.
  for (int degrees = 0; degrees < 180; degrees += 7)
    for (const int n : {3, 4, 7, 360}) {
      Points points;
      const double angle = degrees * M_PI / 180;
      for (int i = 0; i < n; ++i)
        points.add(5.1 + 0.01 * i * std::cos(angle), -3.3 + 0.01 * i * std::sin(angle));
      EXPECT_THROW(points.fit(), std::domain_error) << n << " points in the direction " << degrees;
    }
}

TEST(KreisAnpassung, AnArcAsFlatAsTheHeadCanTellIsNoLine) {
  // A micrometre of rise over a chord of 10 mm.
  const KreisMitte found = KreisAnpassung(3, std::vector<double>{0, 5, 10}, std::vector<double>{0, 0.001, 0});
  EXPECT_EQ(found.status, 0);
  EXPECT_NEAR(found.Xc, 5, CentreMm);
  EXPECT_NEAR(found.Yc, 0.001 - (25 + 1e-6) / 0.002, 1e-3);
}

TEST(KreisAnpassung, FewerThanThreeDifferentPointsThrow) {
  const std::vector<double> two{1.1, 2.3, 1.1, 2.3};
  EXPECT_THROW(KreisAnpassung(0, {}, {}), std::domain_error);
  EXPECT_THROW(KreisAnpassung(0, two, two), std::domain_error);
  EXPECT_THROW(KreisAnpassung(1, two, two), std::domain_error);
  EXPECT_THROW(KreisAnpassung(2, two, std::vector<double>{4, 7}), std::domain_error);
  EXPECT_THROW(KreisAnpassung(4, two, std::vector<double>{0.3, 0.9, 0.3, 0.9}), std::domain_error);
  const std::vector<double> same(360, 0.1);
  EXPECT_THROW(KreisAnpassung(360, same, same), std::domain_error);
}

TEST(KreisAnpassung, CoordinatesThatAreNoNumbersThrow) {
  const std::vector<double> good{0, 1, 0, -1};
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e200}) {
    const std::vector<double> x{bad, 0, -1, 0};
    EXPECT_THROW(KreisAnpassung(4, x, good), std::domain_error) << bad;
    EXPECT_THROW(KreisAnpassung(4, good, x), std::domain_error) << bad;
  }
}

TEST(KreisAnpassung, MoreThan360PointsThrow) {
  const Circle circle{1, 2, 3};
  const Points most = arc(circle, 360, 360);
  expectCentre(most.fit(), circle, CentreMm);
  const Points more = arc(circle, 361, 360);
  EXPECT_THROW(more.fit(), std::out_of_range);
  expectCentre(KreisAnpassung(360, more.x, more.y), circle, CentreMm);
}

TEST(KreisAnpassung, MorePointsThanAnArrayHoldsThrow) {
  const std::vector<double> three{0, 1, 0};
  const std::vector<double> four{0, 0, 1, 5};
  EXPECT_THROW(KreisAnpassung(4, three, four), std::out_of_range);
  EXPECT_THROW(KreisAnpassung(4, four, three), std::out_of_range);
  EXPECT_NO_THROW(KreisAnpassung(3, three, four));
}

}  // namespace
}  // namespace korvin
