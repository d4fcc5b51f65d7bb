#include "straightness/straightness_file.h"

#include "frame/cp1252.h"
#include "frame/messart.h"
#include "frame/settings_defaults.h"
#include "frame/textkopie.h"
#include "frame/zahl_text.h"
#include "straightness/straightness_reader.h"
#include "straightness/text_copy.h"

namespace korvin {
namespace {

constexpr std::int16_t TextGescheitert = 1101;

/// Why a measurement was refused, in words of the present language; empty for a length of no form.
std::string leseGrund(Dictionary& dictionary, const StraightnessReadError& fehler) {
  switch (fehler.kind) {
    case StraightnessReadError::Kind::unreadable:
      return dateiGrund(dictionary, fehler.file, false);
    case StraightnessReadError::Kind::tooManyPoints:
      return dictionary.DicText(7331);
    case StraightnessReadError::Kind::noSuchPoint:
      return dictionary.DicText(7332);
    case StraightnessReadError::Kind::notANumber:
      return dictionary.DicText(7330);
    case StraightnessReadError::Kind::none:
    case StraightnessReadError::Kind::unknownForm:
      break;
  }
  return {};
}

}  // namespace

bool GeradDateien::g_DateiLaden(const std::string& rohName) {
  const std::string name = rechtsGetrimmt(rohName);
  StraightnessReader leser(u_.files, name);
  const bool andereForm = !leser.error() && leser.otherLength();
  if (andereForm && !melder_.andereLaengeLaden(MessartGeradheit)) return false;
  if (const StraightnessReadError fehler = leser.read(u_.formgera.bild())) {
    return melder_.gescheitert(
        "g_DateiLaden", std::to_string(fehler.file.number),
        u_.dictionary.DicText(TextGescheitert) + NeueZeile + leseGrund(u_.dictionary, fehler));
  }
  u_.formgera.bild().Info.Geaendert = andereForm;
  u_.formgera.dateiGewaehlt() = name;
  return true;
}

bool GeradDateien::g_DateiSpeichern(const std::string& rohName) {
  const std::string name = rechtsGetrimmt(rohName);
  if (!melder_.pfadPasst("g_DateiSpeichern", name)) return false;
  u_.formgera.bildFuellen();
  const auto bytes = toBytes(u_.formgera.bild());
  const SaveResult result = saveTogether(u_.files, {{name, [&bytes](SaveSink& sink) { sink.write(bytes); }}});
  if (!melder_.gespeichert("g_DateiSpeichern", result)) return false;
  u_.formgera.dateiGewaehlt() = name;
  // The present setting decides about the text copy; the record's own flag is only kept.
  if (!flagAusText(u_.profil.wert(einstellung::FormGeradheit::AsciiDatei))) return true;
  return g_AsciiDateiSpeichern(name + "$");
}

bool GeradDateien::g_AsciiDateiSpeichern(const std::string& rohName) {
  const std::string text = geradTextCopy(u_.formgera.reihe(), u_.system.Masssystem, u_.dictionary);
  return melder_.gespeichert("g_AsciiDateiSpeichern",
                             saveFile(u_.files, rechtsGetrimmt(rohName), textkopieBytes(text)));
}

}  // namespace korvin
