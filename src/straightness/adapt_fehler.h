#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "frame/dictionary.h"
#include "frame/farbe.h"
#include "frame/profil.h"
#include "straightness/adaptiv.h"
#include "straightness/record.h"

namespace korvin {

/// The failure of an adaptive point whose time is up: what `FormAdaptFehlerG` (and its sibling of another
/// kind of line) shows, and what its two buttons do. Lives as long as the dialog.
class AdaptFehler {
 public:
  /// What a failure is about. All outlive it.
  struct Punkt {
    AdaptivMessung& messung;
    AdaptVorgaben& vorgaben;  ///< of the series; `CmdAdaptCont` writes its `MessZeitMax`
    Profil& profil;
    std::string_view abschnitt;  ///< section of the kind's settings
    float jetzt;                 ///< time of day
  };
  explicit AdaptFehler(const Punkt& punkt) : p_(punkt) {}

  const AdaptVorgaben& vorgaben() const { return p_.vorgaben; }
  /// Half widths reached, in mm; `Leerwert` where there were fewer than two samples.
  Halbweiten erreicht() const;
  /// Seconds that would have been enough, judged by the worse axis with 10 % to spare: from 1 on, held within
  /// 16 bits.
  std::int16_t Vorschlag() const;
  /// The proposal can be taken: it is 99 s at most.
  bool VorschlagMoeglich() const;

  /// The two buttons. 0: `MessZeitMax` takes the proposal, in the series and in the settings, and the point
  /// counts anew; nothing if the proposal is not possible. 1, or anything else: the point is over. In both
  /// cases the measuring of the point ends with the dialog; with the new time the user starts it again.
  void CmdAdaptCont(int index);

 private:
  Punkt p_;
};

/// A value label of the dialog.
struct AdaptWertText {
  std::string text;
  Farbe farbe = FarbeGruen;
};

/// All texts of the dialog, UTF-8. Values are in mm with four decimals, or in mil with two.
struct AdaptFehlerTexte {
  std::string titel;
  std::array<std::string, 2> CmdAdaptCont;  ///< captions of the buttons
  std::array<std::string, 12> lblAdaptMsg;  ///< empty where a label has no words: 2, 4, 7 and 8
  AdaptWertText XSoll;  ///< both of an axis are green if the accuracy was reached, else red
  AdaptWertText XIst;
  AdaptWertText YSoll;
  AdaptWertText YIst;
};
AdaptFehlerTexte adaptFehlerTexte(const AdaptFehler& fehler, Dictionary& dictionary, std::int16_t Masssystem);

/// Shows the dialog of a failed adaptive point. A port: a window in the program, an answer in tests.
class AdaptFehlerFrage {
 public:
  virtual ~AdaptFehlerFrage() = default;
  /// Shows `fehler` modally and hands the button pressed to its `CmdAdaptCont`; closing the dialog by its
  /// corner is button 1.
  virtual void zeigen(AdaptFehler& fehler) = 0;
};

}  // namespace korvin
