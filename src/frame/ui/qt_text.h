#pragma once

#include <QRegularExpression>
#include <QString>
#include <string>
#include <string_view>

namespace korvin {

/// UTF-8 text of the core as Qt's text.
inline QString qText(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A menu's caption without its access key: "&Metric" and "メートル系(&M)" as plain words.
inline QString withoutAccessKey(QString caption) {
  static const QRegularExpression inBrackets(QStringLiteral("\\s*\\(&.\\)"));
  return caption.remove(inBrackets).remove(QLatin1Char('&'));
}

/// Qt's text as UTF-8.
inline std::string utf8Text(const QString& text) {
  return text.toStdString();
}

}  // namespace korvin
