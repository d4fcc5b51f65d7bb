#pragma once

#include <string>

#include "frame/dictionary.h"
#include "frame/file_message.h"
#include "frame/file_system.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/profil.h"
#include "frame/safe_save.h"
#include "straightness/formgera.h"

namespace korvin {

/// What the file operations of straightness measuring work with. All outlive them.
struct GeradDateiUmgebung {
  FileSystem& files;
  MessagePort& messages;
  Meldung& meldung;
  Dictionary& dictionary;
  Profil& profil;
  const Systemwerte& system;
  FORMGERA& formgera;
};

/// Moves a straightness series to and from disk: a file F of one record, and F followed by "$" as an optional
/// text copy, which is never read. Every operation reports its own failures in a message and answers with a
/// flag. Names are UTF-8.
class GeradDateien {
 public:
  explicit GeradDateien(const GeradDateiUmgebung& umgebung)
      : u_(umgebung), melder_(umgebung.messages, umgebung.meldung, umgebung.dictionary) {}

  /// Reads F into the file image, and touches nothing but that. True on success; after a failure the image is
  /// as before. A file of another length than the present form's is read on Yes to a question: one of an
  /// older form is taken over and `Geaendert` of the image is then set, any other is refused.
  bool g_DateiLaden(const std::string& name);

  /// Copies the series to the image and writes F, then, if the setting `AsciiDatei` is true (the record's
  /// flag plays no part), the text copy. True if all was written.
  bool g_DateiSpeichern(const std::string& name);

  /// Writes the text copy of the series to the file `name`.
  bool g_AsciiDateiSpeichern(const std::string& name);

 private:
  GeradDateiUmgebung u_;
  Dateimelder melder_;
};

}  // namespace korvin
