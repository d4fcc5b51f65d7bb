#include "straightness/ui/multi_point_view.h"

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double side = 300;
constexpr double smallestSide = 200;

}  // namespace

PictureMehrPunkt::PictureMehrPunkt(const PictureDesk& desk, QWidget* parent)
    : PictureWidget(desk, 1, parent), bild_(mehrPunktBild({}, 0)) {
  setObjectName(QStringLiteral("PictureMehrPunkt"));
}

void PictureMehrPunkt::setPicture(const MehrPunktBild& bild) {
  bild_ = bild;
  frameChanged();
}

QSize PictureMehrPunkt::sizeHint() const {
  return {scaled(side), scaled(side)};
}

QSize PictureMehrPunkt::minimumSizeHint() const {
  return {scaled(smallestSide), scaled(smallestSide)};
}

QString PictureMehrPunkt::hint(DataPoint at) {
  const auto k = positionBei(bild_, at);
  return k ? qText(bild_.hinweise.at(*k)) : QString();
}

}  // namespace korvin
