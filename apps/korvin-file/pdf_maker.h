#pragma once

#include <memory>
#include <string>

#include "reports/bericht.h"

class QGuiApplication;

namespace korvin::file {

/// Makes PDFs without a screen: what Qt needs for fonts is started with the first one, and nothing else of
/// it.
class PdfMaker {
 public:
  PdfMaker();
  ~PdfMaker();
  PdfMaker(const PdfMaker&) = delete;
  PdfMaker& operator=(const PdfMaker&) = delete;

  /// The bytes of the report's PDF; `language`, 0 to 7, picks the fonts. Throws what composing throws.
  std::string pdf(const Bericht& report, int language);

 private:
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace korvin::file
