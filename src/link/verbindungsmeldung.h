#pragma once

#include <string>

#include "frame/dictionary.h"
#include "frame/message_port.h"
#include "link/kamera_antwort.h"

/// The messages of a link that can't be had. UTF-8.
namespace korvin {

/// A window could not go online and goes on with the simulated head.
Meldung keineVerbindung(const std::string& titel, const KameraAntwort& antwort, Dictionary& dictionary);

/// The port could not be opened again after a lost link.
Meldung wiederverbindenGescheitert(const std::string& titel, const KameraAntwort& antwort,
                                   Dictionary& dictionary);

}  // namespace korvin
