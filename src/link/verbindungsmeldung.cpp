#include "link/verbindungsmeldung.h"

#include "frame/number_format.h"
#include "link/mscomm.h"

namespace korvin {
namespace {

std::string grund(const KameraAntwort& antwort, Dictionary& dictionary) {
  const std::string port = "Com: " + formatNumber(antwort.Port, "0");
  if (antwort.ERR == CommPortBelegt) return port + ";  " + dictionary.DicText(6025);
  if (antwort.ERR == CommPortFehlt) return port + ";  " + dictionary.DicText(6024);
  return port + " - " + dictionary.DicText(6026) + "(" + dictionary.DicText(6027) + ")";
}

}  // namespace

Meldung keineVerbindung(const std::string& titel, const KameraAntwort& antwort, Dictionary& dictionary) {
  std::string text = dictionary.DicText(6011) + NeueZeile + NeueZeile;
  text += grund(antwort, dictionary) + NeueZeile;
  text += "Err:" + formatNumber(antwort.ERR, "0") + NeueZeile;
  text += NeueZeile + dictionary.DicText(6012) + NeueZeile;
  return {titel, text};
}

Meldung wiederverbindenGescheitert(const std::string& titel, const KameraAntwort& antwort,
                                   Dictionary& dictionary) {
  return {titel, dictionary.DicText(6040) + "  Err: " + formatNumber(antwort.ERR, "0") + NeueZeile +
                     dictionary.DicText(6041)};
}

}  // namespace korvin
