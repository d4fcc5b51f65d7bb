#pragma once

#include "frame/datei_befehle.h"

namespace korvin::test {

/// The user at the dialog of file information.
class TestFileInfo : public DateiInfoDialog {
 public:
  bool bearbeiten(const DateiKopf& kopf) override {
    ++asked;
    if (accepted) kopf.Kommentar = "edited";
    return accepted;
  }
  bool accepted = true;
  int asked = 0;
};

}  // namespace korvin::test
