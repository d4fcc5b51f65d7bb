#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>
#include <array>

#include "frame/dictionary.h"
#include "frame/farbe.h"

namespace korvin {

/// What a measuring window shows of its sensor head, for a dark panel: the mounting, the head's line, the
/// intensity and the info icon.
class HeadPanel : public QWidget {
  Q_OBJECT
 public:
  explicit HeadPanel(QWidget* parent = nullptr);

  /// Takes the tooltips in the present language.
  void setTexte(Dictionary& dictionary);

  /// `ImgMontage` takes the picture of `schluessel`.
  void setMontage(const QString& schluessel);
  /// `lblKamera`.
  void setKamera(const QString& text, Farbe farbe = FarbeWeiss);
  /// `lblStatus`.
  void setIntensitaet(const QString& text, Farbe farbe);
  /// `imgInfo` takes the picture of `schluessel`; it keeps its place while it is invisible.
  void setInfoBild(const QString& schluessel);
  void zeigeInfo(bool sichtbar);
  /// Key of the picture that `imgInfo` holds.
  const QString& infoSchluessel() const { return infoSchluessel_; }
  const QString& montageSchluessel() const { return montageSchluessel_; }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void bilderZeichnen();

  QLabel* ImgMontage_;
  QLabel* lblKamera_;
  QLabel* lblStatus_;
  QLabel* imgInfo_;
  QString montageSchluessel_;
  QString infoSchluessel_;
  std::array<QString, 6> infoTexte_;
};

}  // namespace korvin
