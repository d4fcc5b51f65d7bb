#include "support/scripted_head.h"

#include <cstdio>
#include <utility>

#include "link/telegramm.h"

namespace korvin::test {

std::string answerBody(char kind, char key, int x, int y, int intensity, char headClass, char status) {
  std::string body{headClass, '0', key, status, kind};
  if (kind == 'm' || kind == 'j') {
    char numbers[64];
    std::snprintf(numbers, sizeof numbers, " %06d %06d %5d %2d", x, y, 123, intensity);
    body += numbers;
  }
  return body;
}

std::string answerFrame(const std::string& body, int modulus) {
  return std::string("\x17") + body + PruefzeichenBilden(body, modulus) + "\x1B";
}

void ScriptedHead::setPortOpen(bool open) {
  if (!open && brokenClosing) throw CommError(5, "line lost");
  if (open) {
    opened.push_back(port_);
    openedSettings.push_back(settings_);
    const std::int32_t error = openErrorOfPort ? openErrorOfPort(port_) : openError;
    if (error != 0) throw CommError(error, "cannot open");
  }
  open_ = open;
  ++generation_;
  waiting_.clear();
}

int ScriptedHead::InBufferCount() {
  if (broken) throw CommError(5, "line lost");
  return static_cast<int>(waiting_.size());
}

std::string ScriptedHead::Input() {
  if (broken) throw CommError(5, "line lost");
  return std::exchange(waiting_, {});
}

std::string ScriptedHead::defaultAnswer(char command) {
  const char pressed = std::exchange(key, 'K');
  const char kind = command == 'M' ? 'm' : command == 'J' ? 'j' : 'T';
  return answerFrame(answerBody(kind, pressed, x, y, intensity, '1', status), modulus);
}

void ScriptedHead::Output(const std::string& bytes) {
  if (broken) throw CommError(5, "line lost");
  sent.push_back(bytes);
  const char command = bytes[14];
  commands += command;
  filters += bytes[11];
  const std::string payload = bytes.substr(10, 5);
  if (PruefzeichenBilden(payload, modulus) != bytes[15]) return;
  if (!speed.empty() && speed != settings_) return;
  if (onlyPort && *onlyPort != port_) return;
  std::string answer;
  if (!scripted.empty()) {
    answer = scripted.front();
    scripted.pop_front();
  } else {
    answer = behaviour ? behaviour(command) : defaultAnswer(command);
  }
  if (answer.empty()) return;
  const int generation = generation_;
  clock_.after(delay, [this, answer, generation] {
    if (open_ && generation == generation_) receive(answer);
  });
}

void ScriptedHead::receive(const std::string& bytes) {
  waiting_ += bytes;
  commEvent_ = comEvReceive;
  if (rThreshold > 0 && OnComm) OnComm();
}

void ScriptedHead::changeDsr(bool holding) {
  dsr_ = holding;
  commEvent_ = comEvDSR;
  if (OnComm) OnComm();
}

}  // namespace korvin::test
