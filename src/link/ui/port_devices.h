#pragma once

#include <QList>
#include <QString>

namespace korvin {

/// A serial device of this computer.
struct SerialDevice {
  enum class Kind { usb, builtIn, other };
  QString path;  ///< "/dev/ttyUSB0"
  Kind kind = Kind::other;
};

/// The device of port `number` (from 1): the link "com<number>" in `folder` if it is there, even if it leads
/// nowhere at present (a mapped adapter that is unplugged must not become another one), else the number-th of
/// `devices`: USB adapters first, then the built-in ones, then others, each in natural order (ttyUSB2 before
/// ttyUSB10). Empty if there is none.
QString portDevice(int number, const QString& folder, const QList<SerialDevice>& devices);

/// The order in which devices without a link are numbered.
QList<SerialDevice> inPortOrder(QList<SerialDevice> devices);

/// What is connected now.
QList<SerialDevice> connectedDevices();

/// The folder "korvin/ports" in the user's configuration folder. It need not be there.
QString standardPortFolder();

}  // namespace korvin
