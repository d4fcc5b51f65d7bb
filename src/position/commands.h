#pragma once

#include <functional>
#include <string>

#include "frame/clock.h"
#include "frame/dictionary.h"
#include "frame/file_dialog.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"
#include "position/erfassung.h"
#include "position/formpos.h"
#include "position/position_file.h"
#include "position/record.h"

namespace korvin {

/// The dialog `FormDateiInfoO`. A port.
class DateiInfoDialog {
 public:
  virtual ~DateiInfoDialog() = default;

  /// Lets the user edit `Bezeichnung`, `Bediener` and `Kommentar` of `info`. False, and nothing changed,
  /// after Cancel.
  virtual bool bearbeiten(PositionsInfo& info) = 0;
};

/// What the commands of the position window work with. All outlive it.
struct BefehlUmgebung {
  const Clock& clock;
  MessagePort& messages;
  FileDialog& fileDialog;
  DateiInfoDialog& dateiInfo;
  Dictionary& dictionary;
  Profil& profil;
  Meldung& meldung;
  Systemwerte& system;
  FORMPOS& formpos;
  PositionsErfassung& erfassung;
  PositionsDateien& dateien;
};

/// New, Open, Save, Save as and the questions of `FormPosition`: what they ask, decide and do to the record.
/// They know no window, and are to be called outside of the cycle's ticks, but for `aenderungenBehandelt` and
/// the two saves, which leave the points alone.
class PositionsBefehle {
 public:
  explicit PositionsBefehle(const BefehlUmgebung& umgebung) : u_(umgebung) {}

  /// Asks whether changed data are to be saved, and does so. True if the step that would drop them may go on:
  /// nothing was changed, they are saved, or the user gives them up. A save that fails or is given up keeps
  /// them.
  bool aenderungenBehandelt();

  /// A new measurement with the defaults. `entschieden` runs once the user can't go back any more. True if
  /// there is one.
  bool M_Neu(const std::function<void()>& entschieden);
  /// Loads a file that the user chooses; a refused one changes nothing. True if there are other data now.
  bool M_Oeffnen(const std::function<void()>& entschieden);
  /// Writes the file anew if the data were saved before, else as `M_SpeichernUnter`. True if the data are
  /// saved.
  bool M_Speichern();
  /// Asks for name and file information, and writes the file.
  bool M_SpeichernUnter();

 private:
  bool schreiben();
  std::string messordner();
  /// The file's name without its folder; empty as long as the measurement has none.
  std::string bisherigerName() const;

  BefehlUmgebung u_;
};

}  // namespace korvin
