#include "straightness/ui/axis_area.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "link/ui/panel_parts.h"
#include "straightness/achsen_bereich.h"

namespace korvin {
namespace {

struct RangeKey {
  const char* name;
  const char* picture;
  KeyToolBar::Kind kind;
  std::int16_t text;
};

constexpr std::array<RangeKey, 5> rangeKeys = {{{"AUTO", "ICONAUTO", KeyToolBar::Kind::check, 7525},
                                                {"HAND", "ICONHAND", KeyToolBar::Kind::check, 7361},
                                                {"TOL", "ICONTOL", KeyToolBar::Kind::check, 7520},
                                                {"MINUS", "ICONMINUS", KeyToolBar::Kind::push, 7522},
                                                {"PLUS", "ICONPLUS", KeyToolBar::Kind::push, 7521}}};
constexpr std::int16_t TextDiagramm = 3017;

}  // namespace

AxisArea::AxisArea(const QString& axis, const PictureDesk& desk, QWidget* parent)
    : QWidget(parent),
      axis_(axis),
      range_(new QLabel(this)),
      keys_(new KeyToolBar(QStringLiteral("tbr%1Bereich").arg(axis), this)),
      diagram_(new PictureAchsenDiagramm(QStringLiteral("Picture%1Diagramm").arg(axis), desk, this)),
      zoom_(new ValuePanel(QStringLiteral("Panel%1WertZoom").arg(axis), this)),
      header_(header()),
      bigNumber_(bigNumber()) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(scaled(4));
  column->addWidget(bigNumber_, 1);
  column->addWidget(header_);
  column->addWidget(diagram_, 1);
  keys_->hide();
  keys_->onButton = [this](const QString& key) {
    if (onRangeKey) onRangeKey(utf8Text(key));
  };
  setAnsicht(true, false);
}

QWidget* AxisArea::header() {
  auto* made = new QWidget(this);
  auto* name = new QLabel(axis_, made);
  name->setFont(themeFont(1.2, true));
  range_->setObjectName(QStringLiteral("Panel%1Statistik(9)").arg(axis_));
  range_->setTextFormat(Qt::PlainText);
  range_->setFont(themeFont(1.1));
  keys_->setDense();
  keys_->setEmbedded();
  for (const RangeKey& key : rangeKeys)
    keys_->add(QString::fromLatin1(key.name), QString::fromLatin1(key.picture), key.kind);
  auto* line = new QHBoxLayout(made);
  line->setContentsMargins(scaled(4), 0, 0, 0);
  line->setSpacing(scaled(10));
  line->addWidget(name);
  line->addWidget(range_);
  line->addStretch(1);
  line->addWidget(keys_);
  return made;
}

QWidget* AxisArea::bigNumber() {
  auto* made = new DarkPanel(this);
  name_ = axisLabel(axis_, made);
  name_->setObjectName(QStringLiteral("Label%1Zoom").arg(axis_));
  unit_ = panelLabel(QStringLiteral("lblEinheit%1Zoom").arg(axis_), made);
  auto* line = new QHBoxLayout(made);
  line->setContentsMargins(scaled(16), scaled(12), scaled(16), scaled(12));
  zoom_->setMargin(scaled(12));
  line->addWidget(valueRow(zoom_, name_, unit_, made));
  return made;
}

void AxisArea::setTexte(Dictionary& dictionary, const QString& unit) {
  for (const RangeKey& key : rangeKeys)
    keys_->setWords(QString::fromLatin1(key.name), qText(dictionary.DicText(key.text)));
  unit_->setText(unit);
  diagram_->setTexts();
  diagram_->setAccessibleName(axis_ + QLatin1Char('-') + qText(dictionary.DicText(TextDiagramm)));
}

void AxisArea::zeige(const std::string& name, const AchsenAnzeigeDaten& daten, std::int16_t Bereichsart) {
  range_->setText(qText(daten.texte.Bereich));
  name_->setText(qText(name));
  zoom_->setValue(qText(daten.texte.Wert));
  // Also where a click changed nothing: the key of the range in force stays pressed.
  keys_->setPressed(QStringLiteral("AUTO"), Bereichsart != BereichsartHAND && Bereichsart != BereichsartTOL);
  keys_->setPressed(QStringLiteral("HAND"), Bereichsart == BereichsartHAND);
  keys_->setPressed(QStringLiteral("TOL"), Bereichsart == BereichsartTOL);
  for (const char* key : {"PLUS", "MINUS"})
    keys_->setKeyEnabled(QString::fromLatin1(key), Bereichsart == BereichsartHAND);
}

void AxisArea::setAnsicht(bool diagramm, bool zahl) {
  header_->setVisible(diagramm);
  diagram_->setVisible(diagramm);
  bigNumber_->setVisible(zahl);
  setVisible(diagramm || zahl);
}

}  // namespace korvin
