#pragma once

#include <QDialog>

#include "frame/dictionary.h"
#include "link/scan_rs.h"

class QProgressBar;

namespace korvin {

/// The dialog that is up while the sensor head is searched for. It has no buttons and can't be closed by the
/// user; the search ends it.
class FormScanComport : public QDialog, public SuchAnsicht {
  Q_OBJECT

 public:
  FormScanComport(Dictionary& dictionary, QWidget* parent = nullptr);

  void beginne(int kleinster, int groesster, int wert) override;
  void setWert(int wert) override;

 protected:
  void reject() override {}

 private:
  QProgressBar* Progress1_;
};

}  // namespace korvin
