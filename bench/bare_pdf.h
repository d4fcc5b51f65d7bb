#pragma once

// The barest way to a report's PDF: a QPdfWriter that writes the same texts at the same places and, if
// wanted, the same lines.

#include <QFont>
#include <QLineF>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "frame/ui/qt_text.h"
#include "reports/ui/byte_blocks.h"
#include "reports/ui/compose.h"

namespace korvin {

struct BareText {
  QPointF place;
  QString text;
  int font = 0;
};
struct BarePage {
  std::vector<BareText> texts;
  std::vector<QLineF> lines;
};
struct BareReport {
  std::vector<QFont> fonts;
  std::vector<BarePage> pages;
};

inline constexpr int bareResolution = 1200;

inline int fontIn(BareReport& report, const PageFont& asked) {
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPointSizeF(asked.points);
  font.setBold(asked.bold);
  const auto found = std::find(report.fonts.begin(), report.fonts.end(), font);
  if (found != report.fonts.end()) return static_cast<int>(found - report.fonts.begin());
  report.fonts.push_back(font);
  return static_cast<int>(report.fonts.size()) - 1;
}

inline BareReport bareReport(const Bericht& bericht) {
  constexpr double pixelsPerMm = bareResolution / 25.4;
  TextShaper shaper(0);
  BareReport report;
  for (const PageMarks& page : composedPages(bericht, shaper, {})) {
    BarePage bare;
    for (const PageMark& mark : page.marks) {
      const QPointF from(mark.x1 * pixelsPerMm, mark.y1 * pixelsPerMm);
      if (mark.kind == PageMark::Kind::text) {
        const PageFont& font = page.fonts[mark.font];
        bare.texts.push_back({from + QPointF(0, shaper.ascent(font) * pixelsPerMm), qText(page.text(mark)),
                              fontIn(report, font)});
      } else {
        bare.lines.emplace_back(from, QPointF(mark.x2 * pixelsPerMm, mark.y2 * pixelsPerMm));
      }
    }
    report.pages.push_back(std::move(bare));
  }
  return report;
}

/// Bytes of the file.
inline std::size_t writeBare(const BareReport& report, bool withLines) {
  ByteBlocks bytes;
  QPdfWriter writer(&bytes);
  writer.setResolution(bareResolution);
  writer.setPageMargins(QMarginsF(0, 0, 0, 0));
  QPainter painter(&writer);
  bool first = true;
  for (const BarePage& page : report.pages) {
    if (!std::exchange(first, false)) writer.newPage();
    int font = -1;
    for (const BareText& text : page.texts) {
      if (std::exchange(font, text.font) != text.font) {
        painter.setFont(report.fonts[static_cast<std::size_t>(text.font)]);
      }
      painter.drawText(text.place, text.text);
    }
    if (!withLines) continue;
    for (const QLineF& line : page.lines) painter.drawLine(line);
  }
  painter.end();
  return bytes.byteCount();
}

}  // namespace korvin
