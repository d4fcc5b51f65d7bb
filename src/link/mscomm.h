#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>

namespace korvin {

/// A run-time error of the serial control.
class CommError : public std::runtime_error {
 public:
  CommError(std::int32_t errorNumber, const std::string& text)
      : std::runtime_error(text), number(errorNumber) {}

  /// 32000: the port belongs to another program. 32001: the port does not exist. Others: the system's number.
  std::int32_t number;
};

inline constexpr std::int32_t CommPortBelegt = 32000;
inline constexpr std::int32_t CommPortFehlt = 32001;

/// The serial control of a window. A port: the real serial line in the program, a scripted head in tests. All
/// calls may throw `CommError`; a line that was lost closes the control once, after which `setPortOpen(true)`
/// may be tried anew.
class MSComm {
 public:
  virtual ~MSComm() = default;

  /// `CommEvent` after a change of the DSR line.
  static constexpr int comEvDSR = 4;
  /// `CommEvent` after received characters.
  static constexpr int comEvReceive = 2;

  virtual void setCommPort(std::int16_t number) = 0;
  virtual std::int16_t CommPort() const = 0;
  /// "19200,N,8,1" or "115200,N,8,1".
  virtual void setSettings(const std::string& settings) = 0;
  virtual std::string Settings() const = 0;
  virtual void setPortOpen(bool open) = 0;
  virtual bool PortOpen() const = 0;
  /// 0: received characters raise no event. 1: every one does.
  virtual void setRThreshold(int characters) = 0;

  /// Number of received bytes that wait.
  virtual int InBufferCount() = 0;
  /// Takes all received bytes.
  virtual std::string Input() = 0;
  /// Sends bytes without waiting for the line.
  virtual void Output(const std::string& bytes) = 0;

  virtual int CommEvent() const = 0;
  /// State of the DSR line; false where the device has no such line.
  virtual bool DSRHolding() = 0;
  virtual void setRTSEnable(bool enable) = 0;
  virtual bool RTSEnable() const = 0;

  /// Called for each event, from inside the event queue.
  std::function<void()> OnComm;
};

}  // namespace korvin
