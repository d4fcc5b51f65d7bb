#include "straightness/ui/convergence_view.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "frame/number_format.h"
#include "frame/ui/icons.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double wantedWidth = 360;
constexpr double wantedHeight = 200;
constexpr double smallestWidth = 200;
constexpr double smallestHeight = 110;
constexpr double handleSide = 18;
constexpr double hintReach = 8;  ///< pixels to both sides of a sample

constexpr std::int16_t TextTitel = 7615;
constexpr std::int16_t TextAusblenden = 7617;
constexpr std::int16_t TextGefordert = 7618;

}  // namespace

// ---- The picture ----

PictureKonvergenz::PictureKonvergenz(const PictureDesk& desk, QWidget* parent)
    : PictureWidget(desk, 0, parent) {
  setObjectName(QStringLiteral("PictureKonvergenz"));
}

QSize PictureKonvergenz::sizeHint() const {
  return {scaled(wantedWidth), scaled(wantedHeight)};
}

QSize PictureKonvergenz::minimumSizeHint() const {
  return {scaled(smallestWidth), scaled(smallestHeight)};
}

void PictureKonvergenz::setPicture(KonvergenzRahmen rahmen, KonvergenzInhalt inhalt) {
  const bool newFrame = !(rahmen == rahmen_);
  rahmen_ = std::move(rahmen);
  inhalt_ = std::move(inhalt);
  if (newFrame) {
    frameChanged();
  } else {
    contentsChanged();
  }
}

void PictureKonvergenz::drawFrame(DrawingSurface& surface) {
  konvergenzRahmenZeichnen(surface, rahmen_);
}

void PictureKonvergenz::drawContents(DrawingSurface& surface) {
  konvergenzInhaltZeichnen(surface, rahmen_, inhalt_);
}

QString PictureKonvergenz::hint(DataPoint at) {
  const std::vector<double>& t = inhalt_.sekunden;
  if (t.empty() || at.x < 0 || at.x > rahmen_.ende) return {};
  auto naechste = std::lower_bound(t.begin(), t.end(), at.x);
  if (naechste == t.end() || (naechste != t.begin() && at.x - *(naechste - 1) < *naechste - at.x)) --naechste;
  const auto vorher = placeOf({at.x, at.y});
  const auto nachher = placeOf({*naechste, at.y});
  if (!vorher || std::abs(vorher->x() - nachher->x()) > hintReach) return {};
  const auto i = static_cast<std::size_t>(naechste - t.begin());
  const auto zeile = [&](const char* name, double wert) {
    return std::string("\n") + name + " \u00B1" + formatNumber(wert, inhalt_.muster) + " " + rahmen_.einheit;
  };
  return qText(formatNumber(*naechste, "0.0") + " s" + zeile("X", inhalt_.K[0].at(i)) +
               zeile("Y", inhalt_.K[1].at(i)));
}

// ---- The view ----

ConvergenceView::ConvergenceView(const PictureDesk& desk, QWidget* parent)
    : QFrame(parent),
      titel_(new QLabel(this)),
      zu_(new QToolButton(this)),
      bild_(new PictureKonvergenz(desk, this)) {
  setObjectName(QStringLiteral("FrmKonvergenz"));
  setAutoFillBackground(true);
  titel_->setObjectName(QStringLiteral("lblKonvergenz"));
  titel_->setTextFormat(Qt::PlainText);
  titel_->setFont(themeFont(1.0, true));
  zu_->setObjectName(QStringLiteral("KonvergenzZu"));
  zu_->setAutoRaise(true);
  zu_->setIcon(icon(QStringLiteral("ICONZU")));
  zu_->setIconSize({scaled(handleSide), scaled(handleSide)});
  connect(zu_, &QToolButton::clicked, this, [this] {
    if (onClosed) onClosed();
  });

  auto* kopf = new QHBoxLayout;
  kopf->setContentsMargins(scaled(4), 0, 0, 0);
  kopf->addWidget(titel_, 1);
  kopf->addWidget(zu_);
  auto* spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(scaled(2));
  spalte->addLayout(kopf);
  spalte->addWidget(bild_, 1);
}

void ConvergenceView::setTexte(Dictionary& dictionary) {
  const QString titel = qText(dictionary.DicText(TextTitel));
  titel_->setText(titel);
  bild_->setTexts();
  bild_->setAccessibleName(titel);
  const QString ausblenden = qText(dictionary.DicText(TextAusblenden));
  zu_->setToolTip(ausblenden);
  zu_->setAccessibleName(ausblenden);
  gefordert_ = dictionary.DicText(TextGefordert);
}

void ConvergenceView::zeige(const AdaptivMessung& messung, const AdaptVorgaben& vorgaben,
                            std::int16_t Masssystem) {
  if (isHidden()) return;
  const KonvergenzZiel ziel = konvergenzZiel(messung.zustand(), vorgaben);
  bild_->setPicture(konvergenzRahmen(ziel, messung.verlauf(), Masssystem, gefordert_),
                    konvergenzInhalt(ziel, messung.verlauf(), Masssystem));
}

}  // namespace korvin
