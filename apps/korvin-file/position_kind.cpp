#include "korvin-file/position_kind.h"

#include <algorithm>

#include "frame/cp1252.h"
#include "frame/leerwert.h"
#include "korvin-file/csv.h"
#include "korvin-file/iso_time.h"
#include "position/position_reader.h"
#include "position/text_copy.h"
#include "reports/positions_bericht.h"
#include "straightness/numeric/kennwerte.h"

namespace korvin::file {
namespace {

constexpr std::size_t headLength = recordSize<PositionsDatei>();

constexpr std::string_view diagramPart = "diagram";
constexpr std::string_view xPart = "x";
constexpr std::string_view yPart = "y";

/// Results of an axis; before the first drawing they are the empty value.
bool isResult(std::string_view name) {
  return name.ends_with(".Mittel") || name.ends_with(".Streuung") || name.ends_with(".Maximum") ||
         name.ends_with(".Minimum");
}

Value timeOf(double days) {
  const auto text = isoTime(days);
  return text ? Value::ofText(*text) : Value{};
}

/// The readings less the offset, as a counted array. Open ones stay open.
std::vector<double> lessOffset(const AchsenInfo& axis, const PunktFeld& readings, std::size_t count) {
  std::vector<double> values{static_cast<double>(count)};
  for (std::size_t i = 1; i <= count; ++i)
    values.push_back(istLeer(readings.at(i)) ? Leerwert : readings.at(i) - axis.Offset);
  return values;
}

/// Mean, sample deviation, extremes and span of the readings less the offset, as the window shows them; but
/// from the points themselves: the sums of the record are only as good as what filled them.
Value statistics(const AchsenInfo& axis, const PunktFeld& readings, std::size_t count) {
  const std::vector<double> values = lessOffset(axis, readings, count);
  const Kennwert mean = Mittelwert(values);
  const Kennwert deviation = Standardabweichung(values);
  const Extremwerte extremes = MinMax(values);
  const auto open = std::count(values.begin() + 1, values.end(), Leerwert);
  const auto told = [](bool valid, double value) { return valid ? Value::ofNumber(value) : Value{}; };
  return Value::ofObject({{"count", Value::ofNumber(static_cast<long long>(count) - open)},
                          {"offset", Value::ofNumber(axis.Offset)},
                          {"mean", told(mean.gueltig, mean.wert)},
                          {"deviation", told(deviation.gueltig, deviation.wert)},
                          {"maximum", told(extremes.gueltig, extremes.Maximum)},
                          {"minimum", told(extremes.gueltig, extremes.Minimum)},
                          {"span", told(extremes.gueltig, extremes.Maximum - extremes.Minimum)}});
}

class PositionFile : public MeasuringFile {
 public:
  PositionFile(const PositionsDatei& head, PointStore points) : head_(head), points_(std::move(points)) {}

  std::string summary() const override {
    return std::to_string(count()) + (count() == 1 ? " point" : " points");
  }

  void tell(Value& object, const Units&) const override {
    object.add("length", Value::ofNumber(static_cast<long long>(headLength)));
    object.add("fields", fieldsOf(dump(head_), isResult));
    Value points = Value::ofList();
    for (std::size_t i = 1; i <= count(); ++i) points.list.push_back(point(i));
    object.add("points", std::move(points));
    object.add("statistics", Value::ofObject({{"x", statistics(head_.X, points_.X(), count())},
                                              {"y", statistics(head_.Y, points_.Y(), count())}}));
  }

  std::string textCopy(const Units&, Dictionary& dictionary) const override {
    return textkopieBytes(positionTextCopy(head_.Info, points_, dictionary));
  }

  Bericht report(const ReportMeans& means) const override {
    const auto wanted = [&means](std::string_view part) {
      return std::find(means.parts.begin(), means.parts.end(), part) != means.parts.end();
    };
    return positionsBericht(
        {head_, points_, means.dictionary, means.clock, means.units.inch ? 1 : 0, means.path},
        {wanted(diagramPart), wanted(xPart), wanted(yPart)});
  }

  std::string table(const Units&) const override {
    std::string text =
        csvRow({Value::ofText("number"), Value::ofText("time"), Value::ofText("x"), Value::ofText("y")});
    for (std::size_t i = 1; i <= count(); ++i) {
      std::vector<Value> cells;
      for (auto& member : point(i).members) cells.push_back(std::move(member.second));
      text += csvRow(cells);
    }
    return text;
  }

 private:
  std::size_t count() const { return static_cast<std::size_t>(head_.Info.AnzahlMP); }

  Value point(std::size_t i) const {
    return Value::ofObject({{"number", Value::ofNumber(static_cast<long long>(i))},
                            {"time", timeOf(points_.T().at(i))},
                            {"x", Value::ofReading(points_.X().at(i))},
                            {"y", Value::ofReading(points_.Y().at(i))}});
  }

  PositionsDatei head_;
  PointStore points_;
};

std::string otherCount(std::int16_t counted, std::uint64_t length) {
  constexpr std::uint64_t pointLength = 3 * sizeof(double);
  const std::string head = "its head counts " + std::to_string(counted) + " points, ";
  if (length == 0 || length % pointLength != 0)
    return head + "its point file is " + std::to_string(length) + " bytes long";
  return head + "its point file holds " + std::to_string(length / pointLength - 1);
}

std::string trouble(const PositionReadError& error, const PositionReader& reader,
                    const PositionsDatei& head) {
  switch (error.kind) {
    case PositionReadError::Kind::headUnreadable:
      return readingTrouble(error.file);
    case PositionReadError::Kind::pointsMissing:
    case PositionReadError::Kind::pointsUnreadable:
      return "its points cannot be read: " + error.file.path + ": " + readingTrouble(error.file);
    case PositionReadError::Kind::tooManyPoints:
      return "its head counts " + std::to_string(head.Info.AnzahlMP) + " points; the most are " +
             std::to_string(MaxPunkteO);
    case PositionReadError::Kind::otherCount:
      return otherCount(head.Info.AnzahlMP, reader.pointLength());
    case PositionReadError::Kind::notANumber:
      return "one of its values is no finite number";
    case PositionReadError::Kind::none:
      break;
  }
  return {};
}

class PositionKind : public MeasuringKind {
 public:
  std::string_view name() const override { return "position"; }
  std::string_view extension() const override { return ".O"; }
  std::vector<std::string_view> endingsBeside() const override { return {"1"}; }
  std::vector<std::string_view> reportParts() const override { return {diagramPart, xPart, yPart}; }

  std::unique_ptr<MeasuringFile> read(FileSystem& files, const std::string& path) const override {
    PositionReader reader(files, path);
    if (reader.headError()) throw FileProblem(readingTrouble(reader.headError()));
    if (reader.otherLength())
      throw FileProblem("is " + std::to_string(reader.headLength()) + " bytes long, not " +
                        std::to_string(headLength));
    PositionsDatei head;
    PointStore points;
    std::vector<std::byte> room;
    if (const PositionReadError error = reader.read(head, points, room))
      throw FileProblem(trouble(error, reader, head));
    return std::make_unique<PositionFile>(head, std::move(points));
  }
};

}  // namespace

const MeasuringKind& positionKind() {
  static const PositionKind kind;
  return kind;
}

}  // namespace korvin::file
