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

namespace FormGeradheit {
inline constexpr Einstellung FirmaName{"KorInfo", "FirmaName", ""};
inline constexpr Einstellung AsciiDatei{"KorInfo", "AsciiDatei", "0"};
inline constexpr Einstellung NKStellen{"KorInfo", "NKStellen", "3"};
inline constexpr Einstellung PfadMessFile{"KorInfo", "PfadMessFile", ""};
inline constexpr Einstellung Bezeichnung{"MessInfo_G", "Bezeichnung", "?"};
inline constexpr Einstellung Bediener{"MessInfo_G", "Bediener", "?"};
inline constexpr Einstellung Kommentar{"MessInfo_G", "Kommentar", "?"};
inline constexpr Einstellung AnzMPs{"MessInfo_G", "AnzMPs", "6"};
inline constexpr Einstellung Distanz{"MessInfo_G", "Distanz", "2500.0"};
inline constexpr Einstellung SFak{"MessInfo_G", "SFak", "1"};
inline constexpr Einstellung Filter{"MessInfo_G", "Filter", "2"};
inline constexpr Einstellung Montage{"MessInfo_G", "Montage", "0"};
inline constexpr Einstellung BiDi_Messen{"MessInfo_G", "BiDi_Messen", ""};
inline constexpr Einstellung AutoAdapt{"MessInfo_G", "AutoAdapt", "0"};
inline constexpr Einstellung Beta5{"MessInfo_G", "Beta5", "-1"};
inline constexpr Einstellung Beta1{"MessInfo_G", "Beta1", "0"};
inline constexpr Einstellung MessZeitMax{"MessInfo_G", "MessZeitMax", "12"};
inline constexpr Einstellung MessZeitMin{"MessInfo_G", "MessZeitMin", "10"};
inline constexpr Einstellung X_Genauigkeit{"MessInfo_G", "X_Genauigkeit", "0.01"};
inline constexpr Einstellung Y_Genauigkeit{"MessInfo_G", "Y_Genauigkeit", "0.01"};
inline constexpr Einstellung XGesamt{"Toleranz_G", "XGesamt", ""};
inline constexpr Einstellung XWertPro{"Toleranz_G", "XWertPro", ""};
inline constexpr Einstellung XProEinheit{"Toleranz_G", "XProEinheit", ""};
inline constexpr Einstellung YGesamt{"Toleranz_G", "YGesamt", ""};
inline constexpr Einstellung YWertPro{"Toleranz_G", "YWertPro", ""};
inline constexpr Einstellung YProEinheit{"Toleranz_G", "YProEinheit", ""};
/// One for both axes.
inline constexpr Einstellung ToleranzBezug{"Toleranz_G", "ToleranzBezug", "1"};
inline constexpr Einstellung CheckXDiagramm{"DruckInfo_G", "CheckXDiagramm", "0"};
inline constexpr Einstellung CheckYDiagramm{"DruckInfo_G", "CheckYDiagramm", "0"};
inline constexpr Einstellung CheckXTabelle{"DruckInfo_G", "CheckXTabelle", "0"};
inline constexpr Einstellung CheckYTabelle{"DruckInfo_G", "CheckYTabelle", "0"};
}  // namespace FormGeradheit

/// The settings dialog of straightness measuring.
namespace FormOptionsG {
inline constexpr Einstellung PortNr{"KorInfo", "PortNr", "1"};
inline constexpr Einstellung BaudRate{"KorInfo", "BaudRate", "1"};
inline constexpr Einstellung FirmaName{"KorInfo", "FirmaName", ""};
inline constexpr Einstellung PfadMessFile{"KorInfo", "PfadMessFile", ""};
inline constexpr Einstellung NKStellen{"KorInfo", "NKStellen", "2"};
inline constexpr Einstellung AsciiDatei{"KorInfo", "AsciiDatei", "0"};
inline constexpr Einstellung Bezeichnung{"MessInfo_G", "Bezeichnung", "?"};
inline constexpr Einstellung Bediener{"MessInfo_G", "Bediener", "?"};
inline constexpr Einstellung Kommentar{"MessInfo_G", "Kommentar", "?"};
inline constexpr Einstellung AnzMPs{"MessInfo_G", "AnzMPs", "6"};
/// No default of its own: it shows what a new series would take.
inline constexpr Einstellung Distanz = FormGeradheit::Distanz;
inline constexpr Einstellung Filter{"MessInfo_G", "Filter", "2"};
inline constexpr Einstellung Montage{"MessInfo_G", "Montage", "0"};
inline constexpr Einstellung BiDi_Messen{"MessInfo_G", "BiDi_Messen", "0"};
inline constexpr Einstellung AutoAdapt{"MessInfo_G", "AutoAdapt", "0"};
inline constexpr Einstellung Beta5{"MessInfo_G", "Beta5", "-1"};
inline constexpr Einstellung Beta1{"MessInfo_G", "Beta1", "0"};
inline constexpr Einstellung MessZeitMax{"MessInfo_G", "MessZeitMax", "10"};
inline constexpr Einstellung MessZeitMin{"MessInfo_G", "MessZeitMin", "6"};
inline constexpr Einstellung X_Genauigkeit{"MessInfo_G", "X_Genauigkeit", "0.01"};
inline constexpr Einstellung Y_Genauigkeit{"MessInfo_G", "Y_Genauigkeit", "0.01"};
/// The value that the window reads as `SFak`, under another default.
inline constexpr Einstellung SFak{"MessInfo_G", "SFAK", "0"};
inline constexpr Einstellung XGesamt{"Toleranz_G", "XGesamt", ""};
inline constexpr Einstellung XWertPro{"Toleranz_G", "XWertPro", ""};
inline constexpr Einstellung XProEinheit{"Toleranz_G", "XProEinheit", ""};
inline constexpr Einstellung YGesamt{"Toleranz_G", "YGesamt", ""};
inline constexpr Einstellung YWertPro{"Toleranz_G", "YWertPro", ""};
inline constexpr Einstellung YProEinheit{"Toleranz_G", "YProEinheit", ""};
inline constexpr Einstellung ToleranzBezug{"Toleranz_G", "ToleranzBezug", "1"};
inline constexpr Einstellung CheckXDiagramm{"DruckInfo_G", "CheckXDiagramm", "0"};
inline constexpr Einstellung CheckYDiagramm{"DruckInfo_G", "CheckYDiagramm", "0"};
inline constexpr Einstellung CheckXTabelle{"DruckInfo_G", "CheckXTabelle", "0"};
inline constexpr Einstellung CheckYTabelle{"DruckInfo_G", "CheckYTabelle", "0"};
}  // namespace FormOptionsG

/// The environment analysis, beside what it reads as `FormPosition`.
namespace FormUmgebungsAnalyse {
inline constexpr Einstellung Filter{"MessInfo_G", "Filter", "1"};
inline constexpr Einstellung Beta5{"MessInfo_G", "Beta5", "-1"};
}  // namespace FormUmgebungsAnalyse

}  // namespace einstellung
}  // namespace korvin
