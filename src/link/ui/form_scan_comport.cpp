#include "link/ui/form_scan_comport.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "frame/ui/icons.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr std::int16_t textCaption = 600;
constexpr std::int16_t textSearching = 605;
constexpr std::int16_t textPorts = 604;
constexpr std::int16_t textPatience = 606;

QLabel* label(const char* name, const std::string& text, double factor, bool strong) {
  auto* made = new QLabel(qText(text));
  made->setObjectName(QString::fromLatin1(name));
  made->setFont(themeFont(factor, strong));
  if (strong) return made;
  QPalette soft = made->palette();
  soft.setColor(QPalette::WindowText, themeColour(ThemeColour::softText));
  made->setPalette(soft);
  return made;
}

}  // namespace

FormScanComport::FormScanComport(Dictionary& dictionary, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      Progress1_(new QProgressBar(this)) {
  setObjectName(QStringLiteral("FormScanComport"));
  setWindowTitle(qText(dictionary.DicText(textCaption)));
  Progress1_->setObjectName(QStringLiteral("Progress1"));
  Progress1_->setTextVisible(false);
  Progress1_->setVisible(false);
  Progress1_->setMinimumWidth(scaled(380));
  auto* picture = new QLabel(this);
  picture->setPixmap(iconPixmap(QStringLiteral("ICON34"), scaled(52), devicePixelRatio()));

  auto* words = new QVBoxLayout;
  words->setSpacing(scaled(5));
  words->addWidget(label("Label1", dictionary.DicText(textSearching), 1.25, true));
  words->addWidget(label("Label2", dictionary.DicText(textPorts), 1.0, false));
  words->addWidget(label("Label3", dictionary.DicText(textPatience), 1.0, false));
  words->addSpacing(scaled(10));
  words->addWidget(Progress1_);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(scaled(26), scaled(24), scaled(30), scaled(26));
  row->setSpacing(scaled(20));
  row->addWidget(picture, 0, Qt::AlignTop);
  row->addLayout(words, 1);
}

void FormScanComport::beginne(int kleinster, int groesster, int wert) {
  Progress1_->setRange(kleinster, groesster);
  Progress1_->setValue(wert);
  Progress1_->setVisible(true);
}

void FormScanComport::setWert(int wert) {
  Progress1_->setValue(wert);
}

}  // namespace korvin
