#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QStringList>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "reports/ui/page_marks.h"

namespace korvin {

/// Texts on paper are laid out in hundredths of a point, on every medium alike, so that a width doesn't
/// depend on the resolution of what it is measured for.
inline constexpr double layoutUnitsPerMm = 7200 / 25.4;

/// A line of text, ready to be measured and painted. Lengths are millimetres.
struct ShapedText {
  double width = 0;       ///< with the blanks at its ends
  QList<QGlyphRun> runs;  ///< in layout units; the origin is the left end of the base line
};

/// Finds the glyphs of texts. What was measured is painted without being laid out again, as long as not too
/// many other texts came between.
class TextShaper {
 public:
  /// `language`, 0 to 7, picks the family for Chinese and Japanese signs.
  explicit TextShaper(int language) : language_(language) {}

  /// Valid until the next call.
  const ShapedText& shape(std::string_view utf8, const PageFont& font);
  /// Distance from the top of a line to its base line, in mm: the font's own, whatever signs the text has.
  double ascent(const PageFont& font) { return face(font).ascent; }
  /// Height of a line in mm.
  double height(const PageFont& font) { return face(font).height; }

 private:
  struct Face {
    PageFont asked;
    QFont font;
    double ascent = 0;
    double height = 0;
    std::unordered_map<std::string, ShapedText> shaped;
  };

  Face& face(const PageFont& font);

  int language_;
  std::vector<Face> faces_;
  std::string key_;
};

/// The families in which a font of this name is sought: itself if there is one, then the program's own, Latin
/// first, since figures then come from it and stay text in a PDF.
QStringList paperFamilies(const std::string& name, int language);

}  // namespace korvin
