#pragma once

#include <cstdint>
#include <string>

#include "frame/datei_befehle.h"
#include "frame/messart.h"
#include "straightness/formgera.h"
#include "straightness/straightness_file.h"

namespace korvin {

/// Straightness series, as the commands of their window see them. What the window takes from the settings
/// beside (link, mounting, filter), it reads after the command.
class GeradDaten : public Messdaten {
 public:
  /// All outlive it.
  GeradDaten(FORMGERA& formgera, GeradDateien& dateien, Profil& profil, const Systemwerte& system)
      : formgera_(formgera), dateien_(dateien), profil_(profil), system_(system) {}

  std::int16_t messart() const override { return MessartGeradheit; }
  DateiKopf kopf() override { return dateiKopf(formgera_.reihe().Info); }
  std::uint32_t stand() const override { return formgera_.eingetragen(); }
  void neu() override;
  bool laden(const std::string& name) override { return dateien_.g_DateiLaden(name); }
  void bildUebernehmen() override { formgera_.bildUebernehmen(); }
  bool speichern(const std::string& name) override { return dateien_.g_DateiSpeichern(name); }

 private:
  FORMGERA& formgera_;
  GeradDateien& dateien_;
  Profil& profil_;
  const Systemwerte& system_;
};

}  // namespace korvin
