#pragma once

#include <map>

#include "frame/settings_tree.h"

namespace korvin {

/// A settings tree that lives as long as the object: for a session whose stored settings can't be read, and
/// for tests.
class MemorySettingsTree : public SettingsTree {
 public:
  bool keyExists(std::string_view path) override;
  std::optional<RegWert> readValue(std::string_view path, std::string_view name) override;
  bool writeValue(std::string_view path, std::string_view name, const RegWert& value) override;
  Creation createKey(std::string_view path, std::string_view className) override;
  bool deleteKey(std::string_view path) override;
  std::string unreadable() const override { return {}; }

  struct Key {
    std::string className;
    std::map<std::string, RegWert> values;  ///< by their names in lower case (ASCII)
  };

 protected:
  std::map<std::string, Key> keys;  ///< by their paths in lower case (ASCII)
};

}  // namespace korvin
