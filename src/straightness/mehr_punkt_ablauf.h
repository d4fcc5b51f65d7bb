#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "link/messfenster_ansicht.h"
#include "link/messzyklus.h"
#include "straightness/linien_erfassung.h"
#include "straightness/mehr_punkt.h"
#include "straightness/mehr_punkt_abnehmer.h"
#include "straightness/mehr_punkt_bild.h"
#include "straightness/mehr_punkt_texte.h"

namespace korvin {

/// What the frame `FRM_MPM` shows.
struct MehrPunktStand {
  MehrPunktTexte texte;
  MehrPunktBild bild;
  std::int16_t MehrPunktSoll = 3;
  bool wahlFrei = false;         ///< `CheckPkt1`: only before the first position
  bool messenFrei = false;       ///< `CmdMehrPunkt` 0
  bool uebernehmenFrei = false;  ///< `CmdMehrPunkt` 1
  bool abbrechenFrei = false;    ///< `CmdMehrPunkt` 2
};

/// A window with the frame `FRM_MPM`.
class MehrPunktAnsicht {
 public:
  virtual ~MehrPunktAnsicht() = default;

  /// `FRM_MPM` appears: big numbers go, and toolbar, the menus `M_Datei`, `M_Extras`, `M_Panel` and whatever
  /// else moves the cursor of the line are locked, until it is gone again.
  virtual void zeigeRahmen(bool offen) = 0;
  virtual void zeigeMehrPunkt(const MehrPunktStand& stand) = 0;
};

/// What multi-point measuring works with. All outlive it.
struct MehrPunktUmgebung {
  ZyklusUmgebung station;
  LinienErfassung& erfassung;
  Messzyklus& zyklus;
  MessfensterAnsicht& fenster;
  MehrPunktAnsicht& ansicht;
};

/// Multi-point measuring in a window that measures along a line: positions are taken one by one around a
/// circle, and the centre of that circle becomes the reading of the current point. The frame is open from
/// `oeffnen` to Accept, Cancel or the message that the centre lies too far off; meanwhile `MehrPunktAktiv`
/// holds, the head's keys are ignored, and each position stands at the current point while the next one is
/// awaited.
class MehrPunktAblauf : public MehrPunktAbnehmer {
 public:
  explicit MehrPunktAblauf(const MehrPunktUmgebung& umgebung);
  ~MehrPunktAblauf() override;
  MehrPunktAblauf(const MehrPunktAblauf&) = delete;
  MehrPunktAblauf& operator=(const MehrPunktAblauf&) = delete;

  // ---- What the user does ----

  /// The key "XYMPKMP": opens the frame; an open one is cancelled.
  void XYMPKMP();
  /// A button of the frame: 0 takes the next position, 1 accepts the centre, 2 cancels. A button that is not
  /// free does nothing.
  void CmdMehrPunkt(int index);
  /// 3 or 4 positions; from the first position on the choice stands.
  void setMehrPunktSoll(std::int16_t positionen);

  // ---- What happens to the window ----

  bool offen() const { return zustand_ != Zustand::zu; }
  /// The data are others now: the frame closes and leaves them alone.
  void verwerfen();
  /// Asks by `frage` whether the window may go, for which the data may be saved. A point whose centre is not
  /// accepted is open meanwhile, as after Cancel: a mere position must not be saved for a centre. True if the
  /// window goes; otherwise nothing has changed.
  bool darfSchliessen(const std::function<bool()>& frage);

  const MehrPunkt& messung() const { return messung_; }

  // ---- MehrPunktAbnehmer ----

  void punktAngenommen() override { positionAblegen(); }
  void punktBeendet() override { positionBeenden(); }
  bool positionVerlangt() override;
  void anforderungVerfallen() override { positionBeenden(); }

 private:
  enum class Zustand {
    zu,
    bereit,      ///< the next position may be taken
    misst,       ///< a position is asked for or under way, or the centre it led to is told to be too far off
    ergebnis,    ///< the centre waits for Accept
    uebernimmt,  ///< Accept was pressed
    uebernommen  ///< the centre is stored and shown for a while
  };

  void oeffnen();
  void abbrechen();
  void positionNehmen();
  void positionMessen(std::uint32_t oeffnung);
  void positionAblegen();
  void positionBeenden();
  void bereitMachen();
  void auswerten();
  void zuWeit();
  void annehmen();
  void mitteSpeichern();
  void schliessen();
  void rahmenZu();
  bool ohneHalbes(const std::function<bool()>& frage);
  void zeigen();

  const ZyklusUmgebung u_;
  LinienErfassung& erfassung_;
  Messzyklus& zyklus_;
  MessfensterAnsicht& fenster_;
  MehrPunktAnsicht& ansicht_;
  MehrPunkt messung_;
  Zustand zustand_ = Zustand::zu;
  std::uint32_t oeffnung_ = 0;  ///< counts the openings: an answer to one before is none of this one's
  bool gefragt_ = false;        ///< the user is asked whether the window may go
};

}  // namespace korvin
