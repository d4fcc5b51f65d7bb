#include "link/ui/service_panel.h"

#include <QGridLayout>
#include <QKeyEvent>

#include "frame/ui/theme.h"
#include "link/service_slider.h"

namespace korvin {
namespace {

constexpr int shownLines = 6;
constexpr int firstLabel = 4;
constexpr char16_t controlPictures = 0x2400;

}  // namespace

QString ohneSteuerzeichen(QString text) {
  for (QChar& character : text) {
    if (character.unicode() < 0x20) {
      character = QChar(static_cast<char16_t>(controlPictures + character.unicode()));
    } else if (character.category() == QChar::Other_Control) {
      character = QChar(u'·');
    }
  }
  return text;
}

ServicePanel::ServicePanel(std::array<int, 3> startMs, QWidget* parent)
    : QGroupBox(parent), startMs_(startMs), LblCamMsg_(new QLabel(this)), LstCamMsg_(new QListWidget(this)) {
  setObjectName(QStringLiteral("ServicePanel"));
  LblCamMsg_->setObjectName(QStringLiteral("LblCamMsg"));
  LstCamMsg_->setObjectName(QStringLiteral("LstCamMsg"));
  LstCamMsg_->setUniformItemSizes(true);
  LstCamMsg_->setFixedHeight(LstCamMsg_->fontMetrics().height() * shownLines);

  auto* grid = new QGridLayout(this);
  grid->addWidget(LblCamMsg_, 0, 0);
  grid->addWidget(LstCamMsg_, 1, 0, static_cast<int>(SliderTimers_.size()), 1);
  for (int i = 0; i < static_cast<int>(SliderTimers_.size()); ++i) {
    auto* title = new QLabel(this);
    auto* slider = new QSlider(Qt::Horizontal, this);
    auto* label = new QLabel(this);
    slider->setObjectName(QStringLiteral("SliderTimers(%1)").arg(i));
    slider->setRange(SliderKleinster, SliderGroesster);
    slider->setValue(SliderStart);
    slider->installEventFilter(this);
    label->setObjectName(QStringLiteral("Label%1").arg(firstLabel + i));
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("0000 ms")));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    title->setBuddy(slider);
    schieberTitel_.at(i) = title;
    SliderTimers_.at(i) = slider;
    Labels_.at(i) = label;
    grid->addWidget(title, i + 1, 1);
    grid->addWidget(slider, i + 1, 2);
    grid->addWidget(label, i + 1, 3);
    zeigeIntervall(i);
    connect(slider, &QSlider::valueChanged, this, [this, i] {
      zeigeIntervall(i);
      if (onIntervall) onIntervall(i, intervall(i));
    });
  }
  grid->setHorizontalSpacing(scaled(16));
  grid->setColumnStretch(0, 3);
  grid->setColumnStretch(2, 2);
  hide();
}

void ServicePanel::setTexte(const ServicePanelTexte& texte) {
  LblCamMsg_->setText(texte.telegramme);
  for (int i = 0; i < static_cast<int>(schieberTitel_.size()); ++i) {
    schieberTitel_.at(i)->setText(texte.schieber.at(i));
    SliderTimers_.at(i)->setAccessibleName(texte.schieber.at(i));
  }
}

int ServicePanel::intervall(int index) const {
  return sliderIntervall(SliderTimers_.at(index)->value(), startMs_.at(index));
}

void ServicePanel::zeigeIntervall(int index) {
  Labels_.at(index)->setText(QStringLiteral("%1 ms").arg(intervall(index)));
}

void ServicePanel::zeigeTelegramm(const QString& rumpf) {
  if (isHidden()) return;
  while (LstCamMsg_->count() >= MaxTelegramme) delete LstCamMsg_->takeItem(0);
  LstCamMsg_->addItem(ohneSteuerzeichen(rumpf));
  LstCamMsg_->scrollToBottom();
}

bool ServicePanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return QGroupBox::eventFilter(watched, event);
  // The arrow keys move a focused slider, although the window has them as shortcuts.
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Left || key == Qt::Key_Right) event->accept();
  return false;
}

void ServicePanel::leeren() {
  LstCamMsg_->clear();
}

}  // namespace korvin
