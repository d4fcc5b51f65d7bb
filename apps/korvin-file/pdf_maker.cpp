#include "korvin-file/pdf_maker.h"

#include <QGuiApplication>
#include <cstdio>

#include "reports/ui/pdf_document.h"

namespace korvin::file {
namespace {

/// What Qt thinks of the surroundings (no session, no folder for run-time files) is no concern of a script.
void onlyFailures(QtMsgType kind, const QMessageLogContext&, const QString& words) {
  if (kind == QtCriticalMsg || kind == QtFatalMsg)
    std::fprintf(stderr, "korvin-file: %s\n", qPrintable(words));
}

std::unique_ptr<QGuiApplication> offscreenApplication() {
  // They have to live as long as the application.
  static char name[] = "korvin-file";
  static char* arguments[] = {name, nullptr};
  static int count = 1;
  qInstallMessageHandler(onlyFailures);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return std::make_unique<QGuiApplication>(count, arguments);
}

}  // namespace

PdfMaker::PdfMaker() = default;
PdfMaker::~PdfMaker() = default;

std::string PdfMaker::pdf(const Bericht& report, int language) {
  if (QCoreApplication::instance() == nullptr) application_ = offscreenApplication();
  ByteBlocks blocks;
  renderPdf(report, language, {}, blocks);
  std::string bytes;
  bytes.reserve(blocks.byteCount());
  for (const std::string& block : blocks.blocks()) bytes += block;
  return bytes;
}

}  // namespace korvin::file
