#include "position/ui/position_panels.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "link/ui/panel_parts.h"

namespace korvin {
namespace {

constexpr double unitScale = 2.0;  ///< size of the unit between the large numbers

}  // namespace
PositionPanels::PositionPanels(HeadPanel* kopf, QWidget* parent)
    : DarkPanel(parent),
      x_(new ValuePanel(QStringLiteral("PanelxWertNormal"), this)),
      y_(new ValuePanel(QStringLiteral("PanelyWertNormal"), this)),
      einheitX_(panelLabel(QStringLiteral("lblEinheitX"), this)),
      einheitY_(panelLabel(QStringLiteral("lblEinheitY"), this)),
      messPunkt_(new CaptionedField(QStringLiteral("PanelLabelMP"), QStringLiteral("PanelMessPkt"), this)),
      gesamt_(new CaptionedField(QStringLiteral("PanelMPTotal"), QStringLiteral("lblMPsTotal"), this)),
      offset_(new CaptionedField(QStringLiteral("lblOffsetTitel"), QStringLiteral("lblOffset"), this)),
      rest_(new CaptionedField(QStringLiteral("lblMpsStart"), QStringLiteral("PanelMpsStart"), this)),
      intervall_(new CaptionedField(QStringLiteral("lblMessRate"), QStringLiteral("PanelMessRate"), this)),
      start_(new CaptionedField(QStringLiteral("lblStart"), QStringLiteral("PanelZeit(0)"), this)),
      stop_(new CaptionedField(QStringLiteral("lblStop"), QStringLiteral("PanelZeit(1)"), this)),
      uhr_(new CaptionedField(QStringLiteral("lblUhr"), QStringLiteral("PanelZeit(2)"), this)) {
  auto* felder = new QGridLayout;
  felder->setHorizontalSpacing(scaled(16));
  felder->setVerticalSpacing(scaled(8));
  felder->addWidget(messPunkt_, 0, 0);
  felder->addWidget(gesamt_, 0, 1, 1, 2);
  felder->addWidget(offset_, 1, 0, 1, 3);
  felder->addWidget(rest_, 2, 0);
  felder->addWidget(intervall_, 2, 1, 1, 2);
  felder->addWidget(start_, 3, 0);
  felder->addWidget(stop_, 3, 1);
  felder->addWidget(uhr_, 3, 2);
  for (int column = 0; column < 3; ++column) felder->setColumnStretch(column, 1);

  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(scaled(16), scaled(8), scaled(16), scaled(8));
  spalte->setSpacing(scaled(6));
  spalte->addWidget(valueRow(x_, axisLabel(QStringLiteral("X"), this), einheitX_, this), 3);
  spalte->addWidget(valueRow(y_, axisLabel(QStringLiteral("Y"), this), einheitY_, this), 3);
  spalte->addWidget(panelRule(Qt::Horizontal, this));
  spalte->addLayout(felder);
  spalte->addWidget(panelRule(Qt::Horizontal, this));
  spalte->addWidget(kopf);
  zeigeUhr({});
}

void PositionPanels::setTexte(Dictionary& dictionary, const QString& einheit) {
  const auto setCaption = [&dictionary](CaptionedField& field, std::int16_t text) {
    field.caption().setText(qText(dictionary.DicText(text)));
    field.value().setAccessibleName(field.caption().text());
  };
  setCaption(*rest_, 7160);
  setCaption(*intervall_, 7161);
  setCaption(*start_, 7162);
  setCaption(*stop_, 7163);
  setCaption(*uhr_, 7164);
  setCaption(*gesamt_, 7165);
  setCaption(*messPunkt_, 7166);
  setCaption(*offset_, 7167);
  einheitX_->setText(einheit);
  einheitY_->setText(einheit);
}

void PositionPanels::zeigeWerte(const PositionsTexte& texte) {
  x_->setValue(qText(texte.X));
  y_->setValue(qText(texte.Y));
}

void PositionPanels::zeigeStatus(const PositionsTexte& texte) {
  messPunkt_->value().setText(qText(texte.MessPkt));
  gesamt_->value().setText(qText(texte.MPsTotal));
  offset_->value().setText(qText(texte.Offset));
  showOptional(*intervall_, texte.MessRate);
  showOptional(*rest_, texte.MpsStart);
  showOptional(*start_, texte.StartZeit);
  showOptional(*stop_, texte.StopZeit);
}

void PositionPanels::zeigeUhr(const QString& zeit) {
  uhr_->value().setText(zeit);
  uhr_->setVisible(!zeit.isEmpty());
}

PositionZoom::PositionZoom(QWidget* parent)
    : DarkPanel(parent),
      x_(new ValuePanel(QStringLiteral("PanelXWertZoom"), this)),
      y_(new ValuePanel(QStringLiteral("PanelYWertZoom"), this)),
      pnlXY_(panelLabel(QStringLiteral("pnlXY"), this)) {
  pnlXY_->setFont(themeFont(unitScale));
  pnlXY_->setAlignment(Qt::AlignCenter);
  auto* gitter = new QGridLayout(this);
  gitter->setContentsMargins(scaled(16), scaled(16), scaled(16), scaled(16));
  gitter->addWidget(axisLabel(QStringLiteral("X"), this), 0, 0, Qt::AlignCenter);
  gitter->addWidget(x_, 0, 1);
  gitter->addWidget(pnlXY_, 1, 0);
  gitter->addWidget(panelRule(Qt::Horizontal, this), 1, 1, Qt::AlignVCenter);
  gitter->addWidget(axisLabel(QStringLiteral("Y"), this), 2, 0, Qt::AlignCenter);
  gitter->addWidget(y_, 2, 1);
  gitter->setColumnStretch(1, 1);
  gitter->setRowStretch(0, 1);
  gitter->setRowStretch(2, 1);
}

void PositionZoom::setEinheit(const QString& einheit) {
  pnlXY_->setText(einheit);
}

void PositionZoom::zeige(const PositionsTexte& texte) {
  x_->setValue(qText(texte.X));
  y_->setValue(qText(texte.Y));
}

}  // namespace korvin
