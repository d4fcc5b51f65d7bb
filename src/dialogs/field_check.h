#pragma once

#include <string>

#include "dialogs/settings_field.h"
#include "frame/dictionary.h"
#include "frame/eingabe.h"
#include "frame/message_port.h"

namespace korvin {

inline constexpr int PortMinimum = 1;
inline constexpr int PortMaximum = 16;

/// The checks of the entry boxes of a settings dialog.
class Feldpruefer {
 public:
  /// All three outlive it. The message is composed in `meldung`.
  Feldpruefer(Dictionary& dictionary, MessagePort& messages, Meldung& meldung)
      : dictionary_(dictionary),
        messages_(messages),
        meldung_(meldung),
        eingabe_(dictionary, messages, meldung) {}

  /// True if `text` passes; it then stands in its form ("3", "09:05:00"). Otherwise a warning tells what is
  /// accepted, and the text stays as it was.
  bool pruefen(FeldPruefung pruefung, std::string& text);

  /// The same words in short, to stand beside the box: "Permitted range: 1 .. 16". Empty without a check.
  std::string bereichText(FeldPruefung pruefung);

 private:
  void zeitMelden();

  Dictionary& dictionary_;
  MessagePort& messages_;
  Meldung& meldung_;
  Eingabe eingabe_;
};

}  // namespace korvin
