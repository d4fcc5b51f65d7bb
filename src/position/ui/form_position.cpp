#include "position/ui/form_position.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <array>
#include <utility>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "position/panel_texts.h"

namespace korvin {
namespace {

using Kind = KeyToolBar::Kind;

constexpr int TimerUhrMs = 100;
constexpr std::int16_t TextWartetAufStart = 7224;

/// The toolbar, in its order; a line without a key is a gap between groups.
constexpr std::array<TastenZeile, 24> Tasten = {{{"NEU", "ICON1", Kind::push, "Ctrl+N", 2000},
                                                 {"LOESCHEN", "ICON48", Kind::push, "Ctrl+Del", 2038},
                                                 {"EINRICHTEN", "ICON46", Kind::push, "", 2037},
                                                 {"LADEN", "ICON3", Kind::push, "Ctrl+O", 2002},
                                                 {"SPEICHERN", "ICON2", Kind::push, "Ctrl+S", 2001},
                                                 {"DRUCKEN", "ICON4", Kind::push, "Ctrl+P", 2003},
                                                 {},
                                                 {"STATISTIK", "ICON5", Kind::check, "F2", 2009},
                                                 {"x", "ICON24", Kind::check, "", 2010},
                                                 {"s", "ICON25", Kind::check, "", 2011},
                                                 {"R", "ICON26", Kind::check, "", 2012},
                                                 {"NZOOM", "ICON23", Kind::check, "F8", 2039},
                                                 {"XYAMPL", "ICON6", Kind::check, "F3", 3061},
                                                 {},
                                                 {"MPL", "ICON10", Kind::push, "Left", 2019},
                                                 {"MPR", "ICON9", Kind::push, "Right", 7170},
                                                 {"ALLE", "ICONALLE", Kind::check, "F4", 7171},
                                                 {"OFFSET", "ICONOFFSET", Kind::check, "F9", 7172},
                                                 {},
                                                 {"XYMP1", "ICON81", Kind::check, "F5", 7173},
                                                 {"XYMPN", "ICONXYMPN", Kind::check, "F6", 7174},
                                                 {"XYMPNN", "ICONXYMPNN", Kind::check, "F7", 7175},
                                                 {},
                                                 {"HILFE", "ICONHILFE", Kind::push, "F1", 7176}}};

}  // namespace

FormPosition::FormPosition(const PositionUmgebung& umgebung, QWidget* parent)
    : DatenFenster(umgebung.zyklus, umgebung.MSCommKamera, umgebung.erfassung, umgebung.dienste,
                   QStringLiteral("FormDateiInfoO"), parent),
      p_(umgebung),
      daten_(p_.formpos, p_.erfassung, p_.dateien),
      befehle_(befehlUmgebung(daten_)),
      board_({p_.formpos, p_.erfassung, p_.zyklus.system,
              tastenAnlegen(QStringLiteral("tbrPosition"), Tasten), kopf(), bildAblage()},
             mitte()),
      TimerUhr_(p_.zyklus.timers.create()) {
  setObjectName(QStringLiteral("FormPosition"));
  layoutAnlegen();
  menusAnlegen();
  beschriften();
  TimerUhr_->setInterval(TimerUhrMs);
  TimerUhr_->onTick = [this] { board_.panels().zeigeUhr(qText(panelZeit(p_.zyklus.clock.now()))); };
}

// ---- Building ----

void FormPosition::menusAnlegen() {
  dateiMenu();
  QMenu* messung = messMenu(7185, 7186, 7187);
  messung->addSeparator();
  menuEintrag(
      messung, "M_MessLöschen", 7188, [this] { M_MessLöschen(); }, "LOESCHEN");

  QMenu* ansicht = menuAnlegen("M_Panel", 7190);
  M_xyNumZoom_ = menuEintrag(
      ansicht, "M_xyNumZoom", 7191, [this] { M_xyNumZoom(); }, "NZOOM");
  M_xyNumZoom_->setCheckable(true);
  board_.gitterEintrag(*menuEintrag(ansicht, "M_Gitter", 7192, [] {}));
  ansicht->addSeparator();
  punktListenEintrag(ansicht, [this](bool an) { board_.liste().setVisible(an); });

  verbindungsMenu();
  extrasUndHilfeMenu();
}

void FormPosition::layoutAnlegen() {
  board_.onGeaendert = [this] { neuZeichnen(false); };
  wertfelder = board_.werte();
  tasten().setPressed(QStringLiteral("STATISTIK"), true);
  mitteAnordnen(board_.bild(), 58, board_.panels(), board_.liste());
  board_.liste().setFocus();
}

void FormPosition::beschriften() {
  board_.setTexte(dictionary());
  tasten().setWords(QStringLiteral("XYAMPL"), QStringLiteral("XY-") + dicText(3061));
}

// ---- Showing ----

void FormPosition::ersteAktivierung() {
  p_.erfassung.ersteAktivierung();
  Anzeige_ = true;
  datenZeigen();
  zyklus().M_KVNOnline();
}

void FormPosition::datenZeigen() {
  zyklus().kopfZeigen();
  numZoomZeigen();
  titelZeigen();
  werteAnpassen(Info().NKStellen);
  board_.zeigeNeu();
  neuZeichnen(false);
}

std::string FormPosition::titel() {
  return fensterTitel(Info(), dictionary());
}

void FormPosition::neuZeichnen(bool geaendert) {
  if (!Anzeige_) return;
  if (geaendert) Info().Geaendert = true;
  const PositionsTexte texte = positionsTexte(p_.formpos);
  board_.zeige(texte);
  statusZeigen(texte);
}

void FormPosition::statusZeigen(const PositionsTexte& texte) {
  board_.panels().zeigeStatus(texte);
  const bool plan = texte.StartZeit || texte.StopZeit;
  if (TimerUhr_->enabled() != plan)
    board_.panels().zeigeUhr(plan ? qText(panelZeit(p_.zyklus.clock.now())) : QString());
  TimerUhr_->setEnabled(plan);
  betriebZeigen();
}

void FormPosition::setTasteFrei(const std::string& taste, bool frei) {
  Messfenster::setTasteFrei(taste, frei);
  // A run has begun or ended, and with its end the plan is gone.
  statusZeigen(positionsTexte(p_.formpos));
}

std::int16_t FormPosition::betriebText() {
  const std::int16_t text = Messfenster::betriebText();
  return text == TextLaufend && Info().StartAktiv ? TextWartetAufStart : text;
}

void FormPosition::numZoomZeigen() {
  const auto an = static_cast<bool>(p_.formpos.arbeit().X.NumZoom);
  tasten().setPressed(QStringLiteral("NZOOM"), an);
  M_xyNumZoom_->setChecked(an);
  board_.bild().setNumZoom(an);
}

// ---- Closing ----

void FormPosition::wirdEntladen() {
  TimerUhr_->setEnabled(false);
}

// ---- Commands ----

void FormPosition::taste(const QString& key, bool gedrueckt) {
  if (key == QLatin1String("LOESCHEN")) M_MessLöschen();
  if (key == QLatin1String("STATISTIK")) board_.bild().setStatistik(gedrueckt);
  if (key == QLatin1String("NZOOM")) M_xyNumZoom();
  if (key == QLatin1String("XYAMPL")) board_.bild().setBereichsleiste(gedrueckt);
  board_.taste(key, gedrueckt);
  DatenFenster::taste(key, gedrueckt);
}

void FormPosition::M_MessLöschen() {
  ausserhalbDesTakts([this] {
    p_.erfassung.M_MessLöschen();
    service().leeren();
    datenZeigen();
  });
}

void FormPosition::M_xyNumZoom() {
  PositionsDatei& arbeit = p_.formpos.arbeit();
  const bool an = !arbeit.X.NumZoom;
  arbeit.X.NumZoom = an;
  arbeit.Y.NumZoom = an;
  numZoomZeigen();
}

}  // namespace korvin
