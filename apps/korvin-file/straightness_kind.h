#pragma once

#include "korvin-file/measuring_kind.h"

namespace korvin::file {

/// Straightness measurements, *.G, of all forms.
const MeasuringKind& straightnessKind();

}  // namespace korvin::file
