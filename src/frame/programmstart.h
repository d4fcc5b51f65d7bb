#pragma once

#include <functional>
#include <string>

#include "frame/dictionary.h"
#include "frame/display_choice.h"
#include "frame/message_port.h"
#include "frame/messplatz.h"
#include "frame/session_settings_tree.h"
#include "frame/settings_check.h"

namespace korvin {

/// Size of the screen in pixels.
struct Bildschirm {
  int breite = 0;
  int hoehe = 0;
};

/// The dictionary's file in the program's folder.
std::string dbPfad(const std::string& programFolder);

/// `SkalaX` of a screen that many pixels wide: its width in layout units, divided by 1280 and by 10. The
/// layout unit is a tenth of a pixel, so that a screen of 1280 pixels gives 1. A width below 1 gives 1.
double skalaX(int breite);
/// `SkalaY`, the same with 1024 pixels.
double skalaY(int hoehe);

/// What the main window does at its loading besides its own controls.
class Programmstart {
 public:
  /// All references are used during `laden` only.
  Programmstart(Systemwerte& system, Meldung& meldung, SessionSettingsTree& tree, Anzeigewahl& anzeige,
                Dictionary& dictionary, MessagePort& messages)
      : system_(system),
        meldung_(meldung),
        tree_(tree),
        anzeige_(anzeige),
        dictionary_(dictionary),
        messages_(messages) {}

  /// In this order: `DbPfad`; `dicOeffnen` opens the dictionary there; the flag of the first activation; the
  /// factors of the screen; language and units as stored; the check of the settings tree (settings_check.h).
  /// Writes no settings but a new tree. `programFolder` in UTF-8.
  Startergebnis laden(const std::string& programFolder, const Bildschirm& bildschirm,
                      const std::function<void()>& dicOeffnen);

  /// True once after the loading: at the first activation of the window.
  bool ersteAktivierung();

 private:
  Systemwerte& system_;
  Meldung& meldung_;
  SessionSettingsTree& tree_;
  Anzeigewahl& anzeige_;
  Dictionary& dictionary_;
  MessagePort& messages_;
  bool ersteAktivierung_ = false;
};

}  // namespace korvin
