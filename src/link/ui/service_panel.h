#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QSlider>
#include <QString>
#include <array>
#include <functional>

namespace korvin {

/// Captions of the service panel.
struct ServicePanelTexte {
  QString telegramme;               ///< above the list
  std::array<QString, 3> schieber;  ///< what each slider sets
};

/// The hidden service panel of a measuring window: the telegrams as they come, and three sliders for the
/// intervals of `tmrPolling`, `tmrJ` and `tmrKeyPressed`.
class ServicePanel : public QGroupBox {
  Q_OBJECT
 public:
  /// `startMs` are the timers' start intervals.
  explicit ServicePanel(std::array<int, 3> startMs, QWidget* parent = nullptr);

  void setTexte(const ServicePanelTexte& texte);

  /// Interval in ms that slider `index` (0 to 2) stands for.
  int intervall(int index) const;
  /// Called when the user moves a slider.
  std::function<void(int index, int milliseconds)> onIntervall;

  /// Adds a telegram's body; the oldest ones go when the list is full. Nothing while the panel is hidden.
  void zeigeTelegramm(const QString& rumpf);
  void leeren();

  static constexpr int MaxTelegramme = 500;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void zeigeIntervall(int index);

  std::array<int, 3> startMs_;
  QLabel* LblCamMsg_;
  QListWidget* LstCamMsg_;
  std::array<QSlider*, 3> SliderTimers_{};
  std::array<QLabel*, 3> schieberTitel_{};
  std::array<QLabel*, 3> Labels_{};  ///< `Label4` to `Label6`
};

/// `text` with a visible sign in place of each control character: what comes over a line may hold any byte.
QString ohneSteuerzeichen(QString text);

}  // namespace korvin
