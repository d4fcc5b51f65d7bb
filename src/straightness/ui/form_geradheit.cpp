#include "straightness/ui/form_geradheit.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>
#include <array>

#include "frame/cp1252.h"
#include "frame/messart.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "frame/zahl_text.h"
#include "straightness/achsen_bereich.h"
#include "straightness/linien_texte.h"
#include "straightness/masseinheit.h"
#include "straightness/punkt_lage.h"

namespace korvin {
namespace {

using Kind = KeyToolBar::Kind;

constexpr std::int16_t TextUngueltig = 6013;
constexpr std::int16_t TextMehrPunkt = 2100;
constexpr std::array<const char*, 4> StatistikTasten = {"x", "s", "R", "t"};

/// The toolbar, in its order; a line without a key is a gap between groups.
constexpr std::array<TastenZeile, 33> Tasten = {{{"NEU", "ICON1", Kind::push, "Ctrl+N", 2000},
                                                 {"EINRICHTEN", "ICON46", Kind::push, "", 2037},
                                                 {"LADEN", "ICON3", Kind::push, "Ctrl+O", 2002},
                                                 {"SPEICHERN", "ICON2", Kind::push, "Ctrl+S", 2001},
                                                 {"DRUCKEN", "ICON4", Kind::push, "Ctrl+P", 2003},
                                                 {},
                                                 {"REF", "ICONREF", Kind::check, "Alt+1", 7500},
                                                 {"REF1", "ICONREF1", Kind::push, "", 7501},
                                                 {"REF2", "ICONREF2", Kind::push, "", 7502},
                                                 {"ISO", "ICONISO", Kind::check, "Alt+2", 7503},
                                                 {"ROH", "ICONROH", Kind::check, "Alt+3", 7504},
                                                 {},
                                                 {"STATISTIK", "ICON5", Kind::check, "F2", 2009},
                                                 {"x", "ICON24", Kind::check, "", 2010},
                                                 {"s", "ICON25", Kind::check, "", 2011},
                                                 {"R", "ICON26", Kind::check, "", 2012},
                                                 {"t", "ICONT", Kind::check, "", 7505},
                                                 {},
                                                 {"XNZOOM", "ICONXNZOOM", Kind::check, "F8", 7506},
                                                 {"YNZOOM", "ICONYNZOOM", Kind::check, "F9", 7507},
                                                 {"XYAMPL", "ICON6", Kind::check, "F3", 3061},
                                                 {"ZMMOD", "ICONZMMOD", Kind::check, "F4", 7508},
                                                 {},
                                                 {"ZL", "ICON10", Kind::push, "Left", 2019},
                                                 {"ZR", "ICON9", Kind::push, "Right", 7170},
                                                 {},
                                                 {"XYMP1", "ICON81", Kind::check, "F5", 7173},
                                                 {"XYMPN", "ICONXYMPN", Kind::check, "F6", 7174},
                                                 {"XYMPNN", "ICONXYMPNN", Kind::check, "F7", 7175},
                                                 {"XYMPKMP", "ICONXYMPKMP", Kind::check, "", 2100},
                                                 {"AUTO_MESSRICHTUNG", "ICON91", Kind::push, "F10", 7509},
                                                 {},
                                                 {"HILFE", "ICONHILFE", Kind::push, "F1", 7176}}};

}  // namespace

FormGeradheit::FormGeradheit(const GeradUmgebung& umgebung, QWidget* parent)
    : DatenFenster(umgebung.zyklus, umgebung.MSCommKamera, umgebung.erfassung, umgebung.dienste,
                   QStringLiteral("FormDateiInfoG"), parent),
      p_(umgebung),
      daten_(p_.formgera, p_.dateien, p_.zyklus.profil, p_.zyklus.system),
      befehle_(befehlUmgebung(daten_)),
      x_{reihe().X},
      y_{reihe().Y},
      punkte_(reihe(), x_.daten, y_.daten, Masssystem()),
      fehlerFrage_(QStringLiteral("FormAdaptFehlerG"), umgebung.zyklus.dictionary,
                   umgebung.zyklus.system.Masssystem, this) {
  setObjectName(QStringLiteral("FormGeradheit"));
  tastenAnlegen(QStringLiteral("tbrGeradheit"), Tasten);
  tasten().setDense();
  layoutAnlegen();
  menusAnlegen();
  beschriften();
  zmmod(false);
  p_.erfassung.setAdaptFehlerFrage(&fehlerFrage_);
}

FormGeradheit::~FormGeradheit() {
  p_.erfassung.setAdaptFehlerFrage(nullptr);
}

// ---- Building ----

void FormGeradheit::menusAnlegen() {
  dateiMenu();
  messMenu(7185, 7530, 7531);

  QMenu* ansicht = menuAnlegen("M_Panel", 7190);
  const auto schalter = [&](const char* name, std::int16_t text, std::function<void()> befehl,
                            const char* key) {
    QAction* eintrag = menuEintrag(ansicht, name, text, std::move(befehl), key);
    eintrag->setCheckable(true);
    return eintrag;
  };
  M_xNumZoom_ = schalter(
      "M_xNumZoom", 7532, [this] { M_NumZoom(x_); }, "XNZOOM");
  M_yNumZoom_ = schalter(
      "M_yNumZoom", 7533, [this] { M_NumZoom(y_); }, "YNZOOM");
  M_Gitter_ = schalter(
      "M_Gitter", 7192, [this] { M_Gitter(); }, nullptr);
  M_Gitter_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
  ansicht->addSeparator();
  punktListenEintrag(ansicht, [this](bool an) {
    unten_->setListWanted(an);
    konvergenzZeigen();
  });
  M_Konvergenz_ = schalter(
      "M_Konvergenz", 7616, [this] { M_Konvergenz(M_Konvergenz_->isChecked()); }, nullptr);

  verbindungsMenu();
  extrasUndHilfeMenu();
}

void FormGeradheit::layoutAnlegen() {
  liste_ = new PointList(punkte_, mitte());
  liste_->onChosen = [this](int nummer) {
    PunktWechseln(reihe().Linie, nummer - reihe().Linie.AktMP);
    neuZeichnen(false);
  };
  konvergenz_ = new ConvergenceView(bildAblage(), mitte());
  konvergenz_->onClosed = [this] { M_Konvergenz(false); };
  unten_ = new ListPane(liste_, konvergenz_, mitte());
  panels_ = new LinePanels(&kopf(), mitte());
  panels_->onZ = [this](const std::string& text) { zEingabe(text); };

  auto* links = new QWidget(mitte());
  auto* bilder = new QVBoxLayout(links);
  bilder->setContentsMargins(0, 0, 0, 0);
  bilder->setSpacing(scaled(8));
  bilder->addWidget(bildAnlegen(QStringLiteral("X"), x_), 1);
  bilder->addWidget(bildAnlegen(QStringLiteral("Y"), y_), 1);
  wertfelder = panels_->werte() + QVector<ValuePanel*>{x_.bild->wert(), y_.bild->wert()};

  mitteAnordnen(*links, 62, *panels_, *unten_);
  mehrPunktAnlegen(links);
  liste_->setFocus();
}

void FormGeradheit::mehrPunktAnlegen(QWidget* bilder) {
  rahmen_ = new MultiPointFrame(bildAblage(), bilder, mitte());
  mehrPunktAnsicht_ = std::make_unique<MultiPointHost>(MultiPointPlace{
      *this, tasten(), *rahmen_, {bilder, liste_}, [this](bool offen) { mehrPunktOffen(offen); }});
  mehrPunkt_ = std::make_unique<MehrPunktAblauf>(
      MehrPunktUmgebung{p_.zyklus, p_.erfassung, zyklus(), *this, *mehrPunktAnsicht_});
  rahmen_->onButton = [this](int index) { mehrPunkt_->CmdMehrPunkt(index); };
  rahmen_->onPositions = [this](std::int16_t positionen) { mehrPunkt_->setMehrPunktSoll(positionen); };
}

AxisArea* FormGeradheit::bildAnlegen(const QString& name, Achse& achse) {
  achse.bild = new AxisArea(name, bildAblage(), mitte());
  achse.bild->onRangeKey = [this, &achse](const std::string& key) {
    bereichsTaste(achse.messung, key, Masssystem());
    neuZeichnen(false);
  };
  PictureAchsenDiagramm& diagramm = achse.bild->diagramm();
  diagramm.onPressed = [this](double z) { druck(z); };
  diagramm.onDragged = [this](double z) {
    if (!gehalten_) return;
    zeiger(AxisPointer::drag);
    verschieben(*gehalten_, z);
  };
  diagramm.onShifted = [this](double dz) {
    if (gehalten_) verschieben(*gehalten_, ZWert(reihe().Linie, *gehalten_) + dz);
  };
  diagramm.onReleased = [this] { loslassen(); };
  diagramm.hintOf = [this, &achse, name = utf8Text(name)](std::int16_t punkt) {
    return punktHinweis(achsenQuelle(reihe(), achse.messung, Masssystem()), achse.daten,
                        achsenSchalter(Info(), Masssystem()), name, punkt);
  };
  return achse.bild;
}

void FormGeradheit::beschriften() {
  const bool inch = Masssystem() == MasssystemInch;
  const QString einheit = inch ? QStringLiteral("[mil]") : QStringLiteral("[mm]");
  const QString luecke = QStringLiteral(" ");
  punkte_.setHeadings({dicText(3066), QStringLiteral("Z ") + (inch ? QStringLiteral("[in]") : einheit),
                       QStringLiteral("X ") + einheit, QStringLiteral("Y ") + einheit});
  liste_->setAccessibleName(dicText(7154));
  konvergenz_->setTexte(dictionary());
  panels_->setTexte(dictionary(), einheit);
  x_.bild->setTexte(dictionary(), einheit);
  y_.bild->setTexte(dictionary(), einheit);
  rahmen_->setTexte(dictionary(), einheit);
  tasten().setWords(QStringLiteral("XYAMPL"), QStringLiteral("XY-") + dicText(3061));
}

// ---- Showing ----

void FormGeradheit::ersteAktivierung() {
  p_.erfassung.ersteAktivierung();
  Anzeige_ = true;
  setWertFarbe(FarbeWeiss);
  datenZeigen();
  zyklus().M_KVNOnline();
}

void FormGeradheit::datenZeigen() {
  mehrPunkt_->verwerfen();
  p_.erfassung.filterVorgeben();
  einstellungenZeigen();
}

void FormGeradheit::einstellungenZeigen() {
  zmmod(tasten().isPressed(QStringLiteral("ZMMOD")));
  p_.erfassung.einstellungenLesen();
  zyklus().kopfZeigen();
  richtungZeigen();
  auswertungZeigen();
  const std::array<bool, 4> an = {
      static_cast<bool>(Info().ZeigeMittel), static_cast<bool>(Info().ZeigeStreuung),
      static_cast<bool>(Info().ZeigeSpanne), static_cast<bool>(Info().ZeigeAbschnitt)};
  for (std::size_t i = 0; i < an.size(); ++i)
    tasten().setPressed(QString::fromLatin1(StatistikTasten.at(i)), an.at(i));
  statistikTasten(an[0] || an[1] || an[2] || an[3] || tasten().isPressed(QStringLiteral("STATISTIK")));
  M_Gitter_->setChecked(static_cast<bool>(Info().Gitter));
  M_Konvergenz_->setChecked(flagAusText(p_.zyklus.profil.wert(KonvergenzAnzeige)));
  unten_->setViewWanted(M_Konvergenz_->isChecked());
  numZoomZeigen();
  titelZeigen();
  werteAnpassen(Info().NKStellen);
  rahmenVerwerfen();
  neuZeichnen(false);
  liste_->reload();
}

std::string FormGeradheit::titel() {
  const std::string art = MessartTitel(dictionary(), MessartGeradheit);
  // A new series has the mask of its kind for a name.
  return Info().DateiStatus == DateiNeu ? art : art + " [" + vonCp1252(Info().DateiName.trimmed()) + "]";
}

void FormGeradheit::auswertungZeigen() {
  tasten().setPressed(QStringLiteral("REF"), Info().Auswertung == AuswertungREF);
  tasten().setPressed(QStringLiteral("ISO"), Info().Auswertung == AuswertungISO);
  tasten().setPressed(QStringLiteral("ROH"),
                      Info().Auswertung != AuswertungREF && Info().Auswertung != AuswertungISO);
  for (const char* key : {"REF1", "REF2"})
    tasten().setKeyVisible(QString::fromLatin1(key), p_.erfassung.referenztastenSichtbar());
}

void FormGeradheit::statistikTasten(bool sichtbar) {
  tasten().setPressed(QStringLiteral("STATISTIK"), sichtbar);
  for (const char* key : StatistikTasten) tasten().setKeyVisible(QString::fromLatin1(key), sichtbar);
}

void FormGeradheit::richtungZeigen() {
  const QString key = QStringLiteral("AUTO_MESSRICHTUNG");
  tasten().setKeyEnabled(key, p_.erfassung.BiDi_Messen());
  tasten().setKeyVisible(key, p_.erfassung.BiDi_Messen());
  tasten().setPicture(key, qText(p_.erfassung.richtungsBild()));
}

void FormGeradheit::numZoomZeigen() {
  const auto x = static_cast<bool>(reihe().X.NumZoom);
  const auto y = static_cast<bool>(reihe().Y.NumZoom);
  tasten().setPressed(QStringLiteral("XNZOOM"), x);
  tasten().setPressed(QStringLiteral("YNZOOM"), y);
  M_xNumZoom_->setChecked(x);
  M_yNumZoom_->setChecked(y);
  // A big number takes the room of the other axis' diagram.
  x_.bild->setAnsicht(!y, x);
  y_.bild->setAnsicht(!x, y);
}

void FormGeradheit::konvergenzZeigen() {
  konvergenz_->zeige(p_.erfassung.adaptMessung(), reihe().Adapt, Masssystem());
}

void FormGeradheit::zeigeAdaptProgress(const std::optional<Fortschritt>& fortschritt) {
  DatenFenster::zeigeAdaptProgress(fortschritt);
  unten_->setSampling(fortschritt.has_value());
  konvergenzZeigen();
}

void FormGeradheit::rahmenVerwerfen() {
  reihe().X.BereichAlt = 0;
  reihe().Y.BereichAlt = 0;
}

void FormGeradheit::neuZeichnen(bool geaendert) {
  if (!Anzeige_) return;
  if (geaendert) Info().Geaendert = true;
  const LinienTexte texte = linienTexte(reihe().Linie, Masssystem());
  achseZeigen(x_, texte.XName);
  achseZeigen(y_, texte.YName);
  panels_->zeige(texte, x_.daten.texte, y_.daten.texte);
  liste_->follow();
  unten_->setAdaptive(p_.erfassung.AutoAdapt());
  const std::string bild(p_.erfassung.einzelBild());
  if (std::exchange(einzelBild_, bild) != bild) tasten().setPicture(QStringLiteral("XYMP1"), qText(bild));
}

void FormGeradheit::achseZeigen(Achse& achse, const std::string& name) {
  achse.daten = achseBerechnen(reihe(), achse.messung, Masssystem());
  const AchsenQuelle quelle = achsenQuelle(reihe(), achse.messung, Masssystem());
  achse.bild->diagramm().setPicture(achsenRahmen(quelle, achse.daten, static_cast<bool>(Info().Gitter)),
                                    achsenInhalt(quelle, achse.daten, achsenSchalter(Info(), Masssystem())),
                                    rahmenVeraltet(achse.messung));
  achse.bild->zeige(name, achse.daten, achse.messung.Bereichsart);
}

// ---- Keys ----

void FormGeradheit::taste(const QString& key, bool gedrueckt) {
  if (key == QLatin1String("ZL") || key == QLatin1String("ZR")) {
    PunktWechseln(reihe().Linie, key == QLatin1String("ZL") ? -1 : 1);
    neuZeichnen(false);
  } else if (auswertungsTaste(key) || anzeigeTaste(key, gedrueckt)) {
    neuZeichnen(false);
  } else if (key == QLatin1String("XYMPKMP")) {
    mehrPunkt_->XYMPKMP();
    tasten().setPressed(key, mehrPunkt_->offen());
  } else {
    DatenFenster::taste(key, gedrueckt);
  }
}

bool FormGeradheit::auswertungsTaste(const QString& key) {
  GeradErfassung& erfassung = p_.erfassung;
  if (key == QLatin1String("REF")) {
    erfassung.REF();
  } else if (key == QLatin1String("ISO")) {
    erfassung.ISO();
  } else if (key == QLatin1String("ROH")) {
    erfassung.ROH();
  } else if (key == QLatin1String("REF1")) {
    erfassung.REF1();
  } else if (key == QLatin1String("REF2")) {
    erfassung.REF2();
  } else {
    return false;
  }
  // Also where nothing changed: a click on the pressed key must not release it.
  auswertungZeigen();
  return true;
}

bool FormGeradheit::anzeigeTaste(const QString& key, bool gedrueckt) {
  if (key == QLatin1String("STATISTIK")) {
    statistikTasten(gedrueckt);
  } else if (key == QLatin1String("x")) {
    Info().ZeigeMittel = gedrueckt;
  } else if (key == QLatin1String("s")) {
    Info().ZeigeStreuung = gedrueckt;
  } else if (key == QLatin1String("R")) {
    Info().ZeigeSpanne = gedrueckt;
  } else if (key == QLatin1String("t")) {
    Info().ZeigeAbschnitt = gedrueckt;
  } else if (key == QLatin1String("XNZOOM")) {
    M_NumZoom(x_);
  } else if (key == QLatin1String("YNZOOM")) {
    M_NumZoom(y_);
  } else if (key == QLatin1String("XYAMPL")) {
    x_.bild->setBereichsleiste(gedrueckt);
    y_.bild->setBereichsleiste(gedrueckt);
  } else if (key == QLatin1String("ZMMOD")) {
    zmmod(gedrueckt);
  } else if (key == QLatin1String("AUTO_MESSRICHTUNG")) {
    p_.erfassung.AUTO_MESSRICHTUNG();
    richtungZeigen();
  } else {
    return false;
  }
  return true;
}

void FormGeradheit::M_NumZoom(Achse& achse) {
  achse.messung.NumZoom = !achse.messung.NumZoom;
  achse.messung.BereichAlt = 0;
  numZoomZeigen();
  neuZeichnen(false);
}

void FormGeradheit::M_Gitter() {
  Info().Gitter = !Info().Gitter;
  M_Gitter_->setChecked(static_cast<bool>(Info().Gitter));
  rahmenVerwerfen();
  neuZeichnen(false);
}

void FormGeradheit::M_Konvergenz(bool an) {
  p_.zyklus.profil.schreiben(KonvergenzAnzeige, an ? "-1" : "0");
  M_Konvergenz_->setChecked(an);
  unten_->setViewWanted(an);
  konvergenzZeigen();
}

// ---- Multi-point measuring ----

void FormGeradheit::mehrPunktOffen(bool offen) {
  zmmod(!offen && tasten().isPressed(QStringLiteral("ZMMOD")));
  for (Achse* achse : {&x_, &y_})
    if (offen && achse->messung.NumZoom) M_NumZoom(*achse);
  betriebZeigen();
}

std::int16_t FormGeradheit::betriebText() {
  const std::int16_t text = DatenFenster::betriebText();
  return text == TextBereit && mehrPunkt_->offen() ? TextMehrPunkt : text;
}

bool FormGeradheit::schliessenErlaubt() {
  return mehrPunkt_->darfSchliessen([this] { return DatenFenster::schliessenErlaubt(); });
}

// ---- Points moved along the line ----

void FormGeradheit::zmmod(bool an) {
  gehalten_.reset();
  panels_->setZFrei(an);
  zeiger(an ? AxisPointer::move : AxisPointer::choose);
}

void FormGeradheit::zeiger(AxisPointer pointer) {
  x_.bild->diagramm().setPointer(pointer);
  y_.bild->diagramm().setPointer(pointer);
}

void FormGeradheit::druck(double z) {
  LinienGeometrie& linie = reihe().Linie;
  if (const auto punkt = punktBei(linie, z)) PunktWechseln(linie, *punkt - linie.AktMP);
  if (tasten().isPressed(QStringLiteral("ZMMOD"))) gehalten_ = ziehbarerPunktBei(linie, z);
  neuZeichnen(false);
}

void FormGeradheit::loslassen() {
  if (!gehalten_) return;
  gehalten_.reset();
  zeiger(AxisPointer::move);
  neuZeichnen(false);
  p_.zyklus.messages.beep();
}

void FormGeradheit::verschieben(std::int16_t punkt, double z) {
  p_.erfassung.punktVersetzen(punkt, z);
  neuZeichnen(true);
}

void FormGeradheit::zEingabe(const std::string& text) {
  const auto z = zEingegeben(text, Masssystem());
  if (z) {
    verschieben(reihe().Linie.AktMP, *z);
    // Where the point did not move the box would go on showing what was typed.
    panels_->zVerwerfen();
    return;
  }
  p_.zyklus.meldung = {MessartTitel(dictionary(), MessartGeradheit), dictionary().DicText(TextUngueltig)};
  p_.zyklus.messages.beep();
  p_.zyklus.messages.show(p_.zyklus.meldung, MessageIcon::warning, MessageButtons::ok);
  panels_->zVerwerfen();
}

}  // namespace korvin
