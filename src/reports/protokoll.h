#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/dictionary.h"
#include "reports/bericht.h"
#include "reports/info_block.h"

/// What the reports of all kinds begin with.
namespace korvin {

/// Date and time as reports tell them.
inline constexpr std::string_view ProtokollZeitMuster = "dd.mm.yy hh:mm:ss";

/// What stands in place of what was not measured.
inline constexpr std::string_view OhneWert = "?.?";

/// What the information block tells of a measurement; all texts are UTF-8.
struct ProtokollAngaben {
  std::string Bezeichnung;
  std::string system;     ///< what it was measured with
  std::string dateiName;  ///< bare
  std::string Bediener;
  std::string Datum;  ///< as the record holds it, "4.03 2003 / 09:15:00"
  int AnzMPs = 0;
  std::int16_t nebenText = 0;  ///< number of the label beside the number of points
  std::string neben;           ///< its value: length of the line, or when it was measured
  std::int16_t Montage = 0;
  char Filter = ' ';
  std::string Kommentar;
};

/// The information block of a report, its words taken when it is made.
class ProtokollInfo {
 public:
  ProtokollInfo(Dictionary& dictionary, const ProtokollAngaben& angaben);

  /// Prints it at its place; `druckzeit` in days is the moment of printing.
  void drucken(Drucker& drucker, double druckzeit) const;

 private:
  std::vector<InfoZeile> zeilen_;
};

/// The bare name of a measuring file, without blanks before it; nothing for the mask ("*.G") that a
/// measurement without a file has.
std::string protokollDatei(const std::string& pfad);

/// The report that `drucken` composes, of the measuring file `dateiName` (bare, may be empty).
Bericht protokoll(Dictionary& dictionary, const std::string& dateiName,
                  std::function<void(Drucker&)> drucken);

}  // namespace korvin
