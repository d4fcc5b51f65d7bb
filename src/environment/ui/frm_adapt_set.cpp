#include "environment/ui/frm_adapt_set.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QVBoxLayout>
#include <algorithm>

#include "environment/aussicht_texte.h"
#include "frame/ui/qt_colour.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "link/ui/dark_panel.h"

namespace korvin {
namespace {

constexpr std::int16_t TextRahmen = 2251;
constexpr std::int16_t TextUeberschrift = 2250;
constexpr std::int16_t TextSpeichern = 2252;
constexpr std::int16_t TextNiveau = 2209;
constexpr std::int16_t TextNiveauZeichen = 2208;
constexpr std::int16_t TextZeit = 7740;
constexpr std::int16_t TextBild = 7741;
constexpr std::int16_t TextHinaus = 7742;
constexpr std::int16_t TextPrioHinweis = 7745;
constexpr std::int16_t TextSpeichernHinweis = 7746;

constexpr double smallScale = 0.85;

QString element(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

QLabel* words(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

/// The mark before the words of a grade, in a colour of its own.
QColor gradeColour(Erfolg erfolg) {
  switch (erfolg) {
    case Erfolg::wahrscheinlich:
      return isDark() ? QColor(0x5f, 0xd0, 0x7a) : QColor(0x1b, 0x7f, 0x3a);
    case Erfolg::fraglich:
      return isDark() ? QColor(0xf0, 0xb4, 0x4a) : QColor(0x9a, 0x62, 0x00);
    case Erfolg::unwahrscheinlich:
      break;
  }
  return themeColour(ThemeColour::refuse);
}

/// Keys that belong to a focused slider or button, although the window has some of them as shortcuts.
bool isControlKey(const QKeyEvent& event) {
  if (event.modifiers() & ~Qt::KeypadModifier) return false;
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    default:
      return false;
  }
}

}  // namespace

FrmAdaptSet::FrmAdaptSet(AdaptSet& set, const PictureDesk& desk, QWidget* parent)
    : QGroupBox(parent),
      set_(set),
      dictionary_(desk.dictionary),
      LblAA_(words("LblAA", this)),
      bild_(new PictureUnsicherheit(desk, this)),
      bahn_(new QWidget(this)),
      SliderAdaption_(new QSlider(Qt::Horizontal, bahn_)),
      worte_(words("LblAussicht", this)),
      zahlen_(words("LblAussichtZahlen", this)),
      LblPrio_(words("LblPrio", this)),
      CmdWerteSave_(new QPushButton(this)) {
  setObjectName(QStringLiteral("FrmAdaptSet"));
  SliderAdaption_->setObjectName(QStringLiteral("SliderAdaption"));
  CmdWerteSave_->setObjectName(QStringLiteral("CmdWerteSave"));
  CmdWerteSave_->setAutoDefault(true);
  layoutAnlegen();
  verbinden();
  setTexte(dictionary_);
  hide();
}

// ---- Building ----

QWidget* FrmAdaptSet::panelReihe() {
  auto* panel = new DarkPanel(this);
  auto* reihe = new QHBoxLayout(panel);
  reihe->setContentsMargins(scaled(12), scaled(4), scaled(12), scaled(4));
  const std::array<const char*, 3> namen{"t:", "FX:", "FY:"};
  for (int i = 0; i < 3; ++i) {
    const auto index = static_cast<std::size_t>(i);
    auto* feld = new CaptionedField(element("lblFx", i), element("PanelFx", i), panel);
    lblFx_.at(index) = &feld->caption();
    PanelFx_.at(index) = &feld->value();
    feld->caption().setText(QLatin1String(namen.at(index)));
    reihe->addWidget(feld, 1);
  }
  return panel;
}

QWidget* FrmAdaptSet::prioReihe() {
  auto* zeile = new QWidget(this);
  auto* reihe = new QHBoxLayout(zeile);
  reihe->setContentsMargins(0, 0, 0, 0);
  reihe->setSpacing(scaled(10));
  LblPrio_->setParent(zeile);
  reihe->addWidget(LblPrio_, 1);
  const std::array<const char*, 2> stufen{"95%", "99%"};
  for (int i = 0; i < 2; ++i) {
    auto* knopf = new QRadioButton(QLatin1String(stufen.at(static_cast<std::size_t>(i))), zeile);
    knopf->setObjectName(element("OptPrio", i));
    knopf->installEventFilter(this);
    OptPrio_.at(static_cast<std::size_t>(i)) = knopf;
    reihe->addWidget(knopf);
  }
  return zeile;
}

void FrmAdaptSet::layoutAnlegen() {
  zahlen_->setFont(themeFont(smallScale));
  bahn_->setFixedHeight(SliderAdaption_->sizeHint().height());
  SliderAdaption_->installEventFilter(this);
  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(scaled(5));
  spalte->addWidget(LblAA_);
  spalte->addWidget(panelReihe());
  spalte->addWidget(bild_, 1);
  spalte->addWidget(bahn_);
  spalte->addWidget(worte_);
  spalte->addWidget(zahlen_);
  spalte->addWidget(prioReihe());
  // A row of its own: in some languages the words need all of it.
  spalte->addWidget(CmdWerteSave_);
}

void FrmAdaptSet::verbinden() {
  connect(SliderAdaption_, &QSlider::valueChanged, this, [this](int wert) {
    set_.SliderGeaendert(wert);
    werteZeigen();
  });
  for (int i = 0; i < 2; ++i) {
    connect(OptPrio_.at(static_cast<std::size_t>(i)), &QRadioButton::clicked, this, [this, i] {
      set_.OptPrio(i);
      werteZeigen();
    });
  }
  connect(CmdWerteSave_, &QPushButton::clicked, this, [this] {
    set_.ParameterSpeichern();
    werteZeigen();
    if (onGespeichert) onGespeichert();
  });
  bild_->onPosition = [this](int position) { SliderAdaption_->setValue(position); };
  bild_->hintOf = [this](int position) { return set_.hinweis(position); };
}

void FrmAdaptSet::setTexte(Dictionary& dictionary) {
  const auto text = [&dictionary](std::int16_t id) { return qText(dictionary.DicText(id)); };
  setTitle(text(TextRahmen));
  LblAA_->setText(text(TextUeberschrift));
  CmdWerteSave_->setText(text(TextSpeichern));
  CmdWerteSave_->setToolTip(text(TextSpeichernHinweis));
  LblPrio_->setText(text(TextNiveau) + text(TextNiveauZeichen));
  for (QRadioButton* knopf : OptPrio_) {
    knopf->setToolTip(text(TextPrioHinweis));
    knopf->setAccessibleName(LblPrio_->text() + QLatin1Char(' ') + knopf->text());
  }
  SliderAdaption_->setAccessibleName(text(TextZeit));
  SliderAdaption_->setToolTip(text(TextZeit));
  bild_->setAccessibleName(text(TextBild));
  bild_->setHinaus(dictionary.DicText(TextHinaus));
  bild_->setTexts();
}

// ---- Showing ----

void FrmAdaptSet::zeigen() {
  const bool kommt = set_.sichtbar() && isHidden();
  if (set_.sichtbar()) {
    sliderZeigen();
    bild_->setBild(set_.bild());
    aussichtZeigen();
    werteZeigen();
    sliderAusrichten();
  }
  setVisible(set_.sichtbar());
  if (kommt) CmdWerteSave_->setFocus();
}

void FrmAdaptSet::sliderZeigen() {
  const QSignalBlocker still(SliderAdaption_);
  const AdaptSlider& slider = set_.slider();
  SliderAdaption_->setRange(slider.minimum, slider.maximum);
  SliderAdaption_->setValue(slider.wert);
  SliderAdaption_->setPageStep(std::max(1, slider.maximum / 10));
}

void FrmAdaptSet::werteZeigen() {
  const AdaptParameter& anzeige = set_.anzeige();
  PanelFx_[0]->setText(qText(anzeige.zeit));
  PanelFx_[1]->setText(qText(anzeige.FX));
  PanelFx_[2]->setText(qText(anzeige.FY));
  OptPrio_[anzeige.Beta1 ? 1 : 0]->setChecked(true);
  CmdWerteSave_->setEnabled(set_.speichernFrei());
  bild_->setWert(set_.slider().wert);
}

void FrmAdaptSet::aussichtZeigen() {
  const Aussicht& aussicht = set_.aussicht();
  worte_->setText(qText(aussichtWorte(aussicht, dictionary_)));
  setTextColour(*worte_, gradeColour(aussicht.erfolg));
  zahlen_->setText(qText(aussichtZahlen(aussicht, set_.Masssystem(), dictionary_)));
}

// ---- Keys and layout ----

bool FrmAdaptSet::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && isControlKey(*static_cast<QKeyEvent*>(event)))
    event->accept();
  return QGroupBox::eventFilter(watched, event);
}

void FrmAdaptSet::resizeEvent(QResizeEvent* event) {
  QGroupBox::resizeEvent(event);
  sliderAusrichten();
}

void FrmAdaptSet::sliderAusrichten() {
  QStyleOptionSlider option;
  option.initFrom(SliderAdaption_);
  const int griff = style()->pixelMetric(QStyle::PM_SliderLength, &option, SliderAdaption_);
  const double links = bild_->platzVon(set_.slider().minimum) - griff / 2.0;
  const double rechts = bild_->platzVon(set_.slider().maximum) + griff / 2.0;
  SliderAdaption_->setGeometry(qRound(links), 0, qRound(rechts - links), bahn_->height());
}

}  // namespace korvin
