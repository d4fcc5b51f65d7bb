#include "frame/ui/qt_message_port.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_translations.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

/// Runs `action` on the message box as soon as it is up.
void onBox(const std::function<void(QMessageBox&)>& action) {
  QTimer::singleShot(0, qApp, [action] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    ASSERT_EQ(box->objectName(), QStringLiteral("MessageBox"));
    action(*box);
  });
}

MessageAnswer answerAfterClick(MessageButtons buttons, QMessageBox::StandardButton button) {
  onBox([button](QMessageBox& box) { QTest::mouseClick(box.button(button), Qt::LeftButton); });
  return QtMessagePort().show({"Titel", "Text"}, MessageIcon::question, buttons);
}

MessageAnswer answerAfterEscape(MessageButtons buttons) {
  onBox([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  return QtMessagePort().show({"Titel", "Text"}, MessageIcon::question, buttons);
}

TEST(QtMessagePortTest, EachButtonGivesItsAnswer) {
  EXPECT_EQ(answerAfterClick(MessageButtons::ok, QMessageBox::Ok), MessageAnswer::ok);
  EXPECT_EQ(answerAfterClick(MessageButtons::okCancel, QMessageBox::Cancel), MessageAnswer::cancel);
  EXPECT_EQ(answerAfterClick(MessageButtons::yesNo, QMessageBox::Yes), MessageAnswer::yes);
  EXPECT_EQ(answerAfterClick(MessageButtons::yesNoCancel, QMessageBox::No), MessageAnswer::no);
}

TEST(QtMessagePortTest, EscapeGivesTheLeastHarmfulAnswer) {
  EXPECT_EQ(answerAfterEscape(MessageButtons::ok), MessageAnswer::ok);
  EXPECT_EQ(answerAfterEscape(MessageButtons::okCancel), MessageAnswer::cancel);
  EXPECT_EQ(answerAfterEscape(MessageButtons::yesNo), MessageAnswer::no);
  EXPECT_EQ(answerAfterEscape(MessageButtons::yesNoCancel), MessageAnswer::cancel);
}

TEST(QtMessagePortTest, ShowsTextAsItIsWithItsLines) {
  QString text;
  Qt::TextFormat format = Qt::AutoText;
  onBox([&](QMessageBox& box) {
    text = box.text();
    format = box.textFormat();
    box.accept();
  });
  QtMessagePort().show({"", "<b>Größe</b>\r\nzwei"}, MessageIcon::warning, MessageButtons::ok);
  EXPECT_EQ(text, QStringLiteral("<b>Größe</b>\nzwei"));
  EXPECT_EQ(format, Qt::PlainText);
}

TEST(QtMessagePortTest, ButtonsSpeakTheLanguage) {
  QtTranslations translations;
  const auto yesIn = [&](int language) {
    translations.setLanguage(language);
    QString yes;
    onBox([&](QMessageBox& box) {
      yes = box.button(QMessageBox::Yes)->text().remove(QLatin1Char('&'));
      box.reject();
    });
    QtMessagePort().show({"", ""}, MessageIcon::none, MessageButtons::yesNo);
    return yes;
  };
  EXPECT_EQ(yesIn(0), QStringLiteral("Ja"));
  EXPECT_EQ(yesIn(1), QStringLiteral("Yes"));
  EXPECT_EQ(yesIn(2), QStringLiteral("Oui"));
  EXPECT_EQ(yesIn(3), QStringLiteral("Sì"));
  EXPECT_EQ(yesIn(4), QStringLiteral("Sí"));
  EXPECT_EQ(yesIn(5), QStringLiteral("Ja"));
  EXPECT_TRUE(yesIn(6).startsWith(QStringLiteral("是"))) << yesIn(6).toStdString();
  EXPECT_TRUE(yesIn(7).startsWith(QStringLiteral("はい"))) << yesIn(7).toStdString();
}

TEST(QtMessagePortTest, TheBoxIsWiderThanItsTitle) {
  const std::string title = "KORVIN-Positionsmessung und noch etwas mehr";
  int width = 0;
  onBox([&width](QMessageBox& box) {
    width = box.width();
    box.accept();
  });
  QtMessagePort().show({title, "?"}, MessageIcon::none, MessageButtons::ok);
  const int words = QFontMetrics(themeFont(1, true)).horizontalAdvance(QString::fromStdString(title));
  EXPECT_GE(width, words + scaled(100)) << "beside the title stand the keys of the title bar";
  EXPECT_LE(width, 1024);
}

TEST(QtMessagePortTest, TheHourglassRestsWhileABoxIsUp) {
  showHourglass();
  bool during = true;
  onBox([&](QMessageBox& box) {
    during = hourglassShown();
    box.accept();
  });
  QtMessagePort().show({"", ""}, MessageIcon::none, MessageButtons::ok);
  EXPECT_FALSE(during);
  EXPECT_TRUE(hourglassShown());
  showNormalPointer();
}

}  // namespace
}  // namespace korvin
