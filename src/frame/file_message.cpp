#include "frame/file_message.h"

#include <utility>

#include "frame/cp1252.h"
#include "frame/fester_text.h"
#include "frame/messart.h"

namespace korvin {
namespace {

constexpr std::int16_t TextNichtGespeichert = 1102;
constexpr std::int16_t TextAndereLaenge = 6010;
constexpr std::int16_t TextPfadZuLang = 7300;
constexpr std::int16_t TextPfadZeichen = 7301;
constexpr std::int16_t TextUnveraendert = 7320;
constexpr std::int16_t TextNichtBestaetigt = 7324;
constexpr std::int16_t TextBeideDa = 7325;

/// How every record holds the path of its file.
using Pfadtext = FesterText<75>;

/// What became of the files.
std::int16_t stand(SaveState state) {
  switch (state) {
    case SaveState::inPlace:
      return TextNichtBestaetigt;
    case SaveState::pending:
      return TextBeideDa;
    case SaveState::saved:
    case SaveState::unchanged:
      break;
  }
  return TextUnveraendert;
}

}  // namespace

std::string dateiTitel(Dictionary& dictionary, const std::string& operation, const std::string& grund) {
  return dictionary.DicText(1100) + " (" + operation + "): " + grund;
}

std::string dateiGrund(Dictionary& dictionary, const FileError& error, bool schreiben) {
  switch (error.kind) {
    case FileErrorKind::noSpace:
      return dictionary.DicText(7310);
    case FileErrorKind::noPermission:
      return dictionary.DicText(schreiben ? 7311 : 7312);
    case FileErrorKind::inputOutput:
      return dictionary.DicText(7314);
    case FileErrorKind::notFound:
      return dictionary.DicText(7315);
    case FileErrorKind::busy:
      return dictionary.DicText(7316);
    case FileErrorKind::notAFile:
      return dictionary.DicText(7317);
    case FileErrorKind::none:
    case FileErrorKind::nameTooLong:
    case FileErrorKind::other:
      break;
  }
  return {};
}

Meldung speichernGescheitert(Dictionary& dictionary, const std::string& operation, const SaveResult& result) {
  Meldung meldung;
  meldung.MsgTitel = dateiTitel(dictionary, operation, result.error.systemText());
  const bool nurUnbestaetigt = result.state == SaveState::inPlace;
  if (!nurUnbestaetigt) meldung.MsgText = dictionary.DicText(TextNichtGespeichert) + NeueZeile;
  meldung.MsgText += "File: " + result.error.path + NeueZeile;
  const std::string grund = dateiGrund(dictionary, result.error, true);
  if (!grund.empty()) meldung.MsgText += grund + NeueZeile;
  meldung.MsgText += dictionary.DicText(stand(result.state));
  return meldung;
}

bool Dateimelder::zeigen(Meldung meldung) {
  meldung_ = std::move(meldung);
  messages_.beep();
  messages_.show(meldung_, MessageIcon::warning, MessageButtons::ok);
  return false;
}

bool Dateimelder::andereLaengeLaden(std::int16_t messart) {
  meldung_ = {"KORVIN-" + MessartTitel(dictionary_, messart), dictionary_.DicText(TextAndereLaenge)};
  return messages_.show(meldung_, MessageIcon::question, MessageButtons::yesNoCancel) == MessageAnswer::yes;
}

bool Dateimelder::gescheitert(const std::string& operation, const std::string& grund,
                              const std::string& text) {
  return zeigen({dateiTitel(dictionary_, operation, grund), text});
}

bool Dateimelder::pfadPasst(const std::string& operation, const std::string& name) {
  const auto bytes = zuCp1252(name);
  if (bytes && Pfadtext::fits(*bytes)) return true;
  const std::int16_t text = bytes ? TextPfadZuLang : TextPfadZeichen;
  return gescheitert(operation, "0", dictionary_.DicText(text) + NeueZeile + "File: " + name);
}

bool Dateimelder::gespeichert(const std::string& operation, const SaveResult& result) {
  return result.state == SaveState::saved || zeigen(speichernGescheitert(dictionary_, operation, result));
}

}  // namespace korvin
