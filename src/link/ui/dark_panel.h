#pragma once

#include <QFrame>
#include <QLabel>
#include <QWidget>

namespace korvin {

/// Text colour of one label.
void setTextColour(QLabel& label, const QColor& colour);

/// A rounded panel with the dark ground of an instrument. What lies on it sets its own text colours.
class DarkPanel : public QFrame {
  Q_OBJECT
 public:
  explicit DarkPanel(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A status field on a dark panel: a small caption and, below it, a value. Both can be found by their names.
class CaptionedField : public QWidget {
  Q_OBJECT
 public:
  CaptionedField(const QString& captionName, const QString& valueName, QWidget* parent = nullptr);

  QLabel& caption() { return *caption_; }
  QLabel& value() { return *value_; }

 private:
  QLabel* caption_;
  QLabel* value_;
};

}  // namespace korvin
