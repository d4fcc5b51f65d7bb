#pragma once

#include <exception>

#include "frame/dictionary.h"
#include "frame/message_port.h"
#include "reports/bericht.h"

namespace korvin {

/// What a print entry reports its failure with. All outlive the call.
struct DruckUmgebung {
  MessagePort& messages;
  Meldung& meldung;
  Dictionary& dictionary;
};

/// The print entry of all reports: composes `bericht` on `drucker`. True if it is complete. A failure is
/// shown in a message with the system's error number (0 where there is none), and gives false; the print job
/// is left as it was. `DruckAbgebrochen` passes.
bool DruckStart(const Bericht& bericht, Drucker& drucker, const DruckUmgebung& umgebung);

/// The same message for what fails outside of the composing: handing pages over, making a file of them.
void DruckGescheitert(const std::exception& fehler, const DruckUmgebung& umgebung);

}  // namespace korvin
