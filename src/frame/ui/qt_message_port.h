#pragma once

#include "frame/message_port.h"

namespace korvin {

/// Message boxes of Qt over the active window. The box bears the object name "MessageBox"; its buttons speak
/// the language of `QtTranslations`.
class QtMessagePort : public MessagePort {
 public:
  MessageAnswer show(const Meldung& message, MessageIcon icon, MessageButtons buttons) override;
  void beep() override;
};

}  // namespace korvin
