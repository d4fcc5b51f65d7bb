#include "reports/ui/print_progress.h"

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "frame/drucker.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr std::int16_t textCancel = 3020;
constexpr std::int16_t textPage = 3063;
constexpr double secondsToBox = 0.4;
constexpr double secondsBetween = 0.05;

}  // namespace

PrintProgress::PrintProgress(const ProgressUmgebung& umgebung, std::int16_t words,
                             std::function<int()> seiten, Cancelling cancelling, QWidget* parent)
    : u_(umgebung),
      words_(words),
      seiten_(std::move(seiten)),
      cancelling_(cancelling),
      parent_(parent),
      last_(umgebung.clock.secondsOfDay()) {}

PrintProgress::~PrintProgress() = default;

bool PrintProgress::passed(double seconds) {
  const float now = u_.clock.secondsOfDay();
  // Past midnight the time of day is less than before.
  if (now >= last_ && now - last_ < seconds) return false;
  last_ = now;
  return true;
}

void PrintProgress::page(int number) {
  if (!passed(box_ ? secondsBetween : secondsToBox)) return;
  if (!box_) showBox();
  showPage(number);
  u_.pump.processEvents();
  if (cancelled_) throw DruckAbgebrochen();
}

void PrintProgress::showPage(int number) {
  QString words = qText(u_.dictionary.DicText(textPage)) + QLatin1Char(' ') + QString::number(number);
  if (all_ > 0) words += QStringLiteral(" / ") + QString::number(all_);
  page_->setText(words);
  bar_->setValue(number);
}

void PrintProgress::showBox() {
  pointer_.emplace();
  if (seiten_) all_ = seiten_();
  box_ = std::make_unique<QDialog>(parent_);
  box_->setObjectName(QStringLiteral("PrintProgress"));
  box_->setWindowModality(Qt::ApplicationModal);
  box_->setWindowTitle(QStringLiteral("KORVIN"));
  auto* words = new QLabel(qText(u_.dictionary.DicText(words_)), box_.get());
  bar_ = new QProgressBar(box_.get());
  bar_->setRange(0, all_);
  bar_->setTextVisible(false);
  bar_->setMinimumWidth(scaled(360));
  page_ = new QLabel(box_.get());
  page_->setObjectName(QStringLiteral("PrintProgressPage"));
  auto* cancel = new QPushButton(qText(u_.dictionary.DicText(textCancel)), box_.get());
  cancel->setObjectName(QStringLiteral("PrintProgressCancel"));
  cancel->setAutoDefault(false);  // Enter may have been meant for what was there before the box
  const bool allowed = cancelling_ == Cancelling::allowed;
  cancel->setEnabled(allowed);
  // Its corner and Escape mean the same.
  QObject::connect(cancel, &QPushButton::clicked, box_.get(), &QDialog::reject);
  QObject::connect(box_.get(), &QDialog::rejected, box_.get(), [this, allowed] { cancelled_ = allowed; });

  auto* lower = new QHBoxLayout;
  lower->addWidget(page_, 1);
  lower->addWidget(cancel);
  auto* rows = new QVBoxLayout(box_.get());
  rows->setContentsMargins(scaled(20), scaled(18), scaled(20), scaled(16));
  rows->setSpacing(scaled(12));
  rows->addWidget(words);
  rows->addWidget(bar_);
  rows->addLayout(lower);
  box_->show();
}

}  // namespace korvin
