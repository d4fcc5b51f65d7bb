#pragma once

#include <cstdint>

#include "frame/dictionary.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"
#include "straightness/formgera.h"
#include "straightness/linien_erfassung.h"

namespace korvin {

/// What straightness measuring works with. All outlive it.
struct GeradErfassungUmgebung {
  MessagePort& messages;
  Dictionary& dictionary;
  Profil& profil;
  Systemwerte& system;
  FORMGERA& formgera;
};

/// Taking the points of a straightness series: what the cycle leaves to this kind, and the keys of its window
/// that work on the series.
class GeradErfassung : public LinienErfassung {
 public:
  explicit GeradErfassung(const GeradErfassungUmgebung& umgebung)
      : LinienErfassung(umgebung.profil), u_(umgebung) {}

  // ---- The series of a window that is shown ----

  /// The first activation of the window: takes a loaded file, or starts a new series; then reads the
  /// settings.
  void ersteAktivierung();
  /// Reads into the series what the settings say of the link, names its mounting in `KameraText`, and sets
  /// the direction forward. To be called whenever the series or the settings have become others. Readings,
  /// `Montage` and `Filter` of the series stay as they are.
  void einstellungenLesen();
  /// Readings are taken with the filter of the series: to be called when another series has come. The
  /// settings dialog may set another one meanwhile.
  void filterVorgeben();

  /// Moves a point of the line to `z` mm, or as near to it as its neighbours allow. The series counts as
  /// changed, and both diagrams are to be drawn anew, frame and all.
  void punktVersetzen(std::int16_t punkt, double z);
  /// Brings all points back to even distances; readings stay. The series counts as changed if one had moved.
  void punkteGleichVerteilen();

  // ---- Keys of the evaluation ----

  /// Raw values.
  void ROH();
  /// Deviations from the least squares line.
  void ISO();
  /// Deviations from the line through the reference points.
  void REF();
  /// The current point becomes `Ref1`; false, with a beep and nothing changed, unless it lies on the line and
  /// before `Ref2`.
  bool REF1();
  /// The current point becomes `Ref2`; false, with a beep and nothing changed, unless it lies on the line and
  /// behind `Ref1`.
  bool REF2();
  /// The keys "REF1" and "REF2" are there.
  bool referenztastenSichtbar() const;

  // ---- LinienErfassung ----

  LinienGeometrie& linie() override { return u_.formgera.reihe().Linie; }
  std::pair<double, double> PunktWert() override;
  std::int16_t Montage() const override { return info().Montage; }
  AdaptVorgaben& adaptVorgaben() override { return u_.formgera.reihe().Adapt; }
  const ZyklusBeschreibung& beschreibung() const override { return ZyklusGerad; }
  LinkAngaben linkAngaben() const override;
  char filter() const override { return info().Filter.full().front(); }
  void setFilter(char stufe) override { info().Filter = std::string_view(&stufe, 1); }
  std::int16_t nkStellen() const override { return info().NKStellen; }

 protected:
  void punktEintragen(double X, double Y) override { u_.formgera.punktEintragen(X, Y); }

 private:
  /// `ref` takes the current point if it may.
  bool referenzNehmen(std::int16_t& ref, bool erlaubt);
  GeradInfo& info() const { return u_.formgera.reihe().Info; }

  GeradErfassungUmgebung u_;
};

}  // namespace korvin
