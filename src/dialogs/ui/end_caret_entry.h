#pragma once

#include "frame/ui/text_entry.h"

namespace korvin {

/// The entry box of a settings dialog: when it gets the focus it sends itself the key stroke {END}, so that
/// the caret stands behind its text and nothing is marked.
class EndCaretEntry : public TextEntry {
  Q_OBJECT

 public:
  using TextEntry::TextEntry;

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace korvin
