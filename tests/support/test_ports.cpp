#include "support/test_ports.h"

#include <algorithm>

namespace korvin::test {
namespace {

std::string lower(std::string_view text) {
  std::string out(text);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return out;
}

MessageAnswer harmless(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::ok:
      return MessageAnswer::ok;
    case MessageButtons::yesNo:
      return MessageAnswer::no;
    case MessageButtons::okCancel:
    case MessageButtons::yesNoCancel:
      break;
  }
  return MessageAnswer::cancel;
}

template <class T>
T takeFirst(std::deque<T>& list, T otherwise) {
  if (list.empty()) return otherwise;
  T first = list.front();
  list.pop_front();
  return first;
}

}  // namespace

MessageAnswer TestMessages::show(const Meldung& message, MessageIcon icon, MessageButtons buttons) {
  shown.push_back({message.MsgTitel, message.MsgText, icon, buttons});
  return takeFirst(answers, harmless(buttons));
}

std::string TestDictionary::DicText(std::int16_t id) {
  const auto found = texts.find(id);
  return found != texts.end() ? found->second : "D" + std::to_string(id);
}

std::string TestFileDialog::choose(const FileDialogRequest& request) {
  requests.push_back(request);
  return takeFirst(answers, std::string{});
}

bool MemorySettingsTree::keyExists(std::string_view path) { return keys.contains(lower(path)); }

std::optional<RegWert> MemorySettingsTree::readValue(std::string_view path, std::string_view name) {
  const auto key = keys.find(lower(path));
  if (key == keys.end()) return std::nullopt;
  const auto value = key->second.values.find(lower(name));
  if (value == key->second.values.end()) return std::nullopt;
  return value->second;
}

bool MemorySettingsTree::writeValue(std::string_view path, std::string_view name, const RegWert& value) {
  const auto key = keys.find(lower(path));
  if (key == keys.end() || !writable) return false;
  key->second.values[lower(name)] = value;
  return true;
}

SettingsTree::Creation MemorySettingsTree::createKey(std::string_view path, std::string_view className) {
  if (keyExists(path)) return Creation::existed;
  if (!writable) return Creation::failed;
  const std::size_t parentEnd = path.rfind('\\');
  if (parentEnd != std::string_view::npos && !keyExists(path.substr(0, parentEnd))) {
    createKey(path.substr(0, parentEnd), "");
  }
  keys[lower(path)].className = className;
  return Creation::created;
}

bool MemorySettingsTree::deleteKey(std::string_view path) {
  const std::string wanted = lower(path);
  const bool hasKeysBelow = std::any_of(keys.begin(), keys.end(), [&](const auto& key) {
    return key.first.starts_with(wanted + "\\");
  });
  return writable && !hasKeysBelow && keys.erase(wanted) > 0;
}

}  // namespace korvin::test
