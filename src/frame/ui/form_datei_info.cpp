#include "frame/ui/form_datei_info.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "frame/cp1252.h"
#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr int Feldlaenge = 75;
constexpr double Feldbreite = 480;

}  // namespace

FormDateiInfo::FormDateiInfo(Dictionary& dictionary, const QString& name, const DateiKopf& kopf,
                             QWidget* parent)
    : QDialog(parent) {
  setObjectName(name);
  setWindowTitle(qText(dictionary.DicText(7210)));
  auto* form = new QFormLayout;
  const auto feld = [&](const char* feldname, std::int16_t text, const FesterText<Feldlaenge>& inhalt) {
    auto* entry = new TextEntry(dictionary, Feldlaenge, this);
    entry->setObjectName(QString::fromLatin1(feldname));
    entry->setMinimumWidth(scaled(Feldbreite));
    entry->setValue(vonCp1252(inhalt.trimmed()));
    entry->setModified(false);
    form->addRow(qText(dictionary.DicText(text)) + QLatin1Char(':'), entry);
    return entry;
  };
  bezeichnung_ = feld("Bezeichnung", 3044, kopf.Bezeichnung);
  bediener_ = feld("Bediener", 3008, kopf.Bediener);
  kommentar_ = feld("Kommentar", 3009, kopf.Kommentar);

  auto* knoepfe = new QDialogButtonBox(this);
  knoepfe->addButton(qText(dictionary.DicText(7055)), QDialogButtonBox::AcceptRole)
      ->setObjectName(QStringLiteral("cmdOK"));
  knoepfe->addButton(qText(dictionary.DicText(3020)), QDialogButtonBox::RejectRole)
      ->setObjectName(QStringLiteral("cmdAbbrechen"));
  connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(scaled(16), scaled(16), scaled(16), scaled(16));
  spalte->setSpacing(scaled(16));
  spalte->addLayout(form);
  spalte->addWidget(knoepfe);
  bezeichnung_->setFocus();
}

void FormDateiInfo::uebernehmen(const DateiKopf& kopf) const {
  const auto text = [](const TextEntry& entry, FesterText<Feldlaenge>& ziel) {
    if (const auto bytes = zuCp1252(entry.value()); bytes && entry.isModified()) ziel = *bytes;
  };
  text(*bezeichnung_, kopf.Bezeichnung);
  text(*bediener_, kopf.Bediener);
  text(*kommentar_, kopf.Kommentar);
}

bool QtDateiInfoDialog::bearbeiten(const DateiKopf& kopf) {
  const NormalPointerScope zeiger;
  FormDateiInfo dialog(dictionary_, name_, kopf, parent_);
  if (dialog.exec() != QDialog::Accepted) return false;
  dialog.uebernehmen(kopf);
  return true;
}

}  // namespace korvin
