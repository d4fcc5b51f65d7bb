#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "frame/dictionary.h"
#include "frame/message_port.h"

namespace korvin {

/// What a checked number has to be: its form, and the limits in the unit that is entered.
struct ZahlGrenzen {
  std::string_view muster;
  double minimum;
  double maximum;
  bool leerErlaubt = false;
};

/// The limits of a length along the beam, told in mm; with `Masssystem` 1 it is entered in inches.
ZahlGrenzen laengeGrenzen(std::string_view muster, double minimum, double maximum, bool leerErlaubt,
                          int Masssystem);
/// The limits of `Eingabe::genauigkeit`.
ZahlGrenzen genauigkeitGrenzen(int Masssystem);
/// Both limits as they are told: rounded inwards to the decimals of the pattern, so that each of them would
/// be accepted.
std::pair<std::string, std::string> grenzTexte(const ZahlGrenzen& grenzen);

/// Checked input. Each operation reads an entered text by `zahlAusText`. If it is acceptable it is written
/// back in its form and the answer is true; otherwise a warning tells the limits, the text stays as it was,
/// and the answer is false. A blank text passes, and stays as it is, where blanks are allowed; where not, it
/// is refused whatever the limits.
/// The message tells the limits by `grenzTexte`.
class Eingabe {
 public:
  /// All three have to outlive this object. The message is composed in `meldung`.
  Eingabe(Dictionary& dictionary, MessagePort& messages, Meldung& meldung)
      : dictionary_(dictionary), messages_(messages), meldung_(meldung) {}

  /// A number from `minimum` to `maximum` in the unit that is entered, written back with `muster`.
  bool zahl(std::string& text, std::string_view muster, double minimum, double maximum, bool leerErlaubt) {
    return zahl(text, {muster, minimum, maximum, leerErlaubt});
  }
  bool zahl(std::string& text, const ZahlGrenzen& grenzen);

  /// A length along the beam, from `minimum` to `maximum` mm; with `Masssystem` 1 it is entered in inches.
  bool laenge(std::string& text, std::string_view muster, double minimum, double maximum, bool leerErlaubt,
              int Masssystem);

  /// A whole number; decimals are rounded first, halves away from zero. It has no unit.
  bool ganzzahl(std::string& text, int minimum, int maximum, bool leerErlaubt);

  /// A required accuracy from 0 to 10 mm, with three decimals; with `Masssystem` 1 it is entered in mil, with
  /// two. A blank text passes.
  bool genauigkeit(std::string& text, int Masssystem);

 private:
  void melden(const ZahlGrenzen& grenzen);

  Dictionary& dictionary_;
  MessagePort& messages_;
  Meldung& meldung_;
};

}  // namespace korvin
