#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "frame/dictionary.h"
#include "frame/ui/key_tool_bar.h"
#include "reports/ui/page_marks.h"
#include "reports/ui/preview_pages.h"

class QLabel;

namespace korvin {

/// The preview of a report: its pages as they will be printed, with the ways from here to the printer and to
/// a PDF. Toolbar keys: "DRUCKEN", "PDF", "KLEINER", "GROESSER", "SEITE", "BREITE".
class PrintPreview : public QDialog {
  Q_OBJECT
 public:
  /// `pages` outlive it. Without a printer its key is disabled, and the window says why.
  PrintPreview(Dictionary& dictionary, const std::string& titel, const std::vector<PageMarks>& pages,
               int language, bool printerThere, QWidget* parent);

  std::function<void()> onPrint;
  /// Saves as PDF; hands back what the window then says, empty for nothing.
  std::function<QString()> onPdf;

 private:
  void buildBar(bool printerThere);
  void pressed(const QString& key);
  void showView();
  QString words(std::int16_t id);

  Dictionary& dictionary_;
  KeyToolBar* bar_;
  PreviewPages* pages_;
  QLabel* page_;
  QLabel* zoom_;
  QLabel* message_;
};

}  // namespace korvin
