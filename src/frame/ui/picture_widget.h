#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QWidget>
#include <optional>

#include "frame/ui/image_surface.h"
#include "frame/ui/picture_files.h"

namespace korvin {

/// A diagram on the screen, in two kept layers and one that is painted each time: the frame (grid, axes,
/// labels), the contents (points, curves) on it, and the overlay (marks of a cursor). It lies on a light
/// ground in every look, and can be copied and saved from its context menu.
///
/// To add a diagram: derive from it, draw the three layers, and say with `frameChanged`, `contentsChanged`,
/// `addContents` and `overlayChanged` what is no longer true. The frame has to set the surface's window; the
/// other layers find it set.
class PictureWidget : public QWidget {
  Q_OBJECT
 public:
  /// `widthToHeight` is the shape of the picture, which lies in the middle of the widget; 0 fills the widget.
  PictureWidget(const PictureDesk& desk, double widthToHeight, QWidget* parent = nullptr);

  /// Words of the context menu in the present language.
  void setTexts();

  void copyPicture();
  void savePicture(PictureFormat format);

  /// The place of the picture within the widget.
  QRect pictureRect() const;
  /// Data coordinates of a place in the widget; nothing before the first painting or beside the picture.
  std::optional<DataPoint> dataAt(const QPointF& place) const;
  /// Where a data point stands in the widget; nothing before the first painting.
  std::optional<QPointF> placeOf(DataPoint point) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  // ---- What a diagram tells ----

  virtual void drawFrame(DrawingSurface& surface) = 0;
  virtual void drawContents(DrawingSurface& surface) = 0;
  virtual void drawOverlay(DrawingSurface& surface) { static_cast<void>(surface); }
  /// What the pointer's place says; empty for nothing.
  virtual QString hint(DataPoint at) {
    static_cast<void>(at);
    return {};
  }
  /// The left button was pressed in the picture.
  virtual void pressed(DataPoint at) { static_cast<void>(at); }
  /// The pointer moved since, with the button held; `at` may lie beyond the picture.
  virtual void dragged(DataPoint at) { static_cast<void>(at); }
  /// The button is up again, or what held it has gone.
  virtual void released() {}
  /// The pointer is over something that has a hint, or no longer so.
  virtual void showPointer(bool hinted);

  // ---- What a diagram may ask for ----

  /// All layers are drawn anew at the next painting.
  void frameChanged();
  /// Contents and overlay are drawn anew at the next painting; the frame stays.
  void contentsChanged();
  /// Draws more on the contents at once. Only the area that it touches is painted. Without kept layers it
  /// does nothing: the next painting draws all.
  void addContents(const DiagramPainter& draw);
  /// The overlay is painted anew; the kept layers stay.
  void overlayChanged();
  /// From a press in the picture to the release.
  bool isHeld() const { return held_; }

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  struct Layer {
    QImage image;
    bool valid = false;
  };

  DataPoint dataOf(const QPointF& place) const;
  void showHint(const QPointF& place, const QPoint& onScreen);
  void letGo();
  QSize pictureSizeInPixels() const;
  void bringLayersUpToDate();
  void drawOn(Layer& layer, const DiagramPainter& draw);
  QRect inWidget(const QRect& pixels) const;
  /// Paints the overlay and returns the area it took.
  QRect paintOverlay(QPainter& painter);
  void drawAll(DrawingSurface& surface);
  QSize exportSize(int longerSide) const;

  PictureDesk desk_;
  double widthToHeight_;
  QAction* copy_;
  QAction* png_;
  QAction* svg_;
  StampBox stamps_;
  PictureMetrics metrics_;
  DataWindow window_;
  Layer frame_;
  Layer contents_;
  bool held_ = false;
  QRect overlayArea_;  ///< of the last painting, in the widget
};

}  // namespace korvin
