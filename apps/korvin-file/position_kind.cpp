#include "korvin-file/position_kind.h"

#include <algorithm>
#include <cmath>

#include "frame/cp1252.h"
#include "frame/leerwert.h"
#include "korvin-file/csv.h"
#include "korvin-file/iso_time.h"
#include "position/position_reader.h"
#include "position/text_copy.h"

namespace korvin::file {
namespace {

constexpr std::size_t headLength = recordSize<PositionsDatei>();

/// Results of an axis; before the first drawing they are the empty value.
bool isResult(std::string_view name) {
  return name.ends_with(".Mittel") || name.ends_with(".Streuung") || name.ends_with(".Maximum") ||
         name.ends_with(".Minimum");
}

Value timeOf(double days) {
  const auto text = isoTime(days);
  return text ? Value::ofText(*text) : Value{};
}

/// Mean, sample deviation, extremes and span of the readings less the offset, as the window shows them. From
/// the points themselves, in two passes, so that readings far from zero lose no digits.
Value statistics(const AchsenInfo& axis, const PunktFeld& readings, std::size_t count) {
  std::vector<double> values;
  for (std::size_t i = 1; i <= count; ++i) {
    if (!istLeer(readings.at(i))) values.push_back(readings.at(i) - axis.Offset);
  }
  const auto n = static_cast<double>(values.size());
  double sum = 0;
  for (const double value : values) sum += value;
  const double mean = sum / n;
  double squares = 0;
  for (const double value : values) squares += (value - mean) * (value - mean);

  Value told = Value::ofObject();
  told.add("count", Value::ofNumber(static_cast<long long>(values.size())));
  told.add("offset", Value::ofNumber(axis.Offset));
  told.add("mean", values.empty() ? Value{} : Value::ofNumber(mean));
  told.add("deviation", values.size() < 2 ? Value{} : Value::ofNumber(std::sqrt(squares / (n - 1))));
  const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
  told.add("maximum", values.empty() ? Value{} : Value::ofNumber(*greatest));
  told.add("minimum", values.empty() ? Value{} : Value::ofNumber(*least));
  told.add("span", values.empty() ? Value{} : Value::ofNumber(*greatest - *least));
  return told;
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
