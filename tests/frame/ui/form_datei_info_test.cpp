#include "frame/ui/form_datei_info.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "support/test_ports.h"

namespace korvin {
namespace {

/// What every kind's record has.
struct Info {
  FesterText<75> DateiName, Bezeichnung, Bediener, Kommentar;
  FesterText<40> Datum;
  Flagge InfoAbbruch;
  std::int16_t DateiStatus = 0;
  Flagge Geaendert;
};

class FileInformation : public ::testing::TestWithParam<const char*> {
 protected:
  FileInformation() {
    info.Bezeichnung =
        "F\xFC"
        "hrung";
    info.Bediener = "Ada";
    info.Kommentar = "kalt";
    info.Kommentar.bytes()[5] = '\0';  // what comes behind is not shown
  }
  /// The answer of the dialog, at which the user does `action`.
  bool ask(const std::function<void(QDialog&)>& action) {
    QTimer::singleShot(0, qApp, [action] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      EXPECT_EQ(dialog->objectName(), QString::fromLatin1(GetParam()));
      action(*dialog);
    });
    QtDateiInfoDialog port(dictionary, QString::fromLatin1(GetParam()), nullptr);
    return port.bearbeiten(dateiKopf(info));
  }
  static QLineEdit* entry(const QDialog& dialog, const char* name) {
    return dialog.findChild<QLineEdit*>(QString::fromLatin1(name));
  }
  static void press(const QDialog& dialog, const char* button) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(QString::fromLatin1(button)), Qt::LeftButton);
  }

  test::TestDictionary dictionary;
  Info info;
};

TEST_P(FileInformation, ShowsWhatTheRecordHolds) {
  ask([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("D7210"));
    EXPECT_EQ(entry(dialog, "Bezeichnung")->text(), QStringLiteral("Führung"));
    EXPECT_EQ(entry(dialog, "Bediener")->text(), QStringLiteral("Ada"));
    EXPECT_EQ(entry(dialog, "Kommentar")->text(), QStringLiteral("kalt"));
    EXPECT_EQ(dialog.focusWidget(), entry(dialog, "Bezeichnung"));
    press(dialog, "cmdAbbrechen");
  });
}

TEST_P(FileInformation, TakesWhatWasEditedAndLeavesTheRest) {
  const auto comment = info.Kommentar;
  EXPECT_TRUE(ask([](QDialog& dialog) {
    entry(dialog, "Bezeichnung")->clear();
    QTest::keyClicks(entry(dialog, "Bezeichnung"), QStringLiteral("Saeule"));
    entry(dialog, "Bediener")->clear();
    entry(dialog, "Bediener")->setModified(true);
    press(dialog, "cmdOK");
  }));
  EXPECT_EQ(info.Bezeichnung.trimmed(), "Saeule");
  EXPECT_EQ(info.Bediener.full(), std::string(75, ' '));
  EXPECT_EQ(info.Kommentar, comment) << "its bytes stay as they were";
}

TEST_P(FileInformation, CancelAndEscapeLeaveAllAsItWas) {
  const auto edit = [](QDialog& dialog) {
    QTest::keyClicks(entry(dialog, "Bediener"), QStringLiteral(" und Eva"));
  };
  EXPECT_FALSE(ask([&](QDialog& dialog) {
    edit(dialog);
    press(dialog, "cmdAbbrechen");
  }));
  EXPECT_FALSE(ask([&](QDialog& dialog) {
    edit(dialog);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }));
  EXPECT_EQ(info.Bediener.trimmed(), "Ada");
}

TEST_P(FileInformation, ReturnAcceptsFromEveryEntry) {
  for (const char* name : {"Bezeichnung", "Bediener", "Kommentar"}) {
    EXPECT_TRUE(ask([name](QDialog& dialog) { QTest::keyClick(entry(dialog, name), Qt::Key_Return); }))
        << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, FileInformation, ::testing::Values("FormDateiInfoO", "FormDateiInfoG"),
                         [](const auto& kind) { return std::string(kind.param); });

}  // namespace
}  // namespace korvin
