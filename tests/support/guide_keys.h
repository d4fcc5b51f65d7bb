#pragma once

#include <QAction>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QWidget>
#include <array>
#include <set>
#include <string>

namespace korvin::test {

// The shortcuts of a measuring window, as the user's guide tells them and as the window has them.

using GuideKeys = std::set<std::string>;

enum class GuideLanguage { german, english };

/// The second column of the table that stands in the guide below `heading`.
inline GuideKeys keysOfTheGuide(const QString& heading) {
  QFile file(QStringLiteral(KORVIN_SOURCE "/help/KorHelpD.HLP"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QString page = QString::fromUtf8(file.readAll());
  const auto begin = page.indexOf(QStringLiteral("<h3>%1</h3>").arg(heading));
  if (begin < 0) return {};
  const QString table = page.mid(begin, page.indexOf(QStringLiteral("</table>"), begin) - begin);
  static const QRegularExpression row(QStringLiteral("<tr><td>.*</td><td>(.*)</td><td>"),
                                      QRegularExpression::InvertedGreedinessOption);
  GuideKeys found;
  for (auto it = row.globalMatch(table); it.hasNext();) {
    for (const QString& each : it.next().captured(1).split(QStringLiteral(", "), Qt::SkipEmptyParts))
      found.insert(each.toStdString());
  }
  return found;
}

inline std::string inTheGuidesWords(QString keys, GuideLanguage language) {
  struct Word {
    const char* key;
    const char* german;
    const char* english;
  };
  constexpr std::array<Word, 5> words{{{"Ctrl", "Strg", "Ctrl"},
                                       {"Shift", "Umschalt", "Shift"},
                                       {"Del", "Entf", "Del"},
                                       {"Left", "Pfeil links", "Arrow left"},
                                       {"Right", "Pfeil rechts", "arrow right"}}};
  for (const Word& word : words)
    keys.replace(QLatin1String(word.key),
                 QLatin1String(language == GuideLanguage::german ? word.german : word.english));
  return keys.toStdString();
}

/// All shortcuts of the window, and the two that its list and diagrams take without an action.
inline GuideKeys keysOfTheWindow(const QWidget& window, GuideLanguage language) {
  GuideKeys found;
  for (const QAction* each : window.findChildren<QAction*>()) {
    const QString keys = each->shortcut().toString(QKeySequence::PortableText);
    if (!keys.isEmpty()) found.insert(inTheGuidesWords(keys, language));
  }
  for (const char* each : {"Ctrl+C", "Ctrl+A"})
    found.insert(inTheGuidesWords(QString::fromLatin1(each), language));
  return found;
}

}  // namespace korvin::test
