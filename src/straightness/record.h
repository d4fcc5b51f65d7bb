#pragma once

// The record of a straightness measurement, in the present form and in the two older ones. One list of fields
// serves all three: the forms differ in their number of points and in having the field `BaudRate`.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "frame/fester_text.h"
#include "frame/flagge.h"
#include "frame/layout.h"
#include "frame/zaehlfeld.h"
#include "straightness/straightness_limits.h"

namespace korvin {

// ---- One axis ----

/// How the diagram of an axis is shown.
struct AchsenAnzeige {
  double Bereich = 0;            ///< half height of the diagram, in the unit it is drawn in, mm or mil
  double BereichAlt = 0;         ///< half height of the last drawing; 0 has the frame drawn anew
  std::int16_t Bereichsart = 0;  ///< 0 AUTO, 1 HAND, 2 TOL
  Flagge NumZoom;                ///< large numbers panel on
  std::int16_t Reserve1 = 0;
};

template <class A>
constexpr void felder(A& archive, AchsenAnzeige& r) {
  archive("Bereich", r.Bereich);
  archive("BereichAlt", r.BereichAlt);
  archive("Bereichsart", r.Bereichsart);
  archive("NumZoom", r.NumZoom);
  archive("Reserve1", r.Reserve1);
}

/// Statistics of the evaluated values at the last drawing.
struct AchsenStatistik {
  double Mittel = 0;    ///< mean
  double Streuung = 0;  ///< sample standard deviation
  double MaxWert = 0;
  double MinWert = 0;
};

template <class A>
constexpr void felder(A& archive, AchsenStatistik& r) {
  archive("Mittel", r.Mittel);
  archive("Streuung", r.Streuung);
  archive("MaxWert", r.MaxWert);
  archive("MinWert", r.MinWert);
}

/// What an axis is held to.
struct AchsenToleranz {
  std::int16_t ToleranzBezug = 0;  ///< how the tolerance lies on the values, 0 to 2
  double Gesamt = 0;               ///< whole tolerance in mm, 0 for none
  double WertPro = 0;              ///< tolerance of a section in mm, 0 for none
  double ProEinheit = 0;           ///< length of a section in mm
};

template <class A>
constexpr void felder(A& archive, AchsenToleranz& r) {
  archive("ToleranzBezug", r.ToleranzBezug);
  archive("Gesamt", r.Gesamt);
  archive("WertPro", r.WertPro);
  archive("ProEinheit", r.ProEinheit);
}

/// The worst section at the last drawing.
struct AchsenAbschnitt {
  double AbschnittWert = 0;         ///< its range
  double AbschnittLaenge = 0;       ///< length actually used, in mm
  std::int16_t AbschnittStart = 0;  ///< its first point; `KeinAbschnitt` if none was found
};

template <class A>
constexpr void felder(A& archive, AchsenAbschnitt& r) {
  archive("AbschnittWert", r.AbschnittWert);
  archive("AbschnittLaenge", r.AbschnittLaenge);
  archive("AbschnittStart", r.AbschnittStart);
}

/// Tolerances of an axis between the results of its last drawing: the block that older files give for Y
/// alone.
struct AchsenErgebnis : AchsenStatistik, AchsenToleranz, AchsenAbschnitt {
  double Reserve2 = 0;
};

template <class A>
constexpr void felder(A& archive, AchsenErgebnis& r) {
  archive("", static_cast<AchsenStatistik&>(r));
  archive("", static_cast<AchsenToleranz&>(r));
  archive("Reserve2", r.Reserve2);
  archive("", static_cast<AchsenAbschnitt&>(r));
}

/// One axis with room for `MaxPunkte` points.
template <std::size_t MaxPunkte>
struct GeradAchseMit : AchsenAnzeige, AchsenErgebnis {
  /// Element 0: number of points. From 1: the readings in mm, not evaluated, turned for the mounting;
  /// `Leerwert` if not taken.
  Zaehlfeld<MaxPunkte> Wert;
};

template <class A, std::size_t MaxPunkte>
constexpr void felder(A& archive, GeradAchseMit<MaxPunkte>& r) {
  archive("Wert", r.Wert);
  archive("", static_cast<AchsenAnzeige&>(r));
  archive("", static_cast<AchsenErgebnis&>(r));
}

using GeradAchse = GeradAchseMit<MaxPunkteG>;

// ---- The line ----

/// Where the points of a line lie along the beam. All lengths in mm.
template <std::size_t MaxPunkte>
struct LinienGeometrieMit {
  std::int16_t AktMP = 0;                 ///< the current point
  double Distanz = 0;                     ///< length of the line
  std::int16_t AnzMPs = 0;                ///< number of points, at most `MaxPunkte`
  std::array<double, MaxPunkte + 1> Z{};  ///< z of the points, from index 1
  double ZSchritt = 0;                    ///< `Distanz` / (`AnzMPs` − 1)
};

template <class A, std::size_t MaxPunkte>
constexpr void felder(A& archive, LinienGeometrieMit<MaxPunkte>& r) {
  archive("AktMP", r.AktMP);
  archive("Distanz", r.Distanz);
  archive("AnzMPs", r.AnzMPs);
  archive("Z", r.Z);
  archive("ZSchritt", r.ZSchritt);
}

using LinienGeometrie = LinienGeometrieMit<MaxPunkteG>;

// ---- The general part ----

/// What was measured, how, and how it is shown.
struct GeradInfo {
  Flagge Gitter;          ///< grid in the diagrams
  Flagge ZeigeMittel;     ///< statistics switch "x"
  Flagge ZeigeStreuung;   ///< statistics switch "s"
  Flagge ZeigeSpanne;     ///< statistics switch "R"
  Flagge ZeigeAbschnitt;  ///< statistics switch "t"
  std::int16_t ReserveA = 0;
  FesterText<40> Datum;          ///< date of saving, as "4.03 2003 / 09:15:00"
  Flagge InfoAbbruch;            ///< the file information was left by cancel
  std::int16_t DateiStatus = 0;  ///< 0 new, 1 loaded, 2 saved
  Flagge Geaendert;              ///< changed since last saved
  Flagge CheckXDiagramm;         ///< a report shows the diagram of X
  Flagge CheckYDiagramm;         ///< a report shows the diagram of Y
  Flagge CheckXTabelle;          ///< a report shows the table of X
  Flagge CheckYTabelle;          ///< a report shows the table of Y
  std::int16_t PortNr = 0;
  FesterText<12> BaudRate;  ///< line settings, as "115200,N,8,1"
  FesterText<1> KameraID;
  std::int16_t Montage = 0;  ///< mounting of the head, 0 to 3
  FesterText<1> Filter;      ///< averaging level, "0" to "4"
  std::int16_t ReserveB = 0;
  std::int16_t ReserveC = 0;
  FesterText<1> ReserveD;
  FesterText<1> ReserveE;
  FesterText<75> FirmaName;
  FesterText<20> ReserveF;
  FesterText<75> DateiName;    ///< full path at saving
  Flagge AsciiDatei;           ///< kept; the setting of the same name decides about the text copy
  FesterText<75> Bezeichnung;  ///< what was measured
  FesterText<75> Bediener;     ///< who measured
  FesterText<75> Kommentar;
  FesterText<40> KameraText;    ///< names the head and its mounting
  std::int16_t NKStellen = 0;   ///< decimal places shown
  std::int16_t Auswertung = 0;  ///< 0 ROH, 1 ISO, 2 REF
  std::int16_t Ref1 = 0;        ///< first reference point
  std::int16_t Ref2 = 0;        ///< second reference point
  std::int16_t SFak = 0;        ///< factor of the sample deviation in the diagrams
};

template <class A>
constexpr void felder(A& archive, GeradInfo& r) {
  archive("Gitter", r.Gitter);
  archive("ZeigeMittel", r.ZeigeMittel);
  archive("ZeigeStreuung", r.ZeigeStreuung);
  archive("ZeigeSpanne", r.ZeigeSpanne);
  archive("ZeigeAbschnitt", r.ZeigeAbschnitt);
  archive("ReserveA", r.ReserveA);
  archive("Datum", r.Datum);
  archive("InfoAbbruch", r.InfoAbbruch);
  archive("DateiStatus", r.DateiStatus);
  archive("Geaendert", r.Geaendert);
  archive("CheckXDiagramm", r.CheckXDiagramm);
  archive("CheckYDiagramm", r.CheckYDiagramm);
  archive("CheckXTabelle", r.CheckXTabelle);
  archive("CheckYTabelle", r.CheckYTabelle);
  archive("PortNr", r.PortNr);
  archive("BaudRate", r.BaudRate);
  archive("KameraID", r.KameraID);
  archive("Montage", r.Montage);
  archive("Filter", r.Filter);
  archive("ReserveB", r.ReserveB);
  archive("ReserveC", r.ReserveC);
  archive("ReserveD", r.ReserveD);
  archive("ReserveE", r.ReserveE);
  archive("FirmaName", r.FirmaName);
  archive("ReserveF", r.ReserveF);
  archive("DateiName", r.DateiName);
  archive("AsciiDatei", r.AsciiDatei);
  archive("Bezeichnung", r.Bezeichnung);
  archive("Bediener", r.Bediener);
  archive("Kommentar", r.Kommentar);
  archive("KameraText", r.KameraText);
  archive("NKStellen", r.NKStellen);
  archive("Auswertung", r.Auswertung);
  archive("Ref1", r.Ref1);
  archive("Ref2", r.Ref2);
  archive("SFak", r.SFak);
}

/// What adaptive measuring aims at.
struct AdaptVorgaben {
  Flagge Beta5;                  ///< significance level 5 %
  Flagge Beta1;                  ///< significance level 1 %
  double X_Genauigkeit = 0;      ///< required accuracy in mm
  double Y_Genauigkeit = 0;      ///< required accuracy in mm
  std::int16_t MessZeitMin = 0;  ///< least measuring time in seconds
  std::int16_t MessZeitMax = 0;  ///< longest measuring time in seconds
  Flagge AutoAdapt;              ///< adaptive measuring on
};

template <class A>
constexpr void felder(A& archive, AdaptVorgaben& r) {
  archive("Beta5", r.Beta5);
  archive("Beta1", r.Beta1);
  archive("X_Genauigkeit", r.X_Genauigkeit);
  archive("Y_Genauigkeit", r.Y_Genauigkeit);
  archive("MessZeitMin", r.MessZeitMin);
  archive("MessZeitMax", r.MessZeitMax);
  archive("AutoAdapt", r.AutoAdapt);
}

// ---- The whole ----

/// Passes a record's fields on to `archive`, all but `BaudRate`.
template <class A>
class OhneBaudRate {
 public:
  constexpr explicit OhneBaudRate(A& archive) : archive_(archive) {}

