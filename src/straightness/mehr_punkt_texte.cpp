#include "straightness/mehr_punkt_texte.h"

#include <cstddef>
#include <span>

#include "frame/number_format.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr std::int16_t TextTitel = 2100;
constexpr std::int16_t TextWinkel = 2101;
constexpr std::int16_t TextMessen = 2102;
constexpr std::int16_t TextMittelwert = 7632;
constexpr const char* VonVollkreis = "° / 360° ";

/// The angle to turn to; at the start, that nothing is turned yet.
std::string fortschritt(const MehrPunkt& messung, Dictionary& dictionary) {
  if (messung.mitte()) return " --- ";
  const std::string messen = dictionary.DicText(TextMessen);
  const int ist = messung.MehrPunktIst();
  if (ist == 0) return dictionary.DicText(TextWinkel) + " " + formatNumber(ist, "0") + VonVollkreis + messen;
  return " " + messen + formatWithBlank(messung.winkel(ist)) + VonVollkreis;
}

std::vector<std::string> zeilen(std::span<const double> werte, std::int16_t Masssystem) {
  std::vector<std::string> alle;
  for (const double wert : werte)
    alle.push_back(formatNumber(static_cast<double>(alle.size() + 1), "0") + ": " +
                   mehrPunktWert(wert, Masssystem));
  return alle;
}

}  // namespace

MehrPunktTexte mehrPunktTexte(const MehrPunkt& messung, std::int16_t punkt, std::int16_t Masssystem,
                              Dictionary& dictionary) {
  MehrPunktTexte texte;
  texte.titel = " " + dictionary.DicText(TextTitel) + "  /  MP: #" + formatNumber(punkt, "0");
  texte.Label1 = {"Xc:", "Yc:", fortschritt(messung, dictionary)};
  texte.LstXvals = zeilen(messung.X(), Masssystem);
  texte.LstYvals = zeilen(messung.Y(), Masssystem);
  const auto& mitte = messung.mitte();
  if (!mitte) return texte;
  texte.LblX_mitte = mehrPunktWert(mitte->Xc, Masssystem);
  texte.LblY_mitte = mehrPunktWert(mitte->Yc, Masssystem);
  if (!mitte->kreis) {
    texte.Label1[0] = "X/:";
    texte.Label1[1] = "Y/:";
    texte.hinweis = dictionary.DicText(TextMittelwert);
  }
  return texte;
}

const char* wertMuster(std::int16_t Masssystem) {
  return Masssystem == MasssystemInch ? "0.00" : "0.0000";
}

std::string mehrPunktWert(double mm, std::int16_t Masssystem) {
  return formatNumber(anzeigeWert(mm, Masssystem), wertMuster(Masssystem));
}

}  // namespace korvin
