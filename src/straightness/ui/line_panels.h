#pragma once

#include <QLineEdit>
#include <QVector>
#include <functional>
#include <string>

#include "link/ui/dark_panel.h"
#include "link/ui/head_panel.h"
#include "straightness/linien_texte.h"
#include "straightness/ui/axis_panel.h"

namespace korvin {

/// The column of panels of a window that measures a line: the numbers of both axes, the current point with
/// its z position, and the head.
class LinePanels : public DarkPanel {
  Q_OBJECT
 public:
  /// Takes `kopf` in at its foot.
  explicit LinePanels(HeadPanel* kopf, QWidget* parent = nullptr);

  /// Captions in the present language; `unit` is the mark of the values.
  void setTexte(Dictionary& dictionary, const QString& unit);
  void zeige(const LinienTexte& texte, const AchsenTexte& X, const AchsenTexte& Y);
  /// `txtDistanz` can be edited or not.
  void setZFrei(bool frei);
  /// Shows the point's own z again, in place of one that was typed.
  void zVerwerfen() { txtDistanz_->setText(gezeigtesZ_); }

  /// A z was entered in `txtDistanz`.
  std::function<void(const std::string& text)> onZ;

  QVector<ValuePanel*> werte() const { return {x_->wert(), y_->wert()}; }

 private:
  QWidget* zZeile();
  void zeigeZ(const LinienTexte& texte);

  AxisPanel* x_;
  AxisPanel* y_;
  CaptionedField* messPunkt_;
  QLabel* zTitel_;
  QLineEdit* txtDistanz_;
  QLabel* lblDistanzMax_;
  QString zHinweis_;
  QString gezeigtesZ_;
};

}  // namespace korvin
