#pragma once

#include <array>
#include <string>
#include <string_view>

#include "dialogs/settings_field.h"
#include "frame/dictionary.h"
#include "position/record.h"

namespace korvin {

/// The plan of a position measurement as it is entered: how many points, at what interval, from when, until
/// when. All texts are UTF-8; an empty one sets nothing.
struct MessplanTexte {
  std::string anzahl{};     ///< points still to take; empty: no limit
  std::string intervall{};  ///< seconds between two points
  std::string startDatum{};
  std::string startZeit{};  ///< empty: no start time, whatever the date
  std::string stopDatum{};
  std::string stopZeit{};

  friend bool operator==(const MessplanTexte&, const MessplanTexte&) = default;
};

/// An entry box of the plan.
struct PlanFeld {
  std::string_view control;
  std::string MessplanTexte::*text;
  FeldPruefung pruefung = FeldPruefung::keine;
};

inline constexpr std::array<PlanFeld, 6> PlanFelder = {
    {{"TextEinstellung(7)", &MessplanTexte::anzahl},
     {"TextEinstellung(8)", &MessplanTexte::intervall},
     {"TextEinstellung(9)", &MessplanTexte::startDatum},
     {"TextEinstellung(10)", &MessplanTexte::startZeit, FeldPruefung::zeit},
     {"TextEinstellung(11)", &MessplanTexte::stopDatum},
     {"TextEinstellung(12)", &MessplanTexte::stopZeit, FeldPruefung::zeit}}};

/// True if the record holds any part of a plan.
bool hatMessplan(const PositionsInfo& info);

/// The record's plan as texts: "dd.mm.yy", "hh:mm:ss", numbers in the general format. A moment of day 0 is
/// one that was entered without a date, and shows none.
MessplanTexte messplanTexte(const PositionsInfo& info);

/// Puts an entered plan into the record. Numbers are read leniently, a date that is none counts as none, and
/// a time without a date lies on day 0. A moment whose two texts are still as `messplanTexte` gives them
/// keeps its value to the last digit.
void messplanSetzen(const MessplanTexte& plan, PositionsInfo& info);

/// What a user should know of a part of the plan before it is taken: that a text is read otherwise than it
/// looks, or that a time without a date is past. Empty if there is nothing to say.
struct MessplanHinweise {
  std::string anzahl{};
  std::string intervall{};
  std::string start;
  std::string stop;
};
MessplanHinweise messplanHinweise(const MessplanTexte& plan, Dictionary& dictionary);

}  // namespace korvin
