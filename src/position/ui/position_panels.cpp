#include "position/ui/position_panels.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <optional>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double axisScale = 2.0;  ///< size of "X" and "Y" against plain text

QLabel* plainLabel(const QString& name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  setTextColour(*label, panelCaption());
  return label;
}

QLabel* axisLabel(const char* axis, QWidget* parent) {
  QLabel* label = plainLabel(QStringLiteral("Label%1").arg(QLatin1String(axis)), parent);
  label->setFont(themeFont(axisScale, true));
  label->setText(QLatin1String(axis));
  return label;
}

QFrame* line(QWidget* parent) {
  auto* rule = new QFrame(parent);
  rule->setFixedHeight(1);
  rule->setAutoFillBackground(true);
  QPalette colours = rule->palette();
  colours.setColor(QPalette::Window, panelGround().lighter(190));
  rule->setPalette(colours);
  return rule;
}

void showOptional(CaptionedField& field, const std::optional<std::string>& text) {
  field.value().setText(text ? qText(*text) : QString());
  field.setVisible(text.has_value());
}

}  // namespace

PositionPanels::PositionPanels(HeadPanel* kopf, QWidget* parent)
    : DarkPanel(parent),
      x_(new ValuePanel(QStringLiteral("PanelxWertNormal"), this)),
      y_(new ValuePanel(QStringLiteral("PanelyWertNormal"), this)),
      einheitX_(plainLabel(QStringLiteral("lblEinheitX"), this)),
      einheitY_(plainLabel(QStringLiteral("lblEinheitY"), this)),
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
  spalte->addWidget(wertZeile(x_, axisLabel("X", this), einheitX_), 3);
  spalte->addWidget(wertZeile(y_, axisLabel("Y", this), einheitY_), 3);
  spalte->addWidget(line(this));
  spalte->addLayout(felder);
  spalte->addWidget(line(this));
  spalte->addWidget(kopf);
  zeigeUhr({});
}

QWidget* PositionPanels::wertZeile(ValuePanel* panel, QLabel* name, QLabel* einheit) {
  auto* zeile = new QWidget(this);
  auto* namen = new QVBoxLayout;
  namen->setSpacing(0);
  namen->addStretch();
  namen->addWidget(name);
  namen->addWidget(einheit);
  namen->addStretch();
  auto* reihe = new QHBoxLayout(zeile);
  reihe->setContentsMargins(0, 0, 0, 0);
  reihe->addLayout(namen);
  reihe->addWidget(panel, 1);
  return zeile;
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
      pnlXY_(plainLabel(QStringLiteral("pnlXY"), this)) {
  pnlXY_->setFont(themeFont(axisScale));
  pnlXY_->setAlignment(Qt::AlignCenter);
  auto* gitter = new QGridLayout(this);
  gitter->setContentsMargins(scaled(16), scaled(16), scaled(16), scaled(16));
  gitter->addWidget(axisLabel("X", this), 0, 0, Qt::AlignCenter);
  gitter->addWidget(x_, 0, 1);
  gitter->addWidget(pnlXY_, 1, 0);
  gitter->addWidget(line(this), 1, 1, Qt::AlignVCenter);
  gitter->addWidget(axisLabel("Y", this), 2, 0, Qt::AlignCenter);
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
