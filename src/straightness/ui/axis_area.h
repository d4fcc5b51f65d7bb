#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "frame/dictionary.h"
#include "frame/ui/key_tool_bar.h"
#include "link/ui/dark_panel.h"
#include "link/ui/value_panel.h"
#include "straightness/achsen_anzeige.h"
#include "straightness/ui/axis_diagram_view.h"

namespace korvin {

/// One axis of a line on the screen: its name and range, the bar of range keys `tbrXBereich` or
/// `tbrYBereich`, the diagram `PictureXDiagramm` or `PictureYDiagramm`, and the big number `PanelXWertZoom`
/// or `PanelYWertZoom` above it.
class AxisArea : public QWidget {
  Q_OBJECT
 public:
  /// `axis` is "X" or "Y". The desk's ports outlive the widget.
  AxisArea(const QString& axis, const PictureDesk& desk, QWidget* parent = nullptr);

  /// A key of the range bar was pressed.
  std::function<void(const std::string& key)> onRangeKey;

  void setTexte(Dictionary& dictionary, const QString& unit);
  /// `name` stands beside the big number.
  void zeige(const std::string& name, const AchsenAnzeigeDaten& daten, std::int16_t Bereichsart);

  void setBereichsleiste(bool an) { keys_->setVisible(an); }
  /// What there is to see of the axis: its diagram, its big number, both or nothing.
  void setAnsicht(bool diagramm, bool zahl);

  PictureAchsenDiagramm& diagramm() { return *diagram_; }
  ValuePanel* wert() { return zoom_; }

 private:
  QWidget* header();
  QWidget* bigNumber();

  QString axis_;
  QLabel* range_;
  KeyToolBar* keys_;
  PictureAchsenDiagramm* diagram_;
  ValuePanel* zoom_;
  QLabel* name_ = nullptr;
  QLabel* unit_ = nullptr;
  QWidget* header_;
  QWidget* bigNumber_;
};

}  // namespace korvin
