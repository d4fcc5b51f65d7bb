#pragma once

#include <string>

#include "frame/dictionary.h"
#include "frame/message_port.h"
#include "link/scan_rs.h"

class QWidget;

namespace korvin {

/// The search for the sensor head at the first activation of the main window, with its dialog and its
/// question.
class Kopfsuche {
 public:
  /// All references outlive the search.
  Kopfsuche(const SuchUmgebung& umgebung, Dictionary& dictionary, MessagePort& messages, Meldung& meldung)
      : umgebung_(umgebung), dictionary_(dictionary), messages_(messages), meldung_(meldung) {}

  /// Searches. `window`, over which the dialog stands, takes no input meanwhile. Where no head was found the
  /// user is asked; false if he wants the program to end.
  bool suchen(QWidget& window);
  /// True while `suchen` runs.
  bool laeuft() const { return laeuft_; }

  /// The outcome in words, for the status row; empty before a search.
  std::string zeile();

 private:
  bool ohneKopfWeiter();

  SuchUmgebung umgebung_;
  Dictionary& dictionary_;
  MessagePort& messages_;
  Meldung& meldung_;
  bool laeuft_ = false;
  enum class Ausgang { offen, gefunden, keiner } ausgang_ = Ausgang::offen;
};

}  // namespace korvin
