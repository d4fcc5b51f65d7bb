#include "frame/ui/form_info.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "frame/settings_defaults.h"
#include "frame/ui/icons.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/text_entry.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

/// Characters of the field `FirmaName` in measuring files.
constexpr int companyLength = 75;
constexpr std::int16_t textTitle = 7010;
constexpr std::int16_t textPurpose = 7011;
constexpr std::int16_t textCompany = 7012;
constexpr std::int16_t textCompanyHint = 7013;
constexpr std::int16_t textOk = 7050;

QLabel* softLabel(const QString& text, double factor) {
  auto* label = new QLabel(text);
  label->setFont(themeFont(factor));
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, themeColour(ThemeColour::softText));
  label->setPalette(palette);
  return label;
}

}  // namespace

FormInfo::FormInfo(Dictionary& dictionary, Profil& profil, QWidget* parent)
    : QDialog(parent), dictionary_(dictionary), profil_(profil) {
  setObjectName(QStringLiteral("FormInfo"));
  setWindowTitle(qText(dictionary.DicText(textTitle)));
  company_ = new TextEntry(dictionary, companyLength, this);
  company_->setObjectName(QStringLiteral("TextEinstellung(0)"));
  company_->setValue(profil.wert(einstellung::Hauptfenster::FirmaName));
  company_->setMinimumWidth(scaled(420));

  auto* ok = new QPushButton(qText(dictionary.DicText(textOk)), this);
  ok->setObjectName(QStringLiteral("cmdOK"));
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &FormInfo::store);

  auto* label = new QLabel(qText(dictionary.DicText(textCompany)), this);
  label->setBuddy(company_);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(scaled(28), scaled(24), scaled(28), scaled(20));
  rows->setSpacing(scaled(6));
  rows->addLayout(head());
  rows->addSpacing(scaled(18));
  rows->addWidget(label);
  rows->addWidget(company_);
  rows->addWidget(softLabel(qText(dictionary.DicText(textCompanyHint)), 0.9));
  rows->addSpacing(scaled(16));
  rows->addWidget(ok, 0, Qt::AlignRight);
  rows->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* FormInfo::head() {
  auto* picture = new QLabel(this);
  picture->setPixmap(iconPixmap(QStringLiteral("ICONKORVIN"), scaled(72), devicePixelRatio()));
  auto* name = new QLabel(QStringLiteral("KORVIN"), this);
  name->setFont(themeFont(1.8, true));
  auto* version = softLabel(QStringLiteral("WIN-KORVIN, Version 5.55 / qk "), 1.0);
  version->setObjectName(QStringLiteral("Panelversion"));
  auto* words = new QVBoxLayout;
  words->setSpacing(scaled(2));
  words->addWidget(name);
  words->addWidget(new QLabel(qText(dictionary_.DicText(textPurpose)), this));
  words->addWidget(version);
  auto* row = new QHBoxLayout;
  row->setSpacing(scaled(18));
  row->addWidget(picture);
  row->addLayout(words, 1);
  return row;
}

void FormInfo::store() {
  profil_.schreiben(einstellung::Hauptfenster::FirmaName, company_->value());
  accept();
}

}  // namespace korvin
