#include "link/ui/line_output.h"

#include <cerrno>

#ifdef Q_OS_UNIX
#include <termios.h>
#include <unistd.h>
#endif

namespace korvin {

#ifdef Q_OS_UNIX

namespace {

/// Bytes that the system took of `bytes`; -1 for a failure, told by `errno`.
ssize_t writeSome(int line, std::string_view bytes) {
  ssize_t taken = 0;
  do {
    taken = ::write(line, bytes.data(), bytes.size());
  } while (taken < 0 && errno == EINTR);
  return taken;
}

}  // namespace

std::int32_t sendAtOnce(QSerialPort& port, std::string_view bytes) {
  const int line = port.handle();
  bool emptied = false;
  while (!bytes.empty()) {
    const ssize_t taken = writeSome(line, bytes);
    if (taken < 0 && errno != EAGAIN) return errno;
    if (taken > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(taken));
    } else if (!emptied) {
      tcflush(line, TCOFLUSH);
      emptied = true;
    } else {
      return 0;
    }
  }
  return 0;
}

#else

std::int32_t sendAtOnce(QSerialPort& port, std::string_view bytes) {
  port.write(bytes.data(), static_cast<qint64>(bytes.size()));
  port.flush();
  return 0;
}

#endif

}  // namespace korvin
