// The user's guide tells the shortcuts of the window, all of them and no others.

#include <QAction>
#include <QFile>
#include <QRegularExpression>
#include <array>
#include <set>
#include <string>

#include "position_stand.h"

namespace korvin {
namespace {

using Words = std::set<std::string>;

/// Keys that the list and the diagram take by themselves: no action bears them.
constexpr std::array<const char*, 2> ofTheViews{"C", "A"};

Words withThoseOfTheViews(Words words, const std::string& control) {
  for (const char* each : ofTheViews) words.insert(control + "+" + each);
  return words;
}

QString guide() {
  QFile file(QStringLiteral(KORVIN_SOURCE "/help/KorHelpD.HLP"));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The shortcuts in the second column of the guide's table below `heading`.
Words told(const QString& heading) {
  const QString page = guide();
  const auto begin = page.indexOf(QStringLiteral("<h3>%1</h3>").arg(heading));
  if (begin < 0) return {};
  const QString table = page.mid(begin, page.indexOf(QStringLiteral("</table>"), begin) - begin);
  static const QRegularExpression row(QStringLiteral("<tr><td>.*</td><td>(.*)</td><td>"),
                                      QRegularExpression::InvertedGreedinessOption);
  Words found;
  for (auto it = row.globalMatch(table); it.hasNext();) {
    const QString cell = it.next().captured(1);
    for (const QString& each : cell.split(QStringLiteral(", "), Qt::SkipEmptyParts))
      found.insert(each.toStdString());
  }
  return found;
}

class Guide : public test::PositionStand {
 protected:
  /// All shortcuts of the window, each put into the guide's words.
  Words shortcuts(const QHash<QString, QString>& words) {
    show();
    Words found;
    for (const QAction* each : form->findChildren<QAction*>()) {
      QString keys = each->shortcut().toString(QKeySequence::PortableText);
      for (auto it = words.begin(); it != words.end(); ++it) keys.replace(it.key(), it.value());
      if (!keys.isEmpty()) found.insert(keys.toStdString());
    }
    return found;
  }
};

TEST_F(Guide, TellsTheShortcutsInEnglish) {
  const Words window = shortcuts({{QStringLiteral("Left"), QStringLiteral("Arrow left")},
                                  {QStringLiteral("Right"), QStringLiteral("arrow right")}});
  EXPECT_EQ(told(QStringLiteral("In the measuring window")), withThoseOfTheViews(window, "Ctrl"));
}

TEST_F(Guide, TellsTheShortcutsInGerman) {
  const Words window = shortcuts({{QStringLiteral("Ctrl"), QStringLiteral("Strg")},
                                  {QStringLiteral("Shift"), QStringLiteral("Umschalt")},
                                  {QStringLiteral("Del"), QStringLiteral("Entf")},
                                  {QStringLiteral("Left"), QStringLiteral("Pfeil links")},
                                  {QStringLiteral("Right"), QStringLiteral("Pfeil rechts")}});
  EXPECT_EQ(told(QStringLiteral("Im Messfenster")), withThoseOfTheViews(window, "Strg"));
}

}  // namespace
}  // namespace korvin
