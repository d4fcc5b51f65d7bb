#pragma once

#include <QAbstractButton>

namespace korvin {

/// A large, inviting entry of the start screen: picture, name, one line. Clicked by mouse, Enter or the space
/// bar.
class StartTile : public QAbstractButton {
  Q_OBJECT

 public:
  /// `wide`: the picture stands beside the words instead of above them.
  StartTile(const QString& pictureKey, bool wide, QWidget* parent = nullptr);

  void setWords(const QString& name, const QString& line);
  /// A disabled tile says why in its tooltip and at its foot.
  void setReason(const QString& reason);

  /// True if all words can be read at the present size: nothing cut off, nothing over another.
  bool wordsFit() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void paintCard(QPainter& painter) const;
  void paintPicture(QPainter& painter, const QRect& place) const;
  /// Where the words stand.
  QRect wordsPlace() const;
  int nameHeight(int width) const;
  void paintWords(QPainter& painter) const;

  QString pictureKey_;
  bool wide_;
  QString line_;
  QString reason_;
};

}  // namespace korvin
