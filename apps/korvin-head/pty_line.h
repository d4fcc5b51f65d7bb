#pragma once

#include <string>
#include <string_view>

#include "korvin-head/file_descriptor.h"

namespace korvin::head {

/// One pseudo-terminal in raw mode, held by its head's end. Destroying it hangs up: whoever has the device
/// open gets an error, as with an adapter that is pulled out.
///
/// As on a real line, what is sent while nobody has the device open is lost, and what was not read is gone
/// when the device is closed.
class PtyLine {
 public:
  /// Opens a terminal; throws `std::system_error` if the system has none to give.
  PtyLine();

  /// Name of the device that programs open.
  const std::string& device() const { return device_; }
  /// Has events for poll() when bytes came or when the device was closed: `read` then.
  int fd() const { return master_.get(); }

  /// All bytes that are there; empty if there are none. Throws `std::system_error` on a broken line.
  std::string read();
  /// Sends `bytes`; what finds no room or no reader is lost.
  void write(std::string_view bytes);
  /// Line speed in bits per second as the program has set it; 0 for one that no head has.
  long baud() const;

 private:
  void park();

  FileDescriptor master_;
  // A terminal that no one has open reports a hang-up without end; so the head holds it itself from the
  // moment when the last program closes it until bytes show that another one is there.
  FileDescriptor parked_;
  std::string device_;
};

}  // namespace korvin::head
