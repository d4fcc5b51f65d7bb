#pragma once

#include <string>
#include <vector>

#include "link/ui/qt_mscomm.h"

namespace korvin::test {

/// The real serial control, with a note of all that passes through it.
class WatchedPort : public MSComm {
 public:
  explicit WatchedPort(QtMSComm::PortFinder finder) : port_(std::move(finder)) {
    port_.OnComm = [this] {
      if (OnComm) OnComm();
    };
  }

  void setCommPort(std::int16_t number) override { port_.setCommPort(number); }
  std::int16_t CommPort() const override { return port_.CommPort(); }
  void setSettings(const std::string& settings) override { port_.setSettings(settings); }
  std::string Settings() const override { return port_.Settings(); }
  void setPortOpen(bool open) override {
    port_.setPortOpen(open);
    if (open) opened.push_back(port_.CommPort());
  }
  bool PortOpen() const override { return port_.PortOpen(); }
  void setRThreshold(int characters) override { port_.setRThreshold(characters); }
  int InBufferCount() override { return port_.InBufferCount(); }
  std::string Input() override {
    std::string bytes = port_.Input();
    received += bytes;
    return bytes;
  }
  void Output(const std::string& bytes) override {
    ++questions;
    port_.Output(bytes);
  }
  int CommEvent() const override { return port_.CommEvent(); }
  bool DSRHolding() override { return port_.DSRHolding(); }
  void setRTSEnable(bool enable) override { port_.setRTSEnable(enable); }
  bool RTSEnable() const override { return port_.RTSEnable(); }

  std::vector<std::int16_t> opened;  ///< ports that opened, in order
  long questions = 0;                ///< frames sent
  std::string received;              ///< all bytes that were taken, also those thrown away

 private:
  QtMSComm port_;
};

}  // namespace korvin::test
