#pragma once

#include <QLabel>
#include <functional>

namespace korvin {

/// A service line, `lblMSCommInput(index)`: one line of any text, cut to the room there is. A double click is
/// reported.
class ServiceLine : public QLabel {
  Q_OBJECT
 public:
  explicit ServiceLine(int index, QWidget* parent = nullptr);

  void zeige(const QString& text);
  std::function<void()> onDoppelklick;

  QSize minimumSizeHint() const override;

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

}  // namespace korvin
