#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGlyphRun>
#include <QImage>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QTextLayout>
#include <QToolButton>
#include <QTranslator>

#include "frame/ui/icons.h"
#include "frame/ui/key_tool_bar.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/swedish_translator.h"
#include "frame/ui/text_entry.h"
#include "frame/ui/theme.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

bool has(const QImage& picture, QRgb colour) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) == colour) return true;
    }
  }
  return false;
}

class DarkLook {
 public:
  DarkLook() { applyTheme(Appearance::dark, 0.9, 0); }
  ~DarkLook() { applyTheme(Appearance::light, 0.9, 0); }
};

TEST(IconTest, AnUnknownKeyGivesAnEmptyIcon) {
  EXPECT_TRUE(icon(QString()).isNull());
  EXPECT_TRUE(icon(QStringLiteral("ICON999")).isNull());
  EXPECT_FALSE(icon(QStringLiteral("ICON34")).isNull());
}

TEST(IconTest, IsDrawnAnewForEachPixelRatio) {
  const QPixmap picture = iconPixmap(QStringLiteral("ICON34"), 24, 2.0);
  EXPECT_EQ(picture.width(), 48);
  EXPECT_EQ(picture.devicePixelRatio(), 2.0);
}

TEST(IconTest, LinesAreLightOnADarkGround) {
  EXPECT_TRUE(has(iconPixmap(QStringLiteral("ICON31"), 96, 1).toImage(), 0xff33475b));
  const DarkLook dark;
  const QImage onDark = iconPixmap(QStringLiteral("ICON31"), 96, 1).toImage();
  EXPECT_FALSE(has(onDark, 0xff33475b));
  EXPECT_TRUE(has(onDark, 0xffc7d3df));
}

TEST(ThemeTest, TheScaleKeepsSmallScreensLegible) {
  EXPECT_DOUBLE_EQ(screenScale(0.8, 0.75), 0.9);
  EXPECT_DOUBLE_EQ(screenScale(3.0, 2.109375), 2.109375);
}

TEST(ThemeTest, SizesFollowTheScale) {
  applyTheme(Appearance::light, 2.0, 0);
  EXPECT_EQ(scaled(10), 20);
  EXPECT_EQ(QApplication::font().pixelSize(), 28);
  applyTheme(Appearance::light, 0.9, 0);
}

/// The rectangle in which two pictures of one size differ.
QRect difference(const QImage& one, const QImage& other) {
  QRect found;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (one.pixel(x, y) != other.pixel(x, y)) found |= QRect(x, y, 1, 1);
    }
  }
  return found;
}

TEST(ThemeTest, TheCheckMarkOfAMenuGrowsWithTheScale) {
  for (const double scale : {0.9, 2.1}) {
    applyTheme(Appearance::light, scale, 0);
    QMenu menu;
    QAction* entry = menu.addAction(QStringLiteral("mm"));
    entry->setCheckable(true);
    menu.resize(menu.sizeHint());
    const QImage without = menu.grab().toImage();
    entry->setChecked(true);
    const QRect mark = difference(without, menu.grab().toImage());
    EXPECT_GE(mark.width(), scaled(9)) << scale;
    EXPECT_LE(mark.right(), scaled(30)) << "the words begin here";
  }
  applyTheme(Appearance::light, 0.9, 0);
}

TEST(ThemeTest, TheLatinFamilyIsFirstAndTheSignsFollowTheLanguage) {
  EXPECT_EQ(fontFamilies(6),
            QStringList({QStringLiteral("Liberation Sans"), QStringLiteral("Noto Sans CJK SC")}));
  EXPECT_EQ(fontFamilies(7),
            QStringList({QStringLiteral("Liberation Sans"), QStringLiteral("Noto Sans CJK JP")}));
}

TEST(ThemeTest, JapaneseAfterChineseHasItsOwnSigns) {
  for (const auto& [language, family] :
       {std::pair(6, "Noto Sans CJK SC"), std::pair(7, "Noto Sans CJK JP")}) {
    applyTheme(Appearance::light, 0.9, language);
    QTextLayout layout(QStringLiteral("測"), QApplication::font());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    EXPECT_EQ(layout.glyphRuns().at(0).rawFont().familyName(), QLatin1String(family));
  }
  applyTheme(Appearance::light, 0.9, 0);
}

class KeyToolBarTest : public ::testing::Test {
 protected:
  KeyToolBarTest() : bar(QStringLiteral("tbrTest")) {
    bar.add(QStringLiteral("Neu"), QStringLiteral("ICON1"), KeyToolBar::Kind::push,
            QKeySequence(QStringLiteral("Ctrl+N")));
    bar.add(QStringLiteral("A"), QStringLiteral("ICON2"), KeyToolBar::Kind::group);
    bar.add(QStringLiteral("B"), QStringLiteral("ICON3"), KeyToolBar::Kind::group);
    bar.onButton = [this](const QString& key) { clicked << key; };
    bar.show();
  }

  KeyToolBar bar;
  QStringList clicked;
};

TEST_F(KeyToolBarTest, AClickTellsTheKey) {
  QTest::mouseClick(bar.button(QStringLiteral("Neu")), Qt::LeftButton);
  EXPECT_EQ(clicked, QStringList{QStringLiteral("Neu")});
  EXPECT_EQ(bar.findChild<QToolButton*>(QStringLiteral("Neu")), bar.button(QStringLiteral("Neu")));
}

