#include "frame/memory_settings_tree.h"

#include <algorithm>

namespace korvin {
namespace {

std::string lower(std::string_view text) {
  std::string out(text);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return out;
}

}  // namespace

bool MemorySettingsTree::keyExists(std::string_view path) {
  return keys.contains(lower(path));
}

std::optional<RegWert> MemorySettingsTree::readValue(std::string_view path, std::string_view name) {
  const auto key = keys.find(lower(path));
  if (key == keys.end()) return std::nullopt;
  const auto value = key->second.values.find(lower(name));
  if (value == key->second.values.end()) return std::nullopt;
  return value->second;
}

bool MemorySettingsTree::writeValue(std::string_view path, std::string_view name, const RegWert& value) {
  const auto key = keys.find(lower(path));
  if (key == keys.end()) return false;
  key->second.values[lower(name)] = value;
  return true;
}

SettingsTree::Creation MemorySettingsTree::createKey(std::string_view path, std::string_view className) {
  if (keys.contains(lower(path))) return Creation::existed;
  for (std::size_t end = path.find('\\'); end != std::string_view::npos; end = path.find('\\', end + 1)) {
    keys.try_emplace(lower(path.substr(0, end)));
  }
  keys[lower(path)].className = className;
  return Creation::created;
}

bool MemorySettingsTree::deleteKey(std::string_view path) {
  const std::string wanted = lower(path);
  const auto below = keys.lower_bound(wanted + "\\");
  if (below != keys.end() && below->first.starts_with(wanted + "\\")) return false;
  return keys.erase(wanted) > 0;
}

}  // namespace korvin
