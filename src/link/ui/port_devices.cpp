#include "link/ui/port_devices.h"

#include <QFileInfo>
#include <QSerialPortInfo>
#include <QStandardPaths>
#include <algorithm>

namespace korvin {
namespace {

/// Length of the run of digits at `start`.
qsizetype digitsAt(const QString& text, qsizetype start) {
  qsizetype end = start;
  while (end < text.size() && text[end].isDigit()) ++end;
  return end - start;
}

/// Numbers in names compare by their value.
bool naturallyBefore(const QString& a, const QString& b) {
  qsizetype i = 0;
  qsizetype k = 0;
  while (i < a.size() && k < b.size()) {
    const qsizetype digitsA = digitsAt(a, i);
    const qsizetype digitsB = digitsAt(b, k);
    if (digitsA > 0 && digitsB > 0) {
      const qulonglong numberA = QStringView(a).mid(i, digitsA).toULongLong();
      const qulonglong numberB = QStringView(b).mid(k, digitsB).toULongLong();
      if (numberA != numberB) return numberA < numberB;
      i += digitsA;
      k += digitsB;
    } else {
      if (a[i] != b[k]) return a[i] < b[k];
      ++i;
      ++k;
    }
  }
  return a.size() - i < b.size() - k;
}

SerialDevice::Kind kindOf(const QSerialPortInfo& info) {
  const QString name = info.portName();
  if (info.hasVendorIdentifier() || name.startsWith(QLatin1String("ttyUSB")) ||
      name.startsWith(QLatin1String("ttyACM"))) {
    return SerialDevice::Kind::usb;
  }
  return name.startsWith(QLatin1String("ttyS")) ? SerialDevice::Kind::builtIn : SerialDevice::Kind::other;
}

}  // namespace

QList<SerialDevice> inPortOrder(QList<SerialDevice> devices) {
  std::stable_sort(devices.begin(), devices.end(), [](const SerialDevice& a, const SerialDevice& b) {
    return a.kind != b.kind ? a.kind < b.kind : naturallyBefore(a.path, b.path);
  });
  return devices;
}

QString portDevice(int number, const QString& folder, const QList<SerialDevice>& devices) {
  if (number < 1) return {};
#ifdef Q_OS_WIN
  Q_UNUSED(folder);
  Q_UNUSED(devices);
  return QStringLiteral("COM%1").arg(number);
#else
  const QFileInfo link(folder + QStringLiteral("/com%1").arg(number));
  if (link.isSymLink() || link.exists()) return link.filePath();
  return number <= devices.size() ? inPortOrder(devices)[number - 1].path : QString();
#endif
}

QList<SerialDevice> connectedDevices() {
  QList<SerialDevice> devices;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
    devices.append({info.systemLocation(), kindOf(info)});
  }
  return devices;
}

QString standardPortFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/korvin/ports");
}

}  // namespace korvin
