#pragma once

#include <string>

#include "frame/messplatz.h"
#include "frame/profil.h"

namespace korvin {

/// The folder of the measuring files as the settings tell it now, with a separator at its end. UTF-8.
std::string MessOrdner(Profil& profil, const Systemwerte& system);

}  // namespace korvin
