#include "straightness/ui/form_adapt_fehler.h"

#include <QDialogButtonBox>
#include <QStyle>
#include <QVBoxLayout>

#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_colour.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "link/ui/dark_panel.h"
#include "link/ui/panel_parts.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr double titleScale = 1.25;
constexpr double valueScale = 1.7;

/// The words that lie on the dark panel.
bool isPanelWord(int index) {
  return index == 3 || index == 6 || index == 10 || index == 11;
}

}  // namespace

FormAdaptFehler::FormAdaptFehler(AdaptFehler& fehler, const QString& name, Dictionary& dictionary,
                                 std::int16_t Masssystem, QWidget* parent)
    : QDialog(parent), texte_(adaptFehlerTexte(fehler, dictionary, Masssystem)) {
  setObjectName(name);
  setWindowTitle(qText(texte_.titel));
  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(scaled(20), scaled(18), scaled(20), scaled(16));
  spalte->setSpacing(scaled(14));
  spalte->addWidget(kopf());
  spalte->addWidget(werte(Masssystem));
  spalte->addWidget(meldung(9, this));
  spalte->addWidget(meldung(5, this));
  spalte->addSpacing(scaled(4));
  spalte->addWidget(knoepfe(fehler.VorschlagMoeglich()));
  spalte->setSizeConstraint(QLayout::SetFixedSize);
}

QLabel* FormAdaptFehler::meldung(int index, QWidget* parent) {
  const QString name = QStringLiteral("lblAdaptMsg(%1)").arg(index);
  auto* label = isPanelWord(index) ? panelLabel(name, parent) : new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setText(qText(texte_.lblAdaptMsg.at(static_cast<std::size_t>(index))));
  return label;
}

QWidget* FormAdaptFehler::kopf() {
  auto* made = new QWidget(this);
  auto* bild = new QLabel(made);
  const int side = scaled(40);
  bild->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
  QLabel* art = meldung(0, made);
  QLabel* satz = meldung(1, made);
  satz->setFont(themeFont(titleScale, true));
  auto* grid = new QGridLayout(made);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(scaled(14));
  grid->setVerticalSpacing(scaled(2));
  grid->addWidget(bild, 0, 0, 2, 1);
  grid->addWidget(art, 0, 1);
  grid->addWidget(satz, 1, 1);
  grid->setColumnStretch(1, 1);
  return made;
}

QWidget* FormAdaptFehler::werte(std::int16_t Masssystem) {
  auto* made = new DarkPanel(this);
  auto* grid = new QGridLayout(made);
  grid->setContentsMargins(scaled(18), scaled(12), scaled(18), scaled(12));
  grid->setHorizontalSpacing(scaled(28));
  grid->setVerticalSpacing(scaled(6));
  auto* einheit = panelLabel(QStringLiteral("lblEinheit"), made);
  einheit->setText(Masssystem == MasssystemInch ? QStringLiteral("[mil]") : QStringLiteral("[mm]"));
  grid->addWidget(einheit, 0, 0);
  grid->addWidget(meldung(11, made), 0, 1, Qt::AlignRight);
  grid->addWidget(meldung(10, made), 0, 2, Qt::AlignRight);
  achsenZeile(*grid, 1, 3, QStringLiteral("X"), texte_.XSoll, texte_.XIst);
  achsenZeile(*grid, 2, 6, QStringLiteral("Y"), texte_.YSoll, texte_.YIst);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(2, 1);
  return made;
}

void FormAdaptFehler::achsenZeile(QGridLayout& grid, int zeile, int index, const QString& achse,
                                  const AdaptWertText& soll, const AdaptWertText& ist) {
  QWidget* panel = grid.parentWidget();
  grid.addWidget(meldung(index, panel), zeile, 0);
  const auto wert = [&](const QString& name, const AdaptWertText& text, int spalte) {
    QLabel* label = panelLabel(name + achse, panel);
    label->setFont(themeFont(valueScale));
    label->setText(qText(text.text));
    setTextColour(*label, qColour(text.farbe));
    grid.addWidget(label, zeile, spalte, Qt::AlignRight | Qt::AlignBaseline);
  };
  wert(QStringLiteral("lblSoll"), soll, 1);
  wert(QStringLiteral("lblIst"), ist, 2);
}

QWidget* FormAdaptFehler::knoepfe(bool moeglich) {
  auto* leiste = new QDialogButtonBox(this);
  const auto knopf = [&](int index, QDialogButtonBox::ButtonRole rolle) {
    QPushButton* button =
        leiste->addButton(qText(texte_.CmdAdaptCont.at(static_cast<std::size_t>(index))), rolle);
    button->setObjectName(QStringLiteral("CmdAdaptCont(%1)").arg(index));
    button->setAutoDefault(false);
    return button;
  };
  QPushButton* laenger = knopf(0, QDialogButtonBox::AcceptRole);
  laenger->setEnabled(moeglich);
  QPushButton* aufgeben = knopf(1, QDialogButtonBox::RejectRole);
  // A stray Return must not change the settings.
  aufgeben->setDefault(true);
  aufgeben->setFocus();
  connect(leiste, &QDialogButtonBox::accepted, this, [this] {
    knopf_ = 0;
    accept();
  });
  connect(leiste, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return leiste;
}

void QtAdaptFehlerFrage::zeigen(AdaptFehler& fehler) {
  const NormalPointerScope zeiger;
  FormAdaptFehler dialog(fehler, name_, dictionary_, Masssystem_, parent_);
  dialog.exec();
  fehler.CmdAdaptCont(dialog.knopf());
}

}  // namespace korvin
