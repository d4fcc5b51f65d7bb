#pragma once

#include "frame/memory_settings_tree.h"
#include "frame/settings_tree.h"

namespace korvin {

/// The settings of this run of the program: the stored tree, or, where that can't be read, a tree in memory
/// that goes with the program.
class SessionSettingsTree : public SettingsTree {
 public:
  explicit SessionSettingsTree(SettingsTree& store) : active_(&store) {}

  /// From now on the settings live in memory, at first empty. The stored tree isn't touched again.
  void goInMemory() { active_ = &memory_; }

  bool keyExists(std::string_view path) override { return active_->keyExists(path); }
  std::optional<RegWert> readValue(std::string_view path, std::string_view name) override {
    return active_->readValue(path, name);
  }
  bool writeValue(std::string_view path, std::string_view name, const RegWert& value) override {
    return active_->writeValue(path, name, value);
  }
  Creation createKey(std::string_view path, std::string_view className) override {
    return active_->createKey(path, className);
  }
  bool deleteKey(std::string_view path) override { return active_->deleteKey(path); }
  bool inOneChange(const std::function<bool()>& steps) override { return active_->inOneChange(steps); }
  std::string unreadable() const override { return active_->unreadable(); }
  bool lockedByAnother() const override { return active_->lockedByAnother(); }

 private:
  MemorySettingsTree memory_;
  SettingsTree* active_;
};

}  // namespace korvin
