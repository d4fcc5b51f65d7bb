#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "link/kamera_antwort.h"

/// The frame on the wire, as pure functions of bytes.
///
/// How to add a command: choose its letter, send `anfrage(…, letter)` through `KorCom::KameraAbfrage` with
/// its time limit, and, if the head answers with a new kind letter, add that to `istAntwortart`.
namespace korvin {

inline constexpr char RahmenStart = '\x17';
inline constexpr char RahmenEnde = '\x1B';
inline constexpr int Modul95 = 95;
inline constexpr int Modul223 = 223;

/// The check character of `text`: the sum of its character codes, modulo `modul`, plus 32. The sum is 16-bit
/// signed; a text whose sum does not fit (over some 128 bytes of noise) throws `std::overflow_error`.
char PruefzeichenBilden(std::string_view text, int modul);

/// True if the last character of `rumpf` is the check character of the rest; false for an empty body.
bool PruefzeichenPruefen(std::string_view rumpf, int modul);

/// The whole frame of a request: preamble, start, payload, check character, end. 17 bytes for a payload of
/// five.
std::string rahmenBilden(std::string_view nutzdaten, int modul);

/// The payload of a request: head id, filter level, "--", command letter.
std::string anfrage(const KameraAntwort& antwort, char Filterstufe, char befehl);

/// What a look at the received characters finds.
struct RahmenSuche {
  enum class Fund { unvollstaendig, ohneAnfang, rahmen } fund = Fund::unvollstaendig;
  std::string rumpf;  ///< between start and end byte, only with `rahmen`
};

/// Looks for the last end byte and the last start byte before it. Several frames: the last one is found.
RahmenSuche rahmenSuchen(std::string_view puffer);

/// True for the kinds of answer that the head may give: m, j, L, R, T.
bool istAntwortart(char art);

/// Columns 1 to 5 of `rumpf`; true if the kind is known. An unknown kind becomes '?'. With kinds m and j the
/// numbers are parsed too; a missing or blank field gives 0. A count of more than
/// six digits is none a head can send and throws `std::overflow_error`: stored, it would spoil all sums.
bool antwortZerlegen(std::string_view rumpf, KameraAntwort& antwort);

}  // namespace korvin
