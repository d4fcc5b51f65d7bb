#include "position/position_file.h"

#include <vector>

#include "frame/cp1252.h"
#include "frame/messart.h"
#include "frame/safe_save.h"
#include "frame/settings_defaults.h"
#include "frame/textkopie.h"
#include "frame/zahl_text.h"
#include "position/position_reader.h"
#include "position/text_copy.h"

namespace korvin {
namespace {

constexpr std::size_t tripelLaenge = 3 * sizeof(double);

/// The point file: triples X, Y, T from index 0, whose three numbers are the count.
std::vector<std::byte> punkteAlsBytes(const PointStore& punkte, std::size_t anzahl) {
  std::vector<std::byte> bytes((anzahl + 1) * tripelLaenge);
  std::byte* ziel = bytes.data();
  const auto schreibe = [&ziel](double wert) {
    FieldCodec<double>::store(wert, ziel);
    ziel += sizeof(double);
  };
  for (std::size_t i = 0; i <= anzahl; ++i) {
    schreibe(punkte.X().at(i));
    schreibe(punkte.Y().at(i));
    schreibe(punkte.T().at(i));
  }
  return bytes;
}

/// Why a measurement was refused, in words of the present language; empty where the message says it all.
std::string leseGrund(Dictionary& dictionary, const PositionReadError& fehler) {
  switch (fehler.kind) {
    case PositionReadError::Kind::headUnreadable:
    case PositionReadError::Kind::pointsUnreadable:
      return dateiGrund(dictionary, fehler.file, false);
    case PositionReadError::Kind::tooManyPoints:
      return dictionary.DicText(7331);
    case PositionReadError::Kind::notANumber:
      return dictionary.DicText(7330);
    case PositionReadError::Kind::none:
    case PositionReadError::Kind::pointsMissing:
    case PositionReadError::Kind::otherCount:
      break;
  }
  return {};
}

}  // namespace

// ---- Loading ----

bool PositionsDateien::o_DateiLaden(const std::string& rohName) {
  const std::string name = rechtsGetrimmt(rohName);
  PositionReader leser(u_.files, name);
  if (leser.headError())
    return ladenGescheitert(name, leser.headError().number,
                            dateiGrund(u_.dictionary, leser.headError(), false));
  const bool andereLaenge = leser.otherLength();
  if (andereLaenge && !melder_.andereLaengeLaden(MessartPosition)) return ladenGescheitert(name, 0, {});

  PositionsDatei datei;
  if (const PositionReadError fehler = leser.read(datei, gelesen_, bytes_))
    return ladenGescheitert(name, fehler.file.number, leseGrund(u_.dictionary, fehler));
  datei.Info.Geaendert = andereLaenge;
  u_.formpos.bild() = datei;
  u_.formpos.punkte().swap(gelesen_);
  u_.formpos.dateiGewaehlt() = name;
  return true;
}

bool PositionsDateien::ladenGescheitert(const std::string& name, int nummer, const std::string& grund) {
  std::string text = u_.dictionary.DicText(1101) + NeueZeile + "File: " + PositionReader::pointName(name) +
                     NeueZeile + u_.dictionary.DicText(1107);
  if (!grund.empty()) text += NeueZeile + grund;
  return melder_.gescheitert("o_DateiLaden", std::to_string(nummer), text);
}

// ---- Saving ----

bool PositionsDateien::o_DateiSpeichern(const std::string& rohName) {
  const std::string name = rechtsGetrimmt(rohName);
  if (!melder_.pfadPasst("o_DateiSpeichern", name)) return false;
  u_.formpos.bildFuellen();
  const PositionsDatei& bild = u_.formpos.bild();
  const auto kopf = toBytes(bild);
  const auto punkte = punkteAlsBytes(u_.formpos.punkte(), u_.formpos.punkte().X().anzahl());
  const SaveResult result = saveTogether(
      u_.files, {{name, [&kopf](SaveSink& sink) { sink.write(kopf); }},
                 {PositionReader::pointName(name), [&punkte](SaveSink& sink) { sink.write(punkte); }}});
  if (!melder_.gespeichert("o_DateiSpeichern", result)) return false;
  u_.formpos.dateiGewaehlt() = name;
  // The present setting decides about the text copy; the record's own flag is only kept.
  if (!flagAusText(u_.profil.wert(einstellung::FormPosition::AsciiDatei))) return true;
  return o_AsciiDateiSpeichern(name + "$");
}

bool PositionsDateien::o_AsciiDateiSpeichern(const std::string& rohName) {
  const std::string text = positionTextCopy(u_.formpos.Info(), u_.formpos.punkte(), u_.dictionary);
  return melder_.gespeichert("o_AsciiDateiSpeichern",
                             saveFile(u_.files, rechtsGetrimmt(rohName), textkopieBytes(text)));
}

}  // namespace korvin
