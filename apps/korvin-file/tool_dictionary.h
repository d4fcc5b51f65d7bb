#pragma once

#include <string>
#include <vector>

#include "frame/file_system.h"
#include "frame/program_end.h"
#include "frame/sqlite_dictionary.h"

namespace korvin::file {

/// What is thrown where the dictionary fails: words for the user. No `std::exception`, as `ProgramEnd` asks:
/// what works with texts must not catch it.
struct DictionaryFailure {
  std::string words;
};

/// The dictionary for one run of the tool, opened for reading.
class ToolDictionary {
 public:
  /// Opens `wanted`, or, if that is empty, the first of `usual` that is there, in language `language` (0 to
  /// 7). Throws `DictionaryFailure`, as every look-up may.
  ToolDictionary(FileSystem& files, const std::string& wanted, const std::vector<std::string>& usual,
                 int language);

  Dictionary& dictionary() { return dictionary_; }

 private:
  class Failing : public ProgramEnd {
   public:
    [[noreturn]] void end(const std::string& systemText, long number) override;
    std::string path;
  };

  std::string column_;
  Failing failing_;
  SqliteDictionary dictionary_;
};

}  // namespace korvin::file
