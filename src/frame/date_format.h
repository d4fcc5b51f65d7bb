#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvin {

/// The one way in which moments become text and text becomes moments, on screen, on paper and in files. A
/// moment is a number of days: day 0 is 30 December 1899, the fraction is the time of day. Dates are read and
/// written in the order day, month, year; no locale plays a part.
///
/// A moment is shown to the nearest second, a half to the later one, before it is split into date and time.
/// So 23:59:59.9999999 reads as 00:00:00 of the next day, never as 24:00:00 and never as a second too few,
/// and a date and a time that were formatted apart from one moment always belong together.

/// `days` in the form of `pattern`: "d", "dd" day; "m", "mm" month, but minute where the letters before it
/// were the hour; "yy", "yyyy" year; "h", "hh" hour (0 to 23); "s", "ss" second. A doubled letter pads to two
/// digits. All else stands as it is: "dd.mm.yyyy / hh:mm:ss", "d.mm yyyy", "dd.mm.yy / hh,mm,ss". What is no
/// moment of the years 100 to 9999 (NaN and infinity too) shows question marks in place of digits.
std::string formatDate(double days, std::string_view pattern);

/// Reads a date, such as "4.03 2003" or "24.12.03", as whole days. Between the numbers stands one of ". , : /
/// -" with or without blanks, or blanks alone. A year of two digits is one of 1970 to 2069: no measurement is
/// older. Nothing for a text that is no date of the calendar.
std::optional<double> parseDate(std::string_view text);

/// Reads a time of day, such as "9:05" or "09:15:00", as a fraction of a day. Between the numbers stands ':',
/// '.' or ','; the seconds may be missing, "AM" or "PM" may follow. Nothing for a text that is no time.
std::optional<double> parseTime(std::string_view text);

/// Reads a saved date text, such as "4.03 2003 / 09:15:00": a date, then perhaps '/', then perhaps a time.
/// Nothing for the placeholder of unsaved data and for any other text that is no date.
std::optional<double> parseDateTime(std::string_view text);

/// A saved date text in the form of `pattern`; a text that is no date stands as it is.
std::string reformatDate(std::string_view saved, std::string_view pattern);

}  // namespace korvin
