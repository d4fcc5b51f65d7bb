#pragma once

#include <functional>
#include <string>
#include <vector>

#include "frame/ui/picture_widget.h"
#include "straightness/achsen_diagramm.h"

namespace korvin {

/// What the pointer over a diagram of an axis tells that a press will do.
enum class AxisPointer {
  choose,  ///< up arrow: a press chooses the point
  move,    ///< four-way arrow: a press takes hold of the point
  drag     ///< two-way arrow: the point follows
};

/// The diagram of an axis on the screen (`PictureXDiagramm`, `PictureYDiagramm`). It shows what it is handed,
/// keeps the frame as long as that tells the same, and hands out where the user presses and drags; what comes
/// of it is the window's matter (punkt_lage.h).
class PictureAchsenDiagramm : public PictureWidget {
  Q_OBJECT
 public:
  /// `name` is the control's name. The desk's ports outlive the widget.
  PictureAchsenDiagramm(const QString& name, const PictureDesk& desk, QWidget* parent = nullptr);

  // ---- Called with z in mm ----

  /// The left button was pressed in the picture.
  std::function<void(double z)> onPressed;
  /// The pointer moved with the button held; beyond the picture's edge, too.
  std::function<void(double z)> onDragged;
  /// The button is up again. Called once for each press.
  std::function<void()> onReleased;
  /// The left or right arrow key was pressed with the button held: −0.1 or +0.1 mm.
  std::function<void(double dz)> onShifted;
  /// Asked for the hint of a point that the pointer is over, UTF-8; empty for none.
  std::function<std::string(std::int16_t punkt)> hintOf;

  /// What is drawn from the next painting on; before the first call it is an empty ground. The widget keeps
  /// copies of all that both refer to. The frame is drawn anew where `newFrame` asks for it
  /// (`rahmenVeraltet`), and where it shows anything else than before.
  void setPicture(const AchsenRahmen& rahmen, const AchsenInhalt& inhalt, bool newFrame);

  void setPointer(AxisPointer pointer);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void drawFrame(DrawingSurface& surface) override;
  void drawContents(DrawingSurface& surface) override;
  QString hint(DataPoint at) override;
  void pressed(DataPoint at) override;
  void dragged(DataPoint at) override;
  void released() override;
  /// The pointer always tells what a press does.
  void showPointer(bool hinted) override { static_cast<void>(hinted); }
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void keepFrame(const AchsenRahmen& rahmen);
  void keepContents(const AchsenInhalt& inhalt);

  bool given_ = false;
  AchsenRahmen rahmen_;
  AchsenInhalt inhalt_;
  std::vector<double> z_;                          ///< of the frame's points
  std::vector<std::vector<double>> kurvenzahlen_;  ///< values and z of each curve in turn
};

}  // namespace korvin
