#include "position/position_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <vector>

#include "frame/cp1252.h"
#include "frame/file_group_reader.h"
#include "frame/file_message.h"
#include "frame/safe_save.h"
#include "frame/settings_defaults.h"
#include "frame/zahl_text.h"
#include "position/text_copy.h"

namespace korvin {
namespace {

constexpr std::size_t kopfLaenge = recordSize<PositionsDatei>();
constexpr std::size_t tripelLaenge = 3 * sizeof(double);
constexpr std::int16_t titelPosition = 5502;

std::string rechtsGetrimmt(std::string name) {
  name.erase(name.find_last_not_of(' ') + 1);
  return name;
}

std::string punktName(const std::string& name) {
  return name + "1";
}

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

// ---- Loading ----

bool PositionsDateien::o_DateiLaden(const std::string& rohName) {
  const std::string name = rechtsGetrimmt(rohName);
  FileGroupReader leser(u_.files, {name, punktName(name)});
  if (leser.error(0))
    return ladenGescheitert(name, leser.error(0).number, dateiGrund(u_.dictionary, leser.error(0), false));

  const bool andereLaenge = leser.size(0) != kopfLaenge;
  if (andereLaenge && !frageLaenge()) return ladenGescheitert(name, 0, {});
  std::array<std::byte, kopfLaenge> kopf = toBytes(PositionsDatei{});
  const std::size_t vorhanden = std::min<std::uint64_t>(leser.size(0), kopfLaenge);
  if (const FileError fehler = leser.read(0, std::span(kopf).first(vorhanden))) {
    return ladenGescheitert(name, fehler.number, dateiGrund(u_.dictionary, fehler, false));
  }
  auto datei = fromBytes<PositionsDatei>(kopf);

  if (leser.error(1)) return ladenGescheitert(name, leser.error(1).number, {});
  if (datei.Info.AnzahlMP > MaxPunkteO) return ladenGescheitert(name, 0, u_.dictionary.DicText(7331));
  if (!zahlPasst(leser.size(1), datei.Info.AnzahlMP)) return ladenGescheitert(name, 0, {});
  bytes_.resize(leser.size(1));
  if (const FileError fehler = leser.read(1, bytes_)) {
    return ladenGescheitert(name, fehler.number, dateiGrund(u_.dictionary, fehler, false));
  }
  if (!punkteAusBytes(bytes_, gelesen_) || !endlich(datei))
    return ladenGescheitert(name, 0, u_.dictionary.DicText(7330));

  datei.Info.Geaendert = andereLaenge;
  u_.formpos.bild() = datei;
  u_.formpos.punkte().swap(gelesen_);
  return true;
}

bool PositionsDateien::frageLaenge() {
  u_.meldung = {"KORVIN-" + u_.dictionary.DicText(titelPosition), u_.dictionary.DicText(6010)};
  return u_.messages.show(u_.meldung, MessageIcon::question, MessageButtons::yesNoCancel) ==
         MessageAnswer::yes;
}

bool PositionsDateien::ladenGescheitert(const std::string& name, int nummer, const std::string& grund) {
  u_.meldung.MsgTitel = dateiTitel(u_.dictionary, "o_DateiLaden", std::to_string(nummer));
  u_.meldung.MsgText = u_.dictionary.DicText(1101) + NeueZeile + "File: " + punktName(name) + NeueZeile +
                       u_.dictionary.DicText(1107);
  if (!grund.empty()) u_.meldung.MsgText += NeueZeile + grund;
  u_.messages.beep();
  u_.messages.show(u_.meldung, MessageIcon::warning, MessageButtons::ok);
  return false;
}

// ---- Saving ----

bool PositionsDateien::pfadPasst(const std::string& name) {
  const auto bytes = zuCp1252(name);
  // Cut to the record's length the path would name another file.
  if (bytes && decltype(PositionsInfo::DateiName)::fits(*bytes)) return true;
  u_.meldung = {dateiTitel(u_.dictionary, "o_DateiSpeichern", "0"),
                u_.dictionary.DicText(bytes ? 7300 : 7301) + NeueZeile + "File: " + name};
  u_.messages.beep();
  u_.messages.show(u_.meldung, MessageIcon::warning, MessageButtons::ok);
  return false;
}

bool PositionsDateien::gespeichert(const char* operation, const SaveResult& result) {
  if (result.state == SaveState::saved) return true;
  u_.meldung = speichernGescheitert(u_.dictionary, operation, result);
  u_.messages.beep();
  u_.messages.show(u_.meldung, MessageIcon::warning, MessageButtons::ok);
  return false;
}

bool PositionsDateien::o_DateiSpeichern(const std::string& rohName) {
  const std::string name = rechtsGetrimmt(rohName);
  if (!pfadPasst(name)) return false;
  u_.formpos.bildFuellen();
  const PositionsDatei& bild = u_.formpos.bild();
  const auto kopf = toBytes(bild);
  const auto punkte = punkteAlsBytes(u_.formpos.punkte(), u_.formpos.punkte().X().anzahl());
  const SaveResult result =
      saveTogether(u_.files, {{name, [&kopf](SaveSink& sink) { sink.write(kopf); }},
                              {punktName(name), [&punkte](SaveSink& sink) { sink.write(punkte); }}});
  if (!gespeichert("o_DateiSpeichern", result)) return false;
  // The present setting decides about the text copy; the record's own flag is only kept.
  if (!flagAusText(u_.profil.wert(einstellung::FormPosition::AsciiDatei))) return true;
  return o_AsciiDateiSpeichern(name + "$");
}

bool PositionsDateien::o_AsciiDateiSpeichern(const std::string& rohName) {
  const std::string text = positionTextCopy(u_.formpos.Info(), u_.formpos.punkte(), u_.dictionary);
  return gespeichert("o_AsciiDateiSpeichern",
                     saveFile(u_.files, rechtsGetrimmt(rohName), textkopieBytes(text)));
}

}  // namespace korvin
