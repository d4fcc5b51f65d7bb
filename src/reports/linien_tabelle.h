#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "reports/tabelle.h"

/// The tables of the reports of lines: number, z and one or two columns of values. To make one, set title and
/// places of a `Tabelle`, add columns in this order, and the footnotes.
namespace korvin {

/// Numbers of the points.
void nummernSpalte(Tabelle& tabelle, const std::string& kopf);

/// z of the points: `mm` gives that of point i in mm, shown in mm or inch.
void zSpalte(Tabelle& tabelle, std::int16_t Masssystem, std::function<double(int)> mm);

/// A column of values.
struct WertSpalte {
  std::string_view name;  ///< "X"
  std::function<std::string(int)> wert;
  std::function<std::string_view(int)> marke;
};

/// One or two columns of values, in mm or mil; one stands where the first of two would.
void wertSpalten(Tabelle& tabelle, std::int16_t Masssystem, const std::vector<WertSpalte>& spalten);

/// The footnotes: how it was evaluated, what stands for an open reading, and which mark a value has beyond
/// the tolerance, by what that refers to.
std::vector<Fussnote> linienFussnoten(Dictionary& dictionary, const std::string& auswertung);

}  // namespace korvin
