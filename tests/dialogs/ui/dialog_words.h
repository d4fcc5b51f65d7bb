#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <string>

#include "dialogs/ui/form_rows.h"
#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "support/test_ports.h"

namespace korvin::test {

/// A settings dialog in each of the eight languages at 1024 by 768; `Stand` shows it.
template <class Stand>
class DialogWords : public Stand, public ::testing::WithParamInterface<int> {
 protected:
  static constexpr int mostWidth = 1024;
  static constexpr int mostHeight = 700;  // leaves room for the desktop's bars

  DialogWords() {
    texts.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    applyTheme(Appearance::light, smallScreen(), GetParam());
    this->system.SpracheSpalte = SpalteVonSprache(static_cast<std::int16_t>(GetParam()));
  }
  ~DialogWords() override { applyTheme(Appearance::light, smallScreen(), 0); }
  Dictionary& dictionary() override { return texts; }

  void bringToFront(int page) {
    this->tabs().setCurrentIndex(page);
    this->settle();
  }
  void expectEveryPageFits() {
    for (int page = 0; page < this->tabs().count(); ++page) {
      bringToFront(page);
      expectPageFits();
    }
  }
  void expectPageFits() {
    EXPECT_LE(this->dialog->width(), mostWidth);
    EXPECT_LE(this->dialog->height(), mostHeight);
    for (const QLabel* each : shown<QLabel>()) expectFits(*each);
    for (const QAbstractButton* each : shown<QAbstractButton>()) {
      if (each->text().isEmpty()) continue;
      EXPECT_LE(each->sizeHint().width(), each->width()) << utf8Text(each->text());
      expectInside(*each, each->text());
    }
    for (const QComboBox* each : shown<QComboBox>())
      EXPECT_LE(each->sizeHint().width(), each->width()) << utf8Text(each->objectName());
    for (const QGroupBox* each : shown<QGroupBox>())
      EXPECT_LE(each->fontMetrics().horizontalAdvance(each->title()), each->width() - scaled(20));
    for (const QLineEdit* each : shown<QLineEdit>())
      EXPECT_LE(each->fontMetrics().horizontalAdvance(each->placeholderText()), each->width() - scaled(16));
  }
  void expectTabsSideBySide() {
    const QTabBar& bar = *this->tabs().tabBar();
    EXPECT_LE(bar.sizeHint().width(), bar.width());
    for (int i = 0; i < bar.count(); ++i) EXPECT_FALSE(bar.tabToolTip(i).isEmpty()) << i;
  }

 private:
  static double smallScreen() { return screenScale(1024 / 1280.0, 768 / 1024.0); }

  template <class Control>
  QList<Control*> shown() {
    QList<Control*> all = this->dialog->template findChildren<Control*>();
    all.removeIf([this](const Control* each) { return !each->isVisibleTo(this->dialog.get()); });
    return all;
  }
  void expectFits(const QLabel& label) {
    if (label.text().isEmpty()) return;
    const QRect room = label.contentsRect();
    const QSize needed =
        label.wordWrap()
            ? label.fontMetrics().boundingRect(room, Qt::TextWordWrap, label.text()).size()
            : QSize(label.fontMetrics().horizontalAdvance(label.text()), label.fontMetrics().height());
    EXPECT_LE(needed.width(), room.width()) << utf8Text(label.text());
    EXPECT_LE(needed.height(), room.height() + 1) << utf8Text(label.text());
    expectInside(label, label.text());
  }
  void expectInside(const QWidget& control, const QString& words) {
    const QRect place(control.mapTo(this->dialog.get(), QPoint(0, 0)), control.size());
    EXPECT_TRUE(this->dialog->rect().contains(place)) << utf8Text(words);
  }

  TestProgramEnd programEnd;
  SqliteDictionary texts{this->system.SpracheSpalte, programEnd};
};

inline std::string languageName(const ::testing::TestParamInfo<int>& language) {
  return std::string(SpalteVonSprache(static_cast<std::int16_t>(language.param)));
}

}  // namespace korvin::test
