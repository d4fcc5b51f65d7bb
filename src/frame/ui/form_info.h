#pragma once

#include <QDialog>

#include "frame/dictionary.h"
#include "frame/profil.h"

namespace korvin {

class TextEntry;

/// The panel about the program. It also asks for the user's company: `cmdOK` stores it as `FirmaName`,
/// closing the panel otherwise stores nothing.
class FormInfo : public QDialog {
  Q_OBJECT

 public:
  FormInfo(Dictionary& dictionary, Profil& profil, QWidget* parent = nullptr);

 private:
  QLayout* head();
  void store();

  Dictionary& dictionary_;
  Profil& profil_;
  TextEntry* company_;
};

}  // namespace korvin
