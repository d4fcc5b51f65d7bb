#include "straightness/ui/axis_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "link/ui/panel_parts.h"

namespace korvin {
namespace {

constexpr double rowScale = 1.0;
constexpr std::int16_t TextSoll = 5000;
constexpr std::int16_t TextIst = 5001;
constexpr std::int16_t TextGesamt = 7541;
constexpr std::int16_t TextAbschnitt = 7542;

}  // namespace

AxisPanel::AxisPanel(const QString& axis, QWidget* parent)
    : QWidget(parent),
      axis_(axis),
      value_(new ValuePanel(QStringLiteral("Panel%1WertNormal").arg(axis.toLower()), this)),
      name_(axisLabel(axis, this)),
      unit_(panelLabel(QStringLiteral("lblEinheit") + axis, this)),
      mean_(row(0)),
      deviation_(row(1)),
      spread_(row(2)),
      statistics_(new QWidget(this)),
      tolerances_(new QWidget(this)) {
  auto* line = new QHBoxLayout(statistics_);
  line->setContentsMargins(0, 0, 0, 0);
  for (QLabel* label : {mean_, deviation_, spread_}) line->addWidget(label, 1);

  auto* grid = new QGridLayout(tolerances_);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(scaled(5));
  grid->setVerticalSpacing(scaled(2));
  whole_ = toleranceRow(*grid, 0, 5, 7);
  section_ = toleranceRow(*grid, 1, 6, 8);
  grid->setColumnStretch(2, 5);
  grid->setColumnStretch(4, 6);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(scaled(4));
  column->addWidget(valueRow(value_, name_, unit_, this), 1);
  column->addWidget(statistics_);
  column->addWidget(tolerances_);
  value_->setMargin(scaled(6));
  statistics_->hide();
  tolerances_->hide();
}

QLabel* AxisPanel::row(int index) {
  QLabel* label = panelLabel(QStringLiteral("Panel%1Statistik(%2)").arg(axis_).arg(index), this);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setFont(themeFont(rowScale));
  setTextColour(*label, Qt::white);
  return label;
}

AxisPanel::Tolerance AxisPanel::toleranceRow(QGridLayout& grid, int line, int allowed, int measured) {
  const Tolerance made{panelLabel({}, this), panelLabel({}, this), row(allowed), panelLabel({}, this),
                       row(measured)};
  int column = 0;
  for (QLabel* label : {made.caption, made.allowedName, made.allowed, made.measuredName, made.measured})
    grid.addWidget(label, line, column++, Qt::AlignBaseline);
  return made;
}

void AxisPanel::setTexte(Dictionary& dictionary, const QString& unit) {
  const auto text = [&](std::int16_t id) { return qText(dictionary.DicText(id)); };
  unit_->setText(unit);
  whole_.caption->setText(QStringLiteral("t ") + text(TextGesamt));
  section_.caption->setText(QStringLiteral("t ") + text(TextAbschnitt));
  for (const Tolerance& row : {whole_, section_}) {
    row.allowedName->setText(text(TextSoll));
    row.measuredName->setText(text(TextIst));
    row.allowed->setAccessibleName(row.caption->text() + QLatin1Char(' ') + text(TextSoll));
    row.measured->setAccessibleName(row.caption->text() + QLatin1Char(' ') + text(TextIst));
  }
}

void AxisPanel::showTolerance(const Tolerance& row, const std::optional<std::string>& allowed,
                              const std::optional<std::string>& measured) {
  showOptional(*row.allowed, allowed);
  showOptional(*row.measured, measured);
}

void AxisPanel::zeige(const std::string& name, const AchsenTexte& texte) {
  name_->setText(qText(name));
  value_->setValue(qText(texte.Wert));
  showOptional(*mean_, texte.Mittel);
  showOptional(*deviation_, texte.Streuung);
  showOptional(*spread_, texte.Spanne);
  statistics_->setVisible(texte.Mittel || texte.Streuung || texte.Spanne);
  showTolerance(whole_, texte.ToleranzGesamt, texte.ErgebnisGesamt);
  showTolerance(section_, texte.ToleranzAbschnitt, texte.ErgebnisAbschnitt);
  tolerances_->setVisible(texte.ToleranzGesamt.has_value());
}

}  // namespace korvin
