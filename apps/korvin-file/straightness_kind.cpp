#include "korvin-file/straightness_kind.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <variant>

#include "frame/textkopie.h"
#include "korvin-file/csv.h"
#include "reports/gerad_bericht.h"
#include "straightness/auswertung.h"
#include "straightness/masseinheit.h"
#include "straightness/numeric/kennwerte.h"
#include "straightness/straightness_reader.h"
#include "straightness/text_copy.h"
#include "straightness/toleranz.h"

namespace korvin::file {
namespace {

constexpr std::string_view xDiagramPart = "x-diagram";
constexpr std::string_view yDiagramPart = "y-diagram";
constexpr std::string_view xPart = "x";
constexpr std::string_view yPart = "y";

/// The names of a system of units.
struct UnitNames {
  std::string along;   ///< of z
  std::string across;  ///< of readings and what is computed from them
};

std::int16_t systemOf(const Units& units) {
  return units.inch ? MasssystemInch : std::int16_t{0};
}

UnitNames namesOf(const Units& units) {
  return units.inch ? UnitNames{"in", "mil"} : UnitNames{"mm", "mm"};
}

struct Mode {
  std::string_view name;
  std::int16_t Auswertung;
};
constexpr std::array<Mode, 3> modes{{{"ROH", AuswertungROH}, {"ISO", AuswertungISO}, {"REF", AuswertungREF}}};

/// The fields in the file's own form: a series taken over from an older one has lost what does not convert.
Value fieldsAsTheyLie(const GeladeneForm& form) {
  // Here the empty value is told as the number that it is: `AbschnittStart` has it as its own "none".
  return std::visit(
      [](const auto& record) { return fieldsOf(dump(record), [](std::string_view) { return false; }); },
      form);
}

/// The worst section. It is searched in steps of the even distance, also where points were moved.
Value sectionOf(const Auswertefeld& values, const AchsenToleranz& tolerance, double step,
                std::int16_t system) {
  AchsenAbschnitt section;
  const bool found = AbschnittSuchen(values.elements(), step, tolerance, section);
  const auto told = [found](double value) { return found ? Value::ofNumber(value) : Value{}; };
  return Value::ofObject({{"found", Value::ofTruth(found)},
                          {"value", told(section.AbschnittWert)},
                          {"length", told(anzeigeLaenge(section.AbschnittLaenge, system))},
                          {"start", Value::ofNumber(static_cast<long long>(section.AbschnittStart))}});
}

/// The values with what the window shows of them. They are in the unit of `values`.
Value evaluatedAxis(const Auswertefeld& values, Value section) {
  Value list = Value::ofList();
  for (std::size_t i = 1; i <= values.anzahl(); ++i) list.list.push_back(Value::ofReading(values.at(i)));
  const Kennwert mean = Mittelwert(values.elements());
  const Kennwert deviation = Standardabweichung(values.elements());
  const Extremwerte extremes = MinMax(values.elements());
  const auto told = [](bool valid, double value) { return valid ? Value::ofNumber(value) : Value{}; };
  return Value::ofObject({{"values", std::move(list)},
                          {"mean", told(mean.gueltig, mean.wert)},
                          {"deviation", told(deviation.gueltig, deviation.wert)},
                          {"max", told(extremes.gueltig, extremes.Maximum)},
                          {"min", told(extremes.gueltig, extremes.Minimum)},
                          {"section", std::move(section)}});
}

class StraightnessFile : public MeasuringFile {
 public:
  StraightnessFile(GeladeneForm form, std::uint64_t length) : form_(std::move(form)), length_(length) {
    formUebernehmen(form_, series_);
  }

  std::string summary() const override {
    return std::to_string(count()) + (count() == 1 ? " point" : " points");
  }

  void tell(Value& object, const Units& units) const override {
    const UnitNames names = namesOf(units);
    object.add("length", Value::ofNumber(static_cast<long long>(length_)));
    object.add("fields", fieldsAsTheyLie(form_));
    object.add("units", Value::ofObject({{"z", Value::ofText(names.along)},
                                         {"x", Value::ofText(names.across)},
                                         {"y", Value::ofText(names.across)}}));
    Value points = Value::ofList();
    for (std::size_t i = 1; i <= count(); ++i) points.list.push_back(point(i, units));
    object.add("points", std::move(points));
    Value modesTold = Value::ofObject();
    for (const Mode& mode : modes)
      modesTold.add(std::string(mode.name) + "_" + names.across, bothAxes(mode, units));
    object.add("evaluated", std::move(modesTold));
  }

  std::string textCopy(const Units& units, Dictionary& dictionary) const override {
    return textkopieBytes(geradTextCopy(series_, systemOf(units), dictionary));
  }

  std::string table(const Units& units) const override {
    std::string text = heading(units);
    const Auswertefeld xISO = values(series_.X, AuswertungISO, units);
    const Auswertefeld yISO = values(series_.Y, AuswertungISO, units);
    const Auswertefeld xREF = values(series_.X, AuswertungREF, units);
    const Auswertefeld yREF = values(series_.Y, AuswertungREF, units);
    for (std::size_t i = 1; i <= count(); ++i) {
      std::vector<Value> cells;
      for (auto& member : point(i, units).members) cells.push_back(std::move(member.second));
      for (const Auswertefeld* column : {&xISO, &yISO, &xREF, &yREF})
        cells.push_back(Value::ofReading(column->at(i)));
      text += csvRow(cells);
    }
    return text;
  }

