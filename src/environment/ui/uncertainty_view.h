#pragma once

#include <functional>
#include <string>

#include "environment/unsicherheits_diagramm.h"
#include "frame/ui/picture_widget.h"

namespace korvin {

/// The reachable uncertainty over the observation time (`PictureUnsicherheit`). A press chooses the time.
class PictureUnsicherheit : public PictureWidget {
  Q_OBJECT
 public:
  /// The desk's ports outlive the widget.
  explicit PictureUnsicherheit(const PictureDesk& desk, QWidget* parent = nullptr);

  /// Called with the position that was pressed or dragged to; it may lie beyond the tables.
  std::function<void(int position)> onPosition;
  /// Asked for what the pointer's position says, UTF-8.
  std::function<std::string(int position)> hintOf;

  /// The word for the time beyond the run.
  void setHinaus(const std::string& wort);
  /// Another run: all is drawn anew. The tables that `bild` refers to outlive the widget or the next call.
  void setBild(const UnsicherheitsBild& bild);
  /// Moves the mark of the chosen time.
  void setWert(int wert);
  /// Where a position lies, in pixels from the left edge.
  double platzVon(int position) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void drawFrame(DrawingSurface& surface) override;
  void drawContents(DrawingSurface& surface) override;
  QString hint(DataPoint at) override;
  void pressed(DataPoint at) override;
  void dragged(DataPoint at) override;

 private:
  int positionBei(double sekunden) const;

  UnsicherheitsBild bild_;
};

}  // namespace korvin
