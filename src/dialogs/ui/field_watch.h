#pragma once

#include <QObject>
#include <QVector>
#include <functional>
#include <string>

#include "dialogs/field_check.h"
#include "dialogs/ui/form_rows.h"
#include "frame/ui/text_entry.h"

namespace korvin {

/// Watches the checked entry boxes of a dialog. A box that is left for another control of the dialog is
/// checked if its text was changed; one that fails says why beside it, keeps a red frame and gets the focus
/// back. Leaving the dialog for another window checks nothing.
class FieldWatch : public QObject {
  Q_OBJECT

 public:
  /// Both outlive it.
  FieldWatch(Feldpruefer& pruefer, QWidget& dialog);

  /// `hinweis` shows what the box accepts after it has refused. `immer`: `allePruefen` checks the box even if
  /// its text was not changed.
  void add(TextEntry& feld, Hinweis& hinweis, FeldPruefung pruefung, bool immer = false);
  /// A click on this control checks nothing: it drops the entry, or checks by itself.
  void ausnehmen(const QWidget& control) { frei_.push_back(&control); }
  /// What stands in the boxes now was not entered by the user; until it is changed `allePruefen` asks nothing
  /// of it.
  void gefuellt();

  /// Checks every box that can be entered and whose text was changed, in the order in which they were added;
  /// false at the first that fails, which then has the focus.
  bool allePruefen();

  /// A box is about to get the focus back: brings the page that it stands on to the front.
  std::function<void(const QWidget& feld)> vorholen;
  /// A box has passed its check.
  std::function<void(const QWidget& feld)> bestanden;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Feld {
    TextEntry* feld;
    Hinweis* hinweis;
    FeldPruefung pruefung;
    bool immer;
    std::string gut{};   ///< the text that last needed no check or passed it
    QString gemeldet{};  ///< what `hinweis` was given
  };

  /// True if the focus went to another control of the dialog, and not by a click on one that checks nothing.
  bool verlassen(const QWidget& feld, bool durchKlick) const;
  bool pruefen(Feld& feld);
  bool unveraendert(const Feld& feld) const { return feld.feld->value() == feld.gut; }
  void abweisen(Feld& feld);
  void geaendert(const Feld& feld);
  Feld& suchen(const QWidget& feld);

  Feldpruefer& pruefer_;
  QWidget& dialog_;
  QVector<Feld> felder_;
  QVector<const QWidget*> frei_;
  bool gibtZurueck_ = false;
};

}  // namespace korvin
