#include "position/ui/statistics_panel.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <optional>
#include <string>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "link/ui/value_panel.h"

namespace korvin {
namespace {

constexpr double lineScale = 1.2;

QFrame* divider(QWidget* parent) {
  auto* rule = new QFrame(parent);
  rule->setFixedWidth(1);
  rule->setAutoFillBackground(true);
  QPalette colours = rule->palette();
  colours.setColor(QPalette::Window, panelGround().lighter(190));
  rule->setPalette(colours);
  return rule;
}

void showLine(QLabel& label, const std::optional<std::string>& text) {
  label.setText(text ? qText(*text) : QString());
  label.setVisible(text.has_value());
}

}  // namespace

AxisStatistics::AxisStatistics(const QString& axis, QWidget* parent) : QWidget(parent), axis_(axis) {
  setObjectName(QStringLiteral("Panel%1Statistik").arg(axis));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(scaled(1));
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    auto* line = new QLabel(this);
    line->setObjectName(objectName() + QStringLiteral("(%1)").arg(i));
    line->setTextFormat(Qt::PlainText);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->setFont(themeFont(i == 0 ? 1 : lineScale));
    setTextColour(*line, i == 0 ? panelCaption() : QColor(Qt::white));
    column->addWidget(line);
    lines_[i] = line;
  }
  column->addStretch();
}

void AxisStatistics::zeige(int anzahl, const StatistikTexte& texte) {
  lines_[0]->setText(QStringLiteral("%1   n %2").arg(axis_).arg(anzahl));
  showLine(*lines_[1], texte.x);
  showLine(*lines_[2], texte.s);
  showLine(*lines_[3], texte.R);
}

PictureStatistik::PictureStatistik(QWidget* parent)
    : DarkPanel(parent),
      x_(new AxisStatistics(QStringLiteral("X"), this)),
      y_(new AxisStatistics(QStringLiteral("Y"), this)) {
  setObjectName(QStringLiteral("PictureStatistik"));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(scaled(16), scaled(8), scaled(16), scaled(8));
  row->setSpacing(scaled(16));
  row->addWidget(x_, 1);
  row->addWidget(divider(this));
  row->addWidget(y_, 1);
}

void PictureStatistik::zeige(PositionsDatei& datei) {
  x_->zeige(datei.Info.AnzahlMP, statistikTexte(datei.X, datei.Info));
  y_->zeige(datei.Info.AnzahlMP, statistikTexte(datei.Y, datei.Info));
}

}  // namespace korvin
