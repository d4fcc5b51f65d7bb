#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace korvin {

/// UTF-8 text of the core as Qt's text.
inline QString qText(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Qt's text as UTF-8.
inline std::string utf8Text(const QString& text) {
  return text.toStdString();
}

}  // namespace korvin
