#include "position/ui/statistics_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ui/theme.h"
#include "link/ui/panel_parts.h"

namespace korvin {
namespace {

constexpr double lineScale = 1.2;

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
  showOptional(*lines_[1], texte.x);
  showOptional(*lines_[2], texte.s);
  showOptional(*lines_[3], texte.R);
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
  row->addWidget(panelRule(Qt::Vertical, this));
  row->addWidget(y_, 1);
}

void PictureStatistik::zeige(PositionsDatei& datei) {
  x_->zeige(datei.Info.AnzahlMP, statistikTexte(datei.X, datei.Info));
  y_->zeige(datei.Info.AnzahlMP, statistikTexte(datei.Y, datei.Info));
}

}  // namespace korvin
