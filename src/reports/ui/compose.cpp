#include "reports/ui/compose.h"

#include <utility>

#include "reports/ui/qt_drucker.h"

namespace korvin {
namespace {

/// Tells of each page that another sink has taken.
class WatchedPages : public PageSink {
 public:
  WatchedPages(PageSink& sink, const PageWatch& watch) : sink_(sink), watch_(watch) {}

  void page(PageMarks&& page) override {
    sink_.page(std::move(page));
    if (watch_) watch_(++count_);
  }
  void end() override { sink_.end(); }

 private:
  PageSink& sink_;
  const PageWatch& watch_;
  int count_ = 0;
};

class KeptPages : public PageSink {
 public:
  void page(PageMarks&& page) override {
    page.marks.shrink_to_fit();
    page.letters.shrink_to_fit();
    pages.push_back(std::move(page));
  }

  std::vector<PageMarks> pages;
};

}  // namespace

void compose(const Bericht& bericht, TextShaper& shaper, PageSink& sink, const PageWatch& watch) {
  WatchedPages watched(sink, watch);
  QtDrucker drucker(shaper, watched);
  bericht.drucken(drucker);
  if (!drucker.beendet()) drucker.dokumentEnde();
}

std::vector<PageMarks> composedPages(const Bericht& bericht, TextShaper& shaper, const PageWatch& watch) {
  KeptPages kept;
  compose(bericht, shaper, kept, watch);
  return std::move(kept.pages);
}

}  // namespace korvin
