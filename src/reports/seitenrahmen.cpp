#include "reports/seitenrahmen.h"

#include <string_view>

#include "frame/number_format.h"
#include "reports/druck_hilfen.h"

namespace korvin {
namespace {

constexpr std::string_view hersteller = "Vantro Systems AG, Neustadt";
constexpr std::string_view programm = "WIN-KORVIN, Version 5.55 / qk ";

constexpr double kopfSchrift = 18;
constexpr double kopfY = 10;
constexpr double kopfRegelY = 20;
constexpr double kopfRegelBreite = 3;

constexpr double fussSchrift = 7;
constexpr double fussY = 275;
constexpr double programmX = 105;
constexpr double seiteX = 180;

/// A text of the foot, which may reach as far as `rechts`.
void fussText(Drucker& drucker, double x, std::string_view text, double rechts) {
  PositionSetzen(drucker, x, fussY);
  LinksDruck(drucker, text, rechts);
}

}  // namespace

SeitenTexte seitenTexte(Dictionary& dictionary, const std::string& FirmaName) {
  return {"KORVIN-" + dictionary.DicText(3057) + ":  " + FirmaName,
          dictionary.DicText(3062) + std::string(hersteller), dictionary.DicText(3063) + ": "};
}

void Seitenrahmen::SeiteKopf() {
  if (!ErsteSeite) drucker_.neueSeite();
  ErsteSeite = false;
  millimeterSkala(drucker_);
  schriftSetzen(drucker_, kopfSchrift);
  PositionSetzen(drucker_, LinkerRand, kopfY);
  LinksDruck(drucker_, texte_.kopf);
  drucker_.setLinienBreite(kopfRegelBreite);
  regel(drucker_, LinkerRand, kopfRegelY, RechterRand, kopfRegelY);
  drucker_.setLinienBreite(1);
}

void Seitenrahmen::SeiteFuss() {
  millimeterSkala(drucker_);
  schriftSetzen(drucker_, fussSchrift);
  fussText(drucker_, LinkerRand, texte_.hersteller, programmX);
  fussText(drucker_, programmX, programm, seiteX);
  fussText(drucker_, seiteX, texte_.seite + formatNumber(drucker_.seite(), "00"), SeitenBreite);
}

}  // namespace korvin
