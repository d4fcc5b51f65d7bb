#include "korvin-file/tool_dictionary.h"

#include "frame/sprache.h"
#include "korvin-file/value_text.h"

namespace korvin::file {
namespace {

std::string pathOf(FileSystem& files, const std::string& wanted, const std::vector<std::string>& usual) {
  if (!wanted.empty()) return wanted;
  std::string looked;
  for (const std::string& path : usual) {
    FileInfo info;
    if (files.infoOf(path, info) == 0) return path;
    looked += (looked.empty() ? "" : " nor ") + path;
  }
  throw DictionaryFailure{"no dictionary: there is neither " + looked + "; name one with --dictionary"};
}

}  // namespace

void ToolDictionary::Failing::end(const std::string& systemText, long number) {
  throw DictionaryFailure{"dictionary " + printable(path) + ": " + systemText + " (" +
                          std::to_string(number) + ")"};
}

ToolDictionary::ToolDictionary(FileSystem& files, const std::string& wanted,
                               const std::vector<std::string>& usual, int language)
    : column_(SpalteVonSprache(static_cast<std::int16_t>(language))), dictionary_(column_, failing_) {
  failing_.path = pathOf(files, wanted, usual);
  dictionary_.DicOeffnen(failing_.path);
}

}  // namespace korvin::file
