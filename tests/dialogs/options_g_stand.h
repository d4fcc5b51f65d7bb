#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "dialogs/options_g.h"
#include "frame/leerwert.h"
#include "ordered_tree.h"
#include "straightness/neue_reihe.h"
#include "support/test_ports.h"

namespace korvin::test {

/// Tells when a message is shown.
class ToldMessages : public TestMessages {
 public:
  MessageAnswer show(const Meldung& message, MessageIcon icon, MessageButtons buttons) override {
    if (onShow) onShow();
    return TestMessages::show(message, icon, buttons);
  }
  std::function<void()> onShow;
};

/// The core of `FormOptionsG` beside a new series of six points over 2500 mm.
class OptionsGTest : public testing::Test {
 protected:
  OptionsGTest() {
    series() = neueReihe(profil, "/");
    system.FilterVorgabe = '2';
  }

  GeradReihe& series() { return formgera.reihe(); }
  GeradInfo& info() { return series().Info; }
  LinienGeometrie& line() { return series().Linie; }
  OptionsG fromMainWindow() { return {{dictionary, messages, meldung, profil, system}, nullptr}; }
  OptionsG fromSeries() { return {{dictionary, messages, meldung, profil, system}, &open}; }

  /// The dialog's value of this control.
  static FeldWert& at(FeldWerte& values, std::string_view control) {
    for (std::size_t i = 0; i < FelderG().size(); ++i)
      if (FelderG()[i].control == control) return values.at(i);
    throw std::out_of_range("no such control");
  }
  FeldWert shown(std::string_view control) {
    FeldWerte values = fromMainWindow().lesen();
    return at(values, control);
  }
  void store(std::string_view section, std::string_view key, std::string_view value) {
    profil.ProfilSchreiben("", section, key, value);
  }
  std::string stored(const char* section, const char* key) { return profil.wert(section, key, "none"); }

  /// Readings at two points.
  void measure() {
    series().X.Wert.at(2) = 0.5;
    series().Y.Wert.at(2) = -0.5;
    series().X.Wert.at(3) = 0.75;
    series().Y.Wert.at(3) = 0;
  }
  /// Takes over what the dialog shows.
  static void confirm(OptionsG dialog) { dialog.uebernehmen(dialog.lesen()); }
  /// Takes over with this one control changed, as the measuring window's dialog.
  void change(std::string_view control, const FeldWert& value) {
    OptionsG dialog = fromSeries();
    FeldWerte values = dialog.lesen();
    at(values, control) = value;
    dialog.uebernehmen(values);
  }

  OrderedTree tree;
  Profil profil{tree};
  TestDictionary dictionary;
  ToldMessages messages;
  Meldung meldung;
  Systemwerte system;
  FORMGERA formgera;
  GeradErfassung erfassung{{messages, dictionary, profil, system, formgera}};
  OffeneReihe open{formgera, erfassung};
};

}  // namespace korvin::test
