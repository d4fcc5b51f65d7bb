#include "frame/pfade.h"

#include <algorithm>
#include <cstddef>
#include <system_error>

namespace korvin {
namespace {

constexpr char separator = static_cast<char>(std::filesystem::path::preferred_separator);

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t") == std::string_view::npos;
}

std::size_t lastSeparator(std::string_view path) {
  const std::size_t own = path.rfind(separator);
  return own != std::string_view::npos ? own : path.rfind('\\');
}

bool isFollower(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::filesystem::path pfadAusUtf8(std::string_view utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

std::string MessOrdner(std::string_view PfadMessFile, std::string_view programmOrdner) {
  if (!isBlank(PfadMessFile)) return std::string(PfadMessFile);
  std::string folder(programmOrdner);
  if (!folder.ends_with(separator)) folder += separator;
  folder += "KorFiles";
  std::error_code ignored;
  std::filesystem::create_directories(pfadAusUtf8(folder), ignored);
  return folder + separator;
}

void dateiLoeschen(std::string_view name) {
  const std::filesystem::path path = pfadAusUtf8(name);
  std::error_code ignored;
  if (!std::filesystem::is_directory(path, ignored)) std::filesystem::remove(path, ignored);
}

std::string EndungsBuchstabe(std::string_view maske) {
  const std::size_t point = maske.find('.');
  if (point == std::string_view::npos || point + 1 == maske.size()) return "?";
  const std::string_view behind = maske.substr(point + 1);
  const auto end = std::find_if_not(behind.begin() + 1, behind.end(), isFollower);
  return {behind.begin(), end};
}

GeteilterPfad pfadTeilen(std::string_view pfad) {
  const std::size_t last = lastSeparator(pfad);
  if (last == std::string_view::npos) return {"", std::string(pfad)};
  return {std::string(pfad.substr(0, std::max<std::size_t>(last, 1))), std::string(pfad.substr(last + 1))};
}

}  // namespace korvin
