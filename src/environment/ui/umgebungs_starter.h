#pragma once

#include <QWidget>
#include <utility>

#include "environment/umgebungs_erfassung.h"
#include "link/ui/window_starter.h"

namespace korvin {

/// The environment analysis as the main window starts it: it is no measuring kind and has no files.
class UmgebungsStarter {
 public:
  /// All outlive it.
  UmgebungsStarter(FensterStart start, FORMPOS& formpos, UmgebungsErfassung& erfassung)
      : start_(std::move(start)), formpos_(formpos), erfassung_(erfassung) {}

  /// Shows the window modally over `ueber` and returns at its end.
  void zeigen(QWidget* ueber);

 private:
  FensterStart start_;
  FORMPOS& formpos_;
  UmgebungsErfassung& erfassung_;
};

}  // namespace korvin
