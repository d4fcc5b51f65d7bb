#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QStringList>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <string>
#include <vector>

#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/picture_widget.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "support/test_ports.h"

namespace korvin::test {

/// A window's test with the real words of a language, on a screen of 1024 by 768. `Stand` builds the window
/// with `dictionary()` in the language of `world.system`.
template <class Stand>
class InEachLanguage : public Stand, public ::testing::WithParamInterface<int> {
 protected:
  InEachLanguage() {
    texts.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    applyTheme(Appearance::light, smallScreen(), GetParam());
    this->world.system.SpracheSpalte = SpalteVonSprache(static_cast<std::int16_t>(GetParam()));
  }
  ~InEachLanguage() override { applyTheme(Appearance::light, smallScreen(), 0); }
  Dictionary& dictionary() override { return texts; }

  static double smallScreen() { return screenScale(1024 / 1280.0, 768 / 1024.0); }

  TestProgramEnd programEnd;
  SqliteDictionary texts{this->world.system.SpracheSpalte, programEnd};
};

/// What the text of a label takes; one that wraps takes lines within the label's width.
inline QSize roomOfText(const QLabel& label) {
  const QFontMetrics metrics(label.font());
  if (!label.wordWrap()) return {metrics.horizontalAdvance(label.text()), metrics.height()};
  const QRect lines(0, 0, label.contentsRect().width(), 10000);
  return metrics.boundingRect(lines, Qt::TextWordWrap, label.text()).size();
}

/// Every label that is shown has room for its text, and stands within the window.
inline void expectLabelsFit(const QWidget& window) {
  for (const QLabel* each : window.findChildren<QLabel*>()) {
    if (!each->isVisibleTo(&window) || each->text().isEmpty()) continue;
    if (each->objectName().startsWith(QStringLiteral("lblMSCommInput"))) continue;  // cut on purpose
    const QSize room = each->contentsRect().size();
    const QSize needed = roomOfText(*each);
    EXPECT_LE(needed.width(), room.width()) << utf8Text(each->objectName()) << ": " << utf8Text(each->text());
    EXPECT_LE(needed.height(), room.height() + 1) << utf8Text(each->text());
    const QRect place(each->mapTo(&window, QPoint(0, 0)), each->size());
    EXPECT_TRUE(window.rect().contains(place)) << utf8Text(each->text());
  }
}

/// No two controls that show something stand on each other.
inline void expectNothingCovered(const QWidget& window) {
  const auto shows = [&](const QWidget* each) {
    if (!each->isVisibleTo(&window)) return false;
    if (const auto* label = qobject_cast<const QLabel*>(each)) return !label->text().isEmpty();
    return qobject_cast<const QLineEdit*>(each) != nullptr ||
           qobject_cast<const QToolButton*>(each) != nullptr ||
           qobject_cast<const PictureWidget*>(each) != nullptr ||
           qobject_cast<const QTableView*>(each) != nullptr;
  };
  const auto place = [&](const QWidget* each) {
    return QRect(each->mapTo(&window, QPoint(0, 0)), each->size());
  };
  std::vector<const QWidget*> before;
  for (const QWidget* each : window.findChildren<QWidget*>()) {
    if (!shows(each)) continue;
    for (const QWidget* other : before) {
      EXPECT_TRUE((place(each) & place(other)).isEmpty())
          << utf8Text(each->objectName()) << " on " << utf8Text(other->objectName());
    }
    before.push_back(each);
  }
  EXPECT_GT(before.size(), 20U);
}

/// Every key stands in the bar, has a picture and tells what it does.
inline void expectKeysTell(const QToolBar& bar) {
  for (QAction* action : bar.actions()) {
    const auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    if (button == nullptr) continue;
    EXPECT_TRUE(button->isVisible()) << utf8Text(button->objectName());
    EXPECT_FALSE(button->toolTip().isEmpty()) << utf8Text(button->objectName());
    EXPECT_FALSE(button->icon().isNull()) << utf8Text(button->objectName());
  }
}

inline void expectDistinctAccessKeys(const QStringList& texts) {
  QString seen;
  for (const QString& text : texts) {
    const qsizetype mark = text.indexOf(QLatin1Char('&'));
    ASSERT_GE(mark, 0) << utf8Text(text);
    const QChar letter = text.at(mark + 1).toLower();
    EXPECT_FALSE(seen.contains(letter)) << utf8Text(texts.join(QStringLiteral(", ")));
    seen += letter;
  }
}

/// Every menu fits the bar, and no access key leads to two entries.
inline void expectMenusFit(const QMenuBar& bar) {
  QStringList titles;
  for (QAction* top : bar.actions()) {
    EXPECT_LE(bar.actionGeometry(top).right(), bar.width());
    titles << top->text();
    QStringList entries;
    for (QAction* action : top->menu()->actions()) {
      if (action->isSeparator()) continue;
      EXPECT_FALSE(action->text().isEmpty()) << utf8Text(action->objectName());
      entries << action->text();
    }
    if (entries.size() > 1) expectDistinctAccessKeys(entries);
  }
  expectDistinctAccessKeys(titles);
}

}  // namespace korvin::test
