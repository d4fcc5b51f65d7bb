#pragma once

// New, Open, Save and Save as: the same in all measuring windows.
//
// How to add a kind: implement `Messdaten` in its core, and hand it to the `DateiBefehle` of its window.

#include <cstdint>
#include <functional>
#include <string>

#include "frame/clock.h"
#include "frame/datei_kopf.h"
#include "frame/dictionary.h"
#include "frame/file_dialog.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"

namespace korvin {

/// The dialog of file information, `FormDateiInfoO` and its like. A port.
class DateiInfoDialog {
 public:
  virtual ~DateiInfoDialog() = default;

  /// Lets the user edit `Bezeichnung`, `Bediener` and `Kommentar`. False, and nothing changed, after Cancel.
  virtual bool bearbeiten(const DateiKopf& kopf) = 0;
};

/// The data of a measuring kind, as its commands see them.
class Messdaten {
 public:
  virtual ~Messdaten() = default;

  virtual std::int16_t messart() const = 0;
  /// The fields of the working record.
  virtual DateiKopf kopf() = 0;
  /// Another number after every reading that was taken.
  virtual std::uint32_t stand() const = 0;

  /// A new measurement with the defaults.
  virtual void neu() = 0;
  /// Reads a file into the kind's image. True on success; a failure was told.
  virtual bool laden(const std::string& name) = 0;
  /// Makes the image the measurement in work.
  virtual void bildUebernehmen() = 0;
  /// Writes the measurement in work. True on success; a failure was told.
  virtual bool speichern(const std::string& name) = 0;
};

/// What the commands work with. All outlive them.
struct DateiBefehlUmgebung {
  const Clock& clock;
  MessagePort& messages;
  FileDialog& fileDialog;
  DateiInfoDialog& dateiInfo;
  Dictionary& dictionary;
  Profil& profil;
  Meldung& meldung;
  Systemwerte& system;
  Messdaten& daten;
};

/// New, Open, Save, Save as and their questions: what they ask, decide and do to the record. They know no
/// window, and are to be called outside of the cycle's ticks, but for `aenderungenBehandelt` and the two
/// saves, which leave the readings alone.
class DateiBefehle {
 public:
  explicit DateiBefehle(const DateiBefehlUmgebung& umgebung) : u_(umgebung) {}

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
  /// Pattern of the kind's files with its word, as the file dialogs show it.
  std::string filterText();
  /// The file's name without its folder; empty as long as the measurement has none.
  std::string bisherigerName() const;

  DateiBefehlUmgebung u_;
};

}  // namespace korvin
