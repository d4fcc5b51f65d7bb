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
  /// Readable when bytes came.
  int fd() const { return master_.get(); }
  /// Readable when the device was opened or closed; −1 if the system cannot tell.
  int watchFd() const { return watch_.get(); }

  /// All bytes that are there; empty if there are none. Throws `std::system_error` on a broken line.
  std::string read();
  /// Sends `bytes`; what finds no room or no reader is lost.
  void write(std::string_view bytes);
  /// Line speed in bits per second as the program has set it; 0 for one that no head has.
  long baud() const;
  /// Takes note of who opened or closed the device since.
  void noticeClients();

 private:
  bool listenedTo();

  FileDescriptor master_;
  FileDescriptor
      slave_;  // keeps the terminal's settings and spares the master its hang-ups between two clients
  FileDescriptor watch_;
  std::string device_;
  int clients_ = 0;
};

}  // namespace korvin::head
