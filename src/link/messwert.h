#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "frame/farbe.h"
#include "link/kamera_antwort.h"

/// From an answer of the head to lengths and to what the user sees of its quality: pure functions.
namespace korvin {

inline constexpr double RohMitte = 250000;  ///< counts of the head's centre
inline constexpr double RohProMm = 10000;   ///< counts of one mm
inline constexpr double MmProMil = 0.0254;

/// Keys of the info icons.
inline constexpr const char* IconFunk = "ICONFUNK";         ///< link lost
inline constexpr const char* IconFrage = "ICONFRG";         ///< valid frame of an unexpected kind
inline constexpr const char* IconBatterie = "ICONBAT";      ///< battery low
inline constexpr const char* IconSim = "ICONSIM";           ///< the simulated head answers
inline constexpr const char* IconSchwaecher = "ICONINTE";   ///< intensity more than 6 points below the norm
inline constexpr const char* IconAbgelehnt = "ICONINTENS";  ///< intensity refused

/// What the quality check finds.
struct Qualitaet {
  bool ok = false;                       ///< the reading may be used; only the intensity decides
  Farbe wertFarbe = FarbeWeiss;          ///< colour of the value panels
  Farbe intensitaetFarbe = FarbeRot;     ///< colour of the intensity line
  bool schwaecher = false;               ///< raise ICONINTE
  std::optional<std::int16_t> neueNorm;  ///< to be stored as the highest intensity ever seen
};

/// Checks intensity and range of an "m" or "j" answer. `norm` is the highest intensity seen so far in
/// percent, `halbbereich` the head's half range in mm (the edge counts as in range), `imRuhezustand` tells
/// that no key is pending.
Qualitaet qualitaetPruefen(const KameraAntwort& antwort, double norm, double halbbereich, bool imRuhezustand);

/// A raw count as mm from the head's centre.
constexpr double mmAusRoh(double roh) {
  return (roh - RohMitte) / RohProMm;
}

/// Turns a pair by the head's mounting, quarter turns 0 to 3; any other number leaves it.
std::pair<double, double> Spiegeln(std::int16_t montage, double x, double y);

/// A reading as the position record stores it: Y is inverted, since the head counts it the other way; mil
/// where `inch`; turned by the mounting.
std::pair<double, double> positionAusRoh(const KameraAntwort& antwort, bool inch, std::int16_t montage);

/// The service line: the last frame's body and the five counters. UTF-8.
std::string serviceZeile(const KameraAntwort& antwort);

}  // namespace korvin
