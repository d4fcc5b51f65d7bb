#pragma once

#include <functional>
#include <vector>

#include "reports/bericht.h"
#include "reports/ui/page_marks.h"
#include "reports/ui/text_shaper.h"

namespace korvin {

/// Is told the number of each page when it is complete. May throw `DruckAbgebrochen`.
using PageWatch = std::function<void(int page)>;

/// Composes the report into `sink`, page by page. Throws what `Bericht::drucken`, the sink or the watch
/// throw.
void compose(const Bericht& bericht, TextShaper& shaper, PageSink& sink, const PageWatch& watch);

/// All pages of the report, for a preview or for printing parts of them.
std::vector<PageMarks> composedPages(const Bericht& bericht, TextShaper& shaper, const PageWatch& watch);

}  // namespace korvin
