#include "frame/datei_dialog.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <system_error>

#include "frame/pfade.h"

namespace korvin {
namespace {

char lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// True if `name` ends in `ending`, capital or small.
bool hasEnding(std::string_view name, std::string_view ending) {
  return name.size() >= ending.size() && std::equal(ending.rbegin(), ending.rend(), name.rbegin(),
                                                    [](char a, char b) { return lower(a) == lower(b); });
}

/// Takes the next extension with its point, as ".O", off the front of `filter`; empty if there is none.
std::string_view takeExtension(std::string_view& filter) {
  const std::size_t star = filter.find("*.");
  if (star == std::string_view::npos) return {};
  filter.remove_prefix(star + 1);
  const std::string_view extension = filter.substr(0, filter.find_first_of(")|; "));
  filter.remove_prefix(extension.size());
  return extension;
}

bool isWildcard(std::string_view extension) {
  return extension.find_first_of("*?") != std::string_view::npos;
}

bool hasExtensionOf(std::string_view name, std::string_view filter) {
  for (auto extension = takeExtension(filter); !extension.empty(); extension = takeExtension(filter)) {
    if (hasEnding(name, extension)) return true;
  }
  return false;
}

bool exists(std::string_view name) {
  std::error_code ignored;
  return std::filesystem::exists(pfadAusUtf8(name), ignored);
}

}  // namespace

std::string vervollstaendigterName(std::string_view name, std::string_view filter) {
  std::string_view rest = filter;
  const std::string_view extension = takeExtension(rest);
  if (name.empty() || extension.size() < 2 || isWildcard(extension) || hasExtensionOf(name, filter)) {
    return std::string(name);
  }
  return std::string(name).append(extension);
}

std::string dateiErfragen(FileDialog& dialog, std::string_view ordner, std::string_view filter,
                          std::string_view titel, bool oeffnen, std::string_view vorschlag) {
  const FileDialogRequest request{std::string(ordner), std::string(filter.empty() ? "*.*" : filter),
                                  std::string(titel.empty() ? "Dateiauswahl" : titel), oeffnen,
                                  std::string(vorschlag)};
  const std::string chosen = dialog.choose(request);
  return oeffnen && exists(chosen) ? chosen : vervollstaendigterName(chosen, request.filter);
}

}  // namespace korvin
