#include "link/ui/qt_mscomm.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <optional>

#include "frame/ui/qt_event_pump.h"
#include "link/ui/port_devices.h"
#include "support/pseudo_terminal.h"

namespace korvin {
namespace {

using std::chrono::milliseconds;
using test::PseudoTerminal;

class QtMSCommTest : public ::testing::Test {
 protected:
  QtMSCommTest() { plugIn(); }

  /// A new line at port 3.
  void plugIn() {
    line.emplace();
    const QString link = folder.filePath(QStringLiteral("com3"));
    QFile::remove(link);
    ASSERT_TRUE(QFile::link(QString::fromStdString(line->path()), link));
    control.setCommPort(3);
  }

  void open() {
    control.setPortOpen(true);
    control.setRThreshold(1);
  }

  /// Runs the queue until `done`, for ten seconds at most.
  void until(const std::function<bool()>& done) {
    for (int turns = 0; !done() && turns < 1000; ++turns) pump.waitForEvents(milliseconds{10});
    ASSERT_TRUE(done());
  }

  /// The number of the `CommError` that `action` throws, 0 if it throws none.
  static int errorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const CommError& error) {
      return error.number;
    }
    return 0;
  }

  QTemporaryDir folder;
  std::optional<PseudoTerminal> line;
  QtEventPump pump;
  QtMSComm control{QtMSComm::finderIn(folder.path())};
};

TEST_F(QtMSCommTest, BytesGoBothWaysUnchanged) {
  open();
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  control.Output(all);
  EXPECT_EQ(line->read(256), all);
  line->write(all);
  until([&] { return control.InBufferCount() == 256; });
  EXPECT_EQ(control.Input(), all);
  EXPECT_EQ(control.InBufferCount(), 0);
}

TEST_F(QtMSCommTest, ReceivedBytesRaiseAnEventOnlyWithAThreshold) {
  open();
  int events = 0;
  control.OnComm = [&] {
    ++events;
    EXPECT_EQ(control.CommEvent(), MSComm::comEvReceive);
  };
  control.setRThreshold(0);
  line->write("a");
  until([&] { return control.InBufferCount() == 1; });
  EXPECT_EQ(events, 0);
  control.setRThreshold(1);
  line->write("b");
  until([&] { return control.InBufferCount() == 2; });
  EXPECT_EQ(events, 1);
}

TEST_F(QtMSCommTest, BytesThatComeDuringAnEventAreSeenInIt) {
  open();
  int seenInside = 0;
  control.OnComm = [&] {
    if (seenInside > 0) return;
    line->write("second");
    for (int turns = 0; control.InBufferCount() < 11 && turns < 1000; ++turns)
      pump.waitForEvents(milliseconds{10});
    seenInside = control.InBufferCount();
  };
  line->write("first");
  until([&] { return seenInside > 0; });
  EXPECT_EQ(seenInside, 11);
  EXPECT_EQ(control.Input(), "firstsecond");
}

TEST_F(QtMSCommTest, TheSettingsReachTheLine) {
  control.setSettings("19200,N,8,1");
  open();
  EXPECT_EQ(line->speed(), static_cast<unsigned>(B19200));
  control.setPortOpen(false);
  control.setSettings("115200,N,8,1");
  open();
  EXPECT_EQ(line->speed(), static_cast<unsigned>(B115200));
}

TEST_F(QtMSCommTest, AMissingPortHasItsNumber) {
  control.setCommPort(9);
  EXPECT_EQ(errorOf([&] { control.setPortOpen(true); }), CommPortFehlt);
  EXPECT_FALSE(control.PortOpen());
  QFile::link(folder.filePath(QStringLiteral("gone")), folder.filePath(QStringLiteral("com9")));
  EXPECT_EQ(errorOf([&] { control.setPortOpen(true); }), CommPortFehlt);
}

TEST_F(QtMSCommTest, AFileThatIsNoSerialDeviceIsRefused) {
  QFile plain(folder.filePath(QStringLiteral("com5")));
  ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
  plain.write("kept");
  plain.close();
  control.setCommPort(5);
  EXPECT_NE(errorOf([&] { control.setPortOpen(true); }), 0);
  EXPECT_FALSE(control.PortOpen());
  ASSERT_TRUE(plain.open(QIODevice::ReadOnly));
  EXPECT_EQ(plain.readAll(), QByteArray("kept"));
}

TEST_F(QtMSCommTest, APortInUseHasItsNumber) {
  open();
  QtMSComm other(QtMSComm::finderIn(folder.path()));
  other.setCommPort(3);
  EXPECT_EQ(errorOf([&] { other.setPortOpen(true); }), CommPortBelegt);
  EXPECT_TRUE(control.PortOpen());
}

TEST_F(QtMSCommTest, WrongSettingsAreAnError) {
  control.setSettings("fast");
  EXPECT_NE(errorOf([&] { control.setPortOpen(true); }), 0);
  EXPECT_FALSE(control.PortOpen());
}

TEST_F(QtMSCommTest, LinesThatTheDeviceLacksAreNoError) {
  open();
  EXPECT_FALSE(control.DSRHolding());
  control.setRTSEnable(true);
  EXPECT_TRUE(control.RTSEnable());
  control.setRTSEnable(false);
  EXPECT_TRUE(control.PortOpen());
  control.Output("x");
  EXPECT_EQ(line->read(1), "x");
}

