#pragma once

#include <cstdint>

#include "frame/clock.h"
#include "frame/event_pump.h"
#include "frame/profil.h"
#include "link/kor_com.h"

namespace korvin {

inline constexpr std::int16_t LetzterPort = 16;

/// The bar of the search dialog, `Progress1`.
class SuchAnsicht {
 public:
  virtual ~SuchAnsicht() = default;
  /// Sets limits and value, and shows the bar.
  virtual void beginne(int kleinster, int groesster, int wert) = 0;
  virtual void setWert(int wert) = 0;
};

/// What the search works with. All outlive it.
struct SuchUmgebung {
  const Clock& clock;
  EventPump& pump;
  Profil& profil;
  KorCom& korCom;
  MSComm& control;
  KameraAntwort& antwort;
};

/// Looks for the sensor head: at the stored port and speed first, then on ports 1 to 16 at 115200 and again
/// at 19200. Stores what it found on the way; a head at the stored values leaves them. True if one answered;
/// the port is closed afterwards. Takes 1.6 to 51 seconds without a head.
bool ScanRS(SuchUmgebung& umgebung, SuchAnsicht& ansicht);

}  // namespace korvin
