#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <span>
#include <string>

#include "hand.h"
#include "head_process.h"
#include "journal.h"

namespace korvin::tour {

/// Where things are on the walk.
struct WalkPlaces {
  QString pictures;                    ///< folder of the pictures
  QString file;                        ///< the measuring file of positions, with its full path
  QString report;                      ///< its report as PDF, likewise
  QString line;                        ///< the measuring file of the line, likewise
  QString adaptiveLine;                ///< the measuring file of the line of adaptive points, likewise
  QString lineReport;                  ///< its report as PDF, likewise
  std::filesystem::path settingsFile;  ///< the settings of the walk
};

/// Where a measurement is printed from, and what of it.
struct PrintPlace {
  QString window;
  QString dialog;
  QStringList boxes;  ///< that are set in the dialog
  QString pictures;   ///< what the names of its pictures begin with
  int fewestPages;
};

/// A user's way through the program: four starts, each a list of steps in their order. Runs in a thread of
/// its own, beside the windows.
///
/// To add a step: a member function that does it and returns what it read, and a line in a list in walk.cpp.
class Walk {
 public:
  Walk(WalkPlaces places, const HeadProcess& head, Journal& journal)
      : places_(std::move(places)), head_(head), journal_(journal), hand_(places_.pictures) {}

  /// The first start, with no settings: search, start screen, information, guide. Ends the program.
  /// Returns false, with the journal saying why, as soon as a step fails.
  bool firstStart();
  /// The second start: the measurement, its files, and reading it again. Ends the program.
  bool secondStart();
  /// The third start, with a head that is carried along a guideway: its straightness. Ends the program.
  bool thirdStart();
  /// The fourth start, with a head that is turned on a spindle, in German: how quiet its place is, adaptive
  /// points, the spindle's centre, the report. Ends the program.
  bool fourthStart();

 private:
  struct Step {
    const char* name;
    std::string (Walk::*run)();
  };
  bool take(std::span<const Step> steps);
  /// What the program itself says to a failed step.
  std::string openMessage();

  // ---- walk_start.cpp ----
  std::string newSettings();
  std::string search();
  std::string storedPort();
  std::string startScreens();
  std::string information();
  std::string guide();
  std::string textCopyOn();
  std::string end();
  std::string foundAtOnce();

  // ---- walk_position.cpp ----
  std::string openPosition();
  std::string singleByClick();
  std::string singleByHead();
  std::string runByClick();
  std::string runByHead();
  std::string fastRun();
  std::string cursor();
  std::string cursorByHead();
  std::string offset();
  std::string bigNumbers();
  std::string save();
  std::string files();
  std::string closePosition();
  std::string reopen();
  std::string reopenInOtherLanguages();

  // ---- walk_evaluation.cpp ----
  std::string settings();
  std::string diagram();
  std::string statistics();
  std::string preview();
  std::string report();

  // ---- walk_report.cpp ----
  void openPrintDialog(const PrintPlace& place);
  /// The report on the screen, with a picture of each page; returns what the preview tells of its pages.
  std::string previewFor(const PrintPlace& place);
  std::string pdfFor(const PrintPlace& place, const QString& file);
  /// Pictures of the pages that the preview shows; returns their number.
  int pagePictures(const QString& name);

  // ---- walk_line.cpp ----
  std::string english();
  std::string lineTolerances();
  std::string openLine();
  std::string measureLine();
  std::string lineEvaluations();
  std::string lineRanges();
  std::string lineStatistics();
  std::string saveLine();
  std::string lineFiles();
  std::string closeLine();
  std::string reopenLine();
  std::string reopenLineInOtherLanguages();

  // ---- walk_environment.cpp ----
  std::string openAnalysis();
  std::string runAnalysis();
  std::string analysisResult();
  std::string shorterTime();
  std::string saveAnalysis();
  std::string closeAnalysis();
  /// Reads a panel of the result; throws if it is far from what the head's noise gives.
  double requireUncertainty(int index, double expected);
  /// Holds a setting of all kinds that measure adaptively against a number; returns it as it is stored.
  std::string requireHandedOver(const std::string& key, double value);

  // ---- walk_adaptive.cpp ----
  std::string german();
  std::string openAdaptiveLine();
  std::string adaptiveOn();
  std::string adaptiveLine();
  std::string adaptiveOff();
  std::string saveAdaptiveLine();
  std::string adaptivePreview();
  std::string adaptiveReport();
  std::string closeAdaptiveLine();
  std::string adaptiveFiles();
  void openLineSettings();
  void takeOverLineSettings();
  /// Holds a stored setting against what was typed; returns its key and what is stored.
  std::string requireStored(const std::string& section, const std::string& key, const QString& text);
  /// Holds the boxes of adaptive measuring against what the analysis stored.
  std::string requireProposed();
  void pictureSettings();
  void startAdaptively();
  /// Takes the point of that row and turns the head to its next position.
  void measureAdaptively(int row);
  void pictureOfConvergence(int row);
  /// Waits for the new day if this one has not that many seconds any more.
  static void keepFromMidnight(int seconds);

  // ---- walk_centre.cpp ----
  std::string centre();
  std::string acceptedCentre();
  void takeCirclePosition(int number);

  /// Clicks a key or box unless it is set.
  void set(const QString& window, const QString& control);
  void chooseLanguage(int index);
  void typeFileAndAccept(const QString& file);
  void openFile();
  void openLineFile();
  /// Waits until the measuring window is online and shows the head's first answer.
  void waitForMeasuring(const QString& window);
  /// Measures the current point of the line, by the tool bar or by the head's key.
  void measurePoint(int number, bool byHead);
  /// Shows the line by one of its evaluations and returns its points.
  QStringList evaluated(const QString& key);
  /// Whether the file shows what was saved; `picture` is taken of the window.
  void lookAtLineFile(const QString& picture);
  /// Clicks the key, lets `count` points come, clicks again; returns the number of points then.
  int runOnKey(const QString& key, int count, const QString& picture);
  int pointCount();
  std::string lastPoint();
  std::string setting(std::string_view key);
  std::string setting(std::string_view section, std::string_view key);
  /// Saves the line in the straightness window, and tells the file's information.
  std::string saveLineAs(const QString& file, const QString& name, const QString& remark);

  WalkPlaces places_;
  const HeadProcess& head_;
  Journal& journal_;
  Hand hand_;
  QStringList savedRows_;
  QString savedOffset_;
  QStringList lineReadings_;  ///< points of the line in work, not evaluated
  QStringList lineRows_;      ///< the same as they were shown when they were saved
};

}  // namespace korvin::tour
