#include "position/ui/statistics_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ui/theme.h"
#include "link/ui/panel_parts.h"

namespace korvin {
namespace {

constexpr double lineScale = 1.2;
constexpr int headIndex = 3;
// The two axes number this line differently; kept, since lines are known by their index.
constexpr int maximumIndexX = 5;
constexpr int maximumIndexY = 4;

}  // namespace

AxisStatistics::AxisStatistics(const QString& axis, int maximumIndex, QWidget* parent)
    : QWidget(parent), axis_(axis) {
  setObjectName(QStringLiteral("Panel%1Statistik").arg(axis));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(scaled(1));
  head_ = addLine(headIndex, 1, panelCaption());
  for (std::size_t i = 0; i < lines_.size(); ++i)
    lines_[i] = addLine(static_cast<int>(i), lineScale, Qt::white);
  maximum_ = addLine(maximumIndex, lineScale, Qt::white);
  maximum_->hide();
  column->addStretch();
}

QLabel* AxisStatistics::addLine(int index, double scale, const QColor& colour) {
  auto* line = new QLabel(this);
  line->setObjectName(objectName() + QStringLiteral("(%1)").arg(index));
  line->setTextFormat(Qt::PlainText);
  line->setTextInteractionFlags(Qt::TextSelectableByMouse);
  line->setFont(themeFont(scale));
  setTextColour(*line, colour);
  layout()->addWidget(line);
  return line;
}

void AxisStatistics::zeige(int anzahl, const StatistikTexte& texte) {
  head_->setText(QStringLiteral("%1   n %2").arg(axis_).arg(anzahl));
  showOptional(*lines_[0], texte.x);
  showOptional(*lines_[1], texte.s);
  showOptional(*lines_[2], texte.R);
}

void AxisStatistics::zeigeMaximum(const std::optional<std::string>& text) {
  showOptional(*maximum_, text);
}

PictureStatistik::PictureStatistik(QWidget* parent)
    : DarkPanel(parent),
      x_(new AxisStatistics(QStringLiteral("X"), maximumIndexX, this)),
      y_(new AxisStatistics(QStringLiteral("Y"), maximumIndexY, this)) {
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

void PictureStatistik::zeigeMaxima(const std::optional<std::string>& x, const std::optional<std::string>& y) {
  x_->zeigeMaximum(x);
  y_->zeigeMaximum(y);
}

}  // namespace korvin
