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
constexpr std::int16_t Inch = 1;

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
      punkte_(p_.formpos.punkte(), p_.formpos.arbeit()),
      TimerUhr_(p_.zyklus.timers.create()) {
  setObjectName(QStringLiteral("FormPosition"));
  tastenAnlegen(QStringLiteral("tbrPosition"), Tasten);
  layoutAnlegen();
  menusAnlegen();
  beschriften();
  TimerUhr_->setInterval(TimerUhrMs);
  TimerUhr_->onTick = [this] { panels_->zeigeUhr(qText(panelZeit(p_.zyklus.clock.now()))); };
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
  M_Gitter_ = menuEintrag(ansicht, "M_Gitter", 7192, [this] { M_Gitter(); });
  M_Gitter_->setCheckable(true);
  M_Gitter_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
  ansicht->addSeparator();
  punktListenEintrag(ansicht, [this](bool an) { liste_->setVisible(an); });

  verbindungsMenu();
  extrasUndHilfeMenu();
}

void FormPosition::layoutAnlegen() {
  const auto gewaehlt = [this](int nummer) { cursor(nummer - Info().MPAktuell); };
  bild_ = new DiagramArea(p_.formpos, p_.zyklus.system, bildAblage(), mitte());
  bild_->onChosen = gewaehlt;
  liste_ = new PointList(punkte_, mitte());
  liste_->onChosen = gewaehlt;
  panels_ = new PositionPanels(&kopf(), mitte());
  wertfelder = panels_->werte() + bild_->werte();
  tasten().setPressed(QStringLiteral("STATISTIK"), true);

  mitteAnordnen(*bild_, 58, *panels_, *liste_);
  liste_->setFocus();
}

void FormPosition::beschriften() {
  const QString einheit =
      p_.zyklus.system.Masssystem == Inch ? QStringLiteral("[mil]") : QStringLiteral("[mm]");
  const QString luecke = QStringLiteral(" ");
  punkte_.setHeadings(
      {dicText(7150), dicText(7151), dicText(7152) + luecke + einheit, dicText(7153) + luecke + einheit});
  liste_->setEmptyText(dicText(7155));
  liste_->setAccessibleName(dicText(7154));
  panels_->setTexte(dictionary(), einheit);
  bild_->setTexte(dictionary(), einheit);
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
  const PositionsInfo& info = Info();
  zyklus().kopfZeigen();
  tasten().setPressed(QStringLiteral("OFFSET"), static_cast<bool>(info.OffsetAktiv));
  tasten().setPressed(QStringLiteral("ALLE"), !info.NurAktuell);
  tasten().setPressed(QStringLiteral("x"), static_cast<bool>(info.ZeigeMittel));
  tasten().setPressed(QStringLiteral("s"), static_cast<bool>(info.ZeigeStreuung));
  tasten().setPressed(QStringLiteral("R"), static_cast<bool>(info.ZeigeSpanne));
  M_Gitter_->setChecked(static_cast<bool>(info.Gitter));
  numZoomZeigen();
  titelZeigen();
  werteAnpassen(info.NKStellen);
  liste_->reload();
  bild_->zeigeNeu(positionsTexte(p_.formpos));
  neuZeichnen(false);
}

std::string FormPosition::titel() {
  return fensterTitel(Info(), dictionary());
}

void FormPosition::neuZeichnen(bool geaendert) {
  if (!Anzeige_) return;
  if (geaendert) Info().Geaendert = true;
  const PositionsTexte texte = positionsTexte(p_.formpos);
  panels_->zeigeWerte(texte);
  bild_->zeige(texte);
  liste_->follow();
  statusZeigen(texte);
}

void FormPosition::statusZeigen(const PositionsTexte& texte) {
  panels_->zeigeStatus(texte);
  const bool plan = texte.StartZeit || texte.StopZeit;
  if (TimerUhr_->enabled() != plan)
    panels_->zeigeUhr(plan ? qText(panelZeit(p_.zyklus.clock.now())) : QString());
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
  bild_->setNumZoom(an);
}

// ---- Closing ----

void FormPosition::wirdEntladen() {
  TimerUhr_->setEnabled(false);
}

// ---- Commands ----

void FormPosition::taste(const QString& key, bool gedrueckt) {
  if (key == QLatin1String("LOESCHEN")) M_MessLöschen();
  if (key == QLatin1String("STATISTIK")) bild_->setStatistik(gedrueckt);
  if (key == QLatin1String("x")) schalter(Info().ZeigeMittel, gedrueckt);
  if (key == QLatin1String("s")) schalter(Info().ZeigeStreuung, gedrueckt);
  if (key == QLatin1String("R")) schalter(Info().ZeigeSpanne, gedrueckt);
  if (key == QLatin1String("NZOOM")) M_xyNumZoom();
  if (key == QLatin1String("XYAMPL")) bild_->setBereichsleiste(gedrueckt);
  if (key == QLatin1String("ALLE")) schalter(Info().NurAktuell, !gedrueckt);
  if (key == QLatin1String("MPL")) cursor(-1);
  if (key == QLatin1String("MPR")) cursor(1);
  if (key == QLatin1String("OFFSET")) offset(gedrueckt);
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

void FormPosition::M_Gitter() {
  gitterUmschalten(p_.formpos.arbeit());
  M_Gitter_->setChecked(static_cast<bool>(Info().Gitter));
  neuZeichnen(false);
}

void FormPosition::schalter(Flagge& flagge, bool an) {
  flagge = an;
  neuZeichnen(false);
}

void FormPosition::offset(bool an) {
  const bool genommen = p_.erfassung.offsetSchalten(an);
  tasten().setPressed(QStringLiteral("OFFSET"), an && genommen);
  neuZeichnen(false);
}

void FormPosition::cursor(int schritt) {
  p_.erfassung.cursorBewegen(schritt);
  neuZeichnen(false);
}

}  // namespace korvin
