#include "position/position_reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace korvin {
namespace {

using Kind = PositionReadError::Kind;

constexpr std::size_t kopfLaenge = recordSize<PositionsDatei>();
constexpr std::size_t tripelLaenge = 3 * sizeof(double);

/// Reads the point file into `punkte`; at most 29999 points. False if one of their numbers is none.
bool punkteAusBytes(std::span<const std::byte> bytes, PointStore& punkte) {
  const std::size_t anzahl = bytes.size() / tripelLaenge - 1;
  auto& x = punkte.X().elements();
  auto& y = punkte.Y().elements();
  auto& t = punkte.T().elements();
  bool endlich = true;
  const std::byte* quelle = bytes.data() + tripelLaenge;
  for (std::size_t i = 1; i <= anzahl; ++i, quelle += tripelLaenge) {
    FieldCodec<double>::load(x[i], quelle);
    FieldCodec<double>::load(y[i], quelle + sizeof(double));
    FieldCodec<double>::load(t[i], quelle + 2 * sizeof(double));
    endlich &= std::isfinite(x[i]) && std::isfinite(y[i]) && std::isfinite(t[i]);
  }
  // The count of the head was checked against the length; those of the first triple are not asked.
  for (PunktFeld* feld : {&punkte.X(), &punkte.Y(), &punkte.T()}) {
    feld->setAnzahl(anzahl);
    feld->clearFrom(anzahl + 1);
  }
  return endlich;
}

bool endlich(const AchsenInfo& a) {
  return std::isfinite(a.Summe) && std::isfinite(a.Quadratsumme) && std::isfinite(a.Offset) &&
         std::isfinite(a.Bereich) && std::isfinite(a.Maximum) && std::isfinite(a.Minimum);
}

bool endlich(const PositionsDatei& datei) {
  return endlich(datei.X) && endlich(datei.Y) && std::isfinite(datei.Info.StartZeit) &&
         std::isfinite(datei.Info.StopZeit) && std::isfinite(datei.Info.Intervall);
}

/// True if a point file of `laenge` bytes holds exactly the points that the head counts.
bool zahlPasst(std::uint64_t laenge, std::int16_t anzahl) {
  return anzahl >= 0 && laenge == (static_cast<std::uint64_t>(anzahl) + 1) * tripelLaenge;
}

}  // namespace

PositionReader::PositionReader(FileSystem& system, const std::string& name)
    : files_(system, {name, pointName(name)}) {}

PositionReadError PositionReader::read(PositionsDatei& head, PointStore& points,
                                       std::vector<std::byte>& room) {
  std::array<std::byte, kopfLaenge> kopf = toBytes(PositionsDatei{});
  const std::size_t vorhanden = std::min<std::uint64_t>(headLength(), kopfLaenge);
  if (const FileError fehler = files_.read(0, std::span(kopf).first(vorhanden)))
    return {Kind::headUnreadable, fehler};
  head = fromBytes<PositionsDatei>(kopf);

  if (files_.error(1)) return {Kind::pointsMissing, files_.error(1)};
  if (head.Info.AnzahlMP > MaxPunkteO) return {Kind::tooManyPoints, {}};
  if (!zahlPasst(pointLength(), head.Info.AnzahlMP)) return {Kind::otherCount, {}};
  room.resize(pointLength());
  if (const FileError fehler = files_.read(1, room)) return {Kind::pointsUnreadable, fehler};
  if (!punkteAusBytes(room, points) || !endlich(head)) return {Kind::notANumber, {}};
  return {};
}

}  // namespace korvin
