#include "straightness/ui/multi_point_frame.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "frame/ui/qt_colour.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr Farbe FarbeBereit = 0x80FF80;  ///< of the button that takes the next position: light green
constexpr std::array<const char*, 2> Winkel = {": 120°-", ": 90°-"};
constexpr std::array<std::int16_t, 2> TextPositionen = {7630, 7631};
constexpr std::array<std::int16_t, 3> TextKnopf = {2102, 2103, 3020};
constexpr std::array<std::int16_t, 3> TextKnopfHinweis = {7633, 7634, 7635};
constexpr std::int16_t TextWahl = 7636;
constexpr std::int16_t TextBild = 7637;
constexpr std::int16_t TextMesswerte = 7638;
constexpr int PositionenMax = static_cast<int>(MehrPunkt::PositionenMax);
constexpr double resultScale = 1.35;
constexpr double edge = 14;

QString readyStyle() {
  return QStringLiteral(
             "QPushButton:enabled { background: %1; color: #000000; }"
             "QPushButton:enabled:hover, QPushButton:enabled:focus { border-color: %2; }"
             "QPushButton:pressed { background: %3; }")
      .arg(qColour(FarbeBereit).name(), themeColour(ThemeColour::accent).name(),
           qColour(FarbeBereit).darker(115).name());
}

void fill(QListWidget& list, const std::vector<std::string>& lines) {
  list.clear();
  for (const std::string& line : lines) list.addItem(qText(line));
}

}  // namespace

