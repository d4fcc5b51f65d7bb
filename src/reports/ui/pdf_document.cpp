#include "reports/ui/pdf_document.h"

#include <QPdfWriter>
#include <span>

#include "frame/ui/qt_text.h"
#include "reports/ui/device_pages.h"

namespace korvin {
namespace {

void describe(QPdfWriter& writer, const std::string& titel) {
  writer.setTitle(qText(titel));
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setCreator(QStringLiteral("KORVIN"));
}

}  // namespace

void renderPdf(const Bericht& bericht, int language, const PageWatch& watch, ByteBlocks& pdf) {
  QPdfWriter writer(&pdf);
  describe(writer, bericht.titel);
  TextShaper shaper(language);
  DevicePages pages(writer, shaper);
  compose(bericht, shaper, pages, watch);
}

void renderPdf(const std::string& titel, const std::vector<PageMarks>& pages, int language,
               const PageWatch& watch, ByteBlocks& pdf) {
  QPdfWriter writer(&pdf);
  describe(writer, titel);
  TextShaper shaper(language);
  DevicePages out(writer, shaper);
  int number = 0;
  for (const PageMarks& page : pages) {
    out.add(page);
    if (watch) watch(++number);
  }
  out.end();
}

SaveResult savePdf(FileSystem& system, const std::string& path, const ByteBlocks& pdf) {
  return saveTogether(system, {{path, [&pdf](SaveSink& sink) {
                                  for (const std::string& block : pdf.blocks())
                                    sink.write(std::as_bytes(std::span(block)));
                                }}});
}

}  // namespace korvin
