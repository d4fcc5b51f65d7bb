#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>

#include "frame/ui/form_info.h"
#include "frame/ui/help_page.h"
#include "frame/ui/help_viewer.h"
#include "main_window_stand.h"

namespace korvin {
namespace {

using einstellung::Hauptfenster::FirmaName;
using test::MainWindowStand;

class FormInfoTest : public MainWindowStand {
 protected:
  /// Opens the panel by its menu entry and runs `action` on it.
  void onPanel(const std::function<void(FormInfo&)>& action) {
    bool ran = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
      auto* panel = qobject_cast<FormInfo*>(QApplication::activeModalWidget());
      if (panel == nullptr || ran) return;
      ran = true;
      action(*panel);
      if (panel->isVisible()) panel->reject();
    });
    look.start(0);
    clickMenu({QStringLiteral("M_Hilfe"), QStringLiteral("M_Info")});
    EXPECT_TRUE(ran);
  }
  static QLineEdit& company(FormInfo& panel) {
    return *panel.findChild<QLineEdit*>(QStringLiteral("TextEinstellung(0)"));
  }
};

TEST_F(FormInfoTest, NamesTheVersionAndTheCompany) {
  store(FirmaName, "Müller & Söhne");
  show();
  onPanel([](FormInfo& panel) {
    EXPECT_EQ(panel.findChild<QLabel*>(QStringLiteral("Panelversion"))->text(),
              QStringLiteral("WIN-KORVIN, Version 5.55 / qk "));
    EXPECT_EQ(company(panel).text(), QStringLiteral("Müller & Söhne"));
    EXPECT_EQ(company(panel).maxLength(), 75);
  });
}

