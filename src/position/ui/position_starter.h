#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "frame/datei_verteilung.h"
#include "position/ui/form_position.h"

namespace korvin {

/// What starting the position window takes. All but the two functions outlive it.
struct PositionStart {
  ZyklusUmgebung zyklus;
  FORMPOS& formpos;
  PositionsErfassung& erfassung;
  PositionsDateien& dateien;
  FileDialog& fileDialog;
  FileSystem& fileSystem;
  std::function<std::unique_ptr<MSComm>()> neuesMSComm;  ///< each window has a serial control of its own
  std::function<void()> hilfe;                           ///< opens the help
  EinrichtenDialog einrichten{};
  std::function<void(QWidget* fenster)> protokollDrucken{};  ///< shows the print dialog over the window
};

/// Position measuring as the main window starts it: with new data or with a loaded file.
class PositionStarter : public MessartEmpfaenger {
 public:
  explicit PositionStarter(PositionStart start) : s_(std::move(start)) {}

  /// The window over which `FormPosition` lies; null while there is none.
  void setFenster(QWidget* fenster) { fenster_ = fenster; }

  bool laden(const std::string& name) override;
  void zeigen(std::int16_t DateiStatus) override;

 private:
  PositionStart s_;
  QWidget* fenster_ = nullptr;
};

}  // namespace korvin
