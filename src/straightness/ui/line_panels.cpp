#include "straightness/ui/line_panels.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ui/qt_colour.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "link/ui/panel_parts.h"

namespace korvin {
namespace {

constexpr double captionScale = 0.85;
constexpr double valueScale = 1.35;
constexpr Farbe FarbeGesperrt = 0xC0C0C0;  ///< ground of a `txtDistanz` that only shows
constexpr std::int16_t TextMesspunkt = 7166;
constexpr std::int16_t TextZ = 7540;
constexpr std::int16_t TextZHinweis = 3092;

}  // namespace

LinePanels::LinePanels(HeadPanel* kopf, QWidget* parent)
    : DarkPanel(parent),
      x_(new AxisPanel(QStringLiteral("X"), this)),
      y_(new AxisPanel(QStringLiteral("Y"), this)),
      messPunkt_(new CaptionedField(QStringLiteral("PanelLabelMP"), QStringLiteral("PanelMessPkt"), this)),
      zTitel_(panelLabel(QStringLiteral("lblDistanz"), this)),
      txtDistanz_(new QLineEdit(this)),
      lblDistanzMax_(panelLabel(QStringLiteral("lblDistanzMax"), this)) {
  auto* punkt = new QHBoxLayout;
  punkt->setSpacing(scaled(16));
  punkt->addWidget(messPunkt_, 2);
  punkt->addWidget(zZeile(), 3);

  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(scaled(16), scaled(12), scaled(16), scaled(12));
  spalte->setSpacing(scaled(8));
  spalte->addWidget(x_, 1);
  spalte->addWidget(y_, 1);
  spalte->addWidget(panelRule(Qt::Horizontal, this));
  spalte->addLayout(punkt);
  spalte->addWidget(panelRule(Qt::Horizontal, this));
  spalte->addWidget(kopf);
  setZFrei(false);
}

QWidget* LinePanels::zZeile() {
  auto* feld = new QWidget(this);
  txtDistanz_->setObjectName(QStringLiteral("txtDistanz"));
  txtDistanz_->setAlignment(Qt::AlignRight);
  txtDistanz_->setMaxLength(12);
  zTitel_->setFont(themeFont(captionScale));
  txtDistanz_->setFont(themeFont(valueScale));
  lblDistanzMax_->setFont(themeFont(valueScale));
  zTitel_->setBuddy(txtDistanz_);
  connect(txtDistanz_, &QLineEdit::returnPressed, this, [this] {
    if (onZ) onZ(utf8Text(txtDistanz_->text()));
  });
  auto* von = panelLabel(QStringLiteral("lblDistanzVon"), this);
  von->setFont(themeFont(valueScale));
  von->setText(QStringLiteral("/"));
  auto* zeile = new QHBoxLayout;
  zeile->setSpacing(scaled(6));
  zeile->addWidget(txtDistanz_, 1);
  zeile->addWidget(von);
  zeile->addWidget(lblDistanzMax_, 1);
  auto* spalte = new QVBoxLayout(feld);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(1);
  spalte->addWidget(zTitel_);
  spalte->addLayout(zeile);
  return feld;
}

void LinePanels::setTexte(Dictionary& dictionary, const QString& unit) {
  const auto text = [&](std::int16_t id) { return qText(dictionary.DicText(id)); };
  x_->setTexte(dictionary, unit);
  y_->setTexte(dictionary, unit);
  messPunkt_->caption().setText(text(TextMesspunkt));
  messPunkt_->value().setAccessibleName(text(TextMesspunkt));
  zTitel_->setText(text(TextZ));
  txtDistanz_->setAccessibleName(text(TextZ));
  zHinweis_ = text(TextZHinweis);
}

void LinePanels::zeige(const LinienTexte& texte, const AchsenTexte& X, const AchsenTexte& Y) {
  x_->zeige(texte.XName, X);
  y_->zeige(texte.YName, Y);
  messPunkt_->value().setText(qText(texte.MessPkt));
  zeigeZ(texte);
}

void LinePanels::zeigeZ(const LinienTexte& texte) {
  // What is being typed is not overwritten by a reading.
  const QString z = qText(texte.txtDistanz);
  if (z != gezeigtesZ_ || !txtDistanz_->hasFocus()) txtDistanz_->setText(z);
  gezeigtesZ_ = z;
  lblDistanzMax_->setText(qText(texte.lblDistanzMax));
}

void LinePanels::setZFrei(bool frei) {
  txtDistanz_->setEnabled(frei);
  txtDistanz_->setToolTip(frei ? zHinweis_ : QString());
  // By its own sheet: the palette does not reach a box that the program's style sheet dresses.
  txtDistanz_->setStyleSheet(
      QStringLiteral("background: %1; color: %2;")
          .arg(qColour(frei ? FarbeWeiss : FarbeGesperrt).name(), panelGround().name()));
}

}  // namespace korvin
