#include "frame/ui/qt_file_dialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QTreeView>
#include <QUrl>
#include <algorithm>

#include "frame/datei_dialog.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double foldersWidth = 170;
constexpr double foldersMargin = 40;

/// ".O" of "Position (*.O)"; empty if the pattern does not fix it.
QString extensionOf(const QString& nameFilter) {
  static const QRegularExpression pattern(QStringLiteral("\\(\\*(\\.[^\\s*?()]+)[^()]*\\)\\s*$"));
  return pattern.match(nameFilter).captured(1);
}

/// Completes the typed name before the dialog judges it, so that the question about replacing names the right
/// file.
class CompletingDialog : public QFileDialog {
 public:
  explicit CompletingDialog(QWidget* parent) : QFileDialog(parent) { setOption(DontUseNativeDialog); }

  /// Follows the entry and the filter; to be called once, when the dialog is set up.
  void followEntry() {
    entry_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    // Lets the accepting button see that "rail" means the "rail.O" that is there.
    connect(this, &QFileDialog::filterSelected, this,
            [this](const QString& filter) { setDefaultSuffix(extensionOf(filter)); });
    setDefaultSuffix(extensionOf(selectedNameFilter()));
    connect(entry_, &QLineEdit::textChanged, this, &CompletingDialog::allowHiddenByFilter);
  }

  /// Offers `name`, marked so that typing replaces it.
  void offer(const QString& name) {
    if (name.isEmpty()) return;
    selectFile(name);
    entry_->selectAll();
  }

  /// The list of folders at the left gets room for its words, the files take the rest.
  void fitFolders() const {
    auto* splitter = findChild<QSplitter*>(QStringLiteral("splitter"));
    const auto* list = findChild<QListView*>(QStringLiteral("sidebar"));
    const int folders = std::max(scaled(foldersWidth), list->sizeHintForColumn(0) + scaled(foldersMargin));
    splitter->setSizes({folders, width() - folders});
  }

  /// The names take what the other columns leave.
  void fitColumns() const {
    QHeaderView* columns = findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    columns->setStretchLastSection(false);
    columns->setSectionResizeMode(QHeaderView::ResizeToContents);
    columns->setSectionResizeMode(0, QHeaderView::Stretch);
  }

 protected:
  void accept() override {
    if (!entry_->text().isEmpty()) complete();
    // The name is whole now; with a suffix Qt would add it even to a file that is there without one.
    const QString suffix = defaultSuffix();
    setDefaultSuffix({});
    QFileDialog::accept();
    if (isVisible()) setDefaultSuffix(suffix);
  }

 private:
  /// A file that the filter does not show can be opened by its name all the same.
  void allowHiddenByFilter() const {
    auto* buttons = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    QPushButton* openButton = buttons->button(QDialogButtonBox::Open);
    if (openButton != nullptr && typedFile().isFile()) openButton->setEnabled(true);
  }

  void complete() const {
    if (typedFile().isDir()) return;
    // A file that is there under the name as typed is opened as it is.
    if (acceptMode() == AcceptOpen && typedFile().exists()) return;
    entry_->setText(qText(vervollstaendigterName(utf8Text(entry_->text()), utf8Text(selectedNameFilter()))));
  }

  QFileInfo typedFile() const { return QFileInfo(directory(), entry_->text()); }

  QLineEdit* entry_ = nullptr;
};

}  // namespace

QStringList nameFilters(const QString& pairs) {
  static const QRegularExpression brackets(QStringLiteral("\\s*\\(([^()]*)\\)\\s*$"));
  const QStringList parts = pairs.split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString words = parts[i];
    const QString inBrackets = brackets.match(words).captured(1);
    words.remove(brackets);
    filters << QStringLiteral("%1 (%2)").arg(words, parts[i + 1].isEmpty() ? inBrackets : parts[i + 1]);
  }
  return filters;
}

std::string QtFileDialog::choose(const FileDialogRequest& request) {
  const NormalPointerScope pointer;
  CompletingDialog dialog(QApplication::activeWindow());
  dialog.setObjectName(QStringLiteral("CMDialogDatei"));
  dialog.setWindowTitle(request.title.empty() ? QStringLiteral("Dateiauswahl") : qText(request.title));
  dialog.setAcceptMode(request.open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  dialog.setFileMode(request.open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setNameFilters(nameFilters(qText(request.filter)));
  dialog.setDirectory(qText(request.folder));
  dialog.setSidebarUrls({QUrl::fromLocalFile(qText(request.folder)), QUrl::fromLocalFile(QDir::homePath())});
  dialog.followEntry();
  dialog.offer(qText(request.name));
  dialog.fitColumns();
  dialog.resize(scaled(820), scaled(540));
  dialog.fitFolders();
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return utf8Text(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

}  // namespace korvin
