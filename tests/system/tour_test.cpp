// The walk as a program: real windows, real files, a virtual head on a line.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/temp_folder.h"
#include "support/test_files.h"
#include "system/child_program.h"

namespace fs = std::filesystem;

namespace korvin::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr double limitSeconds = 640;  ///< above the walk's own limit
constexpr std::uintmax_t headBytes = 789;
constexpr std::uintmax_t tripleBytes = 24;
constexpr std::uintmax_t lineBytes = 5643;

TEST(Tour, EndsInSuccessAndLeavesFilesAndPictures) {
  const TempFolder out;
  ChildProgram tour("korvin-tour", {"--out", out.path().string()});
  const int code = tour.wait(limitSeconds);
  const std::string story = fileBytes(out / "walk.txt");
  ASSERT_EQ(code, 0) << story;
  EXPECT_THAT(story, HasSubstr("All steps went well."));
  EXPECT_THAT(story, Not(HasSubstr("FAILED")));
  EXPECT_EQ(fs::file_size(out / "walk.O"), headBytes);
  EXPECT_GT(fs::file_size(out / "walk.O1"), 60 * tripleBytes);
  EXPECT_THAT(fileBytes(out / "walk.O$"), HasSubstr("X[mm]"));
  EXPECT_EQ(fs::file_size(out / "walk.G"), lineBytes);
  EXPECT_THAT(fileBytes(out / "walk.G$"), HasSubstr("MP\tZ[mm]\tX[mm]\tY[mm]\r\n1\t0.0\t"));
  EXPECT_EQ(fs::file_size(out / "adaptive.G"), lineBytes);
  EXPECT_THAT(fileBytes(out / "adaptive.G$"), HasSubstr("MP\tZ[mm]\tX[mm]\tY[mm]\r\n1\t0.0\t"));
  EXPECT_THAT(story, HasSubstr("AutoAdapt \"-1\""));
  EXPECT_THAT(story, HasSubstr("for straightness, parallelism and squareness"));
  for (const char* name : {"walk.pdf", "adaptive.pdf"})
    EXPECT_THAT(fileBytes(out / name), ::testing::StartsWith("%PDF")) << name;
  for (const char* name : {"search",
                           "start-screen-de",
                           "start-screen-en",
                           "start-screen-ja",
                           "information",
                           "guide",
                           "position-empty",
                           "position-measuring",
                           "position-points",
                           "position-big-numbers",
                           "position-diagram",
                           "position-statistics",
                           "settings-1",
                           "settings-2",
                           "settings-3",
                           "print-dialog",
                           "print-preview",
                           "position-reopened",
                           "position-de",
                           "position-ja",
                           "file-information",
                           "file-dialog",
                           "line-empty",
                           "line-measured",
                           "line-ref",
                           "line-statistics",
                           "line-reopened",
                           "line-de",
                           "line-ja",
                           "environment-running",
                           "environment-finished",
                           "environment-shorter",
                           "line-settings-1",
                           "line-settings-2",
                           "line-settings-3",
                           "line-settings-4",
                           "line-adaptive",
                           "line-adaptive-measured",
                           "line-circle",
                           "line-centre",
                           "line-adaptive-saved",
                           "line-print-dialog",
                           "line-print-preview",
                           "line-report-1",
                           "line-report-2",
                           "report-1",
                           "report-2"}) {
    EXPECT_THAT(fileBytes(out / (std::string(name) + ".png")), ::testing::StartsWith("\x89PNG")) << name;
  }
}

TEST(Tour, FailsWhereItsFolderCannotBe) {
  const TempFolder place;
  writeBytes(place / "file", "no folder");
  ChildProgram tour("korvin-tour", {"--out", (place / "file").string()});
  EXPECT_EQ(tour.wait(limitSeconds), 1);
  EXPECT_THAT(tour.errors(), HasSubstr((place / "file").string()));
}

TEST(Tour, FailsWithoutAHead) {
  const TempFolder place;
  fs::copy_file(KORVIN_BIN "/korvin-tour", place / "korvin-tour");
  const fs::path program = fs::relative(place / "korvin-tour", KORVIN_BIN);
  ChildProgram tour(program.string(), {"--out", (place / "out").string()});
  EXPECT_EQ(tour.wait(limitSeconds), 1);
  EXPECT_THAT(tour.errors(), HasSubstr("the virtual head does not start"));
}

TEST(Tour, TellsTheStepThatFailedAndEnds) {
  // A folder stands where the first picture is to go.
  const TempFolder out;
  fs::create_directory(out / "new-settings.png");
  ChildProgram tour("korvin-tour", {"--out", out.path().string()});
  EXPECT_EQ(tour.wait(limitSeconds), 1);
  EXPECT_THAT(tour.errors(), HasSubstr("korvin-tour: failed: A question tells of new settings"));
  EXPECT_THAT(fileBytes(out / "walk.txt"), HasSubstr("FAILED"));
}

}  // namespace
}  // namespace korvin::test