  Bericht report(const ReportMeans& means) const override {
    const auto wanted = [&means](std::string_view part) {
      return std::find(means.parts.begin(), means.parts.end(), part) != means.parts.end();
    };
    return geradBericht({series_, means.dictionary, means.clock, systemOf(means.units), means.path},
                        {wanted(xDiagramPart), wanted(yDiagramPart), wanted(xPart), wanted(yPart)});
  }

 private:
  /// Points that one of the axes counts.
  std::size_t count() const { return std::max(series_.X.Wert.anzahl(), series_.Y.Wert.anzahl()); }

  /// A reading in the unit shown. It is open where the axis counts no such point.
  static Value reading(const GeradAchse& axis, std::size_t i, const Units& units) {
    if (i > axis.Wert.anzahl() || istLeer(axis.Wert.at(i))) return {};
    return Value::ofNumber(anzeigeWert(axis.Wert.at(i), systemOf(units)));
  }

  Value point(std::size_t i, const Units& units) const {
    return Value::ofObject({{"number", Value::ofNumber(static_cast<long long>(i))},
                            {"z", Value::ofNumber(anzeigeLaenge(series_.Linie.Z.at(i), systemOf(units)))},
                            {"x", reading(series_.X, i, units)},
                            {"y", reading(series_.Y, i, units)}});
  }

  static std::string heading(const Units& units) {
    const auto [along, across] = namesOf(units);
    std::vector<Value> cells{Value::ofText("number"), Value::ofText("z_" + along)};
    for (const char* column : {"x", "y", "x_ISO", "y_ISO", "x_REF", "y_REF"})
      cells.push_back(Value::ofText(std::string(column) + "_" + across));
    return csvRow(cells);
  }

  Auswertefeld values(const GeradAchse& axis, std::int16_t Auswertung, const Units& units) const {
    return ReiheAuswerten({Auswertung, series_.Info.Ref1, series_.Info.Ref2, systemOf(units)},
                          {axis.Wert.elements(), series_.Linie.Z});
  }

  Value axis(const GeradAchse& axis, const AchsenToleranz& tolerance, const Mode& mode,
             const Units& units) const {
    const Auswertefeld evaluated = values(axis, mode.Auswertung, units);
    return evaluatedAxis(evaluated, sectionOf(evaluated, tolerance, series_.Linie.ZSchritt, systemOf(units)));
  }

  Value bothAxes(const Mode& mode, const Units& units) const {
    return std::visit(
        [&](const auto& own) {  // the section is as long as the file says, also where its form is older
          return Value::ofObject(
              {{"X", axis(series_.X, own.X, mode, units)}, {"Y", axis(series_.Y, own.Y, mode, units)}});
        },
        form_);
  }

  GeladeneForm form_;
  std::uint64_t length_;  ///< bytes of the file
  GeradReihe series_;     ///< as opening the file in a fresh program gives it
};

/// "5643, 3243 or 3231".
std::string lengths() {
  return std::to_string(recordSize<GeradDatei>()) + ", " + std::to_string(recordSize<GeradDateiVorher>()) +
         " or " + std::to_string(recordSize<GeradDateiErste>());
}

std::string trouble(const StraightnessReadError& error, const StraightnessReader& reader) {
  switch (error.kind) {
    case StraightnessReadError::Kind::unreadable:
      return readingTrouble(error.file);
    case StraightnessReadError::Kind::unknownForm:
      return "is " + std::to_string(reader.length()) + " bytes long, not " + lengths();
    case StraightnessReadError::Kind::tooManyPoints:
      return "its number of points is not from 0 to " +
             std::to_string(reader.otherLength() ? MaxPunkteAlt : MaxPunkteG);
    case StraightnessReadError::Kind::noSuchPoint:
      return "its current point or a reference point is not from 0 to " + std::to_string(MaxPunkteG);
    case StraightnessReadError::Kind::notANumber:
      return "one of its values is no finite number";
    case StraightnessReadError::Kind::none:
      break;
  }
  return {};
}

class StraightnessKind : public MeasuringKind {
 public:
  std::string_view name() const override { return "straightness"; }
  std::string_view extension() const override { return ".G"; }
  std::vector<std::string_view> endingsBeside() const override { return {}; }
  std::vector<std::string_view> reportParts() const override {
    return {xDiagramPart, yDiagramPart, xPart, yPart};
  }

  std::unique_ptr<MeasuringFile> read(FileSystem& files, const std::string& path) const override {
    StraightnessReader reader(files, path);
    GeladeneForm form;
    if (const StraightnessReadError error = reader.readForm(form)) throw FileProblem(trouble(error, reader));
    return std::make_unique<StraightnessFile>(std::move(form), reader.length());
  }
};

}  // namespace

const MeasuringKind& straightnessKind() {
  static const StraightnessKind kind;
  return kind;
}

}  // namespace korvin::file
