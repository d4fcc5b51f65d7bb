#include "environment/ui/form_umgebungs_analyse.h"

#include <QMenu>
#include <QProgressBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "frame/messordner.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

using Kind = KeyToolBar::Kind;

constexpr std::int16_t TextTitel = 2300;
constexpr std::int16_t TextAnalyse = 7710;
constexpr std::int16_t TextFertig = 7711;
constexpr std::int16_t TextStart = 7712;
constexpr std::int16_t TextFx = 7713;
constexpr std::int16_t TextOhne = 7714;
constexpr std::int16_t TextFortschritt = 7718;
constexpr std::array<const char*, 4> StatistikTasten = {"x", "s", "R", "Fx"};

constexpr TastenZeile ohne(const char* key, const char* picture, Kind kind, std::int16_t text) {
  return {key, picture, kind, "", text, false, TextOhne};
}

/// The toolbar, in its order: that of position measuring, and Fx. Keys of jobs that an analysis does not have
/// stand disabled.
constexpr std::array<TastenZeile, 25> Tasten = {{ohne("NEU", "ICON1", Kind::push, 2000),
                                                 {"LOESCHEN", "ICON48", Kind::push, "Ctrl+Del", 7717},
                                                 ohne("EINRICHTEN", "ICON46", Kind::push, 2037),
                                                 ohne("LADEN", "ICON3", Kind::push, 2002),
                                                 ohne("SPEICHERN", "ICON2", Kind::push, 2001),
                                                 ohne("DRUCKEN", "ICON4", Kind::push, 2003),
                                                 {},
                                                 {"STATISTIK", "ICON5", Kind::check, "F2", 2009},
                                                 {"x", "ICON24", Kind::check, "", 2010},
                                                 {"s", "ICON25", Kind::check, "", 2011},
                                                 {"R", "ICON26", Kind::check, "", 2012},
                                                 {"Fx", "ICONFX", Kind::check, "", TextFx},
                                                 ohne("NZOOM", "ICON23", Kind::check, 2039),
                                                 ohne("XYAMPL", "ICON6", Kind::check, 3061),
                                                 {},
                                                 {"MPL", "ICON10", Kind::push, "Left", 2019},
                                                 {"MPR", "ICON9", Kind::push, "Right", 7170},
                                                 {"ALLE", "ICONALLE", Kind::check, "F4", 7171},
                                                 {"OFFSET", "ICONOFFSET", Kind::check, "F9", 7172},
                                                 {},
                                                 ohne("XYMP1", "ICON81", Kind::check, 7173),
                                                 ohne("XYMPN", "ICONXYMPN", Kind::check, 7174),
                                                 {"XYMPNN", "ICONXYMPNN", Kind::check, "F7", TextStart},
                                                 {},
                                                 ohne("HILFE", "ICONHILFE", Kind::push, 7176)}};

}  // namespace

FormUmgebungsAnalyse::FormUmgebungsAnalyse(const UmgebungsUmgebung& umgebung, QWidget* parent)
    : Messfenster(umgebung.zyklus, umgebung.MSCommKamera, umgebung.erfassung, parent),
      p_(umgebung),
      board_({p_.formpos, p_.erfassung, p_.zyklus.system,
              tastenAnlegen(QStringLiteral("tbrPosition"), Tasten), kopf(), bildAblage("XY")},
             mitte()) {
  setObjectName(QStringLiteral("FormUmgebungsAnalyse"));
  layoutAnlegen();
  menusAnlegen();
  beschriften();
}

// ---- Building ----

void FormUmgebungsAnalyse::layoutAnlegen() {
  board_.onGeaendert = [this] { neuZeichnen(false); };
  wertfelder = board_.werte();
  FrmAdaptSet_ = new FrmAdaptSet(p_.erfassung.adaptSet(), bildAblage("Fx"), mitte());
  FrmAdaptSet_->onGespeichert = [this] { M_MessLöschen(); };

  listenPlatz_ = new QWidget(mitte());
  auto* platz = new QVBoxLayout(listenPlatz_);
  platz->setContentsMargins(0, 0, 0, 0);
  platz->addWidget(&board_.liste());
  unten_ = new QWidget(mitte());
  auto* spalte = new QVBoxLayout(unten_);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->addWidget(FrmAdaptSet_, 1);
  spalte->addWidget(listenPlatz_, 1);
  mitteAnordnen(board_.bild(), 58, board_.panels(), *unten_);
  board_.liste().setFocus();
}

void FormUmgebungsAnalyse::menusAnlegen() {
  dateiMenu({.neu = [this] { M_MessLöschen(); }});
  QMenu* messung = messMenu(7185, 7186, 7715);
  messung->addSeparator();
  menuEintrag(
      messung, "M_MessLöschen", 7716, [this] { M_MessLöschen(); }, "LOESCHEN");

  QMenu* ansicht = menuAnlegen("M_Panel", 7190);
  menuEintrag(
      ansicht, "M_xyNumZoom", 7191, [] {}, "NZOOM");
  board_.gitterEintrag(*menuEintrag(ansicht, "M_Gitter", 7192, [] {}));
  ansicht->addSeparator();
  punktListenEintrag(ansicht, [this](bool an) { listeSchalten(an); });

  verbindungsMenu();
  menuEintrag(
      menuAnlegen("M_Extras", 1025), "M_EinrichtInfo", 7189, [] {}, "EINRICHTEN");
  QAction* hilfe = menuEintrag(menuAnlegen("M_HilfeMenu", 1052), "M_Hilfe", 7043, [this] {
    if (p_.dienste.hilfe) p_.dienste.hilfe();
  });
  hilfe->setShortcut(Qt::Key_F1);
}

