#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QRawFont>
#include <QStringList>
#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "reports/ui/page_marks.h"

namespace korvin {

/// Texts on paper are laid out in hundredths of a point, on every medium alike, so that a width doesn't
/// depend on the resolution of what it is measured for.
inline constexpr double layoutUnitsPerMm = 7200 / 25.4;

/// Measures texts and paints them, with the same glyphs. Figures stand side by side without kerning, so that
/// they align in columns; most of a report are figures, and they are laid out without a turn through Qt's
/// text engine. Other texts are laid out by it and kept for a while: a report repeats its words on each page.
class TextShaper {
 public:
  /// `language`, 0 to 7, picks the family for Chinese and Japanese signs.
  explicit TextShaper(int language) : language_(language) {}
  TextShaper(const TextShaper&) = delete;
  TextShaper& operator=(const TextShaper&) = delete;

  /// Width of a line of text in mm, blanks at its ends included. Control characters count as blanks.
  double width(std::string_view utf8, const PageFont& font);
  /// Distance from the top of a line to its base line, in mm: the font's own, whatever signs the text has.
  double ascent(const PageFont& font) { return face(font).ascent; }
  /// Height of a line in mm.
  double height(const PageFont& font) { return face(font).height; }

  /// Paints the text with its top left corner at (x, y) mm. The painter has to count in layout units.
  void paint(QPainter& painter, double x, double y, std::string_view utf8, const PageFont& font);

 private:
  /// A character that is laid out by itself; `glyph` 0 is none.
  struct Figure {
    quint32 glyph = 0;
    double advance = 0;  ///< layout units
  };
  struct Words {
    double width = 0;       ///< mm
    QList<QGlyphRun> runs;  ///< layout units; the origin is the left end of the base line
  };
  struct Face {
    PageFont asked;
    QFont font;
    QRawFont raw;
    double ascent = 0;  ///< mm
    double height = 0;  ///< mm
    std::array<Figure, 128> figures{};
    std::unordered_map<std::string, Words> words;

    /// True if the text is made of figures only.
    bool layOutFigures(std::string_view text, std::vector<quint32>& glyphs, std::vector<QPointF>& places,
                       double& end) const;
  };

  Face& face(const PageFont& font);
  Face made(const PageFont& font) const;
  const Words& words(std::string_view utf8, Face& face);

  int language_;
  std::vector<Face> faces_;
  std::string key_;
  // Of the figures laid out last.
  std::vector<quint32> glyphs_;
  std::vector<QPointF> places_;
};

/// The families in which a font of this name is sought: itself if there is one, then the program's own, Latin
/// first, since figures then come from it and stay text in a PDF.
QStringList paperFamilies(const std::string& name, int language);

}  // namespace korvin
