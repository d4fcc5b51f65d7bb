#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "frame/dictionary.h"
#include "straightness/adapt_fehler.h"

namespace korvin {

/// `FormAdaptFehlerG`, and its siblings of other kinds of line: an adaptive point whose time is up without
/// the required accuracy. Shows what was asked for and what was reached, and proposes a longer measuring
/// time: `CmdAdaptCont(0)` takes it, `CmdAdaptCont(1)`, the Escape key and the corner give the point up.
/// `lblAdaptMsg(n)` are its words, `lblSollX`, `lblIstX`, `lblSollY`, `lblIstY` the values.
class FormAdaptFehler : public QDialog {
  Q_OBJECT
 public:
  /// `name` is the kind's, "FormAdaptFehlerG". `fehler` outlives the dialog. `Masssystem` 1 is inch.
  FormAdaptFehler(AdaptFehler& fehler, const QString& name, Dictionary& dictionary, std::int16_t Masssystem,
                  QWidget* parent = nullptr);

  /// The button that ended the dialog, 0 or 1.
  int knopf() const { return knopf_; }

 private:
  QLabel* meldung(int index, QWidget* parent);
  QWidget* kopf();
  QWidget* werte(std::int16_t Masssystem);
  void achsenZeile(QGridLayout& grid, int zeile, int index, const QString& achse, const AdaptWertText& soll,
                   const AdaptWertText& ist);
  QWidget* knoepfe(bool moeglich);

  AdaptFehlerTexte texte_;
  int knopf_ = 1;
};

/// Shows the dialog over `parent`.
class QtAdaptFehlerFrage : public AdaptFehlerFrage {
 public:
  /// `name` is the kind's name of the dialog. All references outlive it.
  QtAdaptFehlerFrage(const QString& name, Dictionary& dictionary, const std::int16_t& Masssystem,
                     QWidget* parent)
      : name_(name), dictionary_(dictionary), Masssystem_(Masssystem), parent_(parent) {}
  void zeigen(AdaptFehler& fehler) override;

 private:
  QString name_;
  Dictionary& dictionary_;
  const std::int16_t& Masssystem_;
  QWidget* parent_;
};

}  // namespace korvin