  template <class T>
  constexpr void operator()(std::string_view name, T& field) {
    if (name != "BaudRate") archive_(name, field);
  }

 private:
  A& archive_;
};

/// A straightness series as one of the forms of its file. The length of a file tells its form; nothing in it
/// does.
template <std::size_t MaxPunkte, bool MitBaudRate>
struct GeradForm {
  GeradAchseMit<MaxPunkte> X;
  GeradAchseMit<MaxPunkte> Y;
  GeradInfo Info;  ///< where the form has no `BaudRate`, that field is as in a new record
  LinienGeometrieMit<MaxPunkte> Linie;
  AdaptVorgaben Adapt;
};

template <class A, std::size_t MaxPunkte, bool MitBaudRate>
constexpr void felder(A& archive, GeradForm<MaxPunkte, MitBaudRate>& r) {
  archive("X", r.X);
  archive("Y", r.Y);
  if constexpr (MitBaudRate) {
    archive("", r.Info);
  } else {
    OhneBaudRate rest(archive);
    felder(rest, r.Info);
  }
  archive("", r.Linie);
  archive("", r.Adapt);
}

/// A series with all that belongs to it, as it lies in a file with the extension ".G": 5643 bytes. Lengths
/// and readings are in mm, whatever the system of units.
using GeradDatei = GeradForm<MaxPunkteG, true>;
/// The series in work holds the same fields as its file.
using GeradReihe = GeradDatei;

/// The form before: half the points, 3243 bytes.
using GeradDateiVorher = GeradForm<MaxPunkteAlt, true>;
/// The first form: the same without `BaudRate`, 3231 bytes.
using GeradDateiErste = GeradForm<MaxPunkteAlt, false>;

static_assert(recordSize<AchsenAnzeige>() == 22);
static_assert(recordSize<AchsenErgebnis>() == 84);
static_assert(recordSize<GeradAchse>() == 1722);
static_assert(recordSize<GeradAchseMit<MaxPunkteAlt>>() == 922);
static_assert(recordSize<LinienGeometrie>() == 1636);
static_assert(recordSize<AdaptVorgaben>() == 26);
static_assert(recordSize<GeradDatei>() == 5643);
static_assert(recordSize<GeradDateiVorher>() == 3243);
static_assert(recordSize<GeradDateiErste>() == 3231);

}  // namespace korvin
