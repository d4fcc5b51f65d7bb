#pragma once

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

}  // namespace korvin
