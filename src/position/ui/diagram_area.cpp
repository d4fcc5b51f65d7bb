#include "position/ui/diagram_area.h"

#include <QVBoxLayout>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "position/xy_ranges.h"

namespace korvin {
namespace {
constexpr std::int16_t TextDiagramm = 3017;
}

DiagramArea::DiagramArea(FORMPOS& formpos, const Systemwerte& system, const PictureDesk& desk,
                         QWidget* parent)
    : QWidget(parent),
      formpos_(formpos),
      system_(system),
      bereich_(new RangeBar(this)),
      diagramm_(new PictureXYDiagramm(formpos, system.Masssystem, desk, this)),
      zoom_(new PositionZoom(this)),
      flaeche_(new QStackedWidget(this)),
      statistik_(new PictureStatistik(this)) {
  flaeche_->addWidget(diagramm_);
  flaeche_->addWidget(zoom_);
  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(scaled(8));
  spalte->addWidget(bereich_);
  spalte->addWidget(flaeche_, 1);
  spalte->addWidget(statistik_);
  bereich_->hide();
  bereich_->onKey = [this](const QString& key) { bereichTaste(key); };
  diagramm_->onChosen = [this](int nummer) {
    if (onChosen) onChosen(nummer);
  };
}

void DiagramArea::setTexte(Dictionary& dictionary, const QString& einheit) {
  bereich_->setTexte(dictionary);
  diagramm_->setTexts();
  diagramm_->setAccessibleName(QStringLiteral("XY-") + qText(dictionary.DicText(TextDiagramm)));
  zoom_->setEinheit(einheit);
}

void DiagramArea::nebenanZeigen() {
  bereich_->zeige(formpos_.arbeit(), system_.Masssystem);
  statistik_->zeige(formpos_.arbeit());
}

void DiagramArea::zeige(const PositionsTexte& texte) {
  diagramm_->follow();
  zoom_->zeige(texte);
  nebenanZeigen();
}

void DiagramArea::zeigeNeu(const PositionsTexte& texte) {
  diagramm_->reload();
  zoom_->zeige(texte);
  nebenanZeigen();
}

void DiagramArea::setNumZoom(bool an) {
  flaeche_->setCurrentWidget(an ? static_cast<QWidget*>(zoom_) : diagramm_);
}

void DiagramArea::setBereichsleiste(bool an) {
  if (an) bereich_->zeige(formpos_.arbeit(), system_.Masssystem);
  bereich_->setVisible(an);
}

void DiagramArea::bereichTaste(const QString& key) {
  bereichsTaste(formpos_.arbeit(), utf8Text(key), system_.Masssystem);
  diagramm_->follow();
  // Also where nothing was done: a click on the pressed key of the pair must not release it.
  nebenanZeigen();
}

}  // namespace korvin
