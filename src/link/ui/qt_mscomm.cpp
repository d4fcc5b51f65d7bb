#include "link/ui/qt_mscomm.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

#include "frame/ui/qt_text.h"
#include "link/ui/line_output.h"
#include "link/ui/port_devices.h"

namespace korvin {
namespace {

constexpr int dsrPollMs = 20;
/// "The operation is valid only while the port is open."
constexpr std::int32_t portNotOpen = 8018;
/// "The settings string is wrong."
constexpr std::int32_t wrongSettings = 380;

std::int32_t systemNumber(QSerialPort::SerialPortError error) {
  switch (error) {
    case QSerialPort::DeviceNotFoundError:
      return CommPortFehlt;
    case QSerialPort::PermissionError:
      return CommPortBelegt;
    case QSerialPort::WriteError:
    case QSerialPort::ReadError:
    case QSerialPort::ResourceError:
      return EIO;
    default:
      return 1000 + static_cast<std::int32_t>(error);
  }
}

bool isHarmless(QSerialPort::SerialPortError error) {
  return error == QSerialPort::NoError || error == QSerialPort::TimeoutError ||
         error == QSerialPort::UnsupportedOperationError;
}

QSerialPort::Parity parityOf(const QString& letter) {
  if (letter == QLatin1String("E")) return QSerialPort::EvenParity;
  if (letter == QLatin1String("O")) return QSerialPort::OddParity;
  return QSerialPort::NoParity;
}

}  // namespace

QtMSComm::QtMSComm(PortFinder finder, QObject* parent) : QObject(parent), finder_(std::move(finder)) {
  dsrPoll_.setInterval(dsrPollMs);
  connect(&dsrPoll_, &QTimer::timeout, this, &QtMSComm::pollDsr);
  connect(&port_, &QSerialPort::errorOccurred, this, &QtMSComm::onError);
  connect(&port_, &QSerialPort::readyRead, this, [this] {
    if (rThreshold_ > 0) raise(comEvReceive);
  });
}

QtMSComm::PortFinder QtMSComm::finderIn(const QString& portFolder) {
  return [portFolder](int number) {
    const QString link = portDevice(number, portFolder, {});
    return link.isEmpty() ? portDevice(number, portFolder, connectedDevices()) : link;
  };
}

void QtMSComm::setPortOpen(bool open) {
  if (open == port_.isOpen()) return;
  lossNumber_ = 0;
  if (open) {
    openPort();
  } else {
    closePort();
  }
}

void QtMSComm::openPort() {
  const QString device = finder_(commPort_);
  const QFileInfo file(device);
  if (device.isEmpty() || !file.exists()) throw CommError(CommPortFehlt, "no such port");
  if (!file.isReadable() || !file.isWritable()) throw CommError(EACCES, "no right to use the port");

  const QScopedValueRollback<bool> whileOpening(opening_, true);
  port_.setPortName(file.canonicalFilePath());
  applySettings();
  port_.clearError();
  if (!port_.open(QIODevice::ReadWrite)) {
    throw CommError(systemNumber(port_.error()), utf8Text(port_.errorString()));
  }
  startLines();
}

void QtMSComm::applySettings() {
  const QStringList parts = qText(settings_).split(QLatin1Char(','));
  if (parts.size() != 4) throw CommError(wrongSettings, "wrong settings of the line");
  port_.setBaudRate(parts[0].toInt());
  port_.setParity(parityOf(parts[1]));
  port_.setDataBits(static_cast<QSerialPort::DataBits>(parts[2].toInt()));
  port_.setStopBits(parts[3] == QLatin1String("2") ? QSerialPort::TwoStop : QSerialPort::OneStop);
  port_.setFlowControl(QSerialPort::NoFlowControl);
}

void QtMSComm::startLines() {
  const QSerialPort::PinoutSignals pins = port_.pinoutSignals();
  hasLines_ = port_.error() != QSerialPort::UnsupportedOperationError;
  dsr_ = hasLines_ && pins.testFlag(QSerialPort::DataSetReadySignal);
  if (!hasLines_) return;
  port_.setRequestToSend(rtsEnable_);
  dsrPoll_.start();
}

void QtMSComm::closePort() {
  dsrPoll_.stop();
  dsr_ = false;
  port_.close();
}

void QtMSComm::onError(QSerialPort::SerialPortError error) {
  // A failed opening is told by its own exception.
  if (opening_ || isHarmless(error) || !port_.isOpen()) return;
  loseLine(systemNumber(error));
}

void QtMSComm::loseLine(std::int32_t number) {
  lossNumber_ = number;
  closePort();
}

int QtMSComm::InBufferCount() {
  demandOpen();
  return static_cast<int>(port_.bytesAvailable());
}

std::string QtMSComm::Input() {
  demandOpen();
  // Not readAll: it makes room for far more than a telegram, at each call.
  std::string bytes(static_cast<std::size_t>(port_.bytesAvailable()), '\0');
  if (!bytes.empty()) {
    bytes.resize(static_cast<std::size_t>(std::max<qint64>(0, port_.read(bytes.data(), std::ssize(bytes)))));
  }
  return bytes;
}

void QtMSComm::Output(const std::string& bytes) {
  demandOpen();
  const std::int32_t failure = sendAtOnce(port_, bytes);
  if (failure != 0) loseLine(failure);
  demandOpen();
}

void QtMSComm::demandOpen() const {
  if (port_.isOpen()) return;
  throw CommError(lossNumber_ != 0 ? lossNumber_ : portNotOpen, "the port is not open");
}

bool QtMSComm::DSRHolding() {
  if (!port_.isOpen() || !hasLines_) return false;
  return port_.pinoutSignals().testFlag(QSerialPort::DataSetReadySignal);
}

void QtMSComm::setRTSEnable(bool enable) {
  rtsEnable_ = enable;
  if (port_.isOpen() && hasLines_) port_.setRequestToSend(enable);
}

void QtMSComm::pollDsr() {
  const bool now = DSRHolding();
  if (now == dsr_) return;
  dsr_ = now;
  raise(comEvDSR);
}

void QtMSComm::raise(int event) {
  commEvent_ = event;
  if (OnComm) OnComm();
}

}  // namespace korvin
