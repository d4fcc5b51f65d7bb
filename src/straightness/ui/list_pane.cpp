#include "straightness/ui/list_pane.h"

#include <QGridLayout>

namespace korvin {

ListPane::ListPane(PointList* list, ConvergenceView* view, QWidget* parent)
    : QWidget(parent), list_(list), view_(view) {
  // Its room counts also while it is hidden: the panels above keep theirs.
  QSizePolicy keepsRoom = view_->sizePolicy();
  keepsRoom.setRetainSizeWhenHidden(true);
  view_->setSizePolicy(keepsRoom);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  // The later one lies on top.
  grid->addWidget(list_, 0, 0);
  grid->addWidget(view_, 0, 0);
  arrange();
}

void ListPane::setListWanted(bool wanted) {
  listWanted_ = wanted;
  arrange();
}

void ListPane::setViewWanted(bool wanted) {
  viewWanted_ = wanted;
  arrange();
}

void ListPane::setAdaptive(bool adaptive) {
  adaptive_ = adaptive;
  arrange();
}

void ListPane::setSampling(bool sampling) {
  sampling_ = sampling;
  arrange();
}

void ListPane::arrange() {
  const bool keptForView = viewWanted_ && adaptive_ && !listWanted_;
  const bool view = viewWanted_ && (sampling_ || keptForView);
  // The covered table stays as it is, and keeps the keyboard.
  list_->setVisible(listWanted_);
  view_->setVisible(view);
  setVisible(listWanted_ || view);
}

}  // namespace korvin
