#pragma once

#include <QSerialPort>
#include <cstdint>
#include <string_view>

namespace korvin {

/// Hands `bytes` to the open line at once, without a turn through the event queue: a question then costs one
/// system call, and the queue is free to wait for the answer. A line that takes nothing more, since nobody
/// reads at its other end, loses what still waits in it: old questions are worth nothing. Returns 0, or the
/// system's number of the failure.
std::int32_t sendAtOnce(QSerialPort& port, std::string_view bytes);

}  // namespace korvin
