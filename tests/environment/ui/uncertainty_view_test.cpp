// The diagram of the reachable uncertainty on the screen: what it draws and what the pointer tells.
#include "environment/ui/uncertainty_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <string>
#include <vector>

#include "frame/posix_file_system.h"
#include "frame/ui/qt_text.h"
#include "support/recording_surface.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

/// Draws its frame on any surface, and tells its hints at once.
class OpenPicture : public PictureUnsicherheit {
 public:
  using PictureUnsicherheit::drawFrame;
  using PictureUnsicherheit::hint;
  using PictureUnsicherheit::PictureUnsicherheit;
};

class UncertaintyView : public ::testing::Test {
 protected:
  UncertaintyView() {
    bild.Fx = table;
    bild.Fy = table;
    bild.N = 10;
    bild.maximum = 18;
    bild.wert = 10;
    bild.sekundenJePosition = 3;
    picture.resize(500, 250);
    picture.hintOf = [](int position) { return "position " + std::to_string(position); };
    picture.onPosition = [this](int position) { positions.push_back(position); };
  }
  void show() {
    picture.setBild(bild);
    picture.show();
    QApplication::processEvents();
  }
  bool draws(const std::string& word) {
    test::RecordingSurface surface(500, 250);
    picture.drawFrame(surface);
    const auto texts = surface.texts();
    return std::find(texts.begin(), texts.end(), word) != texts.end();
  }
  std::string hintAt(double seconds) { return utf8Text(picture.hint({seconds, 0.01})); }

  test::TestFileDialog fileDialog;
  test::TestMessages messages;
  test::TestDictionary dictionary;
  PosixFileSystem files;
  std::vector<double> table = std::vector<double>(19, 0.02);
  UnsicherheitsBild bild;
  std::vector<int> positions;
  OpenPicture picture{{fileDialog, messages, dictionary, files, {}, {}}};
};

TEST_F(UncertaintyView, KeepsItsWordFromRunToRun) {
  picture.setBild(bild);
  picture.setHinaus("beyond");
  EXPECT_TRUE(draws("beyond"));
  picture.setBild(bild);
  EXPECT_TRUE(draws("beyond"));
  picture.setHinaus("above");
  EXPECT_TRUE(draws("above"));
}

TEST_F(UncertaintyView, ThePointerTellsWhatAPositionSays) {
  show();
  EXPECT_EQ(hintAt(0.4), "position 0");
  EXPECT_EQ(hintAt(29), "position 10");
  EXPECT_EQ(hintAt(54), "position 18");
  EXPECT_EQ(hintAt(-4), "") << "beside the plot";
  EXPECT_EQ(hintAt(30), "position 10");
  EXPECT_EQ(hintAt(55.5), "");
}

TEST_F(UncertaintyView, WithoutARunItTellsNothing) {
  bild.maximum = 0;
  show();
  EXPECT_EQ(hintAt(0.5), "");
  QTest::mouseClick(&picture, Qt::LeftButton, {}, {250, 125});
  EXPECT_TRUE(positions.empty());
}

TEST_F(UncertaintyView, PressesTellTheNearestPosition) {
  show();
  QTest::mouseClick(&picture, Qt::LeftButton, {}, picture.placeOf({16, 0.01})->toPoint());
  EXPECT_EQ(positions, std::vector<int>{5});
}

}  // namespace
}  // namespace korvin
