#include "dialogs/entered_number.h"

#include <cmath>
#include <cstdint>

#include "frame/number_format.h"
#include "frame/zahl_text.h"

namespace korvin {
namespace {

constexpr std::int16_t TextGiltAls = 7480;

/// True if `text` is nothing but a number in digits, with a sign and a decimal mark at most, or blank.
bool istSchlichteZahl(std::string_view text) {
  constexpr std::string_view luecken = " \t";
  constexpr std::string_view ziffern = "0123456789";
  if (istLeerText(text)) return true;
  text.remove_prefix(text.find_first_not_of(luecken));
  text = text.substr(0, text.find_last_not_of(luecken) + 1);
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  const std::size_t marke = text.find_first_not_of(ziffern);
  if (marke == std::string_view::npos) return !text.empty();
  const bool mitMarke = text[marke] == '.' || text[marke] == ',';
  return mitMarke && text.size() > 1 && text.find_first_not_of(ziffern, marke + 1) == std::string_view::npos;
}

}  // namespace

bool istLeerText(std::string_view text) {
  return text.find_first_not_of(" \t") == std::string_view::npos;
}

double endlicheZahl(std::string_view text) {
  const double zahl = zahlAusText(text);
  return std::isfinite(zahl) ? zahl : 0;
}

std::string zahlHinweis(const std::string& text, double gelesen, Dictionary& dictionary) {
  if (istSchlichteZahl(text) && zahlAusText(text) == gelesen) return {};
  return dictionary.DicText(TextGiltAls) + ": " + formatGeneral(gelesen);
}

}  // namespace korvin
