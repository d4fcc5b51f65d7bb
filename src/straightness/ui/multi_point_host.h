#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QVector>
#include <functional>

#include "frame/ui/key_tool_bar.h"
#include "straightness/ui/multi_point_frame.h"

namespace korvin {

/// A window that the frame of multi-point measuring lies over.
struct MultiPointPlace {
  QMainWindow& window;  ///< its menus are locked by their names
  KeyToolBar& bar;      ///< locked; its key "XYMPKMP" is shown pressed
  MultiPointFrame& frame;
  QVector<QWidget*> locked;               ///< what else would move the cursor of the line
  std::function<void(bool open)> onOpen;  ///< what the window does beside
};

/// Opens and closes `FRM_MPM` over a window.
class MultiPointHost : public MehrPunktAnsicht {
 public:
  explicit MultiPointHost(MultiPointPlace place) : place_(std::move(place)) {}

  void zeigeRahmen(bool offen) override;
  void zeigeMehrPunkt(const MehrPunktStand& stand) override { place_.frame.zeige(stand); }

 private:
  MultiPointPlace place_;
  QPointer<QWidget> focusBefore_;
};

}  // namespace korvin
