#pragma once

#include <string>
#include <vector>

#include "reports/ui/byte_blocks.h"
#include "reports/ui/page_marks.h"
#include "reports/ui/text_shaper.h"

namespace korvin::test {

/// A word of a PDF with its box in mm from the page's top left corner.
struct PdfWord {
  int page = 0;
  std::string text;
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

/// All words of a PDF, as `pdftotext -bbox` finds them.
std::vector<PdfWord> wordsOf(const std::string& path);

/// The first word of this text; fails the test if there is none.
PdfWord wordOf(const std::vector<PdfWord>& words, const std::string& text);

/// Every word of the composed pages is in the PDF at its place, and no other.
void expectTexts(const std::vector<PdfWord>& words, const std::vector<PageMarks>& pages, TextShaper& shaper);

/// What a program of the PDF tools says about a file: `outputOf("pdfinfo", path)`.
std::string outputOf(const std::string& program, const std::string& path);

/// Writes the blocks as a file.
void writeBlocks(const std::string& path, const ByteBlocks& bytes);

}  // namespace korvin::test
