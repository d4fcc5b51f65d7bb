#include "link/kor_com.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "link/telegramm.h"

namespace korvin {
namespace {

constexpr int Versuche = 3;
constexpr char StatusKeineAntwort = '9';
constexpr std::int32_t FehlerUeberlauf = 6;
constexpr std::int32_t FehlerAllgemein = 5;
constexpr std::int16_t SimIntensitaet = 15;
constexpr double SimZeitKurz = 0.2;
constexpr double SimZeitMessung = 0.5;
// The longest sleep in a wait; received bytes end it at once.
constexpr std::chrono::milliseconds laengsterSchlaf{20};
// Noise without an end byte is kept only up to here, so that a broken line can't fill the memory.
constexpr std::size_t hoechsterPuffer = 65536;

struct Filterzeile {
  char stufe;
  std::int16_t text;
  std::int16_t messzeit;
  std::int16_t justage;
};
constexpr std::array<Filterzeile, 5> filterzeilen{
    {{'0', 3200, 2, 2}, {'1', 3201, 3, 2}, {'2', 3202, 5, 3}, {'3', 3203, 10, 4}, {'4', 3204, 20, 5}}};

std::int32_t fehlernummer(const std::exception& fehler) {
  if (const auto* comm = dynamic_cast<const CommError*>(&fehler)) return comm->number;
  if (dynamic_cast<const std::overflow_error*>(&fehler) != nullptr) return FehlerUeberlauf;
  return FehlerAllgemein;
}

/// How long a wait that ends at `ende` may sleep at `jetzt`, both in seconds of the day.
std::chrono::milliseconds schlafBis(float ende, float jetzt) {
  const double rest = (static_cast<double>(ende) - static_cast<double>(jetzt)) * 1000.0;
  const auto schlaf = std::chrono::milliseconds{std::max(1, static_cast<int>(std::min(rest, 1000.0)))};
  return std::min(laengsterSchlaf, schlaf);
}

/// Runs `arbeit`; a run-time error in it is counted in `antwort`. True if there was none.
template <class Arbeit>
bool gezaehlt(KameraAntwort& antwort, const Arbeit& arbeit) {
  try {
    arbeit();
    return true;
  } catch (const std::exception& fehler) {
    if (antwort.COM == 0) antwort.ERR = fehlernummer(fehler);
    if (antwort.COM < std::numeric_limits<std::int32_t>::max()) ++antwort.COM;
    return false;
  }
}

}  // namespace

std::string SettingsAusBaudRate(int index) {
  return index == 0 ? Settings19200 : Settings115200;
}

int BaudRateAusSettings(std::string_view settings) {
  return settings == Settings19200 ? 0 : 1;
}

KorCom::KorCom(const Clock& clock, EventPump& pump, RandomSource& random, MessagePort& messages)
    : clock_(clock), pump_(pump), random_(random), messages_(messages) {}

int KorCom::modul() const {
  return pruefmodul95_ ? Modul95 : Modul223;
}

bool KorCom::ComOeffnen(MSComm& control, std::int16_t port, const std::string& settings,
                        const std::string& id, KameraAntwort& antwort) {
  antwort.ICA = 0;
  antwort.ICM = 0;
  antwort.BCC = 0;
  antwort.COM = 0;
  antwort.ERR = 0;
  antwort.Puffer.clear();
  pruefmodul95_ = false;
  return gezaehlt(antwort, [&] {
    ComSchliessen(control);
    antwort.Port = port;
    antwort.Settings = settings;
    antwort.KameraNr = static_cast<std::int16_t>(std::clamp(zahlAusText(id), 0.0, 9.0));
    control.setCommPort(port);
    control.setSettings(settings);
    control.setRThreshold(0);
    control.setPortOpen(true);
    control.setRThreshold(1);
  });
}

void KorCom::ComSchliessen(MSComm& control) {
  try {
    if (control.PortOpen()) control.setPortOpen(false);
  } catch (const CommError&) {
    // A line that is gone is closed.
  }
}

void KorCom::KameraSenden(MSComm& control, std::string_view nutzdaten, KameraAntwort& antwort) {
  gezaehlt(antwort, [&] {
    // A late answer to an earlier question must not be taken for the answer to this one.
    control.Input();
    gesendet_ = rahmenBilden(nutzdaten, modul());
    control.Output(gesendet_);
  });
}

bool KorCom::KameraEmpfang(MSComm& control, KameraAntwort& antwort) {
  bool gueltig = false;
  gezaehlt(antwort, [&] {
    const int wartend = control.InBufferCount();
    antwort.ICA = static_cast<std::int16_t>(std::min<int>(wartend, std::numeric_limits<std::int16_t>::max()));
    antwort.ICM = std::max<std::int32_t>(antwort.ICM, antwort.ICA);
    antwort.Puffer += control.Input();
    RahmenSuche suche = rahmenSuchen(antwort.Puffer);
    if (suche.fund == RahmenSuche::Fund::unvollstaendig) {
      if (antwort.Puffer.size() > hoechsterPuffer) antwort.Puffer.clear();
      return;
    }
    if (suche.fund == RahmenSuche::Fund::ohneAnfang) {
      antwort.Puffer.clear();
      return;
    }
    // After a frame the buffer is never left truly empty; the blank lies before the next start byte and is
    // harmless.
    antwort.Puffer = " ";
    antwort.LetztesTelegramm = std::move(suche.rumpf);
    if (!PruefzeichenPruefen(antwort.LetztesTelegramm, modul())) {
      antwort.Status = StatusKeineAntwort;
      ++antwort.BCC;
      return;
    }
    gueltig = antwortZerlegen(antwort.LetztesTelegramm, antwort);
  });
  return gueltig;
}

bool KorCom::KameraWarten(MSComm& control, double limit, KameraAntwort& antwort) {
  const float anfang = clock_.secondsOfDay();
  const float ende = static_cast<float>(static_cast<double>(anfang) + limit);
  antwort.Status = StatusKeineAntwort;
  if (KameraEmpfang(control, antwort)) {
    // The window lives on answers that need no wait, too.
    pump_.processEvents();
    return true;
  }
  float jetzt = anfang;
  do {
    pump_.waitForEvents(schlafBis(ende, jetzt));
    jetzt = clock_.secondsOfDay();
    if (jetzt > ende) return KameraEmpfang(control, antwort);
    if (jetzt < anfang && aufgeben && aufgeben()) return false;
  } while (!KameraEmpfang(control, antwort));
  return true;
}

bool KorCom::KameraAbfrage(MSComm& control, std::string_view nutzdaten, double limit, KameraAntwort& antwort,
                           bool online) {
  if (!online) return simuliert(nutzdaten, antwort);
  bool gueltig = false;
  for (int versuch = 1; versuch <= Versuche && !gueltig; ++versuch) {
    // Two generations of head differ in the modulus. The first attempt uses the one that worked last.
    if (versuch == 2) pruefmodul95_ = true;
    if (versuch == 3) pruefmodul95_ = false;
    KameraSenden(control, nutzdaten, antwort);
    gueltig = KameraWarten(control, limit, antwort);
    // Set after failed attempts too: `Klasse` then still holds the last value. Every class but "1" is the
    // large head.
    sensorHalbbereich_ = antwort.Klasse == '1' ? HalbbereichKlein : HalbbereichGross;
  }
  return gueltig;
}

std::string KorCom::SimWert() {
  const double r = static_cast<double>(random_.next());
  return formatNumber(std::round(r * 2 * 1000 + 249000), "000000");
}

void KorCom::messwertSimulieren(char art, KameraAntwort& antwort) {
  antwort.Antwortart = art;
  antwort.RohX = zahlAusText(SimWert());
  antwort.RohY = zahlAusText(SimWert());
  antwort.Intensitaet = SimIntensitaet;
}

bool KorCom::simuliert(std::string_view nutzdaten, KameraAntwort& antwort) {
  antwort.Status = 'S';
  const char befehl = nutzdaten.size() < 5 ? ' ' : nutzdaten[4];
  double wartezeit = 0;
  // A status poll leaves the kind of answer as it was; the measuring commands leave the key as it was.
  if (befehl == 'T') {
    wartezeit = SimZeitKurz;
    antwort.Taste = 'K';
  } else if (befehl == 'M') {
    wartezeit = SimZeitMessung;
    messwertSimulieren('m', antwort);
  } else if (befehl == 'J') {
    wartezeit = SimZeitKurz;
    messwertSimulieren('j', antwort);
  } else {
    messages_.beep();
  }
  if (wartezeit > 0) pause(clock_, pump_, wartezeit);
  sensorHalbbereich_ = HalbbereichKlein;
  return true;
}

std::string KorCom::FilterText(char Filterstufe, Dictionary& dictionary) {
  const auto* zeile = std::find_if(filterzeilen.begin(), filterzeilen.end(),
                                   [Filterstufe](const Filterzeile& z) { return z.stufe == Filterstufe; });
  if (zeile == filterzeilen.end()) {
    messzeitLimit_ = 5;
    justageZeitLimit_ = 3;
    return "???";
  }
  messzeitLimit_ = zeile->messzeit;
  justageZeitLimit_ = zeile->justage;
  return dictionary.DicText(zeile->text);
}

}  // namespace korvin
