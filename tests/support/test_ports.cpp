#include "support/test_ports.h"

namespace korvin::test {
namespace {

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
  if (whileOpen) whileOpen();
  return takeFirst(answers, std::string{});
}

bool MemorySettingsTree::keyExists(std::string_view path) {
  return unreadableText.empty() && korvin::MemorySettingsTree::keyExists(path);
}

std::optional<RegWert> MemorySettingsTree::readValue(std::string_view path, std::string_view name) {
  if (!unreadableText.empty()) return std::nullopt;
  return korvin::MemorySettingsTree::readValue(path, name);
}

bool MemorySettingsTree::writeValue(std::string_view path, std::string_view name, const RegWert& value) {
  return canWrite() && korvin::MemorySettingsTree::writeValue(path, name, value);
}

SettingsTree::Creation MemorySettingsTree::createKey(std::string_view path, std::string_view className) {
  if (!canWrite()) return keyExists(path) ? Creation::existed : Creation::failed;
  return korvin::MemorySettingsTree::createKey(path, className);
}

bool MemorySettingsTree::deleteKey(std::string_view path) {
  return canWrite() && korvin::MemorySettingsTree::deleteKey(path);
}

}  // namespace korvin::test
