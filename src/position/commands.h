#pragma once

#include <cstdint>
#include <string>

#include "frame/datei_befehle.h"
#include "frame/messart.h"
#include "position/erfassung.h"
#include "position/formpos.h"
#include "position/position_file.h"

namespace korvin {

/// Position measurements, as the commands of their window see them.
class PositionsDaten : public Messdaten {
 public:
  PositionsDaten(FORMPOS& formpos, PositionsErfassung& erfassung, PositionsDateien& dateien)
      : formpos_(formpos), erfassung_(erfassung), dateien_(dateien) {}

  std::int16_t messart() const override { return MessartPosition; }
  DateiKopf kopf() override { return dateiKopf(formpos_.Info()); }
  std::uint32_t stand() const override { return static_cast<std::uint32_t>(formpos_.Info().AnzahlMP); }
  void neu() override { erfassung_.neueMessung(); }
  bool laden(const std::string& name) override { return dateien_.o_DateiLaden(name); }
  void bildUebernehmen() override { erfassung_.bildUebernehmen(); }
  bool speichern(const std::string& name) override { return dateien_.o_DateiSpeichern(name); }

 private:
  FORMPOS& formpos_;
  PositionsErfassung& erfassung_;
  PositionsDateien& dateien_;
};

}  // namespace korvin
