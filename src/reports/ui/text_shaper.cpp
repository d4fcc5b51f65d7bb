#include "reports/ui/text_shaper.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

/// More than a page holds, so that what was measured for a page is still there when it is painted.
constexpr std::size_t mostWords = 1024;
/// Texts that are made to fit their room can have any size.
constexpr std::size_t mostFaces = 64;
constexpr std::string_view figureSigns = "0123456789+-.,:;/ !?()[]=";
constexpr double unitsPerPoint = 100;

QFont layoutFont(const PageFont& asked, int language) {
  QFont font(paperFamilies(asked.name, language));
  font.setStyleHint(familyHint(language));
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(asked.points * unitsPerPoint))));
  font.setBold(asked.bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

/// A line of text has no line ends nor other control characters: each becomes a blank.
QString oneLine(std::string_view utf8) {
  QString text = qText(utf8);
  for (QChar& sign : text) {
    const QChar::Category kind = sign.category();
    if (kind == QChar::Other_Control || kind == QChar::Separator_Line || kind == QChar::Separator_Paragraph)
      sign = QLatin1Char(' ');
  }
  return text;
}

/// A line of text as Qt's text engine lays it out: its width in layout units, its glyphs from the left end of
/// the base line on.
std::pair<double, QList<QGlyphRun>> laidOut(const QString& text, const QFont& font) {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setTextDirection(Qt::LeftToRight);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  layout.endLayout();
  if (!line.isValid()) return {};
  line.setPosition(QPointF(0, -line.ascent()));
  return {line.naturalTextWidth(), line.glyphRuns()};
}

}  // namespace

QStringList paperFamilies(const std::string& name, int language) {
  QStringList families = fontFamilies(language);
  const QString own = qText(name);
  const auto isOwn = [&own](const QString& family) { return family.compare(own, Qt::CaseInsensitive) == 0; };
  const QStringList all = QFontDatabase::families();
  if (const auto found = std::find_if(all.begin(), all.end(), isOwn); found != all.end()) {
    families.prepend(*found);
  }
  return families;
}

// ---- Fonts ----

TextShaper::Face TextShaper::made(const PageFont& font) const {
  Face face;
  face.asked = font;
  face.font = layoutFont(font, language_);
  face.raw = QRawFont::fromFont(face.font);
  const QFontMetricsF metrics(face.font);
  face.ascent = metrics.ascent() / layoutUnitsPerMm;
  face.height = metrics.height() / layoutUnitsPerMm;
  for (const char sign : figureSigns) {
    const QList<quint32> glyphs = face.raw.glyphIndexesForString(QString(QLatin1Char(sign)));
    const QList<QPointF> advances = face.raw.advancesForGlyphIndexes(glyphs, QRawFont::UseDesignMetrics);
    face.figures.at(static_cast<std::size_t>(sign)) = {glyphs.value(0), advances.value(0).x()};
  }
  return face;
}

TextShaper::Face& TextShaper::face(const PageFont& font) {
  const auto found =
      std::find_if(faces_.begin(), faces_.end(), [&font](const Face& face) { return face.asked == font; });
  if (found != faces_.end()) return *found;
  if (faces_.size() >= mostFaces) faces_.clear();
  return faces_.emplace_back(made(font));
}

// ---- Laying out ----

bool TextShaper::Face::layOutFigures(std::string_view text, std::vector<quint32>& glyphs,
                                     std::vector<QPointF>& places, double& end) const {
  glyphs.clear();
  places.clear();
  end = 0;
  for (const char sign : text) {
    const auto code = static_cast<unsigned char>(sign);
    if (code >= figures.size() || figures[code].glyph == 0) return false;
    glyphs.push_back(figures[code].glyph);
    places.emplace_back(end, 0);
    end += figures[code].advance;
  }
  return true;
}

const TextShaper::Words& TextShaper::words(std::string_view utf8, Face& face) {
  key_.assign(utf8);
  if (const auto found = face.words.find(key_); found != face.words.end()) return found->second;
  if (face.words.size() >= mostWords) face.words.clear();
  auto [width, runs] = laidOut(oneLine(utf8), face.font);
  return face.words.emplace(key_, Words{width / layoutUnitsPerMm, std::move(runs)}).first->second;
}

double TextShaper::width(std::string_view utf8, const PageFont& font) {
  Face& its = face(font);
  double end = 0;
  if (its.layOutFigures(utf8, glyphs_, places_, end)) return end / layoutUnitsPerMm;
  return words(utf8, its).width;
}

void TextShaper::paint(QPainter& painter, double x, double y, std::string_view utf8, const PageFont& font) {
  Face& its = face(font);
  const QPointF origin(x * layoutUnitsPerMm, (y + its.ascent) * layoutUnitsPerMm);
  double end = 0;
  if (!its.layOutFigures(utf8, glyphs_, places_, end)) {
    for (const QGlyphRun& run : words(utf8, its).runs) painter.drawGlyphRun(origin, run);
    return;
  }
  if (glyphs_.empty()) return;
  QGlyphRun run;
  run.setRawFont(its.raw);
  run.setRawData(glyphs_.data(), places_.data(), static_cast<int>(glyphs_.size()));
  painter.drawGlyphRun(origin, run);
}

}  // namespace korvin
