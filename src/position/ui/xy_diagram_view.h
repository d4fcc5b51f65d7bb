#pragma once

#include <QString>
#include <functional>

#include "frame/ui/picture_widget.h"
#include "position/formpos.h"
#include "position/xy_diagram.h"

namespace korvin {

/// `PictureXYDiagramm`: the XY diagram of a position measurement on the screen. A press on a point chooses
/// it, and the pointer over a point shows its number, time and values.
class PictureXYDiagramm : public PictureWidget {
  Q_OBJECT
 public:
  /// Measurement and desk's ports outlive the widget. `Masssystem` (1 inch, else metric) is that of the
  /// window.
  PictureXYDiagramm(FORMPOS& formpos, int Masssystem, const PictureDesk& desk, QWidget* parent = nullptr);

  /// Called with the number of the point that the user chose.
  std::function<void(int nummer)> onChosen;

  /// Brings the picture up to date with record and points. A new point costs its own mark, a new range the
  /// whole picture.
  void follow();
  /// The same with wholly other points.
  void reload();

 protected:
  void drawFrame(DrawingSurface& surface) override;
  void drawContents(DrawingSurface& surface) override;
  void drawOverlay(DrawingSurface& surface) override;
  QString hint(DataPoint at) override;
  void pressed(DataPoint at) override;

 private:
  /// What the kept layers were drawn of, beside the ranges.
  struct Seen {
    int count = 0;
    int cursor = 0;
    double offsetX = 0;
    double offsetY = 0;
    bool onlyLast = false;
    bool grid = false;
  };
  Seen look() const;

  FORMPOS& formpos_;
  XYDiagramm diagramm_;
  QString einheit_;
  Seen seen_;
};

}  // namespace korvin
