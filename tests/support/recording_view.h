#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "link/messfenster_ansicht.h"
#include "link/messzyklus.h"
#include "support/scripted_head.h"
#include "support/test_clock.h"
#include "support/test_ports.h"

namespace korvin::test {

/// A window that only remembers what the cycle showed.
class RecordingView : public MessfensterAnsicht {
 public:
  void zeigeLed(Farbe farbe) override { leds.push_back(farbe); }
  void setInfoBild(const std::string& key) override { icons.push_back(key); }
  void zeigeInfo(bool visible) override { infoVisible = visible; }
  void zeigeServiceZeile(int index, const std::string& text) override { serviceLines[index] = text; }
  void zeigeTelegramm(const std::string& body) override { telegrams.push_back(body); }
  void setWertFarbe(Farbe farbe) override {
    valueColour = farbe;
    valueColours.push_back(farbe);
  }
  void zeigeLeereWerte(const std::string& text) override { emptyValues.push_back(text); }
  void zeigeIntensitaet(const std::string& text, Farbe farbe) override {
    intensity = text;
    intensityColour = farbe;
  }
  void zeigeNurSimulation(const std::string& text, Farbe farbe) override {
    cameraLine = text;
    cameraColour = farbe;
  }
  void zeigeMontage(const std::string& picture) override { mounting = picture; }
  void zeigeKamera(const std::string& text) override { cameraLine = text; }
  void zeigeVerbindung(const Verbindungsmarken& marks) override { link = marks; }
  void zeigeTaste(const std::string& key, bool pressed) override { keyPressed[key] = pressed; }
  void setTasteFrei(const std::string& key, bool free) override { keyFree[key] = free; }
  void drueckeTaste(const std::string& key) override { presses.push_back(key); }
  void zeigeSanduhr(bool on) override { hourglass = on; }
  void neuZeichnen(bool geaendert) override {
    ++redraws;
    changed = changed || geaendert;
    if (onRedraw) onRedraw();
  }
  void zeigeAdaptProgress(const std::optional<Fortschritt>& fortschritt) override {
    progress = fortschritt;
    if (onProgress) onProgress();
  }
  void entladen() override {
    ++unloads;
    if (onUnload) onUnload();
  }
  /// True if `key` was raised since the last `icons.clear()`.
  bool raised(const std::string& key) const {
    return std::find(icons.begin(), icons.end(), key) != icons.end();
  }

  std::vector<Farbe> leds;
  std::vector<std::string> icons;
  bool infoVisible = false;
  std::map<int, std::string> serviceLines;
  std::vector<std::string> telegrams;
  Farbe valueColour = 0;
  std::vector<Farbe> valueColours;
  std::vector<std::string> emptyValues;
  std::string intensity;
  Farbe intensityColour = 0;
  std::string cameraLine;
  Farbe cameraColour = 0;
  std::string mounting;
  Verbindungsmarken link;
  std::map<std::string, bool> keyPressed;
  std::map<std::string, bool> keyFree;
  std::vector<std::string> presses;
  bool hourglass = false;
  std::optional<Fortschritt> progress;  ///< of the adaptive point, where one is shown
  std::function<void()> onProgress;
  int redraws = 0;
  std::function<void()> onRedraw;
  bool changed = false;
  int unloads = 0;
  std::function<void()> onUnload;
};

/// A task without a record: remembers readings and does as the test says.
class RecordingTask : public Messaufgabe {
 public:
  const ZyklusBeschreibung& beschreibung() const override { return description; }
  LinkAngaben linkAngaben() const override { return {port, Settings115200, "0"}; }
  char filter() const override { return level; }
  void setFilter(char stufe) override { level = stufe; }
  bool tastenGesperrt() const override { return keysLocked; }
  std::int16_t nkStellen() const override { return 3; }
  std::int16_t gezeigteMontage() override { return mounting; }
  bool vorMessung(char state) override {
    requests += state;
    return measures;
  }
  void laufBeginnt(float) override { ++runsBegun; }
  LaufSchritt laufSchritt() override { return step ? step() : LaufSchritt{}; }
  bool laufFertig() const override { return pointsLeft == 0; }
  void laufBeendet() override { ++runsEnded; }
  void unerwarteteAntwort() override { ++surprises; }
  void schrittGetan() override { ++stepsDone; }
  void nachLauf(LaufEnde ende) override {
    evaluations.push_back(ende);
    if (onEvaluation) onEvaluation(ende);
  }
  void wertUebernehmen(const KameraAntwort& answer) override {
    if (onReading) onReading();
    readings.push_back(answer);
    if (pointsLeft > 0) --pointsLeft;
  }

  bool nachPunkt() override {
    ++pointsShown;
    return redrawsAfterPoint;
  }

  ZyklusBeschreibung description = ZyklusPosition;  ///< to be changed before the cycle is made
  std::int16_t mounting = 0;
  std::string requests;  ///< states that were asked about before measuring
  bool measures = true;  ///< the answer to that
  int pointsShown = 0;   ///< calls after a stored point
  bool redrawsAfterPoint = false;
  std::int16_t port = 3;
  char level = '2';
  bool keysLocked = false;
  int pointsLeft = -1;
  int runsBegun = 0;
  int runsEnded = 0;
  int surprises = 0;  ///< answers in a run that it does not go by
  int stepsDone = 0;
  std::vector<LaufEnde> evaluations;
  std::function<void(LaufEnde)> onEvaluation;
  std::vector<KameraAntwort> readings;
  std::function<LaufSchritt()> step;
  std::function<void()> onReading;
};

/// A whole measuring place in memory: clock, head, settings, view and task around one cycle.
struct CycleWorld {
  TestClock clock;
  TestMessages messages;
  TestRandom random;
  TestDictionary dictionary;
  MemorySettingsTree tree;
  Profil profil{tree};
  Meldung meldung;
  Systemwerte system;
  KameraAntwort answer;
  KorCom korCom{clock, clock, random, messages};
  ScriptedHead head{clock};

  CycleWorld() {
    system.FilterVorgabe = '2';
    profil.ProfilSchreiben("", "KorInfo", "NormInt_Laser", "0");
    korCom.FilterText('2', dictionary);
  }
  ZyklusUmgebung surroundings() {
    return {clock, clock, clock, messages, dictionary, profil, meldung, korCom, answer, system};
  }
};

}  // namespace korvin::test
