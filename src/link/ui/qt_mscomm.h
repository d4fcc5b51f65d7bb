#pragma once

#include <QObject>
#include <QSerialPort>
#include <QTimer>
#include <functional>

#include "link/mscomm.h"

namespace korvin {

/// The serial control on a real serial line, opened for this program alone.
///
/// A lost line (pulled adapter, hang-up of a pseudo-terminal) closes the port once; from then on
/// `InBufferCount`, `Input` and `Output` throw the number of that loss until the port is opened again. Lines
/// that the device does not have (DSR, RTS) are no error. `OnComm` comes once for each batch of received
/// bytes.
class QtMSComm : public QObject, public MSComm {
  Q_OBJECT

 public:
  /// Finds the device of a port number; empty if there is none.
  using PortFinder = std::function<QString(int number)>;

  explicit QtMSComm(PortFinder finder, QObject* parent = nullptr);
  /// With the numbering of `portDevice` over the links in `portFolder` and what is connected.
  static PortFinder finderIn(const QString& portFolder);

  void setCommPort(std::int16_t number) override { commPort_ = number; }
  std::int16_t CommPort() const override { return commPort_; }
  void setSettings(const std::string& settings) override { settings_ = settings; }
  std::string Settings() const override { return settings_; }
  void setPortOpen(bool open) override;
  bool PortOpen() const override { return port_.isOpen(); }
  void setRThreshold(int characters) override { rThreshold_ = characters; }

  int InBufferCount() override;
  std::string Input() override;
  void Output(const std::string& bytes) override;

  int CommEvent() const override { return commEvent_; }
  bool DSRHolding() override;
  void setRTSEnable(bool enable) override;
  bool RTSEnable() const override { return rtsEnable_; }

 private:
  void openPort();
  void applySettings();
  void startLines();
  void closePort();
  void onError(QSerialPort::SerialPortError error);
  void loseLine(std::int32_t number);
  void pollDsr();
  void raise(int event);
  /// Throws if the port is not open.
  void demandOpen() const;

  QSerialPort port_;
  QTimer dsrPoll_;
  PortFinder finder_;
  std::int16_t commPort_ = 1;
  std::string settings_ = "115200,N,8,1";
  int rThreshold_ = 0;
  int commEvent_ = 0;
  bool dsr_ = false;
  bool rtsEnable_ = false;
  bool hasLines_ = false;
  bool opening_ = false;
  std::int32_t lossNumber_ = 0;  ///< system's number of the loss that closed the port; 0: none
};

}  // namespace korvin
