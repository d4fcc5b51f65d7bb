#pragma once

#include <QAbstractScrollArea>
#include <QPixmap>
#include <functional>
#include <map>
#include <vector>

#include "reports/ui/page_marks.h"
#include "reports/ui/text_shaper.h"

namespace korvin {

/// The pages of a report side by side, as many in a row as there is room for. Only what is seen is painted,
/// so a report may have any number of pages. Keys: arrows, page up and down, Home, End, plus, minus, 0; the
/// wheel with Ctrl zooms.
class PreviewPages : public QAbstractScrollArea {
  Q_OBJECT
 public:
  enum class Fit {
    page,   ///< a whole page is as high as the window
    width,  ///< a page is as wide as the window
    none
  };

  /// `pages` outlive it.
  PreviewPages(const std::vector<PageMarks>& pages, int language, QWidget* parent);

  void setFit(Fit fit);
  Fit fit() const { return fit_; }
  void zoomIn() { zoomBy(zoomStep); }
  void zoomOut() { zoomBy(1 / zoomStep); }
  /// 1: as large as on paper.
  double zoom() const { return zoom_; }

  int pageCount() const { return static_cast<int>(pages_.size()); }
  /// The page that is looked at, from 1: the first one of which more than half is seen, or else the one in
  /// the middle.
  int currentPage() const;
  /// Pages in a row.
  int columns() const { return columns_; }
  /// Where page `number`, from 1, lies in the viewport.
  QRect placeOf(int number) const;
  void showPage(int number);

  /// The page that is looked at, or the zoom, may be another one.
  std::function<void()> onView;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  static constexpr double zoomStep = 1.25;

  void zoomBy(double factor);
  void setZoom(double zoom);
  void layOut();
  void fitToWindow();
  QSize pageSize() const;
  double pixelsPerMm() const;
  const QPixmap& picture(int number);
  void forgetPictures(int firstSeen, int lastSeen);
  void view();

  const std::vector<PageMarks>& pages_;
  TextShaper shaper_;
  Fit fit_ = Fit::page;
  double zoom_ = 1;
  int columns_ = 1;
  bool layingOut_ = false;
  std::map<int, QPixmap> pictures_;
};

}  // namespace korvin
