#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "frame/dictionary.h"
#include "frame/file_dialog.h"
#include "frame/memory_settings_tree.h"
#include "frame/message_port.h"
#include "frame/program_end.h"
#include "frame/random_source.h"

namespace korvin::test {

/// Records message boxes and answers them from a list; without a prepared answer the first harmless button is
/// pressed.
class TestMessages : public MessagePort {
 public:
  struct Shown {
    std::string title;
    std::string text;
    MessageIcon icon;
    MessageButtons buttons;
  };

  MessageAnswer show(const Meldung& message, MessageIcon icon, MessageButtons buttons) override;
  void beep() override { ++beeps; }

  std::vector<Shown> shown;
  std::deque<MessageAnswer> answers;
  int beeps = 0;
};

/// A dictionary whose texts are told by the test; a number without one reads "D<number>".
class TestDictionary : public Dictionary {
 public:
  std::string DicText(std::int16_t id) override;

  std::map<std::int16_t, std::string> texts;
};

/// What `TestProgramEnd` throws. On purpose no `std::exception`: no recovery may catch it.
struct ProgramEnded {
  std::string systemText;
  long number;
};

class TestProgramEnd : public ProgramEnd {
 public:
  [[noreturn]] void end(const std::string& systemText, long number) override {
    throw ProgramEnded{systemText, number};
  }
};

/// Gives the numbers it is told, again and again.
class TestRandom : public RandomSource {
 public:
  explicit TestRandom(std::vector<float> numbers = {0.5F}) : numbers_(std::move(numbers)) {}
  float next() override { return numbers_[position_++ % numbers_.size()]; }

 private:
  std::vector<float> numbers_;
  std::size_t position_ = 0;
};

/// Answers file dialogs from a list, then as after Cancel.
class TestFileDialog : public FileDialog {
 public:
  std::string choose(const FileDialogRequest& request) override;

  std::vector<FileDialogRequest> requests;
  std::function<void()> whileOpen;  ///< runs while the dialog is open
  std::deque<std::string> answers;
};

/// The settings tree in memory, which can be made to refuse.
class MemorySettingsTree : public korvin::MemorySettingsTree {
 public:
  bool keyExists(std::string_view path) override;
  std::optional<RegWert> readValue(std::string_view path, std::string_view name) override;
  bool writeValue(std::string_view path, std::string_view name, const RegWert& value) override;
  Creation createKey(std::string_view path, std::string_view className) override;
  bool deleteKey(std::string_view path) override;
  std::string unreadable() const override { return unreadableText; }
  bool lockedByAnother() const override { return locked; }

  using korvin::MemorySettingsTree::keys;
  bool writable = true;
  std::string unreadableText;  ///< if not empty, reads give nothing and writes refuse
  bool locked = false;

 private:
  bool canWrite() const { return writable && unreadableText.empty(); }
};

}  // namespace korvin::test
