#include "dialogs/ui/folder_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

QString vorhandener(const QString& ordner) {
  QString weg = QDir::cleanPath(QDir::fromNativeSeparators(ordner));
  while (!weg.isEmpty() && !QFileInfo(weg).isDir()) {
    const qsizetype ende = weg.lastIndexOf(QLatin1Char('/'));
    weg = ende > 0 ? weg.left(ende) : QString();
  }
  return weg.isEmpty() ? QDir::homePath() : weg;
}

}  // namespace

std::string ordnerErfragen(QWidget* parent, const std::string& titel, const std::string& anfang) {
  QFileDialog dialog(parent, qText(titel), vorhandener(qText(anfang)));
  dialog.setObjectName(QStringLiteral("CMDialogOrdner"));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  dialog.setSidebarUrls({QUrl::fromLocalFile(QDir::homePath())});
  dialog.resize(scaled(720), scaled(480));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  const QString ordner = QDir::cleanPath(dialog.selectedFiles().constFirst());
  return utf8Text(
      QDir::toNativeSeparators(ordner.endsWith(QLatin1Char('/')) ? ordner : ordner + QLatin1Char('/')));
}

}  // namespace korvin
