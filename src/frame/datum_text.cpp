#include "frame/datum_text.h"

#include <optional>
#include <string_view>

#include "frame/date_format.h"

namespace korvin {
namespace {

using Parse = std::optional<double> (*)(std::string_view);

bool check(std::string& text, Parse parse, std::string_view pattern) {
  if (text.find_first_not_of(" \t") == std::string::npos) {
    text.clear();
    return true;
  }
  const std::optional<double> days = parse(text);
  if (days) text = formatDate(*days, pattern);
  return days.has_value();
}

}  // namespace

std::string DatumText(const Clock& clock) {
  return formatDate(clock.now(), "d.mm yyyy / hh:mm:ss");
}

bool zeitPruefen(std::string& text) {
  return check(text, parseTime, "hh:mm:ss");
}

bool datumPruefen(std::string& text) {
  return check(text, parseDate, "dd.mm.yy");
}

}  // namespace korvin
