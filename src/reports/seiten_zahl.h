#pragma once

#include "reports/bericht.h"

namespace korvin {

/// How many pages the report has. Composes it without a medium, which takes a fraction of the time of a real
/// one. Throws as `Bericht::drucken`.
int SeitenZahl(const Bericht& bericht);

}  // namespace korvin
