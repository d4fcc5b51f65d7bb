#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "frame/clock.h"
#include "frame/dictionary.h"
#include "frame/event_pump.h"
#include "frame/message_port.h"
#include "frame/random_source.h"
#include "link/kamera_antwort.h"
#include "link/mscomm.h"

namespace korvin {

/// The two line settings that exist.
inline constexpr const char* Settings19200 = "19200,N,8,1";
inline constexpr const char* Settings115200 = "115200,N,8,1";

/// Settings string of a stored `BaudRate` index: 0 is 19200, any other 115200.
std::string SettingsAusBaudRate(int index);
/// 0 for "19200,N,8,1", 1 for everything else.
int BaudRateAusSettings(std::string_view settings);

/// Half width of a head's active range in mm.
inline constexpr double HalbbereichKlein = 2.1;
inline constexpr double HalbbereichGross = 7.1;

/// The question payload of the hardware search, whatever the settings are.
inline constexpr const char* SuchAnfrage = "00--J";
/// Time limit of a status poll and of the search, seconds.
inline constexpr double PollLimit = 0.5;

/// The link: question and answer with the sensor head over a serial control, or with the simulated head.
///
/// Calling order: `ComOeffnen`, any number of `KameraAbfrage`, `ComSchliessen`. No operation throws for a
/// failing line: errors are counted in the answer record and end in `false`; no message comes from here.
class KorCom {
 public:
  KorCom(const Clock& clock, EventPump& pump, RandomSource& random, MessagePort& messages);

  /// Opens the control anew with cleared counters. False if it can't be opened; `ERR` then tells why.
  bool ComOeffnen(MSComm& control, std::int16_t port, const std::string& settings, const std::string& id,
                  KameraAntwort& antwort);
  void ComSchliessen(MSComm& control);

  /// One transaction: up to three attempts of `limit` seconds each. True when a valid answer is in `antwort`.
  /// With `online` clear the simulated head answers, always.
  bool KameraAbfrage(MSComm& control, std::string_view nutzdaten, double limit, KameraAntwort& antwort,
                     bool online);

  /// Throws away what waits in the input, then sends the frame. What was consumed into `Puffer` stays.
  void KameraSenden(MSComm& control, std::string_view nutzdaten, KameraAntwort& antwort);
  /// Looks for an answer until one is found or `limit` seconds have passed. A wait that midnight overtakes
  /// has an end above every later time of day: it ends with the next good answer, or when `aufgeben` says so.
  bool KameraWarten(MSComm& control, double limit, KameraAntwort& antwort);
  /// One look at the received characters.
  bool KameraEmpfang(MSComm& control, KameraAntwort& antwort);

  /// A made-up reading: six digits, uniform within 1000 counts (0.1 mm) of the centre.
  std::string SimWert();

  /// The measuring time of a filter level as text; sets the two limits as a side effect. Levels beyond "4"
  /// have the text "???" and medium limits.
  std::string FilterText(char Filterstufe, Dictionary& dictionary);

  double SensorHalbbereich() const { return sensorHalbbereich_; }
  void setSensorHalbbereich(double mm) { sensorHalbbereich_ = mm; }
  /// Time limits of M and J telegrams in seconds, of the level last asked for.
  std::int16_t MesszeitLimit() const { return messzeitLimit_; }
  std::int16_t JustageZeitLimit() const { return justageZeitLimit_; }
  bool Pruefmodul95() const { return pruefmodul95_; }
  /// The frame last sent, for inspection.
  const std::string& gesendet() const { return gesendet_; }

  /// Asked only while a wait has been overtaken by midnight: true gives the transaction up.
  std::function<bool()> aufgeben;

 private:
  int modul() const;
  bool simuliert(std::string_view nutzdaten, KameraAntwort& antwort);
  void messwertSimulieren(char art, KameraAntwort& antwort);
  const Clock& clock_;
  EventPump& pump_;
  RandomSource& random_;
  MessagePort& messages_;
  bool pruefmodul95_ = false;
  double sensorHalbbereich_ = HalbbereichKlein;
  std::int16_t messzeitLimit_ = 5;
  std::int16_t justageZeitLimit_ = 3;
  std::string gesendet_;
};

}  // namespace korvin
