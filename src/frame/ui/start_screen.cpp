#include "frame/ui/start_screen.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <array>

#include "frame/ui/icons.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/start_tile.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr std::int16_t textHeading = 7020;
constexpr std::int16_t textHeadingLine = 7021;
constexpr std::int16_t textComesLater = 7030;
constexpr int columns = 3;
constexpr double widest = 1240;
constexpr double tallestTile = 250;

struct TileSpec {
  const char16_t* key;
  const char16_t* picture;
  std::int16_t name;
  std::int16_t line;
};

/// In rows of three; the last one takes a row for itself. To add a kind: one line here, one in the tool bar,
/// one in the menu.
constexpr std::array<TileSpec, 7> specs = {{{u"Geradheit", u"ICON31", 5500, 7022},
                                            {u"Parallelität", u"ICON32", 5501, 7023},
                                            {u"Rechtwinkligkeit", u"ICON35", 5503, 7024},
                                            {u"Position", u"ICON34", 5502, 7025},
                                            {u"GeradheitStatistik", u"ICON36", 5504, 7026},
                                            {u"UmgebungsAnalyse", u"ICON84", 2300, 7027},
                                            {u"DateiOeffnen", u"ICON3", 2036, 7028}}};

QString key(const TileSpec& spec) {
  return QString::fromUtf16(spec.key);
}

}  // namespace

StartScreen::StartScreen(QWidget* parent)
    : QWidget(parent), head_(new QLabel(this)), line_(new QLabel(this)), picture_(new QLabel(this)) {
  // Takes the first focus, so that none of the tiles looks chosen.
  setFocusPolicy(Qt::ClickFocus);
  auto* outer = new QHBoxLayout(this);
  outer->setContentsMargins(scaled(28), scaled(18), scaled(28), scaled(18));
  auto* column = new QWidget(this);
  column->setMaximumWidth(scaled(widest));
  outer->addStretch(1);
  outer->addWidget(column, 1000);
  outer->addStretch(1);
  auto* rows = new QVBoxLayout(column);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addStretch(1);
  buildHead(*rows);
  rows->addSpacing(scaled(18));
  buildTiles(*rows);
  rows->addStretch(2);
}

void StartScreen::buildHead(QVBoxLayout& into) {
  head_->setObjectName(QStringLiteral("Head_Text"));
  line_->setObjectName(QStringLiteral("Head_Line"));
  QPalette soft = line_->palette();
  soft.setColor(QPalette::WindowText, themeColour(ThemeColour::softText));
  line_->setPalette(soft);
  picture_->setPixmap(iconPixmap(QStringLiteral("ICONKORVIN"), scaled(56), devicePixelRatio()));

  auto* words = new QVBoxLayout;
  words->setSpacing(scaled(3));
  words->addWidget(head_);
  words->addWidget(line_);
  auto* row = new QHBoxLayout;
  row->setSpacing(scaled(16));
  row->addWidget(picture_);
  row->addLayout(words, 1);
  into.addLayout(row);
}

void StartScreen::buildTiles(QVBoxLayout& into) {
  auto* grid = new QGridLayout;
  grid->setSpacing(scaled(14));
  for (std::size_t i = 0; i < specs.size(); ++i) {
    const TileSpec& spec = specs.at(i);
    const bool last = i + 1 == specs.size();
    auto* tile = new StartTile(QString::fromUtf16(spec.picture), last, this);
    tile->setObjectName(QStringLiteral("StartTile(%1)").arg(key(spec)));
    connect(tile, &QAbstractButton::clicked, this, [this, name = key(spec)] {
      if (onTile) onTile(name);
    });
    const int place = static_cast<int>(i);
    grid->addWidget(tile, place / columns, place % columns, 1, last ? columns : 1);
    tile->setMaximumHeight(scaled(tallestTile));
    tiles_.insert(key(spec), tile);
  }
  for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
  into.addLayout(grid, 6);
}

void StartScreen::setCaptions(Dictionary& dictionary) {
  // The families follow the language.
  head_->setFont(themeFont(1.85, true));
  line_->setFont(themeFont(1.08));
  head_->setText(qText(dictionary.DicText(textHeading)));
  line_->setText(qText(dictionary.DicText(textHeadingLine)));
  const QString later = qText(dictionary.DicText(textComesLater));
  for (const TileSpec& spec : specs) {
    StartTile* present = tile(key(spec));
    present->setWords(qText(dictionary.DicText(spec.name)), qText(dictionary.DicText(spec.line)));
    present->setReason(present->isEnabled() ? QString() : later);
  }
}

void StartScreen::setKeyEnabled(const QString& key, bool enabled) {
  if (StartTile* present = tile(key)) present->setEnabled(enabled);
}

StartTile* StartScreen::tile(const QString& key) const {
  return tiles_.value(key);
}

}  // namespace korvin
