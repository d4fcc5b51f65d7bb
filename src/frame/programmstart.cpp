#include "frame/programmstart.h"

#include <filesystem>
#include <utility>

namespace korvin {
namespace {

constexpr double layoutUnitsPerPixel = 10;

double skala(int pixels, double design) {
  return pixels >= 1 ? pixels * layoutUnitsPerPixel / design / 10 : 1;
}

}  // namespace

std::string dbPfad(const std::string& programFolder) {
  return (std::filesystem::path(programFolder) / "korvin.mdb").string();
}

double skalaX(int breite) {
  return skala(breite, 1280);
}

double skalaY(int hoehe) {
  return skala(hoehe, 1024);
}

Startergebnis Programmstart::laden(const std::string& programFolder, const Bildschirm& bildschirm,
                                   const std::function<void()>& dicOeffnen) {
  system_.DbPfad = dbPfad(programFolder);
  dicOeffnen();
  ersteAktivierung_ = true;
  system_.SkalaX = skalaX(bildschirm.breite);
  system_.SkalaY = skalaY(bildschirm.hoehe);
  anzeige_.laden();
  return EinstellungsPruefung(tree_, dictionary_, messages_, meldung_, programFolder).pruefen();
}

bool Programmstart::ersteAktivierung() {
  return std::exchange(ersteAktivierung_, false);
}

}  // namespace korvin
