#include "link/ui/head_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <algorithm>

#include "frame/ui/icons.h"
#include "frame/ui/qt_text.h"
#include "link/messwert.h"
#include "link/ui/dark_panel.h"
#include "link/ui/value_panel.h"

namespace korvin {
namespace {

constexpr double pictureLines = 2.6;  ///< side of the pictures in lines of text
constexpr std::int16_t firstInfoText = 7110;
/// In the order of their texts.
constexpr std::array<const char*, 6> infoKeys = {IconFunk, IconFrage,      IconBatterie,
                                                 IconSim,  IconSchwaecher, IconAbgelehnt};

QLabel* named(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

HeadPanel::HeadPanel(QWidget* parent)
    : QWidget(parent),
      ImgMontage_(named("ImgMontage", this)),
      lblKamera_(named("lblKamera", this)),
      lblStatus_(named("lblStatus", this)),
      imgInfo_(named("imgInfo", this)) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(2);
  grid->addWidget(ImgMontage_, 0, 0, 2, 1);
  grid->addWidget(lblKamera_, 0, 1);
  grid->addWidget(lblStatus_, 1, 1);
  grid->addWidget(imgInfo_, 0, 2, 2, 1);
  grid->setColumnStretch(1, 1);
  QSizePolicy keepsRoom = imgInfo_->sizePolicy();
  keepsRoom.setRetainSizeWhenHidden(true);
  imgInfo_->setSizePolicy(keepsRoom);
  imgInfo_->hide();
  setKamera({});
  setIntensitaet({}, FarbeWeiss);
  bilderZeichnen();
}

void HeadPanel::setTexte(Dictionary& dictionary) {
  lblKamera_->setToolTip(qText(dictionary.DicText(7106)));
  ImgMontage_->setToolTip(qText(dictionary.DicText(7107)));
  lblStatus_->setToolTip(qText(dictionary.DicText(7108)));
  for (std::size_t i = 0; i < infoTexte_.size(); ++i) {
    infoTexte_.at(i) =
        qText(dictionary.DicText(static_cast<std::int16_t>(firstInfoText + static_cast<int>(i))));
  }
}

void HeadPanel::setMontage(const QString& schluessel) {
  montageSchluessel_ = schluessel;
  bilderZeichnen();
}

void HeadPanel::setKamera(const QString& text, Farbe farbe) {
  lblKamera_->setText(text);
  setTextColour(*lblKamera_, qColour(farbe));
}

void HeadPanel::setIntensitaet(const QString& text, Farbe farbe) {
  lblStatus_->setText(text);
  setTextColour(*lblStatus_, qColour(farbe));
}

void HeadPanel::setInfoBild(const QString& schluessel) {
  infoSchluessel_ = schluessel;
  const auto found = std::find(infoKeys.begin(), infoKeys.end(), schluessel.toStdString());
  const bool known = found != infoKeys.end();
  imgInfo_->setToolTip(known ? infoTexte_.at(static_cast<std::size_t>(found - infoKeys.begin())) : QString());
  imgInfo_->setAccessibleName(imgInfo_->toolTip());
  bilderZeichnen();
}

void HeadPanel::zeigeInfo(bool sichtbar) {
  imgInfo_->setVisible(sichtbar);
}

void HeadPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) bilderZeichnen();
}

void HeadPanel::bilderZeichnen() {
  const int side = static_cast<int>(fontMetrics().height() * pictureLines);
  for (QLabel* label : {ImgMontage_, imgInfo_}) label->setFixedSize(side, side);
  const auto bild = [&](const QString& key) {
    return iconPixmap(key, side, devicePixelRatioF(), IconGround::darkPanel);
  };
  ImgMontage_->setPixmap(bild(montageSchluessel_));
  imgInfo_->setPixmap(bild(infoSchluessel_));
}

}  // namespace korvin
