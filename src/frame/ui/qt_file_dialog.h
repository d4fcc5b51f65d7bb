#pragma once

#include <QStringList>

#include "frame/file_dialog.h"

namespace korvin {

/// Qt's own file dialog over the active window, in the language of `QtTranslations`. Saving asks before a
/// file is replaced; opening takes only files that are there. The dialog bears the object name
/// "CMDialogDatei".
class QtFileDialog : public FileDialog {
 public:
  std::string choose(const FileDialogRequest& request) override;
};

/// "Position|*.O|Straightness (*.G)|*.G" as the dialog's name filters "Position (*.O)", "Straightness (*.G)".
/// A pattern in brackets at a text's end is not repeated, but stands in for an empty one; a text without a
/// pattern is dropped.
QStringList nameFilters(const QString& pairs);

}  // namespace korvin