TEST_F(KeyToolBarTest, PressingIsAsAClickAndADisabledKeyDoesNothing) {
  bar.press(QStringLiteral("Neu"));
  bar.setKeyEnabled(QStringLiteral("Neu"), false);
  bar.press(QStringLiteral("Neu"));
  bar.press(QStringLiteral("none"));
  EXPECT_EQ(clicked, QStringList{QStringLiteral("Neu")});
}

TEST_F(KeyToolBarTest, TheTooltipNamesTheShortcut) {
  bar.setWords(QStringLiteral("Neu"), QStringLiteral("Neue Messung"));
  EXPECT_EQ(bar.button(QStringLiteral("Neu"))->toolTip(), QStringLiteral("Neue Messung  (Ctrl+N)"));
}

TEST_F(KeyToolBarTest, OfAGroupOneIsPressed) {
  QTest::mouseClick(bar.button(QStringLiteral("A")), Qt::LeftButton);
  QTest::mouseClick(bar.button(QStringLiteral("B")), Qt::LeftButton);
  EXPECT_FALSE(bar.isPressed(QStringLiteral("A")));
  EXPECT_TRUE(bar.isPressed(QStringLiteral("B")));
  bar.setPressed(QStringLiteral("B"), false);
  EXPECT_FALSE(bar.isPressed(QStringLiteral("B")));
  EXPECT_EQ(clicked.size(), 2);
}

/// Types signs that no key of the test's keyboard has.
void type(QWidget& into, const QString& text) {
  for (const QChar sign : text) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(sign));
    QApplication::sendEvent(&into, &press);
  }
}

class TextEntryTest : public ::testing::Test {
 protected:
  test::TestDictionary dictionary;
  TextEntry entry{dictionary, 5};
};

TEST_F(TextEntryTest, RefusesVisiblyWhatARecordCannotHold) {
  entry.setValue("Öl");
  entry.end(false);
  type(entry, QStringLiteral("漢"));
  EXPECT_EQ(entry.value(), "Öl");
  EXPECT_TRUE(entry.property("refused").toBool());
}

TEST_F(TextEntryTest, TakesAllOfWindows1252) {
  type(entry, QStringLiteral("€µß"));
  EXPECT_EQ(entry.value(), "€µß");
  EXPECT_FALSE(entry.property("refused").toBool());
}

TEST_F(TextEntryTest, RefusesVisiblyWhatIsTooLong) {
  type(entry, QStringLiteral("abcdef"));
  EXPECT_EQ(entry.value(), "abcde");
  EXPECT_TRUE(entry.property("refused").toBool());
}

TEST_F(TextEntryTest, BlanksOnTheRightAreNoText) {
  entry.setValue("ab   ");
  EXPECT_EQ(entry.value(), "ab");
}

// A word that Qt does not know under this context would never be shown. Its German texts tell.
TEST(SwedishTranslatorTest, EveryWordIsOneOfQts) {
  QTranslator german;
  ASSERT_TRUE(german.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
  for (const auto& word : SwedishTranslator::words()) {
    EXPECT_FALSE(german.translate(word.context, word.english).isEmpty())
        << word.context << ": " << word.english;
  }
}

TEST(SwedishTranslatorTest, GivesItsWordsAndNothingForOthers) {
  const SwedishTranslator swedish;
  EXPECT_EQ(swedish.translate("QPlatformTheme", "Cancel", nullptr, -1), QStringLiteral("Avbryt"));
  EXPECT_TRUE(swedish.translate("QPlatformTheme", "Elephant", nullptr, -1).isNull());
}

/// What `widget` looks like at rest on the ground of a card.
QImage picture(QWidget& widget) {
  widget.ensurePolished();
  widget.resize(widget.sizeHint());
  QPalette card = widget.palette();
  card.setColor(QPalette::Window, themeColour(ThemeColour::card));
  widget.setPalette(card);
  return widget.grab().toImage();
}

TEST(ControlLookTest, AClosedListIsAsHighAsAnEntryBox) {
  for (const double scale : {0.9, 1.0, 1.5, 2.0}) {
    applyTheme(Appearance::light, scale, 0);
    QLineEdit entry;
    QComboBox list;
    list.addItem(QStringLiteral("0.000"));
    for (QWidget* each : {static_cast<QWidget*>(&entry), static_cast<QWidget*>(&list)})
      each->ensurePolished();
    EXPECT_NEAR(list.sizeHint().height(), entry.sizeHint().height(), 1) << scale;
  }
  applyTheme(Appearance::light, 0.9, 0);
}

TEST(ControlLookTest, AClosedListShowsItsArrow) {
  QComboBox list;
  list.addItem(QStringLiteral("0.000"));
  EXPECT_TRUE(has(picture(list), themeColour(ThemeColour::softText).rgb()));
}

template <class Button>
class ChoiceLookTest : public ::testing::Test {};
using ChoiceButtons = ::testing::Types<QCheckBox, QRadioButton>;
TYPED_TEST_SUITE(ChoiceLookTest, ChoiceButtons);

TYPED_TEST(ChoiceLookTest, HasAFrameOnAnyGround) {
  TypeParam off;
  TypeParam on;
  on.setChecked(true);
  const auto frame = [] { return themeColour(ThemeColour::softText); };
  // Its lines are smoothed; somewhere along them the full colour stands.
  const auto shows = [](const QImage& image, const QColor& colour) {
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor there = image.pixelColor(x, y);
        if (std::abs(there.lightness() - colour.lightness()) < 12) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(shows(picture(off), frame()));
  EXPECT_NE(picture(off), picture(on));
  const DarkLook dark;
  EXPECT_TRUE(shows(picture(off), frame()));
  EXPECT_NE(picture(off), picture(on));
}

}  // namespace
}  // namespace korvin
