#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "link/mscomm.h"
#include "support/test_clock.h"

namespace korvin::test {

/// The body of an answer without its check character: class, second character, key, status, kind, and the
/// numbers.
std::string answerBody(char kind, char key = 'K', int x = 250000, int y = 250000, int intensity = 80,
                       char headClass = '1', char status = ' ');
/// A whole answer frame.
std::string answerFrame(const std::string& body, int modulus = 223);

/// A serial control with a head behind it that answers as the test says. Time is the test clock's.
class ScriptedHead : public MSComm {
 public:
  explicit ScriptedHead(TestClock& clock) : clock_(clock) {}

  void setCommPort(std::int16_t number) override { port_ = number; }
  std::int16_t CommPort() const override { return port_; }
  void setSettings(const std::string& settings) override { settings_ = settings; }
  std::string Settings() const override { return settings_; }
  void setPortOpen(bool open) override;
  bool PortOpen() const override { return open_; }
  void setRThreshold(int characters) override {
    rThreshold = characters;
    rThresholds.push_back(characters);
  }
  int InBufferCount() override;
  std::string Input() override;
  void Output(const std::string& bytes) override;
  int CommEvent() const override { return commEvent_; }
  bool DSRHolding() override { return dsr_; }
  void setRTSEnable(bool enable) override {
    rts_ = enable;
    rtsHistory.push_back(enable);
  }
  bool RTSEnable() const override { return rts_; }

  /// Bytes arrive now.
  void receive(const std::string& bytes);
  /// The DSR line changes now.
  void changeDsr(bool holding);
  /// The next answers of this command letter, before the standing behaviour.
  void nextAnswer(const std::string& frame) { scripted.push_back(frame); }

  /// Makes the answer to a command letter; an empty text is silence. Default: a well-behaved head at the
  /// centre.
  std::function<std::string(char command)> behaviour;
  std::deque<std::string> scripted;      ///< answers used first, whatever the command
  double delay = 0.01;                   ///< seconds until an answer arrives
  int modulus = 223;                     ///< the head is silent to requests with another check character
  std::string speed;                     ///< if not empty, the head answers only at these settings
  std::optional<std::int16_t> onlyPort;  ///< if set, the head is behind this port
  std::int32_t openError = 0;            ///< if not 0, opening fails with it
  std::function<std::int32_t(std::int16_t port)> openErrorOfPort;
  bool brokenClosing = false;  ///< closing throws
  bool broken = false;         ///< every read and write throws
  char key = 'K';              ///< key that the default behaviour reports, for one answer
  int x = 250000, y = 250000, intensity = 80;
  char status = ' ';

  std::vector<std::string> sent;     ///< frames as they were sent
  std::string commands;              ///< their command letters
  std::string filters;               ///< their filter levels
  std::vector<std::int16_t> opened;  ///< ports that were tried
  std::vector<std::string> openedSettings;
  std::vector<bool> rtsHistory;
  int rThreshold = 0;
  std::vector<int> rThresholds;

 private:
  std::string defaultAnswer(char command);

  TestClock& clock_;
  std::int16_t port_ = 0;
  std::string settings_;
  bool open_ = false;
  bool dsr_ = false;
  bool rts_ = true;
  int commEvent_ = 0;
  int generation_ = 0;
  std::string waiting_;
};

}  // namespace korvin::test
