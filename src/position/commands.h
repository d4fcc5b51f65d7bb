#pragma once

#include <cstdint>
#include <string>

#include "frame/datei_befehle.h"
#include "frame/messart.h"
#include "position/erfassung.h"
#include "position/formpos.h"
#include "position/position_file.h"

namespace korvin {

/// Position measurements, as the commands see them.
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

/// What the commands of the position window work with. All outlive it.
struct BefehlUmgebung {
  const Clock& clock;
  MessagePort& messages;
  FileDialog& fileDialog;
  DateiInfoDialog& dateiInfo;
  Dictionary& dictionary;
  Profil& profil;
  Meldung& meldung;
  Systemwerte& system;
  FORMPOS& formpos;
  PositionsErfassung& erfassung;
  PositionsDateien& dateien;
};

/// The commands of `FormPosition`. The data come first among the bases: the commands hold on to them.
class PositionsBefehle : private PositionsDaten, public DateiBefehle {
 public:
  explicit PositionsBefehle(const BefehlUmgebung& u)
      : PositionsDaten(u.formpos, u.erfassung, u.dateien),
        DateiBefehle({u.clock, u.messages, u.fileDialog, u.dateiInfo, u.dictionary, u.profil, u.meldung,
                      u.system, static_cast<PositionsDaten&>(*this)}) {}
  PositionsBefehle(const PositionsBefehle&) = delete;
  PositionsBefehle& operator=(const PositionsBefehle&) = delete;
};

}  // namespace korvin