TEST_F(FormInfoTest, OkStoresTheCompany) {
  show();
  onPanel([](FormInfo& panel) {
    company(panel).selectAll();
    QTest::keyClicks(&company(panel), QStringLiteral("Rail Works"));
    QTest::mouseClick(panel.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    EXPECT_FALSE(panel.isVisible());
  });
  EXPECT_EQ(stored(FirmaName), "Rail Works");
}

TEST_F(FormInfoTest, LeavingItOtherwiseStoresNothing) {
  store(FirmaName, "before");
  show();
  onPanel([](FormInfo& panel) {
    company(panel).setText(QStringLiteral("after"));
    QTest::keyClick(&panel, Qt::Key_Escape);
  });
  EXPECT_EQ(stored(FirmaName), "before");
}

class HilfeTest : public MainWindowStand {
 protected:
  static HelpViewer* viewer() {
    for (QWidget* each : QApplication::topLevelWidgets()) {
      auto* found = qobject_cast<HelpViewer*>(each);
      if (found != nullptr && found->isVisible()) return found;
    }
    return nullptr;
  }
  static HelpPage& page() { return *viewer()->findChild<HelpPage*>(); }
  static void click(const char* key) {
    auto* bar = viewer()->findChild<KeyToolBar*>(QStringLiteral("tbrHilfe"));
    QTest::mouseClick(bar->button(QString::fromUtf8(key)), Qt::LeftButton);
  }
  void search(const char* words) {
    auto* entry = viewer()->findChild<QLineEdit*>(QStringLiteral("HelpSearch"));
    entry->setText(QString::fromUtf8(words));
    QTest::keyClick(entry, Qt::Key_Return);
  }
};

TEST_F(HilfeTest, TheKeyOpensTheGermanPartInGerman) {
  show();
  clickKey("Hilfe");
  ASSERT_NE(viewer(), nullptr);
  EXPECT_EQ(page().source().fragment(), QStringLiteral("de"));
  EXPECT_TRUE(page().toPlainText().contains(QStringLiteral("Anleitung")));
}

TEST_F(HilfeTest, EveryOtherLanguageOpensTheEnglishPart) {
  store(einstellung::Hauptfenster::Sprache, "7");
  show();
  clickMenu({QStringLiteral("M_Hilfe"), QStringLiteral("M_HilfeInhalt")});
  ASSERT_NE(viewer(), nullptr);
  EXPECT_EQ(page().source().fragment(), QStringLiteral("en"));
  EXPECT_GT(page().verticalScrollBar()->value(), 0);
}

TEST_F(HilfeTest, F1OpensItAndEnterKeepsIt) {
  show();
  QTest::keyClick(tile("Position"), Qt::Key_F1);
  ASSERT_NE(viewer(), nullptr);
  search("KORVIN");
  EXPECT_NE(viewer(), nullptr);
}

TEST_F(HilfeTest, F1OpensItOverAModalWindowWhichStaysUsable) {
  show();
  auto modal = std::make_unique<QDialog>(window.get());
  QTimer::singleShot(0, modal.get(), [&] {
    QTest::keyClick(modal.get(), Qt::Key_F1);
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(viewer()->parentWidget(), modal.get());
    search("Messkopf");
    EXPECT_TRUE(page().textCursor().hasSelection());
    modal->reject();
  });
  modal->exec();
  modal.reset();
  EXPECT_EQ(viewer(), nullptr) << "it goes with the window over which it stood";
  clickKey("Hilfe");
  EXPECT_NE(viewer(), nullptr);
}

TEST_F(HilfeTest, BackAndForwardFollowTheLinks) {
  show();
  hilfe.zeigen();
  page().setSource(QUrl(QStringLiteral("#de-tasten")));
  EXPECT_EQ(page().source().fragment(), QStringLiteral("de-tasten"));
  click("Zurück");
  EXPECT_EQ(page().source().fragment(), QStringLiteral("de"));
  click("Vorwärts");
  EXPECT_EQ(page().source().fragment(), QStringLiteral("de-tasten"));
  click("Inhalt");
  EXPECT_EQ(page().source().fragment(), QStringLiteral("de"));
}

TEST_F(HilfeTest, EveryLinkOfThePageLeadsToAnAnchor) {
  show();
  hilfe.zeigen();
  QFile file(QStringLiteral(KORVIN_BIN "/KorHelpD.HLP"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString html = QString::fromUtf8(file.readAll());
  static const QRegularExpression link(QStringLiteral("href=\"#([^\"]+)\""));
  int links = 0;
  for (auto found = link.globalMatch(html); found.hasNext(); ++links) {
    const QString name = found.next().captured(1);
    EXPECT_TRUE(html.contains(QStringLiteral("name=\"%1\"").arg(name))) << utf8Text(name);
  }
  EXPECT_GT(links, 10);
}

TEST_F(HilfeTest, SearchMarksAllPlacesGoesRoundAndRefusesVisiblyWhatIsNotThere) {
  show();
  hilfe.zeigen();
  search("Messkopf");
  const int first = page().textCursor().selectionStart();
  const auto places = page().extraSelections().size();
  EXPECT_GT(places, 2);
  for (qsizetype i = 1; i < places; ++i) search("Messkopf");
  search("Messkopf");
  EXPECT_EQ(page().textCursor().selectionStart(), first);
  search("zzzz");
  EXPECT_TRUE(viewer()->findChild<QLineEdit*>(QStringLiteral("HelpSearch"))->property("refused").toBool());
  EXPECT_TRUE(page().extraSelections().isEmpty());
}

TEST_F(HilfeTest, ItsPicturesAreDrawn) {
  show();
  hilfe.zeigen();
  int pictures = 0;
  for (QTextBlock block = page().document()->begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextImageFormat image = part.fragment().charFormat().toImageFormat();
      if (!image.isValid()) continue;
      ++pictures;
      const QVariant drawn = page().document()->resource(QTextDocument::ImageResource, QUrl(image.name()));
      EXPECT_FALSE(drawn.value<QImage>().isNull());
    }
  }
  EXPECT_GT(pictures, 3);
}

TEST_F(HilfeTest, AMissingGuideIsTold) {
  show();
  Hilfe missing(
      "/nowhere/KorHelpD.HLP", [] { return 0; }, dictionary, messages);
  missing.zeigen();
  EXPECT_EQ(viewer(), nullptr);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown.front().text, text(7045).toStdString() + NeueZeile + "/nowhere/KorHelpD.HLP");
}

}  // namespace
}  // namespace korvin
