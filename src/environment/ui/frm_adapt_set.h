#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <array>
#include <functional>

#include "environment/adapt_set.h"
#include "environment/ui/uncertainty_view.h"
#include "frame/dictionary.h"

namespace korvin {

/// `FrmAdaptSet`: the result of an analysis. Shows the time picked on the slider and the uncertainties that
/// it reaches, the diagram above the slider, what it means for adaptive measuring, and saves.
///
/// It shows itself while `AdaptSet` says so: call `zeigen` whenever that may have changed from elsewhere.
class FrmAdaptSet : public QGroupBox {
  Q_OBJECT
 public:
  /// `set` and the desk's ports outlive the widget.
  FrmAdaptSet(AdaptSet& set, const PictureDesk& desk, QWidget* parent = nullptr);

  /// Called when the values have been stored: the window is to be cleared.
  std::function<void()> onGespeichert;

  /// Captions in the present language.
  void setTexte(Dictionary& dictionary);
  /// Brings all up to date. Where it comes up with that, `CmdWerteSave` gets the focus.
  void zeigen();

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void layoutAnlegen();
  QWidget* panelReihe();
  QWidget* prioReihe();
  void verbinden();
  void sliderZeigen();
  void werteZeigen();
  void aussichtZeigen();
  /// Puts the slider's ends under their times in the diagram.
  void sliderAusrichten();

  AdaptSet& set_;
  Dictionary& dictionary_;
  QLabel* LblAA_;
  std::array<QLabel*, 3> lblFx_{};
  std::array<QLabel*, 3> PanelFx_{};
  PictureUnsicherheit* bild_;
  QWidget* bahn_;  ///< the strip that the slider lies on
  QSlider* SliderAdaption_;
  QLabel* worte_;
  QLabel* zahlen_;
  QLabel* LblPrio_;
  std::array<QRadioButton*, 2> OptPrio_{};
  QPushButton* CmdWerteSave_;
};

}  // namespace korvin