void FormUmgebungsAnalyse::beschriften() {
  board_.setTexte(dictionary());
  FrmAdaptSet_->setTexte(dictionary());
  auto* fortschritt = findChild<QProgressBar*>(QStringLiteral("AdaptProgress"));
  fortschritt->setToolTip(dicText(TextFortschritt));
  fortschritt->setAccessibleName(dicText(TextFortschritt));
  tasten().setWords(QStringLiteral("XYAMPL"),
                    QStringLiteral("XY-") + dicText(3061) + QLatin1Char('\n') + dicText(TextOhne));
  setWindowTitle(dicText(TextTitel));
}

PictureDesk FormUmgebungsAnalyse::bildAblage(const char* name) {
  PictureDesk ablage{p_.dienste.fileDialog, umgebung().messages, dictionary(), p_.dienste.fileSystem, {}, {}};
  ablage.folder = [this] { return MessOrdner(p_.zyklus.profil, p_.zyklus.system); };
  ablage.name = [name] { return std::string(name); };
  return ablage;
}

// ---- Showing ----

void FormUmgebungsAnalyse::ersteAktivierung() {
  p_.erfassung.ersteAktivierung(*this);
  Anzeige_ = true;
  zyklus().kopfZeigen();
  werteAnpassen(p_.erfassung.nkStellen());
  statistikTasten(true);
  zeigeErgebnis();
  zeigeGeleert();
  zyklus().M_KVNOnline();
}

void FormUmgebungsAnalyse::zeigeGeleert() {
  tasten().setPressed(QStringLiteral("Fx"), true);
  board_.zeigeNeu();
  neuZeichnen(false);
}

void FormUmgebungsAnalyse::neuZeichnen(bool /*geaendert*/) {
  if (!Anzeige_) return;
  const PositionsTexte texte = positionsTexte(p_.formpos);
  board_.zeige(texte);
  board_.panels().zeigeStatus(texte);
  betriebZeigen();
}

void FormUmgebungsAnalyse::zeigeFortschritt(std::optional<int> sekunden) {
  if (sekunden) {
    zeigeAdaptProgress(Fortschritt{AnalyseDauer, std::clamp(*sekunden, 0, AnalyseDauer)});
  } else {
    zeigeAdaptProgress(std::nullopt);
  }
}

void FormUmgebungsAnalyse::zeigeErgebnis() {
  const AdaptSet& ergebnis = p_.erfassung.adaptSet();
  const bool da = ergebnis.sichtbar();
  const bool neu = listenPlatz_->isHidden() != da;
  if (neu && da) teilungMerken();
  listenPlatz_->setVisible(!da);
  unten_->setVisible(da || listeGewuenscht());
  FrmAdaptSet_->zeigen();
  if (neu) platzGeben(da);
  PictureStatistik& statistik = board_.bild().statistik();
  if (da) {
    statistik.zeigeMaxima(ergebnis.unsicherheit().MaxFxText(), ergebnis.unsicherheit().MaxFyText());
  } else {
    statistik.zeigeMaxima({}, {});
  }
  betriebZeigen();
}

void FormUmgebungsAnalyse::listeSchalten(bool an) {
  const bool ergebnis = p_.erfassung.adaptSet().sichtbar();
  if (!ergebnis) teilungMerken();
  board_.liste().setVisible(an);
  // Nothing below the panels: these take the room.
  unten_->setVisible(an || ergebnis);
}

bool FormUmgebungsAnalyse::listeGewuenscht() {
  return !board_.liste().isHidden();
}

void FormUmgebungsAnalyse::teilungMerken() {
  if (!unten_->isHidden()) teilung_ = teiler().sizes();
}

void FormUmgebungsAnalyse::platzGeben(bool ergebnis) {
  if (ergebnis) {
    const int gewuenscht = FrmAdaptSet_->sizeHint().height();
    teiler().setSizes({teiler().height() - gewuenscht, gewuenscht});
  } else {
    teiler().setSizes(teilung_);
  }
}

QSplitter& FormUmgebungsAnalyse::teiler() {
  return *qobject_cast<QSplitter*>(unten_->parentWidget());
}

void FormUmgebungsAnalyse::setStartFrei(bool frei) {
  setTasteFrei("XYMPNN", frei);
}

std::int16_t FormUmgebungsAnalyse::betriebText() {
  const std::int16_t text = Messfenster::betriebText();
  if (text == TextSchnell) return TextAnalyse;
  return text == TextBereit && p_.erfassung.fertig() ? TextFertig : text;
}

void FormUmgebungsAnalyse::statistikTasten(bool sichtbar) {
  tasten().setPressed(QStringLiteral("STATISTIK"), sichtbar);
  for (const char* key : StatistikTasten) tasten().setKeyVisible(QString::fromLatin1(key), sichtbar);
}

// ---- Commands ----

void FormUmgebungsAnalyse::taste(const QString& key, bool gedrueckt) {
  if (key == QLatin1String("LOESCHEN")) M_MessLöschen();
  if (key == QLatin1String("STATISTIK")) statistikTasten(gedrueckt);
  // A key without a function: it shows its own state, and all is drawn.
  if (key == QLatin1String("Fx")) neuZeichnen(false);
  board_.taste(key, gedrueckt);
}

void FormUmgebungsAnalyse::messtasteGedrueckt() {
  // Between a clear and the end of its run the request to cancel stays.
  if (!zyklus().laeuft()) p_.erfassung.startVerlangt();
}

void FormUmgebungsAnalyse::M_MessLöschen() {
  if (zyklus().Schliessen()) return;
  p_.erfassung.abbruchVerlangen();
  ausserhalbDesTakts([this] {
    service().leeren();
    p_.erfassung.leeren();
  });
}

}  // namespace korvin
