#pragma once

#include <string>

#include "frame/clock.h"

namespace korvin {

/// The date text of data that were never saved.
inline constexpr const char* LeerDatum = "--.--- ---- / --:--:--";

/// The present moment as it is saved in `Datum`: "4.03 2003 / 09:15:00".
std::string DatumText(const Clock& clock);

/// Checks an entered time and writes it back as "hh:mm:ss"; ':', '.' and ',' all separate. A blank text
/// passes and becomes empty. False, and the text as it was, if it is no time.
bool zeitPruefen(std::string& text);

/// The same for a date, written back as "dd.mm.yy".
bool datumPruefen(std::string& text);

}  // namespace korvin
