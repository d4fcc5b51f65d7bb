#include "link/telegramm.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "frame/zahl_text.h"

namespace korvin {
namespace {

// The preamble ends in the start byte, and the frame adds its own: the doubled start byte is part of the
// format.
constexpr std::string_view praeambel = "\xAA\xAA\xAA\xAA\xAA\xAA\xFF\xFF\x17";

/// Columns `erste` to `letzte`, counted from 1; what lies beyond the body is left out.
std::string_view spalten(std::string_view rumpf, std::size_t erste, std::size_t letzte) {
  if (rumpf.size() < erste) return {};
  return rumpf.substr(erste - 1, letzte - erste + 1);
}

char spalte(std::string_view rumpf, std::size_t nummer) {
  return rumpf.size() < nummer ? ' ' : rumpf[nummer - 1];
}

/// Six digits as a raw count.
double rohwert(std::string_view feld) {
  const double wert = zahlAusText(feld);
  if (!(std::abs(wert) <= 999999)) throw std::overflow_error("count beyond six digits");
  return wert;
}

std::int16_t gerundet16(double wert) {
  constexpr double hoechste = std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(std::lround(std::clamp(wert, -hoechste, hoechste)));
}

}  // namespace

char PruefzeichenBilden(std::string_view text, int modul) {
  int summe = 0;
  for (const char zeichen : text) summe += static_cast<unsigned char>(zeichen);
  if (summe > std::numeric_limits<std::int16_t>::max()) throw std::overflow_error("check sum beyond 16 bits");
  return static_cast<char>(summe % modul + 32);
}

bool PruefzeichenPruefen(std::string_view rumpf, int modul) {
  if (rumpf.empty()) return false;
  return PruefzeichenBilden(rumpf.substr(0, rumpf.size() - 1), modul) == rumpf.back();
}

std::string rahmenBilden(std::string_view nutzdaten, int modul) {
  std::string rahmen(praeambel);
  rahmen += RahmenStart;
  rahmen += nutzdaten;
  rahmen += PruefzeichenBilden(nutzdaten, modul);
  rahmen += RahmenEnde;
  return rahmen;
}

std::string anfrage(const KameraAntwort& antwort, char Filterstufe, char befehl) {
  const std::string nummer = std::to_string(antwort.KameraNr);
  return {nummer.front(), Filterstufe, '-', '-', befehl};
}

RahmenSuche rahmenSuchen(std::string_view puffer) {
  const std::size_t ende = puffer.rfind(RahmenEnde);
  if (ende == std::string_view::npos) return {};
  const std::size_t anfang = puffer.substr(0, ende).rfind(RahmenStart);
  if (anfang == std::string_view::npos) return {RahmenSuche::Fund::ohneAnfang, {}};
  return {RahmenSuche::Fund::rahmen, std::string(puffer.substr(anfang + 1, ende - anfang - 1))};
}

bool istAntwortart(char art) {
  return std::string_view("mjLRT").find(art) != std::string_view::npos;
}

bool antwortZerlegen(std::string_view rumpf, KameraAntwort& antwort) {
  antwort.Klasse = spalte(rumpf, 1);
  antwort.Zeichen2 = spalte(rumpf, 2);
  antwort.Taste = spalte(rumpf, 3);
  antwort.Status = spalte(rumpf, 4);
  antwort.Antwortart = spalte(rumpf, 5);
  if (!istAntwortart(antwort.Antwortart)) {
    antwort.Antwortart = '?';
    return false;
  }
  if (antwort.Antwortart == 'm' || antwort.Antwortart == 'j') {
    antwort.RohX = rohwert(spalten(rumpf, 7, 12));
    antwort.RohY = rohwert(spalten(rumpf, 14, 19));
    antwort.Wert3 = zahlAusText(spalten(rumpf, 21, 25));
    antwort.Intensitaet = gerundet16(zahlAusText(spalten(rumpf, 27, 28)));
  }
  return true;
}

}  // namespace korvin
