// The pictures belong together: same grid, same colours, drawable by the program's own renderer, and told
// apart.

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

const fs::path folder = fs::path(KORVIN_SOURCE) / "icons";

std::string readAll(const fs::path& file) {
  const std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::set<std::string> matches(const std::string& text, const std::regex& pattern) {
  std::set<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), pattern), end; it != end; ++it) {
    found.insert((*it)[1].str());
  }
  return found;
}

std::set<std::string> pictures() {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".svg") {
      names.insert(entry.path().filename().string());
    }
  }
  return names;
}

QImage rendered(const std::string& name) {
  QSvgRenderer renderer(QString::fromStdString((folder / name).string()));
  QImage image(24, 24, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  return image;
}

int paintedPixels(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    }
  }
  return count;
}

int differingPixels(const QImage& a, const QImage& b) {
  int count = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
  }
  return count;
}

TEST(Icons, ResourceFileAndTableNameEveryPicture) {
  const auto names = pictures();
  EXPECT_GE(names.size(), 40U);
  EXPECT_EQ(matches(readAll(folder / "icons.qrc"), std::regex("<file>([^<]+)</file>")), names);
  std::set<std::string> keys;
  for (const auto& name : names) {
    keys.insert(fs::path(name).stem().string());
  }
  EXPECT_EQ(matches(readAll(folder / "README.md"), std::regex("\\| `(ICON[A-Z0-9]+)` \\|")), keys);
}

TEST(Icons, OnlyTheColoursOfTheFamily) {
  for (const auto& name : pictures()) {
    auto colours = matches(readAll(folder / name), std::regex("(#[0-9A-Fa-f]{3,8})\\b"));
    if (name == "ICONKORVIN.svg") {
      colours.erase("#ffffff");
    }
    for (const auto& colour : colours) {
      EXPECT_TRUE(colour == "#33475b" || colour == "#0a84c6" || colour == "#e07b00") << name << " " << colour;
    }
  }
}

TEST(Icons, NoTextThatNeedsAFont) {
  for (const auto& name : pictures()) {
    EXPECT_EQ(readAll(folder / name).find("<text"), std::string::npos) << name;
  }
}

TEST(Icons, TheProgramsRendererDrawsEachOnTheGrid) {
  for (const auto& name : pictures()) {
    const QSvgRenderer renderer(QString::fromStdString((folder / name).string()));
    ASSERT_TRUE(renderer.isValid()) << name;
    EXPECT_EQ(renderer.viewBoxF(), QRectF(0, 0, 24, 24)) << name;
    EXPECT_GT(paintedPixels(rendered(name)), 30) << name;
  }
}

TEST(Icons, NoTwoLookAlike) {
  std::map<std::string, QImage> images;
  for (const auto& name : pictures()) {
    images[name] = rendered(name);
  }
  for (auto a = images.begin(); a != images.end(); ++a) {
    for (auto b = std::next(a); b != images.end(); ++b) {
      EXPECT_GT(differingPixels(a->second, b->second), 40) << a->first << " " << b->first;
    }
  }
}

}  // namespace
