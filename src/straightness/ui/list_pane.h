#pragma once

#include <QWidget>

#include "link/ui/point_list.h"
#include "straightness/ui/convergence_view.h"

namespace korvin {

/// The place below the panels: the table of points, and the convergence view, which covers it while an
/// adaptive point is taken. The place is the same for both, so that nothing moves when a point begins or
/// ends. Where the user has hidden the table, the place is kept for the view as long as single measurements
/// are adaptive.
class ListPane : public QWidget {
  Q_OBJECT
 public:
  /// Takes both in.
  ListPane(PointList* list, ConvergenceView* view, QWidget* parent = nullptr);

  void setListWanted(bool wanted);
  void setViewWanted(bool wanted);
  /// Single measurements are adaptive.
  void setAdaptive(bool adaptive);
  /// An adaptive point is under way.
  void setSampling(bool sampling);

  /// The view is to be seen, as far as this pane is.
  bool showsView() const { return !view_->isHidden(); }

 private:
  void arrange();

  PointList* list_;
  ConvergenceView* view_;
  bool listWanted_ = true;
  bool viewWanted_ = true;
  bool adaptive_ = false;
  bool sampling_ = false;
};

}  // namespace korvin
