#include "saved_files.h"

#include <QFile>
#include <cmath>
#include <span>
#include <vector>

#include "frame/layout.h"
#include "gui.h"
#include "position/record.h"
#include "straightness/record.h"

namespace korvin::tour {
namespace {

/// Half of the last digit, and a little for the binary fractions.
constexpr double shownTolerance = 0.000501;
constexpr double copyTolerance = 0.0000501;
constexpr std::size_t bytesPerNumber = sizeof(double);
constexpr std::size_t numbersPerPoint = 3;

struct Point {
  double x = 0;
  double y = 0;
};

[[noreturn]] void fail(const QString& words) {
  throw StepFailed(words.toStdString());
}

QByteArray contents(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) fail(QStringLiteral("%1 can't be read").arg(path));
  return file.readAll();
}

/// A file that is one record.
template <class Record>
Record readRecord(const QString& path) {
  const QByteArray bytes = contents(path);
  if (bytes.size() != static_cast<qsizetype>(recordSize<Record>())) {
    fail(QStringLiteral("%1 has %2 bytes").arg(path).arg(bytes.size()));
  }
  return fromBytes<Record>(std::as_bytes(std::span(bytes)));
}

/// The points behind the first triple, which tells their number.
std::vector<Point> readPoints(const QString& path) {
  const QByteArray bytes = contents(path);
  const auto all = std::as_bytes(std::span(bytes));
  constexpr std::size_t step = numbersPerPoint * bytesPerNumber;
  if (all.size() < step || all.size() % step != 0) fail(QStringLiteral("%1 is no row of triples").arg(path));
  std::vector<Point> points;
  for (std::size_t at = step; at < all.size(); at += step) {
    points.push_back({loadDouble(&all[at]), loadDouble(&all[at + bytesPerNumber])});
  }
  if (static_cast<double>(points.size()) != loadDouble(all.data())) {
    fail(QStringLiteral("%1 tells another number of points than it holds").arg(path));
  }
  return points;
}

/// The rows of the text copy: those whose four cells begin with a number.
std::vector<QStringList> readCopy(const QString& path) {
  std::vector<QStringList> rows;
  for (const QString& line : QString::fromLatin1(contents(path)).split(QStringLiteral("\r\n"))) {
    const QStringList cells = line.split(QLatin1Char('\t'));
    bool number = false;
    cells.first().toInt(&number);
    if (number && cells.size() == 4) rows.push_back(cells);
  }
  return rows;
}

void requireCount(const QString& where, std::size_t count, qsizetype expected) {
  if (count != static_cast<std::size_t>(expected)) {
    fail(QStringLiteral("%1 holds %2 points, the window showed %3").arg(where).arg(count).arg(expected));
  }
}

void requireNear(const QString& where, qsizetype number, const QString& text, double value,
                 double tolerance) {
  bool readable = false;
  const double shown = text.toDouble(&readable);
  if (readable && std::abs(shown - value) <= tolerance) return;
  fail(QStringLiteral("%1, point %2: \"%3\" against %4")
           .arg(where)
           .arg(number)
           .arg(text)
           .arg(value, 0, 'f', 6));
}

}  // namespace

std::string compareFiles(const QString& file, const QStringList& rows) {
  const PositionsDatei head = readRecord<PositionsDatei>(file);
  const std::vector<Point> points = readPoints(file + QLatin1Char('1'));
  const std::vector<QStringList> copy = readCopy(file + QLatin1Char('$'));
  requireCount(QStringLiteral("the head"), static_cast<std::size_t>(head.Info.AnzahlMP), rows.size());
  requireCount(QStringLiteral("the point file"), points.size(), rows.size());
  requireCount(QStringLiteral("the text copy"), copy.size(), rows.size());
  for (qsizetype i = 0; i < rows.size(); ++i) {
    const Point& point = points.at(static_cast<std::size_t>(i));
    const QStringList shown = rows[i].split(QLatin1Char('\t'));
    const QStringList& copied = copy.at(static_cast<std::size_t>(i));
    requireNear(QStringLiteral("list, X"), i + 1, shown.value(2), point.x - head.X.Offset, shownTolerance);
    requireNear(QStringLiteral("list, Y"), i + 1, shown.value(3), point.y - head.Y.Offset, shownTolerance);
    requireNear(QStringLiteral("text copy, X"), i + 1, copied[2], point.x, copyTolerance);
    requireNear(QStringLiteral("text copy, Y"), i + 1, copied[3], point.y, copyTolerance);
  }
  return QStringLiteral("%1 points in head, point file and text copy; offset %2 / %3 of point %4")
      .arg(rows.size())
      .arg(head.X.Offset, 0, 'f', 4)
      .arg(head.Y.Offset, 0, 'f', 4)
      .arg(head.Info.OffsetMP)
      .toStdString();
}

std::string compareLineFiles(const QString& file, const QStringList& readings, const QStringList& rows) {
  const auto line = readRecord<GeradDatei>(file);
  const std::vector<QStringList> copy = readCopy(file + QLatin1Char('$'));
  requireCount(QStringLiteral("the file, X"), line.X.Wert.anzahl(), rows.size());
  requireCount(QStringLiteral("the file, Y"), line.Y.Wert.anzahl(), rows.size());
  requireCount(QStringLiteral("the text copy"), copy.size(), rows.size());
  for (qsizetype i = 0; i < rows.size(); ++i) {
    const auto point = static_cast<std::size_t>(i) + 1;
    const QStringList read = readings.value(i).split(QLatin1Char('\t'));
    const QStringList shown = rows[i].split(QLatin1Char('\t'));
    const QStringList& copied = copy[point - 1];
    requireNear(QStringLiteral("table, z"), i + 1, read.value(1), line.Linie.Z.at(point), shownTolerance);
    requireNear(QStringLiteral("table, X"), i + 1, read.value(2), line.X.Wert.at(point), shownTolerance);
    requireNear(QStringLiteral("table, Y"), i + 1, read.value(3), line.Y.Wert.at(point), shownTolerance);
    for (const int column : {1, 2, 3}) {
      requireNear(QStringLiteral("text copy"), i + 1, shown.value(column), copied[column].toDouble(),
                  shownTolerance);
    }
  }
  return QStringLiteral("%1 points in file and text copy; \"%2\"")
      .arg(rows.size())
      .arg(QString::fromLatin1(line.Info.Bezeichnung.trimmed()))
      .toStdString();
}

}  // namespace korvin::tour
