#pragma once

#include "korvin-file/measuring_kind.h"

namespace korvin::file {

/// Position measurements, *.O with their points in *.O1. Their numbers stand in the unit in which they were
/// measured, which the file does not tell: no option converts them.
const MeasuringKind& positionKind();

}  // namespace korvin::file
