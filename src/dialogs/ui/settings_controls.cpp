#include "dialogs/ui/settings_controls.h"

#include <QAbstractButton>
#include <QComboBox>

#include "frame/ui/qt_text.h"
#include "frame/ui/text_entry.h"

namespace korvin {
namespace {

template <class Control>
Control& control(const QWidget& dialog, const EinstellFeld& feld) {
  auto* found = dialog.findChild<Control*>(qText(feld.control));
  Q_ASSERT_X(found != nullptr, "settings dialog", feld.control.data());
  return *found;
}

void zeige(const QWidget& dialog, const EinstellFeld& feld, const FeldWert& wert) {
  switch (feld.form) {
    case FeldForm::text:
    case FeldForm::laenge:
    case FeldForm::toleranz:
    case FeldForm::genauigkeit:
      control<TextEntry>(dialog, feld).setValue(std::get<std::string>(wert));
      break;
    case FeldForm::schalter:
      control<QAbstractButton>(dialog, feld).setChecked(std::get<bool>(wert));
      break;
    case FeldForm::index:
    case FeldForm::faktor:
      control<QComboBox>(dialog, feld).setCurrentIndex(std::get<int>(wert));
      break;
  }
}

FeldWert nimm(const QWidget& dialog, const EinstellFeld& feld) {
  switch (feld.form) {
    case FeldForm::schalter:
      return control<QAbstractButton>(dialog, feld).isChecked();
    case FeldForm::index:
    case FeldForm::faktor:
      return control<QComboBox>(dialog, feld).currentIndex();
    case FeldForm::text:
    case FeldForm::laenge:
    case FeldForm::toleranz:
    case FeldForm::genauigkeit:
      break;
  }
  return control<TextEntry>(dialog, feld).value();
}

}  // namespace

void zeigeFelder(QWidget& dialog, std::span<const EinstellFeld> felder, const FeldWerte& werte) {
  for (std::size_t i = 0; i < felder.size(); ++i) zeige(dialog, felder[i], werte.at(i));
}

FeldWerte nimmFelder(const QWidget& dialog, std::span<const EinstellFeld> felder) {
  FeldWerte werte;
  for (const EinstellFeld& feld : felder) werte.push_back(nimm(dialog, feld));
  return werte;
}

}  // namespace korvin
