#pragma once

#include <string>
#include <variant>
#include <vector>

#include "support/test_ports.h"

namespace korvin::test {

/// A settings tree in memory that remembers what is written, in its order: "KorInfo/PortNr=1".
class OrderedTree : public MemorySettingsTree {
 public:
  bool writeValue(std::string_view path, std::string_view name, const RegWert& value) override {
    written.push_back(std::string(path.substr(path.rfind('\\') + 1)) + "/" + std::string(name) + "=" +
                      std::get<std::string>(value));
    return MemorySettingsTree::writeValue(path, name, value);
  }
  std::vector<std::string> written;
};

}  // namespace korvin::test
