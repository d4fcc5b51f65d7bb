#include "link/ui/service_panel.h"

#include <gtest/gtest.h>

#include "frame/ui/qt_text.h"
#include "link/ui/service_line.h"

namespace korvin {
namespace {

TEST(ServicePanelTest, AnyByteOfALineCanBeShown) {
  EXPECT_EQ(ohneSteuerzeichen(QStringLiteral("1K\n\t") + QChar(0) + QChar(0x81) + QStringLiteral("ä")),
            QStringLiteral("1K␊␉␀·ä"));
}

TEST(ServicePanelTest, OldestTelegramsGo) {
  ServicePanel panel({31, 15, 500});
  panel.show();
  for (int i = 0; i <= ServicePanel::MaxTelegramme; ++i) panel.zeigeTelegramm(QString::number(i));
  const auto* list = panel.findChild<QListWidget*>(QStringLiteral("LstCamMsg"));
  EXPECT_EQ(list->count(), ServicePanel::MaxTelegramme);
  EXPECT_EQ(utf8Text(list->item(0)->text()), "1");
}

TEST(ServiceLineTest, LongLineNeverWidensItsWindow) {
  ServiceLine line(0);
  line.zeige(QString(5000, QLatin1Char('x')) + QStringLiteral("\nsecond"));
  EXPECT_EQ(line.minimumSizeHint().width(), 0);
  EXPECT_LE(line.sizeHint().height(), line.fontMetrics().height() + 4) << "a line end makes no second line";
}

}  // namespace
}  // namespace korvin
