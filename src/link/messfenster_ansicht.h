#pragma once

#include <optional>
#include <string>

#include "frame/farbe.h"
#include "link/adaptiv_aufgabe.h"

namespace korvin {

/// The check marks of the two link commands in the menu.
struct Verbindungsmarken {
  bool online = false;      ///< `M_KVNOnline` checked
  bool onlineFrei = true;   ///< `M_KVNOnline` enabled
  bool simulation = false;  ///< `M_KVNSimulation` checked
};

/// What the measuring cycle asks of its window: to show things, nothing else. All calls come from the window
/// thread. Texts are UTF-8.
class MessfensterAnsicht {
 public:
  virtual ~MessfensterAnsicht() = default;

  /// `lblLedKomm`.
  virtual void zeigeLed(Farbe farbe) = 0;
  /// `imgInfo` takes the picture of `schluessel`; it appears with `zeigeInfo(true)`.
  virtual void setInfoBild(const std::string& schluessel) = 0;
  virtual void zeigeInfo(bool sichtbar) = 0;
  /// `lblMSCommInput(index)`.
  virtual void zeigeServiceZeile(int index, const std::string& text) = 0;
  /// The body of an answer, for the list of telegrams `LstCamMsg`.
  virtual void zeigeTelegramm(const std::string& rumpf) = 0;
  /// Colour of the four value panels: of their text or of their ground, as the kind's description says.
  virtual void setWertFarbe(Farbe farbe) = 0;
  /// Writes `text` into the four value panels, in place of values.
  virtual void zeigeLeereWerte(const std::string& text) = 0;
  /// `lblStatus`.
  virtual void zeigeIntensitaet(const std::string& text, Farbe farbe) = 0;
  /// `lblKamera` in simulation; going online leaves the filter's line as it is.
  virtual void zeigeNurSimulation(const std::string& text, Farbe farbe) = 0;
  /// `ImgMontage`: key of the picture of the mounting.
  virtual void zeigeMontage(const std::string& bild) = 0;
  /// `lblKamera`, but for a simulated head.
  virtual void zeigeKamera(const std::string& text) = 0;
  virtual void zeigeVerbindung(const Verbindungsmarken& marken) = 0;

  /// `AdaptProgress`; nothing hides it. Called at the start of an adaptive point, after each of its answers,
  /// and at its end: the moments for whatever else a window shows of the point. Empty for windows without.
  virtual void zeigeAdaptProgress(const std::optional<Fortschritt>& /*fortschritt*/) {}

  /// Shows a toolbar key as pressed or released.
  virtual void zeigeTaste(const std::string& taste, bool gedrueckt) = 0;
  /// Enables or disables a toolbar key and the menu entry of the same job.
  virtual void setTasteFrei(const std::string& taste, bool frei) = 0;
  /// Runs the handler of a toolbar key as if it was clicked.
  virtual void drueckeTaste(const std::string& taste) = 0;

  /// The hourglass on or off.
  virtual void zeigeSanduhr(bool an) = 0;
  /// Redraws values and lists; `geaendert` marks the data as changed.
  virtual void neuZeichnen(bool geaendert) = 0;
  /// Closes the window for good; the second request of closing. The cycle is not touched after this returns
  /// but for leaving its tick, so the window must not delete it from inside.
  virtual void entladen() = 0;
};

}  // namespace korvin
