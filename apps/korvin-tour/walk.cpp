#include "walk.h"

#include <array>
#include <chrono>
#include <exception>

namespace korvin::tour {

bool Walk::firstStart() {
  static constexpr std::array<Step, 8> steps = {{{"A question tells of new settings", &Walk::newSettings},
                                                 {"The search finds the head", &Walk::search},
                                                 {"Its port and speed are stored", &Walk::storedPort},
                                                 {"The start screen in three languages", &Walk::startScreens},
                                                 {"The information about the program", &Walk::information},
                                                 {"The user's guide", &Walk::guide},
                                                 {"The text copy is switched on", &Walk::textCopyOn},
                                                 {"The program ends", &Walk::end}}};
  return take(steps);
}

bool Walk::secondStart() {
  static constexpr std::array<Step, 22> steps = {
      {{"The second start finds the head at once", &Walk::foundAtOnce},
       {"The tile opens the position window", &Walk::openPosition},
       {"A single measurement, by the tool bar", &Walk::singleByClick},
       {"A single measurement, by the head's key", &Walk::singleByHead},
       {"A running measurement, by the tool bar", &Walk::runByClick},
       {"A running measurement, by the head's key", &Walk::runByHead},
       {"A fast running measurement", &Walk::fastRun},
       {"The point cursor, by the tool bar", &Walk::cursor},
       {"The point cursor, by the head's keys", &Walk::cursorByHead},
       {"The offset", &Walk::offset},
       {"The big numbers", &Walk::bigNumbers},
       {"The diagram: cursor, grid, ranges by hand", &Walk::diagram},
       {"Mean, spread and range", &Walk::statistics},
       {"The settings of position measuring", &Walk::settings},
       {"The report on the screen", &Walk::preview},
       {"The measurement is saved", &Walk::save},
       {"Its three files hold what was measured", &Walk::files},
       {"The report as PDF", &Walk::report},
       {"The window closes", &Walk::closePosition},
       {"The file opens again and shows what was measured", &Walk::reopen},
       {"The same in German and Japanese", &Walk::reopenInOtherLanguages},
       {"The program ends", &Walk::end}}};
  return take(steps);
}

bool Walk::thirdStart() {
  static constexpr std::array<Step, 14> steps = {
      {{"The third start finds the head at once", &Walk::foundAtOnce},
       {"The language is English again", &Walk::english},
       {"Tolerances of straightness are set", &Walk::lineTolerances},
       {"The tile opens the straightness window", &Walk::openLine},
       {"Six points of a line, by tool bar and head in turn", &Walk::measureLine},
       {"Raw, least squares, reference points", &Walk::lineEvaluations},
       {"The ranges of the diagrams", &Walk::lineRanges},
       {"Mean, spread, range and tolerances", &Walk::lineStatistics},
       {"The line is saved", &Walk::saveLine},
       {"File and text copy hold what was measured", &Walk::lineFiles},
       {"The straightness window closes", &Walk::closeLine},
       {"The line opens again and shows what was measured", &Walk::reopenLine},
       {"The line in German and Japanese", &Walk::reopenLineInOtherLanguages},
       {"The program ends", &Walk::end}}};
  return take(steps);
}

bool Walk::fourthStart() {
  static constexpr std::array<Step, 20> steps = {
      {{"The fourth start finds the head at once", &Walk::foundAtOnce},
       {"The language is German", &Walk::german},
       {"The menu opens the environment analysis", &Walk::openAnalysis},
       {"The analysis, 31 seconds", &Walk::runAnalysis},
       {"The uncertainty that the head's noise gives", &Walk::analysisResult},
       {"The slider chooses a shorter time", &Walk::shorterTime},
       {"The settings of adaptive measuring are saved", &Walk::saveAnalysis},
       {"The analysis closes", &Walk::closeAnalysis},
       {"The tile opens the straightness window", &Walk::openAdaptiveLine},
       {"The settings of straightness: four points, adaptive", &Walk::adaptiveOn},
       {"Three adaptive points, the head turned after each", &Walk::adaptiveLine},
       {"Adaptive measuring is switched off", &Walk::adaptiveOff},
       {"Four positions on a circle", &Walk::centre},
       {"The circle's centre is accepted", &Walk::acceptedCentre},
       {"The line is saved", &Walk::saveAdaptiveLine},
       {"The straightness report on the screen", &Walk::adaptivePreview},
       {"The straightness report as PDF", &Walk::adaptiveReport},
       {"The straightness window asks, saves and closes", &Walk::closeAdaptiveLine},
       {"File and text copy hold what was measured", &Walk::adaptiveFiles},
       {"The program ends", &Walk::end}}};
  return take(steps);
}

bool Walk::take(std::span<const Step> steps) {
  for (const Step& step : steps) {
    const auto begin = std::chrono::steady_clock::now();
    try {
      const std::string read = (this->*step.run)();
      journal_.done(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count(),
                    step.name, read);
    } catch (const std::exception& error) {
      journal_.failed(step.name, error.what() + openMessage());
      return false;
    }
  }
  return true;
}

std::string Walk::openMessage() {
  try {
    const QStringList words = hand_.messageText();
    return words.isEmpty()
               ? ""
               : "; a message is open: " + words.join(QStringLiteral(": ")).simplified().toStdString();
  } catch (const std::exception&) {
    return "; the windows do not answer";
  }
}

}  // namespace korvin::tour
