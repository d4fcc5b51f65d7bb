#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <array>
#include <cstdint>
#include <functional>

#include "frame/dictionary.h"
#include "straightness/mehr_punkt_ablauf.h"
#include "straightness/ui/multi_point_view.h"

namespace korvin {

/// `FRM_MPM`: the frame of multi-point measuring, which lies over a part of its window. It shows what it is
/// handed and tells what was pressed.
class MultiPointFrame : public QFrame {
  Q_OBJECT
 public:
  /// Lies over the middle of `covered`, within its parent, and follows it. The desk's ports outlive the
  /// frame.
  MultiPointFrame(const PictureDesk& desk, QWidget* covered, QWidget* parent);

  /// A button was pressed: its index in `CmdMehrPunkt`.
  std::function<void(int index)> onButton;
  /// Another number of positions was chosen: 3 or 4.
  std::function<void(std::int16_t positionen)> onPositions;

  /// Captions in the present language; `unit` is the mark of the values.
  void setTexte(Dictionary& dictionary, const QString& unit);
  void zeige(const MehrPunktStand& stand);

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget* choice();
  QWidget* readings();
  QWidget* results();
  QWidget* buttons();
  QListWidget* readingList(const QString& name);
  QLabel* label(const QString& name);
  void lieOverTheMiddle();
  void setFocusToNext(const MehrPunktStand& stand);

  QWidget* covered_;
  QLabel* title_;
  std::array<QCheckBox*, 2> CheckPkt1_{};
  std::array<QLabel*, 2> headings_{};
  QListWidget* LstXvals_ = nullptr;
  QListWidget* LstYvals_ = nullptr;
  std::array<QLabel*, 3> Label1_{};
  QLabel* LblX_mitte_ = nullptr;
  QLabel* LblY_mitte_ = nullptr;
  std::array<QLabel*, 2> units_{};
  QLabel* note_ = nullptr;
  std::array<QPushButton*, 3> CmdMehrPunkt_{};
  PictureMehrPunkt* picture_;
};

}  // namespace korvin
