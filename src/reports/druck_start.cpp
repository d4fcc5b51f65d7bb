#include "reports/druck_start.h"

#include <exception>
#include <string>
#include <system_error>

#include "frame/file_message.h"

namespace korvin {
namespace {

int fehlernummer(const std::exception& fehler) {
  const auto* vomSystem = dynamic_cast<const std::system_error*>(&fehler);
  return vomSystem ? vomSystem->code().value() : 0;
}

}  // namespace

void DruckGescheitert(const std::exception& fehler, const DruckUmgebung& u) {
  u.meldung.MsgTitel = dateiTitel(u.dictionary, "DruckStart", std::to_string(fehlernummer(fehler)));
  u.meldung.MsgText = u.dictionary.DicText(1101) + NeueZeile + fehler.what();
  u.messages.beep();
  u.messages.show(u.meldung, MessageIcon::warning, MessageButtons::ok);
}

bool DruckStart(const Bericht& bericht, Drucker& drucker, const DruckUmgebung& umgebung) {
  try {
    bericht.drucken(drucker);
    return true;
  } catch (const std::exception& fehler) {
    DruckGescheitert(fehler, umgebung);
    return false;
  }
}

}  // namespace korvin
