#include "frame/ui/qt_file_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

class QtFileDialogTest : public ::testing::Test {
 protected:
  void touch(const QString& name) {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  /// Types `name` into the dialog and presses its accepting button.
  std::string typed(const QString& name, bool open) {
    QTimer::singleShot(0, qApp, [name] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      auto* entry = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      ASSERT_NE(entry, nullptr);
      entry->setText(name);
      dialog->setLabelText(QFileDialog::Accept, QStringLiteral("go"));
      for (auto* button : dialog->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String("go")) QTest::mouseClick(button, Qt::LeftButton);
      }
      EXPECT_FALSE(dialog->isVisible()) << "the dialog did not take the name";
      if (dialog->isVisible()) dialog->reject();
    });
    return port.choose({utf8Text(folder.path()), "Position (*.O)|*.O", "Wahl", open});
  }

  std::string path(const QString& name) const { return utf8Text(folder.filePath(name)); }

  QTemporaryDir folder;
  QtFileDialog port;
};

TEST(NameFiltersTest, PairsBecomeFilters) {
  EXPECT_EQ(nameFilters(QStringLiteral("Alle (*.?)|*.?|Position|*.O")),
            QStringList({QStringLiteral("Alle (*.?)"), QStringLiteral("Position (*.O)")}));
  EXPECT_EQ(nameFilters(QStringLiteral("Position(*.O)|*.O|Rest")),
            QStringList{QStringLiteral("Position (*.O)")});
  EXPECT_EQ(nameFilters(QStringLiteral("Position(*.O)|")), QStringList{QStringLiteral("Position (*.O)")})
      << "the filter of a save has its pattern in brackets only";
}

TEST_F(QtFileDialogTest, SavingCompletesTheName) {
  EXPECT_EQ(typed(QStringLiteral("rail"), false), path(QStringLiteral("rail.O")));
}

TEST_F(QtFileDialogTest, OpeningFindsTheFileWithAndWithoutItsExtension) {
  touch(QStringLiteral("rail.O"));
  EXPECT_EQ(typed(QStringLiteral("rail.O"), true), path(QStringLiteral("rail.O")));
  EXPECT_EQ(typed(QStringLiteral("rail"), true), path(QStringLiteral("rail.O")));
}

TEST_F(QtFileDialogTest, OpeningTakesAFileWithoutExtensionAsItIs) {
  touch(QStringLiteral("bag"));
  EXPECT_EQ(typed(QStringLiteral("bag"), true), path(QStringLiteral("bag")));
}

TEST_F(QtFileDialogTest, ReplacingIsAskedForTheCompletedName) {
  touch(QStringLiteral("rail.O"));
  QString question;
  QTimer::singleShot(0, qApp, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("rail"));
    QTimer::singleShot(0, dialog, [&question, dialog] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(box, dialog);
      question = box->property("text").toString();
      box->reject();
      dialog->reject();
    });
    QTest::keyClick(dialog, Qt::Key_Return);
  });
  EXPECT_EQ(port.choose({utf8Text(folder.path()), "Position|*.O", "", false}), "");
  EXPECT_TRUE(question.contains(QLatin1String("rail.O"))) << question.toStdString();
}

TEST_F(QtFileDialogTest, TheOfferedNameIsMarkedAndReplacingItIsAsked) {
  touch(QStringLiteral("rail.O"));
  QString marked;
  bool asked = false;
  QTimer::singleShot(0, qApp, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    marked = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->selectedText();
    QTimer::singleShot(0, dialog, [&asked, dialog] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      asked = box != nullptr && box != dialog;
      if (asked) box->reject();
      dialog->reject();
    });
    QTest::keyClick(dialog, Qt::Key_Return);
  });
  EXPECT_EQ(port.choose({utf8Text(folder.path()), "Position|*.O", "", false, "rail.O"}), "");
  EXPECT_EQ(marked, QStringLiteral("rail.O"));
  EXPECT_TRUE(asked);
}

TEST_F(QtFileDialogTest, TheFoldersHaveRoomForTheirWordsOnALargeScreen) {
  applyTheme(Appearance::light, 2.1, 0);
  int room = 0;
  int words = 0;
  QTimer::singleShot(0, qApp, [&] {
    const auto* folders = QApplication::activeModalWidget()->findChild<QListView*>(QStringLiteral("sidebar"));
    room = folders->viewport()->width();
    words = folders->sizeHintForColumn(0);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  port.choose({utf8Text(folder.path()), "Position|*.O", "", true});
  applyTheme(Appearance::light, 0.9, 0);
  EXPECT_GT(words, 0);
  EXPECT_GE(room, words);
}

TEST_F(QtFileDialogTest, CancelGivesTheEmptyTextAndTheTitleHasItsDefault) {
  QString title;
  QTimer::singleShot(0, qApp, [&] {
    title = QApplication::activeModalWidget()->windowTitle();
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  EXPECT_EQ(port.choose({utf8Text(folder.path()), "Position|*.O", "", true}), "");
  EXPECT_EQ(title, QStringLiteral("Dateiauswahl"));
}

}  // namespace
}  // namespace korvin
