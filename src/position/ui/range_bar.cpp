#include "position/ui/range_bar.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <array>
#include <utility>

#include "frame/bereich.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "position/xy_ranges.h"

namespace korvin {
namespace {

struct Key {
  const char* name;
  const char* picture;
  std::int16_t text;
};

constexpr std::array<Key, 6> keys = {{{"AUTO", "ICONAUTO", 7360},
                                      {"HAND", "ICONHAND", 7361},
                                      {"XPLUS", "ICONXPLUS", 7362},
                                      {"XMINUS", "ICONXMINUS", 7363},
                                      {"YPLUS", "ICONYPLUS", 7364},
                                      {"YMINUS", "ICONYMINUS", 7365}}};
constexpr const char* widestRange = "±0.05mil";

QString pictureOf(const QString& key) {
  for (const Key& each : keys) {
    if (key == QLatin1String(each.name)) return QLatin1String(each.picture);
  }
  return {};
}

QLabel* rangeLabel(const QString& axis, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QStringLiteral("Panel%1Bereich").arg(axis));
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignCenter);
  label->setFont(themeFont(1.1, true));
  label->setMinimumWidth(QFontMetrics(label->font()).horizontalAdvance(QString::fromUtf8(widestRange)));
  return label;
}

}  // namespace

RangeBar::RangeBar(QWidget* parent)
    : QWidget(parent),
      keys_(new KeyToolBar(QStringLiteral("tbrXYBereich"), this)),
      x_(rangeLabel(QStringLiteral("X"), this)),
      y_(rangeLabel(QStringLiteral("Y"), this)) {
  setObjectName(QStringLiteral("PanelXYBereich"));
  keys_->add(QStringLiteral("AUTO"), pictureOf(QStringLiteral("AUTO")), KeyToolBar::Kind::check);
  keys_->add(QStringLiteral("HAND"), pictureOf(QStringLiteral("HAND")), KeyToolBar::Kind::check);
  addAxis(QStringLiteral("X"), x_);
  addAxis(QStringLiteral("Y"), y_);
  keys_->onButton = [this](const QString& key) {
    if (onKey) onKey(key);
  };
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(keys_);
}

void RangeBar::addAxis(const QString& axis, QLabel* range) {
  keys_->addGap();
  auto* name = new QLabel(axis, keys_);
  name->setFont(themeFont(1.1));
  name->setContentsMargins(scaled(4), 0, scaled(4), 0);
  keys_->addWidget(name);
  keys_->add(axis + QStringLiteral("MINUS"), pictureOf(axis + QStringLiteral("MINUS")));
  keys_->addWidget(range);
  keys_->add(axis + QStringLiteral("PLUS"), pictureOf(axis + QStringLiteral("PLUS")));
}

void RangeBar::setTexte(Dictionary& dictionary) {
  for (const Key& key : keys)
    keys_->setWords(QString::fromLatin1(key.name), qText(dictionary.DicText(key.text)));
}

void RangeBar::zeige(const PositionsDatei& datei, int Masssystem) {
  const bool byHand = bereichVonHand(datei);
  keys_->setPressed(QStringLiteral("AUTO"), !byHand);
  keys_->setPressed(QStringLiteral("HAND"), byHand);
  for (const char* key : {"XPLUS", "XMINUS", "YPLUS", "YMINUS"})
    keys_->setKeyEnabled(QString::fromLatin1(key), byHand);
  x_->setText(qText(bereichAnpassen(datei.X.Bereich, Masssystem).text));
  y_->setText(qText(bereichAnpassen(datei.Y.Bereich, Masssystem).text));
}

}  // namespace korvin
