// The dialog in all eight languages at 1024 by 768: every word is there, and none is cut off.

#include <QGroupBox>

#include "dialogs/ui/form_rows.h"
#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "frame/ui/theme.h"
#include "options_o_stand.h"

namespace korvin {
namespace {

constexpr int mostWidth = 1024;
constexpr int mostHeight = 700;  // leaves room for the desktop's bars

class OptionsOWords : public test::OptionsOStand, public ::testing::WithParamInterface<int> {
 protected:
  OptionsOWords() {
    texts.DicOeffnen(KORVIN_BIN "/korvin.mdb");
    applyTheme(Appearance::light, smallScreen, GetParam());
    system.SpracheSpalte = SpalteVonSprache(static_cast<std::int16_t>(GetParam()));
    info().RestMP = 29999;
  }
  ~OptionsOWords() override { applyTheme(Appearance::light, smallScreen, 0); }
  Dictionary& dictionary() override { return texts; }

  void bringToFront(int page) {
    find<QTabWidget>("TabOptO")->setCurrentIndex(page);
    settle();
  }
  void expectPageFits() {
    EXPECT_LE(dialog->width(), mostWidth);
    EXPECT_LE(dialog->height(), mostHeight);
    for (const QLabel* each : shown<QLabel>()) expectFits(*each);
    for (const QAbstractButton* each : shown<QAbstractButton>()) {
      if (each->text().isEmpty()) continue;
      EXPECT_LE(each->sizeHint().width(), each->width()) << utf8Text(each->text());
    }
    for (const QComboBox* each : shown<QComboBox>())
      EXPECT_LE(each->sizeHint().width(), each->width()) << utf8Text(each->objectName());
    for (const QGroupBox* each : shown<QGroupBox>())
      EXPECT_LE(each->fontMetrics().horizontalAdvance(each->title()), each->width() - scaled(20));
    for (const QLineEdit* each : shown<QLineEdit>())
      EXPECT_LE(each->fontMetrics().horizontalAdvance(each->placeholderText()), each->width() - scaled(16));
  }

 private:
  template <class Control>
  QList<Control*> shown() {
    QList<Control*> all = dialog->findChildren<Control*>();
    all.removeIf([this](const Control* each) { return !each->isVisibleTo(dialog.get()); });
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
    const QRect place(label.mapTo(dialog.get(), QPoint(0, 0)), label.size());
    EXPECT_TRUE(dialog->rect().contains(place)) << utf8Text(label.text());
  }

  const double smallScreen = screenScale(1024 / 1280.0, 768 / 1024.0);
  test::TestProgramEnd programEnd;
  SqliteDictionary texts{system.SpracheSpalte, programEnd};
};

TEST_P(OptionsOWords, NothingIsCutOffOnAnyPage) {
  store("KorInfo", "PfadMessFile", "/no/such/folder/");
  showFromPosition();
  for (int page = 0; page < find<QTabWidget>("TabOptO")->count(); ++page) {
    bringToFront(page);
    expectPageFits();
  }
}

TEST_P(OptionsOWords, NorAreTheHintsBesideTheBoxes) {
  showFromPosition();
  bringToFront(1);
  box(7)->setText(QStringLiteral("40000"));
  box(8)->setText(QStringLiteral("86399.25 s"));
  box(9)->setText(QStringLiteral("31.02.23"));
  box(12)->setText(QStringLiteral("12:00:00"));
  settle();
  for (const int index : {7, 8, 10, 12}) EXPECT_NE(hint(index), "") << index;
  expectPageFits();
  enter(6, "17");
  ok();
  EXPECT_NE(hint(6), "");
  expectPageFits();
}

TEST_P(OptionsOWords, NorIsWhatTheMainWindowsDialogSaysOfThePlan) {
  showFromMainWindow();
  bringToFront(1);
  expectPageFits();
}

TEST_P(OptionsOWords, TabsStandSideBySide) {
  showFromMainWindow();
  const QTabBar& bar = *find<QTabWidget>("TabOptO")->tabBar();
  EXPECT_LE(bar.sizeHint().width(), bar.width());
  for (int i = 0; i < bar.count(); ++i) EXPECT_FALSE(bar.tabToolTip(i).isEmpty()) << i;
}

INSTANTIATE_TEST_SUITE_P(Languages, OptionsOWords, ::testing::Range(0, 8), [](const auto& language) {
  return std::string(SpalteVonSprache(static_cast<std::int16_t>(language.param)));
});

}  // namespace
}  // namespace korvin
