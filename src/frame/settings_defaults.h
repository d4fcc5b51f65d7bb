#pragma once

#include <string_view>

namespace korvin {

/// A setting as one reader sees it: the default holds only if the value is missing.
struct Einstellung {
  std::string_view section;
  std::string_view key;
  std::string_view vorgabe;
};

/// The settings by their readers. The default belongs to the reader, not to the key: several windows read one
/// key with different defaults on purpose, and a new tree holds other values again (kor_registry.cpp). Flags
/// are "-1" and "0"; numbers are texts in which a comma counts as the point.
///
/// To add one: put it under its reader here; the section must stand in the table of kor_registry.cpp.
namespace einstellung {

/// The main window, and what is the same in every window.
namespace Hauptfenster {
inline constexpr Einstellung Version{"KorInfo", "Version", ""};
inline constexpr Einstellung Sprache{"KorInfo", "Sprache", "1"};
inline constexpr Einstellung MassArt{"KorInfo", "MassArt", "0"};
inline constexpr Einstellung FirmaName{"KorInfo", "FirmaName", ""};
inline constexpr Einstellung PfadMessFile{"KorInfo", "PfadMessFile", ""};
}  // namespace Hauptfenster

/// The search for the head: a missing value counts as 0.
namespace ScanRS {
inline constexpr Einstellung PortNr{"KorInfo", "PortNr", ""};
inline constexpr Einstellung BaudRate{"KorInfo", "BaudRate", ""};
}  // namespace ScanRS

/// The head's link in any measuring window.
namespace Verbindung {
inline constexpr Einstellung PortNr{"KorInfo", "PortNr", "1"};
inline constexpr Einstellung BaudRate{"KorInfo", "BaudRate", "1"};
inline constexpr Einstellung KameraID{"KorInfo", "KameraID", "0"};
inline constexpr Einstellung NormInt_Laser{"KorInfo", "NormInt_Laser", "0"};
}  // namespace Verbindung

namespace FormPosition {
inline constexpr Einstellung FirmaName{"KorInfo", "FirmaName", ""};
inline constexpr Einstellung AsciiDatei{"KorInfo", "AsciiDatei", "0"};
inline constexpr Einstellung NKStellen{"KorInfo", "NKStellen", "3"};
inline constexpr Einstellung PfadMessFile{"KorInfo", "PfadMessFile", ""};
inline constexpr Einstellung Bezeichnung{"MessInfo_O", "Bezeichnung", "?"};
inline constexpr Einstellung Bediener{"MessInfo_O", "Bediener", "?"};
inline constexpr Einstellung Kommentar{"MessInfo_O", "Kommentar", "?"};
inline constexpr Einstellung Filter{"MessInfo_O", "Filter", "2"};
inline constexpr Einstellung Montage{"MessInfo_O", "Montage", "0"};
inline constexpr Einstellung SFak{"MessInfo_O", "SFak", "1"};
inline constexpr Einstellung CheckXYDiagramm{"DruckInfo_O", "CheckXYDiagramm", "0"};
inline constexpr Einstellung CheckXTabelle{"DruckInfo_O", "CheckXTabelle", "0"};
inline constexpr Einstellung CheckYTabelle{"DruckInfo_O", "CheckYTabelle", "0"};
}  // namespace FormPosition

/// The settings dialog of position measuring.
namespace FormOptionsO {
inline constexpr Einstellung FirmaName{"KorInfo", "FirmaName", ""};
inline constexpr Einstellung PfadMessFile{"KorInfo", "PfadMessFile", ""};
inline constexpr Einstellung PortNr{"KorInfo", "PortNr", "1"};
inline constexpr Einstellung BaudRate{"KorInfo", "BaudRate", "1"};
inline constexpr Einstellung NKStellen{"KorInfo", "NKStellen", "1"};
inline constexpr Einstellung AsciiDatei{"KorInfo", "AsciiDatei", "0"};
inline constexpr Einstellung Bezeichnung{"MessInfo_O", "Bezeichnung", "?"};
inline constexpr Einstellung Bediener{"MessInfo_O", "Bediener", "?"};
inline constexpr Einstellung Kommentar{"MessInfo_O", "Kommentar", "?"};
inline constexpr Einstellung Filter{"MessInfo_O", "Filter", "2"};
inline constexpr Einstellung Montage{"MessInfo_O", "Montage", "0"};
/// The value that the window reads as `SFak`, under another default.
inline constexpr Einstellung SFak{"MessInfo_O", "SFAK", "0"};
inline constexpr Einstellung CheckXYDiagramm{"DruckInfo_O", "CheckXYDiagramm", "0"};
inline constexpr Einstellung CheckXTabelle{"DruckInfo_O", "CheckXTabelle", "0"};
inline constexpr Einstellung CheckYTabelle{"DruckInfo_O", "CheckYTabelle", "0"};
}  // namespace FormOptionsO

}  // namespace einstellung
}  // namespace korvin
