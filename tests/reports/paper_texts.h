#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "support/recording_drucker.h"

namespace korvin::test {

/// A text on paper with its place: where it begins, or, if `right`, where it ends; mm.
struct PaperText {
  double x;
  double y;
  std::string text;
  double size = 9;
  bool bold = false;
  bool right = false;
};

inline bool isThere(const DruckMarke& mark, const PaperText& text) {
  constexpr double place = 1e-4;  // mm, points: positions are 32-bit floats
  return std::abs((text.right ? mark.x2 : mark.x) - text.x) < place && std::abs(mark.y - text.y) < place &&
         mark.text == text.text && std::abs(mark.groesse - text.size) < place && mark.fett == text.bold &&
         mark.schrift == "ARIAL";
}

/// The texts of a page beside the expected ones, each of which has to be there.
inline std::vector<std::string> othersThan(std::vector<PaperText> expected, const RecordingDrucker& paper,
                                           int page) {
  std::vector<std::string> others;
  for (const DruckMarke& mark : paper.texte(page)) {
    const auto found = std::find_if(expected.begin(), expected.end(),
                                    [&mark](const PaperText& text) { return isThere(mark, text); });
    if (found == expected.end()) {
      others.push_back(mark.text);
    } else {
      expected.erase(found);
    }
  }
  for (const PaperText& text : expected)
    ADD_FAILURE() << "missing at (" << text.x << ", " << text.y << "): \"" << text.text << "\"";
  return others;
}

inline void add(std::vector<PaperText>& to, const std::vector<PaperText>& more) {
  to.insert(to.end(), more.begin(), more.end());
}

/// Head and foot of a page; `number` as it is printed.
inline std::vector<PaperText> headAndFoot(const std::string& firm, const std::string& number) {
  return {{20, 10, "KORVIN-D3057:  " + firm, 18},
          {20, 275, "D3062Vantro Systems AG, Neustadt", 7},
          {105, 275, "WIN-KORVIN, Version 5.55 / qk ", 7},
          {180, 275, "D3063: " + number, 7}};
}

}  // namespace korvin::test
