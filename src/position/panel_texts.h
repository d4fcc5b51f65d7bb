#pragma once

#include <optional>
#include <string>

#include "frame/dictionary.h"
#include "position/formpos.h"

namespace korvin {

/// What the panels of `FormPosition` show of the working record. Texts are UTF-8; a missing text means that
/// its panel stays empty or hidden.
struct PositionsTexte {
  std::string X;  ///< value under the cursor less the offset, or the empty pattern
  std::string Y;
  std::string MessPkt;                   ///< number of the point under the cursor; "- " without points
  std::string MPsTotal;                  ///< number of points; "- " without points
  std::string Offset;                    ///< "0 / 0.000 / 0.000", or "--- / -.--- / -.--- " without an offset
  std::optional<std::string> MessRate;   ///< seconds between two points, if there is an interval
  std::optional<std::string> MpsStart;   ///< points still to take, if there is a limit
  std::optional<std::string> StartZeit;  ///< "  hh:mm:ss", if a start time is set
  std::optional<std::string> StopZeit;
};

PositionsTexte positionsTexte(const FORMPOS& formpos);

/// The time of day as `PanelZeit` shows it: "hh:mm:ss" after two blanks.
std::string panelZeit(double tage);

/// Title of the window: the file's path and, in brackets, the kind.
std::string fensterTitel(const PositionsInfo& info, Dictionary& dictionary);

}  // namespace korvin