MultiPointFrame::MultiPointFrame(const PictureDesk& desk, QWidget* covered, QWidget* parent)
    : QFrame(parent), covered_(covered), title_(label(QStringLiteral("FRM_MPM_Caption"))) {
  setObjectName(QStringLiteral("FRM_MPM"));
  picture_ = new PictureMehrPunkt(desk, this);
  title_->setFont(themeFont(1.15, true));

  auto* left = new QVBoxLayout;
  left->setSpacing(scaled(10));
  left->addWidget(choice());
  left->addWidget(readings());
  left->addWidget(results());
  left->addStretch(1);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(scaled(14));
  middle->addLayout(left, 1);
  middle->addWidget(picture_, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(scaled(edge), scaled(edge), scaled(edge), scaled(edge));
  column->setSpacing(scaled(10));
  column->addWidget(title_);
  column->addLayout(middle, 1);
  column->addWidget(buttons());

  covered_->installEventFilter(this);
  hide();
}

// ---- Building ----

QLabel* MultiPointFrame::label(const QString& name) {
  auto* made = new QLabel(this);
  made->setObjectName(name);
  made->setTextFormat(Qt::PlainText);
  return made;
}

QWidget* MultiPointFrame::choice() {
  auto* made = new QWidget(this);
  auto* line = new QHBoxLayout(made);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(scaled(16));
  auto* group = new QButtonGroup(made);
  for (int i = 0; i < 2; ++i) {
    auto* box = new QCheckBox(made);
    box->setObjectName(QStringLiteral("CheckPkt1(%1)").arg(i));
    CheckPkt1_.at(static_cast<std::size_t>(i)) = box;
    group->addButton(box, i);
    line->addWidget(box);
  }
  line->addStretch(1);
  group->setExclusive(true);
  connect(group, &QButtonGroup::idClicked, this, [this](int index) {
    if (onPositions) onPositions(index == 1 ? 4 : 3);
  });
  return made;
}

QListWidget* MultiPointFrame::readingList(const QString& name) {
  auto* list = new QListWidget(this);
  list->setObjectName(name);
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->setFocusPolicy(Qt::NoFocus);
  list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  list->setMinimumWidth(list->fontMetrics().horizontalAdvance(QStringLiteral("4: -00.0000")) + scaled(12));
  list->setFixedHeight(PositionenMax * (list->fontMetrics().height() + scaled(3)) + scaled(8));
  return list;
}

QWidget* MultiPointFrame::readings() {
  auto* made = new QWidget(this);
  auto* grid = new QGridLayout(made);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(scaled(10));
  grid->setVerticalSpacing(scaled(3));
  LstXvals_ = readingList(QStringLiteral("LstXvals"));
  LstYvals_ = readingList(QStringLiteral("LstYvals"));
  for (int i = 0; i < 2; ++i) {
    QLabel* heading = label({});
    headings_.at(static_cast<std::size_t>(i)) = heading;
    grid->addWidget(heading, 0, i);
    grid->addWidget(i == 0 ? LstXvals_ : LstYvals_, 1, i);
  }
  return made;
}

QWidget* MultiPointFrame::results() {
  auto* made = new QWidget(this);
  auto* grid = new QGridLayout(made);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(scaled(10));
  grid->setVerticalSpacing(scaled(4));
  grid->setColumnStretch(1, 1);
  for (int i = 0; i < 2; ++i) {
    const auto axis = static_cast<std::size_t>(i);
    QLabel*& value = i == 0 ? LblX_mitte_ : LblY_mitte_;
    value = label(i == 0 ? QStringLiteral("LblX_mitte") : QStringLiteral("LblY_mitte"));
    Label1_.at(axis) = label(QStringLiteral("Label1(%1)").arg(i));
    units_.at(axis) = label({});
    value->setFont(themeFont(resultScale, true));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Label1_.at(axis)->setFont(themeFont(resultScale));
    grid->addWidget(Label1_.at(axis), i, 0);
    grid->addWidget(value, i, 1);
    grid->addWidget(units_.at(axis), i, 2);
  }
  note_ = label(QStringLiteral("LblMittelwert"));
  note_->setWordWrap(true);
  grid->addWidget(note_, 2, 0, 1, 3);
  Label1_[2] = label(QStringLiteral("Label1(2)"));
  Label1_[2]->setFont(themeFont(1.1, true));
  grid->addWidget(Label1_[2], 3, 0, 1, 3);
  return made;
}

QWidget* MultiPointFrame::buttons() {
  auto* made = new QWidget(this);
  auto* line = new QHBoxLayout(made);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(scaled(10));
  for (int i = 0; i < 3; ++i) {
    auto* button = new QPushButton(made);
    button->setObjectName(QStringLiteral("CmdMehrPunkt(%1)").arg(i));
    connect(button, &QPushButton::clicked, this, [this, i] {
      if (onButton) onButton(i);
    });
    CmdMehrPunkt_.at(static_cast<std::size_t>(i)) = button;
    line->addWidget(button, 1);
  }
  CmdMehrPunkt_[0]->setStyleSheet(readyStyle());
  return made;
}

void MultiPointFrame::setTexte(Dictionary& dictionary, const QString& unit) {
  const auto words = [&](std::int16_t number) { return qText(dictionary.DicText(number)); };
  for (std::size_t i = 0; i < CheckPkt1_.size(); ++i) {
    CheckPkt1_.at(i)->setText(words(TextPositionen.at(i)) + QString::fromUtf8(Winkel.at(i)));
    CheckPkt1_.at(i)->setToolTip(words(TextWahl));
    const QString axis = i == 0 ? QStringLiteral("X ") : QStringLiteral("Y ");
    headings_.at(i)->setText(axis + unit);
    units_.at(i)->setText(unit);
  }
  LstXvals_->setAccessibleName(QStringLiteral("X: ") + words(TextMesswerte));
  LstYvals_->setAccessibleName(QStringLiteral("Y: ") + words(TextMesswerte));
  for (std::size_t i = 0; i < CmdMehrPunkt_.size(); ++i) {
    CmdMehrPunkt_.at(i)->setText(words(TextKnopf.at(i)));
    CmdMehrPunkt_.at(i)->setToolTip(words(TextKnopfHinweis.at(i)));
  }
  picture_->setTexts();
  picture_->setAccessibleName(words(TextBild));
}

// ---- Showing ----

void MultiPointFrame::zeige(const MehrPunktStand& stand) {
  title_->setText(qText(stand.texte.titel));
  for (std::size_t i = 0; i < CheckPkt1_.size(); ++i) {
    CheckPkt1_.at(i)->setChecked(stand.MehrPunktSoll == (i == 0 ? 3 : 4));
    CheckPkt1_.at(i)->setEnabled(stand.wahlFrei);
  }
  fill(*LstXvals_, stand.texte.LstXvals);
  fill(*LstYvals_, stand.texte.LstYvals);
  for (std::size_t i = 0; i < Label1_.size(); ++i) Label1_.at(i)->setText(qText(stand.texte.Label1.at(i)));
  LblX_mitte_->setText(qText(stand.texte.LblX_mitte));
  LblY_mitte_->setText(qText(stand.texte.LblY_mitte));
  note_->setText(qText(stand.texte.hinweis));
  CmdMehrPunkt_[0]->setEnabled(stand.messenFrei);
  CmdMehrPunkt_[1]->setEnabled(stand.uebernehmenFrei);
  CmdMehrPunkt_[2]->setEnabled(stand.abbrechenFrei);
  picture_->setPicture(stand.bild);
  setFocusToNext(stand);
}

void MultiPointFrame::setFocusToNext(const MehrPunktStand& stand) {
  // A disabled button hands its focus on to Cancel, where the next press would do harm.
  if (stand.messenFrei) {
    CmdMehrPunkt_[0]->setFocus();
  } else if (stand.uebernehmenFrei) {
    CmdMehrPunkt_[1]->setFocus();
  } else {
    setFocus();
  }
}

void MultiPointFrame::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  lieOverTheMiddle();
  raise();
}

bool MultiPointFrame::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) lieOverTheMiddle();
  return QFrame::eventFilter(watched, event);
}

void MultiPointFrame::lieOverTheMiddle() {
  const QRect room = parentWidget()->rect();
  // No wider than what it covers: the numbers beside it stay in sight.
  const QSize wanted = sizeHint().boundedTo(covered_->size()).expandedTo(minimumSizeHint());
  const QSize size = wanted.boundedTo(room.size());
  QRect place(QPoint(), size);
  place.moveCenter(covered_->geometry().center());
  place.moveLeft(std::clamp(place.left(), room.left(), room.right() - size.width() + 1));
  place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - size.height() + 1));
  setGeometry(place);
}

void MultiPointFrame::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(themeColour(ThemeColour::card));
  painter.setPen(QPen(themeColour(ThemeColour::accent), scaled(2)));
  const int margin = scaled(1);
  painter.drawRect(rect().adjusted(margin, margin, -margin - 1, -margin - 1));
}

void MultiPointFrame::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (enter && button != nullptr && button->hasFocus()) {
    button->click();
  } else {
    QFrame::keyPressEvent(event);
  }
}

}  // namespace korvin
