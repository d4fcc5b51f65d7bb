#include "frame/ui/theme.h"

#include <QApplication>
#include <QPalette>
#include <algorithm>

#include "frame/ui/korvin_style.h"
#include "frame/ui/style_sheet.h"

namespace korvin {
namespace {

/// Pixels of plain text at scale 1.
constexpr double plainTextPixels = 14.0;
constexpr int languageChinese = 6;
/// Property of the application: the style is set, once.
constexpr const char* styleIsOwn = "korvinStyle";

QPalette lightPalette() {
  QPalette p;
  p.setColor(QPalette::Window, QColor(0xf2f5f8));
  p.setColor(QPalette::WindowText, QColor(0x1c2733));
  p.setColor(QPalette::Base, QColor(0xffffff));
  p.setColor(QPalette::AlternateBase, QColor(0xf6f8fb));
  p.setColor(QPalette::Text, QColor(0x1c2733));
  p.setColor(QPalette::Button, QColor(0xfcfdfe));
  p.setColor(QPalette::ButtonText, QColor(0x1c2733));
  p.setColor(QPalette::BrightText, QColor(0xffffff));
  p.setColor(QPalette::Light, QColor(0xffffff));
  p.setColor(QPalette::Midlight, QColor(0xe6ebf0));
  p.setColor(QPalette::Mid, QColor(0xc3ccd6));
  p.setColor(QPalette::Dark, QColor(0x9aa7b4));
  p.setColor(QPalette::Shadow, QColor(0x5d6b79));
  p.setColor(QPalette::Highlight, QColor(0x0a78b5));
  p.setColor(QPalette::HighlightedText, QColor(0xffffff));
  p.setColor(QPalette::Link, QColor(0x0a6aa1));
  p.setColor(QPalette::LinkVisited, QColor(0x5b4b9a));
  p.setColor(QPalette::ToolTipBase, QColor(0x22303d));
  p.setColor(QPalette::ToolTipText, QColor(0xf4f7fa));
  p.setColor(QPalette::PlaceholderText, QColor(0x7b8896));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    p.setColor(QPalette::Disabled, role, QColor(0x93a0ad));
  }
  p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xc3ccd6));
  return p;
}

QPalette darkPalette() {
  QPalette p;
  p.setColor(QPalette::Window, QColor(0x1a212a));
  p.setColor(QPalette::WindowText, QColor(0xe6ecf2));
  p.setColor(QPalette::Base, QColor(0x12181f));
  p.setColor(QPalette::AlternateBase, QColor(0x181f27));
  p.setColor(QPalette::Text, QColor(0xe6ecf2));
  p.setColor(QPalette::Button, QColor(0x27313d));
  p.setColor(QPalette::ButtonText, QColor(0xe6ecf2));
  p.setColor(QPalette::BrightText, QColor(0xffffff));
  p.setColor(QPalette::Light, QColor(0x3a4654));
  p.setColor(QPalette::Midlight, QColor(0x303b48));
  p.setColor(QPalette::Mid, QColor(0x44515f));
  p.setColor(QPalette::Dark, QColor(0x0d1217));
  p.setColor(QPalette::Shadow, QColor(0x05080b));
  p.setColor(QPalette::Highlight, QColor(0x2490d0));
  p.setColor(QPalette::HighlightedText, QColor(0xffffff));
  p.setColor(QPalette::Link, QColor(0x62bdf0));
  p.setColor(QPalette::LinkVisited, QColor(0xb3a5ea));
  p.setColor(QPalette::ToolTipBase, QColor(0xe8eef4));
  p.setColor(QPalette::ToolTipText, QColor(0x17202a));
  p.setColor(QPalette::PlaceholderText, QColor(0x8794a2));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    p.setColor(QPalette::Disabled, role, QColor(0x6b7885));
  }
  p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x44515f));
  return p;
}

bool isDarkGround(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace

Appearance desktopAppearance() {
  return isDarkGround(QApplication::palette()) ? Appearance::dark : Appearance::light;
}

double screenScale(double skalaX, double skalaY) {
  return std::clamp(std::min(skalaX, skalaY), 0.9, 4.0);
}

void applyTheme(Appearance appearance, double scale, int language) {
  QFont font(fontFamilies(language));
  font.setStyleHint(familyHint(language));
  font.setPixelSize(qRound(plainTextPixels * scale));
  if (qApp->property(styleIsOwn).isNull()) {
    QApplication::setStyle(new KorvinStyle);
    qApp->setProperty(styleIsOwn, true);
  }
  QApplication::setPalette(appearance == Appearance::dark ? darkPalette() : lightPalette());
  QApplication::setFont(font);
  const QString sheet = styleSheet();
  if (qApp->styleSheet() != sheet) qApp->setStyleSheet(sheet);
}

bool isDark() {
  return isDarkGround(QApplication::palette());
}

int scaled(double pixels) {
  return qRound(pixels * QApplication::font().pixelSize() / plainTextPixels);
}

QColor themeColour(ThemeColour colour) {
  const bool dark = isDark();
  switch (colour) {
    case ThemeColour::accent:
      return dark ? QColor(0x4fb6ee) : QColor(0x0a78b5);
    case ThemeColour::accentGround:
      return dark ? QColor(0x1f3a4d) : QColor(0xe0f0f9);
    case ThemeColour::card:
      return dark ? QColor(0x222b35) : QColor(0xffffff);
    case ThemeColour::cardHover:
      return dark ? QColor(0x293542) : QColor(0xf5fafd);
    case ThemeColour::line:
      return dark ? QColor(0x36424f) : QColor(0xd8dfe6);
    case ThemeColour::softText:
      return dark ? QColor(0x9eabb8) : QColor(0x566473);
    case ThemeColour::refuse:
      return dark ? QColor(0xff7b6b) : QColor(0xc62f1d);
  }
  return {};
}

QStringList fontFamilies(int language) {
  const QString signs =
      language == languageChinese ? QStringLiteral("Noto Sans CJK SC") : QStringLiteral("Noto Sans CJK JP");
  return {QStringLiteral("Liberation Sans"), signs};
}

QFont::StyleHint familyHint(int language) {
  return language == languageChinese ? QFont::SansSerif : QFont::AnyStyle;
}

QFont themeFont(double factor, bool bold) {
  QFont font = QApplication::font();
  font.setPixelSize(qRound(font.pixelSize() * factor));
  font.setBold(bold);
  return font;
}

}  // namespace korvin
