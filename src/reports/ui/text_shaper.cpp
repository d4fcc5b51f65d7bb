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
constexpr std::size_t mostShaped = 4096;
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

ShapedText shapedLine(const QString& text, const QFont& font) {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setTextDirection(Qt::LeftToRight);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  layout.endLayout();
  if (!line.isValid()) return {};
  line.setPosition(QPointF(0, -line.ascent()));
  return {line.naturalTextWidth() / layoutUnitsPerMm, line.glyphRuns()};
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

TextShaper::Face& TextShaper::face(const PageFont& font) {
  const auto found =
      std::find_if(faces_.begin(), faces_.end(), [&font](const Face& face) { return face.asked == font; });
  if (found != faces_.end()) return *found;
  Face made;
  made.asked = font;
  made.font = layoutFont(font, language_);
  const QFontMetricsF metrics(made.font);
  made.ascent = metrics.ascent() / layoutUnitsPerMm;
  made.height = metrics.height() / layoutUnitsPerMm;
  faces_.push_back(std::move(made));
  return faces_.back();
}

const ShapedText& TextShaper::shape(std::string_view utf8, const PageFont& font) {
  Face& its = face(font);
  key_.assign(utf8);
  const auto found = its.shaped.find(key_);
  if (found != its.shaped.end()) return found->second;
  if (its.shaped.size() >= mostShaped) its.shaped.clear();
  return its.shaped.emplace(key_, shapedLine(oneLine(utf8), its.font)).first->second;
}

}  // namespace korvin
