#include "position/xy_diagram.h"

#include <gtest/gtest.h>

#include "position/formpos.h"
#include "support/recording_surface.h"

namespace korvin {
namespace {

using test::RecordingSurface;

TEST(XYDiagramm, EmptyMeasurementDrawsItsFrameOnly) {
  FORMPOS formpos;
  formpos.Info().Gitter = true;
  XYDiagramm diagramm(formpos.arbeit(), formpos.punkte(), 0);
  EXPECT_TRUE(diagramm.bereicheErmitteln());
  EXPECT_FALSE(diagramm.bereicheErmitteln());
  RecordingSurface surface;
  diagramm.zeichnen(surface);
  EXPECT_EQ(surface.lines().at(0), "clear FFFFFF");
  EXPECT_EQ(surface.lines().at(1), "window (-0.00124, 0.00106) (0.0011, -0.00114)");
  EXPECT_TRUE(surface.all(RecordingSurface::Kind::circle).empty());
}

}  // namespace
}  // namespace korvin
