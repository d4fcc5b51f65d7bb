#include "straightness/straightness_reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <span>
#include <utility>

namespace korvin {
namespace {

using Kind = StraightnessReadError::Kind;

bool endlich(std::span<const double> zahlen) {
  return std::all_of(zahlen.begin(), zahlen.end(), [](double zahl) { return std::isfinite(zahl); });
}

template <std::size_t N>
bool endlich(const GeradAchseMit<N>& a) {
  // Readings above the count are read by nothing, results are computed anew.
  return endlich(std::span(a.Wert.elements()).subspan(1, a.Wert.anzahl())) &&
         endlich(std::array{a.Bereich, a.Gesamt, a.WertPro, a.ProEinheit});
}

template <std::size_t N>
bool endlich(const LinienGeometrieMit<N>& linie, std::size_t punkte) {
  return endlich(std::span(linie.Z).subspan(1, punkte)) && std::isfinite(linie.Distanz) &&
         std::isfinite(linie.ZSchritt);
}

template <std::size_t N>
bool zahlenPassen(const GeradAchseMit<N>& X, const GeradAchseMit<N>& Y, std::int16_t AnzMPs) {
  return Zaehlfeld<N>::isCount(X.Wert.at(0)) && Zaehlfeld<N>::isCount(Y.Wert.at(0)) && AnzMPs >= 0 &&
         std::cmp_less_equal(AnzMPs, N);
}

bool istPunkt(std::int16_t nummer) {
  return nummer >= 0 && std::cmp_less_equal(nummer, MaxPunkteG);
}

template <std::size_t N, bool MitBaudRate>
Kind pruefen(const GeradForm<N, MitBaudRate>& r) {
  if (!zahlenPassen(r.X, r.Y, r.Linie.AnzMPs)) return Kind::tooManyPoints;
  if (!istPunkt(r.Info.Ref1) || !istPunkt(r.Info.Ref2) || !istPunkt(r.Linie.AktMP)) return Kind::noSuchPoint;
  const std::size_t punkte =
      std::max({r.X.Wert.anzahl(), r.Y.Wert.anzahl(), static_cast<std::size_t>(r.Linie.AnzMPs)});
  const bool brauchbar = endlich(r.X) && endlich(r.Y) && endlich(r.Linie, punkte) &&
                         std::isfinite(r.Adapt.X_Genauigkeit) && std::isfinite(r.Adapt.Y_Genauigkeit);
  return brauchbar ? Kind::none : Kind::notANumber;
}

}  // namespace

template <class Form>
StraightnessReadError StraightnessReader::readRecord(Form& record) {
  std::array<std::byte, recordSize<Form>()> bytes{};
  if (const FileError fehler = files_.read(0, bytes)) return {Kind::unreadable, fehler};
  record = fromBytes<Form>(bytes);
  return {pruefen(record), {}};
}

StraightnessReadError StraightnessReader::readForm(GeladeneForm& form) {
  if (error()) return {Kind::unreadable, error()};
  // Each form is read beside `form`, which stays as it is after a failure.
  const auto alsForm = [this, &form]<class Form>(Form gelesen, const auto& ergaenzt) {
    const StraightnessReadError fehler = readRecord(gelesen);
    if (!fehler) form = ergaenzt(gelesen);
    return fehler;
  };
  switch (length()) {
    case recordSize<GeradDatei>():
      return alsForm(GeradDatei{}, std::identity{});
    case recordSize<GeradDateiVorher>():
      return alsForm(GeradDateiVorher{}, std::identity{});
    case recordSize<GeradDateiErste>():
      return alsForm(GeradDateiErste{}, mitBaudRate);
    default:
      return {Kind::unknownForm, {}};
  }
}

StraightnessReadError StraightnessReader::read(GeradDatei& image) {
  GeladeneForm form;
  const StraightnessReadError fehler = readForm(form);
  if (!fehler) formUebernehmen(form, image);
  return fehler;
}

}  // namespace korvin
