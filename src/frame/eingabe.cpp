#include "frame/eingabe.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "frame/number_format.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

constexpr std::int16_t titleText = 6013;
constexpr std::int16_t rangeText = 6014;
constexpr std::int16_t notBlankText = 6015;

constexpr double mmPerInch = 25.4;
constexpr double mmPerMil = 0.0254;

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// The smallest step of a pattern: 0.01 for "0.00".
double stepOf(std::string_view muster) {
  const std::size_t point = muster.find('.');
  return point == std::string_view::npos ? 1
                                         : std::pow(10.0, -static_cast<double>(muster.size() - point - 1));
}

double inForm(double value, std::string_view muster) {
  return zahlAusText(formatNumber(value, muster));
}

/// `limit` in the decimals of `muster`, never below itself for `side` 1 and never above for −1.
std::string limitText(double limit, std::string_view muster, int side) {
  double shown = inForm(limit, muster);
  if ((limit - shown) * side > 0) shown = inForm(shown + side * stepOf(muster), muster);
  return formatGeneral(shown);
}

}  // namespace

ZahlGrenzen laengeGrenzen(std::string_view muster, double minimum, double maximum, bool leerErlaubt,
                          int Masssystem) {
  const double unit = Masssystem == 1 ? mmPerInch : 1;
  return {muster, minimum / unit, maximum / unit, leerErlaubt};
}

ZahlGrenzen genauigkeitGrenzen(int Masssystem) {
  constexpr double limit = 10;
  return Masssystem == 1 ? ZahlGrenzen{"0.00", 0, limit / mmPerMil, true}
                         : ZahlGrenzen{"0.000", 0, limit, true};
}

std::pair<std::string, std::string> grenzTexte(const ZahlGrenzen& grenzen) {
  return {limitText(grenzen.minimum, grenzen.muster, 1), limitText(grenzen.maximum, grenzen.muster, -1)};
}

bool Eingabe::zahl(std::string& text, const ZahlGrenzen& grenzen) {
  const bool blank = isBlank(text);
  if (blank && grenzen.leerErlaubt) return true;
  const double value = zahlAusText(text);
  if (!blank && value >= grenzen.minimum && value <= grenzen.maximum) {
    text = formatNumber(value, grenzen.muster);
    return true;
  }
  melden(grenzen);
  return false;
}

bool Eingabe::laenge(std::string& text, std::string_view muster, double minimum, double maximum,
                     bool leerErlaubt, int Masssystem) {
  return zahl(text, laengeGrenzen(muster, minimum, maximum, leerErlaubt, Masssystem));
}

bool Eingabe::ganzzahl(std::string& text, int minimum, int maximum, bool leerErlaubt) {
  std::string whole = isBlank(text) ? text : formatNumber(zahlAusText(text), "0");
  const bool accepted = zahl(whole, "0", minimum, maximum, leerErlaubt);
  if (accepted) text = whole;
  return accepted;
}

bool Eingabe::genauigkeit(std::string& text, int Masssystem) {
  return zahl(text, genauigkeitGrenzen(Masssystem));
}

void Eingabe::melden(const ZahlGrenzen& grenzen) {
  const auto [von, bis] = grenzTexte(grenzen);
  meldung_.MsgTitel = dictionary_.DicText(titleText) + ":";
  meldung_.MsgText = grenzen.leerErlaubt ? "" : dictionary_.DicText(notBlankText);
  meldung_.MsgText += dictionary_.DicText(rangeText) + NeueZeile + von + " .." + bis + ": ";
  messages_.beep();
  messages_.show(meldung_, MessageIcon::warning, MessageButtons::ok);
}

}  // namespace korvin
