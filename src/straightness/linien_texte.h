#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "straightness/record.h"

namespace korvin {

/// What a window tells of the current point of a line beside its values. Texts are UTF-8.
struct LinienTexte {
  std::string MessPkt;        ///< `PanelMessPkt`: number of the point and of all points, "3 / 6"
  std::string XName;          ///< label of the X value: "X3"
  std::string YName;          ///< label of the Y value: "Y3"
  std::string txtDistanz;     ///< z of the point: "1000.0" in mm, or in inch
  std::string lblDistanzMax;  ///< length of the line: "2500.0 mm", "98.4 in"
};

/// The z of a point outside the record's room is empty.
LinienTexte linienTexte(const LinienGeometrie& linie, std::int16_t Masssystem);

/// A z entered in `txtDistanz`, in mm or inch, as mm; nothing for a text that does not begin with
/// a number, or for a number beyond all measure.
std::optional<double> zEingegeben(std::string_view text, std::int16_t Masssystem);

}  // namespace korvin
