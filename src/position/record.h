#pragma once

#include <cstdint>

#include "frame/fester_text.h"
#include "frame/flagge.h"
#include "frame/layout.h"

namespace korvin {

/// One axis of a position measurement. Lengths are in the unit that was in force when they were measured, mm
/// or mil; no unit is stored with them.
struct AchsenInfo {
  double Aktuell = 0;            ///< last value taken, after conversion and rotation
  double Summe = 0;              ///< sum of (value − `Offset`) of all points
  double Quadratsumme = 0;       ///< sum of the squares of the same
  double Offset = 0;             ///< the offset in force, 0 if none
  double Bereich = 0;            ///< half range of the diagram in force
  double BereichAlt = 0;         ///< range of the last drawing; a difference, or 0, has the frame drawn anew
  std::int16_t BereichHand = 0;  ///< 0 automatic, 1 manual range
  Flagge NumZoom;                ///< large numbers panel on
  double Mittel = 0;             ///< mean at the last drawing; `Leerwert` after clearing
  double Streuung = 0;           ///< sample deviation at the last drawing; `Leerwert` after clearing
  double Maximum = 0;            ///< highest (value − `Offset`); `Leerwert` without points
  double Minimum = 0;            ///< lowest (value − `Offset`); `Leerwert` without points
};

template <class A>
constexpr void felder(A& archive, AchsenInfo& r) {
  archive("Aktuell", r.Aktuell);
  archive("Summe", r.Summe);
  archive("Quadratsumme", r.Quadratsumme);
  archive("Offset", r.Offset);
  archive("Bereich", r.Bereich);
  archive("BereichAlt", r.BereichAlt);
  archive("BereichHand", r.BereichHand);
  archive("NumZoom", r.NumZoom);
  archive("Mittel", r.Mittel);
  archive("Streuung", r.Streuung);
  archive("Maximum", r.Maximum);
  archive("Minimum", r.Minimum);
}

/// The head of a position measurement: what was measured, how, and how it is shown.
struct PositionsInfo {
  FesterText<75> FirmaName;
  FesterText<20> Reserve1;
  FesterText<75> DateiName;  ///< full path at saving
  Flagge AsciiDatei;         ///< kept; the setting of the same name decides about the text copy
  Flagge Gitter;             ///< diagram grid on
  Reserve<2> Reserve2;
  Flagge NurAktuell;  ///< true: only the last point is drawn
  Reserve<2> Reserve3;
  Flagge ZeigeMittel;    ///< statistics switch "x"
  Flagge ZeigeStreuung;  ///< statistics switch "s"
  Flagge ZeigeSpanne;    ///< statistics switch "R"
  Flagge OffsetAktiv;
  std::int16_t OffsetMP = 0;  ///< number of the point that gave the offset
  std::int16_t PortNr = 0;
  FesterText<12> Settings;  ///< line settings, as "115200,N,8,1"
  FesterText<1> KameraID;
  std::int16_t Montage = 0;    ///< head rotation, 0 to 3
  FesterText<1> Filter;        ///< averaging level, "0" to "7"
  std::int16_t NKStellen = 0;  ///< decimal places shown
  FesterText<20> Reserve4;
  FesterText<75> Bezeichnung;  ///< what was measured
  FesterText<75> Bediener;     ///< who measured
  FesterText<75> Kommentar;
  FesterText<40> ProgrammText;  ///< "KORVIN-" with the kind's title
  std::int16_t MPAktuell = 0;   ///< the point under the cursor
  std::int16_t MPVorher = 0;    ///< the same before its last move
  std::int16_t AnzahlMP = 0;    ///< number of points, 0 to 29999
  std::int16_t RestMP = 0;      ///< points still to take; −1 means no limit
  Reserve<2> Reserve5;
  Flagge StartAktiv;     ///< start time set
  double StartZeit = 0;  ///< days since 30 December 1899
  Flagge StopAktiv;      ///< stop time set
  double StopZeit = 0;   ///< days since 30 December 1899
  Reserve<2> Reserve6;
  double Intervall = 0;  ///< seconds between two points, 0 for none
  Reserve<4> Reserve7;
  Flagge CheckXYDiagramm;  ///< a report shows the diagram
  Flagge CheckXTabelle;    ///< a report shows the table of X
  Flagge CheckYTabelle;    ///< a report shows the table of Y
  Reserve<2> Reserve8;
  FesterText<40> Datum;          ///< date of saving, as "4.03 2003 / 09:15:00"
  Flagge InfoAbbruch;            ///< the file information was left by cancel
  std::int16_t DateiStatus = 0;  ///< 0 new, 1 loaded, 2 saved
  Flagge Geaendert;              ///< changed since last saved
  std::int16_t SFak = 0;         ///< factor of the sample deviation in the diagrams
  Reserve<24> Reserve9;
  Reserve<2> Reserve10;
};

template <class A>
constexpr void felder(A& archive, PositionsInfo& r) {
  archive("FirmaName", r.FirmaName);
  archive("Reserve1", r.Reserve1);
  archive("DateiName", r.DateiName);
  archive("AsciiDatei", r.AsciiDatei);
  archive("Gitter", r.Gitter);
  archive("Reserve2", r.Reserve2);
  archive("NurAktuell", r.NurAktuell);
  archive("Reserve3", r.Reserve3);
  archive("ZeigeMittel", r.ZeigeMittel);
  archive("ZeigeStreuung", r.ZeigeStreuung);
  archive("ZeigeSpanne", r.ZeigeSpanne);
  archive("OffsetAktiv", r.OffsetAktiv);
  archive("OffsetMP", r.OffsetMP);
  archive("PortNr", r.PortNr);
  archive("Settings", r.Settings);
  archive("KameraID", r.KameraID);
  archive("Montage", r.Montage);
  archive("Filter", r.Filter);
  archive("NKStellen", r.NKStellen);
  archive("Reserve4", r.Reserve4);
  archive("Bezeichnung", r.Bezeichnung);
  archive("Bediener", r.Bediener);
  archive("Kommentar", r.Kommentar);
  archive("ProgrammText", r.ProgrammText);
  archive("MPAktuell", r.MPAktuell);
  archive("MPVorher", r.MPVorher);
  archive("AnzahlMP", r.AnzahlMP);
  archive("RestMP", r.RestMP);
  archive("Reserve5", r.Reserve5);
  archive("StartAktiv", r.StartAktiv);
  archive("StartZeit", r.StartZeit);
  archive("StopAktiv", r.StopAktiv);
  archive("StopZeit", r.StopZeit);
  archive("Reserve6", r.Reserve6);
  archive("Intervall", r.Intervall);
  archive("Reserve7", r.Reserve7);
  archive("CheckXYDiagramm", r.CheckXYDiagramm);
  archive("CheckXTabelle", r.CheckXTabelle);
  archive("CheckYTabelle", r.CheckYTabelle);
  archive("Reserve8", r.Reserve8);
  archive("Datum", r.Datum);
  archive("InfoAbbruch", r.InfoAbbruch);
  archive("DateiStatus", r.DateiStatus);
  archive("Geaendert", r.Geaendert);
  archive("SFak", r.SFak);
  archive("Reserve9", r.Reserve9);
  archive("Reserve10", r.Reserve10);
}

/// A position measurement without its points, as it lies in a file with the extension ".O": 789 bytes. The
/// points follow in a file of their own.
struct PositionsDatei {
  AchsenInfo X;
  AchsenInfo Y;
  PositionsInfo Info;
};

template <class A>
constexpr void felder(A& archive, PositionsDatei& r) {
  archive("X", r.X);
  archive("Y", r.Y);
  archive("", r.Info);
}

static_assert(recordSize<AchsenInfo>() == 84);
static_assert(recordSize<PositionsInfo>() == 621);
static_assert(recordSize<PositionsDatei>() == 789);

}  // namespace korvin
