#pragma once

#include <string>
#include <vector>

#include "frame/safe_save.h"
#include "reports/bericht.h"
#include "reports/ui/byte_blocks.h"
#include "reports/ui/compose.h"

namespace korvin {

/// Makes a PDF of the report in memory: nothing stands on the disk before it is whole. Texts are real texts,
/// fonts are embedded. `language`, 0 to 7, picks the family for Chinese and Japanese signs. Throws as
/// `compose`; what `pdf` holds is worthless then.
void renderPdf(const Bericht& bericht, int language, const PageWatch& watch, ByteBlocks& pdf);

/// The same of pages that were composed before.
void renderPdf(const std::string& titel, const std::vector<PageMarks>& pages, int language,
               const PageWatch& watch, ByteBlocks& pdf);

/// Saves a PDF under `path`; what was there before stays if that fails.
SaveResult savePdf(FileSystem& system, const std::string& path, const ByteBlocks& pdf);

}  // namespace korvin
