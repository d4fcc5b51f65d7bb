#include "frame/ui/help_page.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr const char* address = "help:KorHelpD.HLP";
/// Pixels of a point at scale 1.
constexpr double pixelsPerPoint = 4.0 / 3.0;

/// `html` with each match of `pattern`, whose first group is a number of design pixels times `factor`, in
/// screen pixels.
QString resized(const QString& html, const QString& pattern, double factor, const QString& form) {
  const QRegularExpression size(pattern);
  QString out;
  qsizetype last = 0;
  for (auto matches = size.globalMatch(html); matches.hasNext();) {
    const auto match = matches.next();
    out.append(QStringView(html).mid(last, match.capturedStart() - last));
    out.append(form.arg(scaled(match.captured(1).toDouble() * factor)));
    last = match.capturedEnd();
  }
  return out.append(QStringView(html).mid(last));
}

/// The page counts in points and pixels of the design.
QString fittedToScreen(QString html) {
  html = resized(html, QStringLiteral("\\b(\\d+)pt\\b"), pixelsPerPoint, QStringLiteral("%1px!"));
  html = resized(html, QStringLiteral("\\b(\\d+)px\\b(?!!)"), 1.0, QStringLiteral("%1px"));
  html.replace(QLatin1String("px!"), QLatin1String("px"));
  html = resized(html, QStringLiteral("\\bwidth=\"(\\d+)\""), 1.0, QStringLiteral("width=\"%1\""));
  return resized(html, QStringLiteral("\\bheight=\"(\\d+)\""), 1.0, QStringLiteral("height=\"%1\""));
}

QImage drawn(const QByteArray& svg, qreal pixelRatio) {
  QSvgRenderer renderer(svg);
  const QSize size = renderer.defaultSize() * scaled(100) / 100.0 * pixelRatio;
  QImage picture(size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  renderer.render(&painter);
  painter.end();
  picture.setDevicePixelRatio(pixelRatio);
  return picture;
}

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
  setObjectName(QStringLiteral("HelpPage"));
  setOpenExternalLinks(false);
  QPalette paper = palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, QColor(0x1f2933));
  paper.setColor(QPalette::Link, QColor(0x0a6fa6));
  setPalette(paper);
  document()->setDocumentMargin(scaled(18));
  document()->setIndentWidth(scaled(36));
}

bool HelpPage::load(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  html_ = fittedToScreen(QString::fromUtf8(file.readAll()));
  return !html_.isEmpty();
}

void HelpPage::goTo(const QString& anchor) {
  setSource(QUrl(QString::fromLatin1(address) + QLatin1Char('#') + anchor), QTextDocument::HtmlResource);
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::HtmlResource) return html_;
  if (type == QTextDocument::ImageResource && name.scheme() == QLatin1String("data")) {
    const QByteArray content = QByteArray::fromPercentEncoding(name.toEncoded());
    return drawn(content.mid(content.indexOf(',') + 1), devicePixelRatioF());
  }
  return {};
}

bool HelpPage::findNext(const QString& words) {
  clearMarks();
  if (words.isEmpty()) return true;
  QList<QTextEdit::ExtraSelection> marks;
  for (QTextCursor found = document()->find(words); !found.isNull(); found = document()->find(words, found)) {
    QTextCharFormat mark;
    mark.setBackground(QColor(0xffe9a8));
    marks.append({found, mark});
  }
  if (marks.isEmpty()) return false;
  setExtraSelections(marks);
  if (find(words)) return true;
  moveCursor(QTextCursor::Start);
  return find(words);
}

void HelpPage::clearMarks() {
  setExtraSelections({});
}

}  // namespace korvin
