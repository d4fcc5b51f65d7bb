#pragma once

#include <cstddef>
#include <cstdint>

namespace korvin {

/// Most points of a straightness measurement, and of one line of a parallelism measurement.
inline constexpr std::size_t MaxPunkteG = 201;
/// The same in the two older forms of the file.
inline constexpr std::size_t MaxPunkteAlt = 101;

/// `AbschnittStart` where no section was found.
inline constexpr std::int16_t KeinAbschnitt = 999;

}  // namespace korvin
