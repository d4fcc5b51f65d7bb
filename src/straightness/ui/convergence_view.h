#pragma once

#include <QFrame>
#include <QLabel>
#include <QToolButton>
#include <functional>
#include <string>

#include "frame/ui/picture_widget.h"
#include "straightness/konvergenz_anzeige.h"

namespace korvin {

/// The convergence diagram of an adaptive point on the screen, `PictureKonvergenz`. Between two changes of
/// its ranges only the curves and the legend are drawn.
class PictureKonvergenz : public PictureWidget {
  Q_OBJECT
 public:
  /// The desk's ports outlive the widget.
  explicit PictureKonvergenz(const PictureDesk& desk, QWidget* parent = nullptr);

  /// What is drawn from the next painting on.
  void setPicture(KonvergenzRahmen rahmen, KonvergenzInhalt inhalt);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void drawFrame(DrawingSurface& surface) override;
  void drawContents(DrawingSurface& surface) override;
  /// Time and half widths of the sample next to the pointer.
  QString hint(DataPoint at) override;

 private:
  KonvergenzRahmen rahmen_;
  KonvergenzInhalt inhalt_;
};

/// The live view `FrmKonvergenz` of adaptive points: the diagram under a line with its title and a handle,
/// `KonvergenzZu`, that hides it.
class ConvergenceView : public QFrame {
  Q_OBJECT
 public:
  explicit ConvergenceView(const PictureDesk& desk, QWidget* parent = nullptr);

  /// The handle was clicked.
  std::function<void()> onClosed;

  void setTexte(Dictionary& dictionary);
  /// Shows the course of `messung`. Nothing while the view is hidden: then it costs nothing.
  void zeige(const AdaptivMessung& messung, const AdaptVorgaben& vorgaben, std::int16_t Masssystem);

 private:
  QLabel* titel_;
  QToolButton* zu_;
  PictureKonvergenz* bild_;
  std::string gefordert_;
};

}  // namespace korvin
