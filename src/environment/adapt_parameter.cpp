#include "environment/adapt_parameter.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "environment/messzahl.h"
#include "environment/unsicherheit.h"
#include "frame/number_format.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

constexpr std::array<std::string_view, 3> Sektionen = {"MessInfo_G", "MessInfo_P", "MessInfo_R"};

void ueberallSchreiben(Profil& profil, std::string_view key, std::string_view wert) {
  for (const std::string_view sektion : Sektionen) profil.ProfilSchreiben(KorvinIni, sektion, key, wert);
}

std::int16_t messZeitMinVon(Profil& profil, std::string_view sektion) {
  return ganzzahlAusText(profil.wert(sektion, "MessZeitMin", "5"));
}

std::int16_t groessteMessZeitMin(Profil& profil) {
  std::array<std::int16_t, Sektionen.size()> zeiten{};
  std::ranges::transform(Sektionen, zeiten.begin(),
                         [&profil](std::string_view sektion) { return messZeitMinVon(profil, sektion); });
  return *std::ranges::max_element(zeiten);
}

void anheben(std::string& panel) {
  if (zahlAusText(panel) < GenauigkeitMin) panel = messzahl(GenauigkeitMin);
}

std::string alsZahl(const std::string& panel) {
  return formatWithBlank(zahlAusText(panel));
}

}  // namespace

std::int16_t messZeitMin(Profil& profil) {
  return messZeitMinVon(profil, Sektionen.front());
}

void ParameterSpeichern(Profil& profil, AdaptParameter& parameter) {
  ueberallSchreiben(profil, "AutoAdapt", FlagText(true));
  anheben(parameter.FX);
  anheben(parameter.FY);
  ueberallSchreiben(profil, "X_Genauigkeit", alsZahl(parameter.FX));
  ueberallSchreiben(profil, "Y_Genauigkeit", alsZahl(parameter.FY));
  ueberallSchreiben(profil, "Beta5", FlagText(parameter.Beta5));
  ueberallSchreiben(profil, "Beta1", FlagText(parameter.Beta1));
  const std::int16_t minimum = groessteMessZeitMin(profil);
  const std::string minimumText = formatWithBlank(minimum);
  ueberallSchreiben(profil, "MessZeitMin", minimumText);
  ueberallSchreiben(profil, "MessZeitMax",
                    zahlAusText(parameter.zeit) >= minimum ? parameter.zeit : minimumText);
}

}  // namespace korvin
