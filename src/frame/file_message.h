#pragma once

#include <cstdint>
#include <string>

#include "frame/dictionary.h"
#include "frame/file_error.h"
#include "frame/message_port.h"
#include "frame/safe_save.h"

/// The messages of file operations, the same for all kinds.
namespace korvin {

/// Title of a failed file operation: text 1100, the operation in brackets, and `grund`.
std::string dateiTitel(Dictionary& dictionary, const std::string& operation, const std::string& grund);

/// Why the system refused, in words of the present language; empty where only the system knows.
std::string dateiGrund(Dictionary& dictionary, const FileError& error, bool schreiben);

/// The message of a failed save: what happened, to which file, why, and what stands on the disk now.
Meldung speichernGescheitert(Dictionary& dictionary, const std::string& operation, const SaveResult& result);

/// Shows what the file operations of a kind ask and tell. The ports outlive it.
class Dateimelder {
 public:
  Dateimelder(MessagePort& messages, Meldung& meldung, Dictionary& dictionary)
      : messages_(messages), meldung_(meldung), dictionary_(dictionary) {}

  /// The question whether a file of another length is to be loaded all the same. True after Yes.
  bool andereLaengeLaden(std::int16_t messart);

  /// A failed operation: its name and `grund` as the title, and a beep. False, for its caller to hand on.
  bool gescheitert(const std::string& operation, const std::string& grund, const std::string& text);

  /// True if a record can hold the path. One that it can't is refused with a message: cut, it would name
  /// another file.
  bool pfadPasst(const std::string& operation, const std::string& name);

  /// True if all was saved; else what happened is told.
  bool gespeichert(const std::string& operation, const SaveResult& result);

 private:
  bool zeigen(Meldung meldung);

  MessagePort& messages_;
  Meldung& meldung_;
  Dictionary& dictionary_;
};

}  // namespace korvin
