#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "dialogs/settings_field.h"
#include "frame/profil.h"

namespace korvin {

/// What the controls of a dialog hold: one value for each line of its table, in its order.
using FeldWerte = std::vector<FeldWert>;

/// The place of the line with this section and key. Throws `std::out_of_range` if the table has none.
std::size_t zeileVon(std::span<const EinstellFeld> felder, const Einstellung& gesucht);

/// What a dialog stores: one text for each line of its table. Read here it means the same as to those who
/// read it from the store.
class FeldTexte {
 public:
  FeldTexte(std::span<const EinstellFeld> felder, std::vector<std::string> texte)
      : felder_(felder), texte_(std::move(texte)) {}

  const std::string& text(const Einstellung& e) const { return texte_.at(zeileVon(felder_, e)); }
  std::int16_t ganz(const Einstellung& e) const;
  bool flag(const Einstellung& e) const;
  /// What is no finite number counts as 0.
  double zahl(const Einstellung& e) const;

  const std::vector<std::string>& alle() const { return texte_; }
  /// Stores the lines from `von` to before `bis`, in their order. Failures are silent.
  void schreiben(Profil& profil, std::size_t von, std::size_t bis) const;

 private:
  std::span<const EinstellFeld> felder_;
  std::vector<std::string> texte_;
};

/// The lines of a dialog between the store and its controls. Remembers what was stored: a length that is
/// shown rounded is stored again to its last digit unless its box was changed.
class FeldSatz {
 public:
  /// `profil` and the table outlive it. `Masssystem` 1 shows lengths in inches and mil.
  FeldSatz(Profil& profil, std::span<const EinstellFeld> felder, std::int16_t Masssystem = 0)
      : profil_(profil), felder_(felder), Masssystem_(Masssystem) {}

  /// The stored settings, or the dialog's own defaults, as the controls show them.
  FeldWerte lesen();
  /// What is to be stored of the controls.
  FeldTexte texte(const FeldWerte& werte) const;
  /// `texte` was stored of `werte`, which the controls go on showing.
  void merken(const FeldWerte& werte, const FeldTexte& texte);

  std::span<const EinstellFeld> felder() const { return felder_; }
  std::int16_t Masssystem() const { return Masssystem_; }

 private:
  Profil& profil_;
  std::span<const EinstellFeld> felder_;
  std::int16_t Masssystem_;
  FeldWerte gezeigt_;
  std::vector<std::string> gespeichert_;
};

}  // namespace korvin