TEST_F(QtMSCommTest, AHangUpClosesOnceAndTheLossShowsUntilTheNextOpening) {
  open();
  line->hangUp();
  until([&] { return !control.PortOpen(); });
  EXPECT_EQ(errorOf([&] { control.InBufferCount(); }), EIO);
  EXPECT_EQ(errorOf([&] { control.Input(); }), EIO);
  EXPECT_EQ(errorOf([&] { control.Output("x"); }), EIO);
  EXPECT_NE(errorOf([&] { control.setPortOpen(true); }), 0) << "the device is gone";

  plugIn();
  open();
  control.Output("back");
  EXPECT_EQ(line->read(4), "back");
  line->write("hello");
  until([&] { return control.InBufferCount() == 5; });
  control.setPortOpen(false);
  EXPECT_NE(errorOf([&] { control.Input(); }), EIO) << "the loss is over";
}

TEST_F(QtMSCommTest, AHangUpDoesNotSpinTheQueue) {
  open();
  line->hangUp();
  until([&] { return !control.PortOpen(); });
  int turns = 0;
  bool over = false;
  QTimer::singleShot(50, &control, [&] { over = true; });
  while (!over) {
    pump.waitForEvents(milliseconds{1000});
    ++turns;
  }
  EXPECT_LT(turns, 10);
}

TEST_F(QtMSCommTest, SendingIntoALineThatWasJustCutThrows) {
  open();
  line->hangUp();
  // The loss is met in the sending itself, before any event was handled.
  EXPECT_EQ(errorOf([&] { control.Output("x"); }), EIO);
  EXPECT_FALSE(control.PortOpen());
}

TEST_F(QtMSCommTest, WhatWasNotReadBeforeTheLossIsNotMixedIntoTheNextLine) {
  open();
  line->write("old");
  until([&] { return control.InBufferCount() == 3; });
  control.setPortOpen(false);
  EXPECT_NE(errorOf([&] { control.Input(); }), 0);
  open();
  EXPECT_EQ(control.InBufferCount(), 0);
}

TEST_F(QtMSCommTest, AHeadThatReadsNothingNeitherBlocksNorLosesTheLine) {
  open();
  for (int i = 0; i < 5000; ++i) control.Output("0123456789abcdefg");
  EXPECT_TRUE(control.PortOpen());
}

TEST_F(QtMSCommTest, AHeadThatAwakesGetsTheLatestQuestion) {
  open();
  for (int i = 0; i < 5000; ++i) control.Output("0123456789abcdefg");
  control.Output("last!");
  std::string all;
  while (!all.ends_with("last!")) all += line->read(1);
  EXPECT_LT(all.size(), 40000U);
}

TEST(PortDeviceTest, TheLinkComesBeforeTheConnectedDevices) {
  QTemporaryDir folder;
  const QList<SerialDevice> devices = {{QStringLiteral("/dev/ttyS0"), SerialDevice::Kind::builtIn}};
  EXPECT_EQ(portDevice(1, folder.path(), devices), QStringLiteral("/dev/ttyS0"));
  QFile::link(QStringLiteral("/dev/null"), folder.filePath(QStringLiteral("com1")));
  EXPECT_EQ(portDevice(1, folder.path(), devices), folder.filePath(QStringLiteral("com1")));
}

TEST(PortDeviceTest, ALinkThatLeadsNowhereKeepsItsNumber) {
  QTemporaryDir folder;
  QFile::link(QStringLiteral("/dev/none"), folder.filePath(QStringLiteral("com1")));
  EXPECT_EQ(portDevice(1, folder.path(), {{QStringLiteral("/dev/ttyS0"), SerialDevice::Kind::builtIn}}),
            folder.filePath(QStringLiteral("com1")));
}

TEST(PortDeviceTest, UsbAdaptersComeFirstInNaturalOrder) {
  using Kind = SerialDevice::Kind;
  const QList<SerialDevice> devices = {{QStringLiteral("/dev/ttyS0"), Kind::builtIn},
                                       {QStringLiteral("/dev/rfcomm0"), Kind::other},
                                       {QStringLiteral("/dev/ttyUSB10"), Kind::usb},
                                       {QStringLiteral("/dev/ttyUSB2"), Kind::usb},
                                       {QStringLiteral("/dev/ttyACM0"), Kind::usb}};
  const auto at = [&](int number) { return portDevice(number, QStringLiteral("/nowhere"), devices); };
  EXPECT_EQ(at(1), QStringLiteral("/dev/ttyACM0"));
  EXPECT_EQ(at(2), QStringLiteral("/dev/ttyUSB2"));
  EXPECT_EQ(at(3), QStringLiteral("/dev/ttyUSB10"));
  EXPECT_EQ(at(4), QStringLiteral("/dev/ttyS0"));
  EXPECT_EQ(at(5), QStringLiteral("/dev/rfcomm0"));
  EXPECT_EQ(at(6), QString());
  EXPECT_EQ(at(0), QString());
  EXPECT_EQ(at(-1), QString());
}

TEST(PortDeviceTest, NumbersAboveSixteenWorkTheSame) {
  QTemporaryDir folder;
  QFile::link(QStringLiteral("/dev/null"), folder.filePath(QStringLiteral("com20")));
  EXPECT_EQ(portDevice(20, folder.path(), {}), folder.filePath(QStringLiteral("com20")));
}

}  // namespace
}  // namespace korvin
