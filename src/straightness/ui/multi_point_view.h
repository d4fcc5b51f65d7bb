#pragma once

#include "frame/ui/picture_widget.h"
#include "straightness/mehr_punkt_bild.h"

namespace korvin {

/// The picture of a multi-point measurement (`PictureMehrPunkt`): positions, circle and the angle to turn to.
class PictureMehrPunkt : public PictureWidget {
  Q_OBJECT
 public:
  /// The desk's ports outlive the widget.
  explicit PictureMehrPunkt(const PictureDesk& desk, QWidget* parent = nullptr);

  void setPicture(const MehrPunktBild& bild);
  const MehrPunktBild& picture() const { return bild_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void drawFrame(DrawingSurface& surface) override { mehrPunktRahmenZeichnen(surface, bild_); }
  void drawContents(DrawingSurface& surface) override { mehrPunktInhaltZeichnen(surface, bild_); }
  QString hint(DataPoint at) override;

 private:
  MehrPunktBild bild_;
};

}  // namespace korvin
