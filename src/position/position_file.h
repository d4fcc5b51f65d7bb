#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "frame/dictionary.h"
#include "frame/file_message.h"
#include "frame/file_system.h"
#include "frame/message_port.h"
#include "frame/profil.h"
#include "frame/safe_save.h"
#include "position/formpos.h"

namespace korvin {

/// What the file operations of position measuring work with. All outlive them.
struct PositionsDateiUmgebung {
  FileSystem& files;
  MessagePort& messages;
  Meldung& meldung;
  Dictionary& dictionary;
  Profil& profil;
  FORMPOS& formpos;
};

/// Moves a position measurement to and from disk. A file F holds the head, one record of 789 bytes; F
/// followed by "1" the points; F followed by "$" is an optional text copy, which is never read. Head and
/// point file are saved as one. Every operation reports its own failures in a message and answers with a
/// flag. Names are UTF-8.
class PositionsDateien {
 public:
  explicit PositionsDateien(const PositionsDateiUmgebung& umgebung)
      : u_(umgebung), melder_(umgebung.messages, umgebung.meldung, umgebung.dictionary) {}

  /// Reads F into the file image and its points into the store. True on success; after a failure image and
  /// points are as before. A head of another length is taken on Yes to a question, and `Geaendert` of the
  /// image is then set.
  bool o_DateiLaden(const std::string& name);

  /// Copies the working record to the image and writes F and its points, then, if the setting `AsciiDatei` is
  /// true (the record's flag plays no part), the text copy. True if all was written.
  bool o_DateiSpeichern(const std::string& name);

  /// Writes the text copy of the working record to the file `name`.
  bool o_AsciiDateiSpeichern(const std::string& name);

 private:
  bool ladenGescheitert(const std::string& name, int nummer, const std::string& grund);

  PositionsDateiUmgebung u_;
  Dateimelder melder_;
  // Room for loading, kept: a refused file must leave the points alone, so they are read beside them first.
  std::vector<std::byte> bytes_;
  PointStore gelesen_;
};

}  // namespace korvin
