#include "position/ui/position_board.h"

#include "frame/ui/qt_text.h"

namespace korvin {
namespace {

constexpr std::int16_t Inch = 1;

}  // namespace

PositionBoard::PositionBoard(const BoardUmgebung& umgebung, QWidget* parent)
    : u_(umgebung),
      punkte_(u_.formpos.punkte(), u_.formpos.arbeit()),
      bild_(new DiagramArea(u_.formpos, u_.system, u_.ablage, parent)),
      liste_(new PointList(punkte_, parent)),
      panels_(new PositionPanels(&u_.kopf, parent)) {
  const auto gewaehlt = [this](int nummer) { cursor(nummer - Info().MPAktuell); };
  bild_->onChosen = gewaehlt;
  liste_->onChosen = gewaehlt;
}

void PositionBoard::setTexte(Dictionary& dictionary) {
  const auto text = [&dictionary](std::int16_t id) { return qText(dictionary.DicText(id)); };
  const QString einheit = u_.system.Masssystem == Inch ? QStringLiteral("[mil]") : QStringLiteral("[mm]");
  const QString luecke = QStringLiteral(" ");
  punkte_.setHeadings({text(7150), text(7151), text(7152) + luecke + einheit, text(7153) + luecke + einheit});
  liste_->setEmptyText(text(7155));
  liste_->setAccessibleName(text(7154));
  panels_->setTexte(dictionary, einheit);
  bild_->setTexte(dictionary, einheit);
}

void PositionBoard::gitterEintrag(QAction& eintrag) {
  M_Gitter_ = &eintrag;
  eintrag.setCheckable(true);
  eintrag.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
  QObject::connect(&eintrag, &QAction::triggered, bild_, [this] { M_Gitter(); });
}

// ---- Showing ----

void PositionBoard::zeigeNeu() {
  const PositionsInfo& info = Info();
  u_.tasten.setPressed(QStringLiteral("OFFSET"), static_cast<bool>(info.OffsetAktiv));
  u_.tasten.setPressed(QStringLiteral("ALLE"), !info.NurAktuell);
  u_.tasten.setPressed(QStringLiteral("x"), static_cast<bool>(info.ZeigeMittel));
  u_.tasten.setPressed(QStringLiteral("s"), static_cast<bool>(info.ZeigeStreuung));
  u_.tasten.setPressed(QStringLiteral("R"), static_cast<bool>(info.ZeigeSpanne));
  if (M_Gitter_ != nullptr) M_Gitter_->setChecked(static_cast<bool>(info.Gitter));
  liste_->reload();
  bild_->zeigeNeu(positionsTexte(u_.formpos));
}

void PositionBoard::zeige(const PositionsTexte& texte) {
  panels_->zeigeWerte(texte);
  bild_->zeige(texte);
  liste_->follow();
}

void PositionBoard::geaendert() {
  if (onGeaendert) onGeaendert();
}

// ---- Keys ----

void PositionBoard::taste(const QString& key, bool gedrueckt) {
  if (key == QLatin1String("x")) schalter(Info().ZeigeMittel, gedrueckt);
  if (key == QLatin1String("s")) schalter(Info().ZeigeStreuung, gedrueckt);
  if (key == QLatin1String("R")) schalter(Info().ZeigeSpanne, gedrueckt);
  if (key == QLatin1String("ALLE")) schalter(Info().NurAktuell, !gedrueckt);
  if (key == QLatin1String("MPL")) cursor(-1);
  if (key == QLatin1String("MPR")) cursor(1);
  if (key == QLatin1String("OFFSET")) offset(gedrueckt);
}

void PositionBoard::schalter(Flagge& flagge, bool an) {
  flagge = an;
  geaendert();
}

void PositionBoard::offset(bool an) {
  const bool genommen = u_.erfassung.offsetSchalten(an);
  u_.tasten.setPressed(QStringLiteral("OFFSET"), an && genommen);
  geaendert();
}

void PositionBoard::cursor(int schritt) {
  u_.erfassung.cursorBewegen(schritt);
  geaendert();
}

void PositionBoard::M_Gitter() {
  gitterUmschalten(u_.formpos.arbeit());
  M_Gitter_->setChecked(static_cast<bool>(Info().Gitter));
  geaendert();
}

}  // namespace korvin
