#pragma once

#include <cstdint>
#include <string>

#include "environment/adapt_parameter.h"
#include "environment/aussicht.h"
#include "environment/unsicherheit.h"
#include "environment/unsicherheits_diagramm.h"
#include "frame/profil.h"

namespace korvin {

/// `SliderAdaption`: positions of the tables, in samples.
struct AdaptSlider {
  int minimum = 0;  ///< position of `MessZeitMin`; held at N where that lies beyond the maximum
  int wert = 0;
  int maximum = 0;  ///< 1.8 · N: up to 900
};

/// The frame `FrmAdaptSet` without its controls: what a finished run says about adaptive measuring, the time
/// that the user picks, and handing it over.
///
/// At the end of a run call `UnsicherheitBerechnen`, then `SliderEinrichten`; at the start of a run and where
/// the window is cleared, `verbergen`. The settings outlive the object.
class AdaptSet {
 public:
  explicit AdaptSet(Profil& profil) : profil_(profil) {}

  /// As the window opens: hidden, and "95%" chosen, whatever level the run goes by.
  void ersteAktivierung();
  /// Hides the frame; saving is allowed anew.
  void verbergen();

  /// Fills the tables. Throws `std::out_of_range` with 501 samples or more.
  void UnsicherheitBerechnen(const AnalyseErgebnis& ergebnis);
  /// Inverts the visibility of the frame, which is hidden as a run ends, and puts the slider at N: the time
  /// of the run itself. A run with at least one sample has been told to `UnsicherheitBerechnen`.
  void SliderEinrichten();
  /// The slider moved to `wert`, which is held within its ends.
  void SliderGeaendert(int wert);
  /// `OptPrio(index)` was clicked: 0 is "95%", 1 is "99%". It says what saving writes, and allows saving
  /// again; the shown values stay those of the level that the run went by.
  void OptPrio(int index);
  /// Stores what is shown, see adapt_parameter.h. The window is to be cleared then.
  void ParameterSpeichern();

  bool sichtbar() const { return sichtbar_; }
  /// `CmdWerteSave` can be pressed.
  bool speichernFrei() const { return speichernFrei_; }
  const AdaptSlider& slider() const { return slider_; }
  /// Texts of the panels, and the choice of `OptPrio`.
  const AdaptParameter& anzeige() const { return anzeige_; }
  const Unsicherheit& unsicherheit() const { return unsicherheit_; }
  /// What a position of the tables says: "25 s: FX 0.0123  FY 0.0456".
  std::string hinweis(int position) const;
  std::int16_t Masssystem() const { return ergebnis_.Masssystem; }
  /// How adaptive measuring would do with the settings stored when the frame came up.
  const Aussicht& aussicht() const { return aussicht_; }
  /// The diagram beside the slider; empty where the panels show 0. Refers to the tables of this object.
  UnsicherheitsBild bild() const;

 private:
  /// The run has at least one sample a second; with fewer, its uncertainties are shown as 0.
  bool istDicht() const;
  /// The three texts at a position.
  void texteSetzen(AdaptParameter& texte, int position) const;

  Profil& profil_;
  AnalyseErgebnis ergebnis_;
  Unsicherheit unsicherheit_;
  AdaptSlider slider_;
  AdaptParameter anzeige_;
  Aussicht aussicht_;
  bool sichtbar_ = false;
  bool speichernFrei_ = true;
};

}  // namespace korvin
