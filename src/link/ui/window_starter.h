#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "frame/datei_verteilung.h"
#include "link/ui/data_window.h"

namespace korvin {

/// What starting a window takes, whatever its kind. The references outlive the starter.
struct FensterStart {
  ZyklusUmgebung zyklus;
  FensterDienste dienste;
  std::function<std::unique_ptr<MSComm>()> neuesMSComm;  ///< each window has a serial control of its own
};

/// A measuring kind as the main window starts it: with new data or with a loaded file.
///
/// To add a kind: derive from it, give the kind's data, and make its window.
class FensterStarter : public MessartEmpfaenger {
 public:
  explicit FensterStarter(FensterStart start) : start_(std::move(start)) {}

  /// The window over which the measuring window lies; null while there is none.
  void setFenster(QWidget* fenster) { fenster_ = fenster; }

  bool laden(const std::string& name) override;
  void zeigen(std::int16_t DateiStatus) override;

 protected:
  virtual Messdaten& daten() = 0;
  virtual std::unique_ptr<Messfenster> neuesFenster(MSComm& control, QWidget* ueber) = 0;
  const FensterStart& start() const { return start_; }

 private:
  FensterStart start_;
  QWidget* fenster_ = nullptr;
};

}  // namespace korvin
