#pragma once

#include <cstdint>

#include "frame/fester_text.h"
#include "frame/flagge.h"

namespace korvin {

/// `DateiStatus` of a record.
inline constexpr std::int16_t DateiNeu = 0;
inline constexpr std::int16_t DateiGeladen = 1;
inline constexpr std::int16_t DateiGespeichert = 2;

/// What the record of every kind says of its file: the record's own fields.
struct DateiKopf {
  FesterText<75>& DateiName;  ///< full path at saving
  FesterText<75>& Bezeichnung;
  FesterText<75>& Bediener;
  FesterText<75>& Kommentar;
  FesterText<40>& Datum;
  Flagge& InfoAbbruch;
  std::int16_t& DateiStatus;
  Flagge& Geaendert;
};

/// The fields of `info`, the general part of a kind's record.
template <class Info>
DateiKopf dateiKopf(Info& info) {
  return {info.DateiName, info.Bezeichnung, info.Bediener,    info.Kommentar,
          info.Datum,     info.InfoAbbruch, info.DateiStatus, info.Geaendert};
}

}  // namespace korvin
