#pragma once

#include <QObject>
#include <QPointer>
#include <cstdint>
#include <functional>
#include <string>

#include "frame/dictionary.h"
#include "frame/message_port.h"

namespace korvin {

class HelpViewer;

/// The user's guide, the file "KorHelpD.HLP" in the program's folder. F1 opens it in every window, modal ones
/// included; so do the keys "Hilfe".
class Hilfe : public QObject {
  Q_OBJECT

 public:
  /// `language` tells the index of the present language: 0 opens the German part, any other the English one.
  Hilfe(std::string file, std::function<int()> language, Dictionary& dictionary, MessagePort& messages);
  ~Hilfe() override;

  /// Shows the guide over the active window. Where the file can't be read a message says so.
  void zeigen();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void bringToFront(QWidget* owner);

  std::string file_;
  std::function<int()> language_;
  Dictionary& dictionary_;
  MessagePort& messages_;
  QPointer<HelpViewer> viewer_;
};

}  // namespace korvin
