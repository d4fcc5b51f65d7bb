#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "frame/dictionary.h"
#include "frame/file_dialog.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"

namespace korvin {

/// What the main window's file dialog offers after `M_DateiOeffnen(index)`: the five kinds in the cycle G, P,
/// R, F, O, beginning at G for index 0, P for 1, F for 2, R for 3, O for 4.
std::string FilterDateiOeffnen(Dictionary& dictionary, int index);
/// The same five kinds after one pattern for all of them: the toolbar's "DateiOeffnen".
std::string FilterAlleMessdateien(Dictionary& dictionary);

/// Asks for a measuring file, starting in `ordner`, the folder of the measuring files. The empty text after
/// Cancel.
std::string messdateiErfragen(FileDialog& dialog, Dictionary& dictionary, const std::string& filter,
                              const std::string& ordner);

/// A measuring kind as the main window sees it. To add a kind: implement this beside its window and give it
/// to `DateiVerteilung::anmelden` in main().
class MessartEmpfaenger {
 public:
  virtual ~MessartEmpfaenger() = default;

  /// Puts the name into the kind's `DateiName` and loads the file. False if it was refused; the reason was
  /// shown then.
  virtual bool laden(const std::string& name) = 0;
  /// Sets `DateiStatus` (0 new data, 1 loaded from a file), shows the kind's window modally and returns at
  /// its end.
  virtual void zeigen(std::int16_t DateiStatus) = 0;
};

/// Starts the measuring kinds: anew, or with a file by the last letter of its name. A kind that has no window
/// in this version of the program is refused with a message.
class DateiVerteilung {
 public:
  DateiVerteilung(std::int16_t& Messart, Dictionary& dictionary, MessagePort& messages, Meldung& meldung)
      : messart_(Messart), dictionary_(dictionary), messages_(messages), meldung_(meldung) {}

  /// Makes a kind known. `empfaenger` must outlive this object.
  void anmelden(std::int16_t messart, MessartEmpfaenger& empfaenger);
  /// True if the kind has a window: its entries are enabled.
  bool vorhanden(std::int16_t messart) const;

  /// New data of a kind.
  void starten(std::int16_t messart);

  /// Opens the file by the last letter of its name, blanks at the end apart: G, P, R, O, in small letters
  /// too. F does nothing; any other is refused with a message. An empty name, as after Cancel, does nothing.
  /// `Messart` is set before the kind loads the file, so that its messages speak of the right kind, and set
  /// back if it refuses.
  void verteilen(const std::string& name);

 private:
  MessartEmpfaenger* empfaenger(std::int16_t messart) const;
  void oeffnen(std::int16_t messart, const std::string& name);
  void ablehnen(const std::string& text);

  std::int16_t& messart_;
  Dictionary& dictionary_;
  MessagePort& messages_;
  Meldung& meldung_;
  std::array<MessartEmpfaenger*, 4> empfaenger_{};
};

}  // namespace korvin
