#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "korvin-head/fault_injector.h"
#include "korvin-head/head_keys.h"
#include "korvin-head/head_machine.h"
#include "korvin-head/head_model.h"
#include "korvin-head/port_link.h"
#include "korvin-head/pty_line.h"

namespace korvin::head {

/// All that a head on a line is made of.
struct HeadConfig {
  std::string linkPath;  ///< link to the device; needed
  LineProperties line;
  HeadProperties head;
  Spot start;           ///< beam at the start
  Spot driftMmPerHour;  ///< and its movement
  LineShape guideway;   ///< what the head is carried along, point by point
  CircleShape circle;   ///< what it is turned on, position by position
  FaultSettings faults;
  std::vector<ScriptedKey> keyScript;
  double keyHoldSeconds = 0;
  int keysFd = -1;  ///< letters of keys are read from here; −1 for none. Not closed by the server.
};

/// The beam as such a head sees it.
Beam beamOf(const HeadConfig& config);

/// A head on a pseudo-terminal of this computer. Runs in the thread that calls `runUntil`; a test runs it in
/// a thread of its own and ends it through a pipe:
///
///     HeadServer head(config);            // the device is linked when this returns
///     std::thread runner([&] { head.runUntil(stop.readEnd); });
class HeadServer {
 public:
  /// Opens the line and places the link, so that programs can open it at once. Throws `LinkError` or
  /// `std::system_error`.
  explicit HeadServer(const HeadConfig& config);

  /// Told of all traffic, in words. Set before `runUntil`.
  void setTrace(HeadMachine::Trace trace) { machine_.setTrace(std::move(trace)); }
  /// Told with the device's name when the line is back after a hang-up, with an empty name when it hangs up.
  void setLineChange(std::function<void(const std::string& device)> change) {
    lineChange_ = std::move(change);
  }

  /// Serves until `stopFd` is readable; sleeps while there is nothing to do. Throws `LinkError` or
  /// `std::system_error` if the line cannot be had again after a hang-up.
  void runUntil(int stopFd);

  /// Name of the device; empty while hung up.
  std::string device() const { return line_ ? line_->device() : std::string(); }
  const std::string& linkPath() const { return link_.path(); }
  /// What has been counted; not while another thread is in `runUntil`.
  const HeadCounters& counters() const { return machine_.counters(); }
  const FaultInjector& faults() const { return machine_.faults(); }

 private:
  double now() const;
  /// Sleeps until something is to be done; true if it is the end.
  bool wait(int stopFd);
  void receive();
  void readKeys();
  void act(const HeadActions& actions);
  void connect();

  HeadMachine machine_;
  PortLink link_;
  std::unique_ptr<PtyLine> line_;
  std::function<void(const std::string&)> lineChange_;
  int keysFd_;
  double startSeconds_;
};

}  // namespace korvin::head
