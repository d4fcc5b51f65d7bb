#include "link/scan_rs.h"

#include <string>

#include "frame/zahl_text.h"

namespace korvin {
namespace {

constexpr double PauseProPort = 0.05;

std::int16_t gespeicherteZahl(Profil& profil, const Einstellung& einstellung) {
  return ganzzahlAusText(profil.wert(einstellung));
}

/// Opens, asks and closes. `antwortete` tells whether a head answered.
bool antwortet(SuchUmgebung& u, std::int16_t port, const std::string& settings) {
  if (!u.korCom.ComOeffnen(u.control, port, settings, "0", u.antwort)) return false;
  const bool gefunden = u.korCom.KameraAbfrage(u.control, SuchAnfrage, PollLimit, u.antwort, true);
  u.korCom.ComSchliessen(u.control);
  return gefunden;
}

void merken(Profil& profil, std::int16_t port, const std::string& settings) {
  profil.schreiben(einstellung::ScanRS::BaudRate, std::to_string(BaudRateAusSettings(settings)));
  profil.schreiben(einstellung::ScanRS::PortNr, std::to_string(port));
}

bool durchsuchen(SuchUmgebung& u, SuchAnsicht& ansicht, const std::string& settings, int balkenVersatz) {
  for (std::int16_t port = 1; port <= LetzterPort; ++port) {
    ansicht.setWert(port + balkenVersatz);
    pause(u.clock, u.pump, PauseProPort);
    if (antwortet(u, port, settings)) {
      merken(u.profil, port, settings);
      return true;
    }
  }
  return false;
}

}  // namespace

bool ScanRS(SuchUmgebung& u, SuchAnsicht& ansicht) {
  // A search that midnight overtakes goes on with the next port: no one could close its dialog.
  u.korCom.aufgeben = [] { return true; };
  ansicht.beginne(0, 2 * LetzterPort, 1);
  const std::int16_t port = gespeicherteZahl(u.profil, einstellung::ScanRS::PortNr);
  if (antwortet(u, port, SettingsAusBaudRate(gespeicherteZahl(u.profil, einstellung::ScanRS::BaudRate))))
    return true;
  return durchsuchen(u, ansicht, Settings115200, 0) || durchsuchen(u, ansicht, Settings19200, LetzterPort);
}

}  // namespace korvin
