#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "dialogs/settings_field.h"
#include "frame/dictionary.h"
#include "frame/eingabe.h"
#include "frame/message_port.h"

namespace korvin {

inline constexpr int PortMinimum = 1;
inline constexpr int PortMaximum = 16;
/// The record has room for one point more.
inline constexpr int PunkteMinimum = 2;
inline constexpr int PunkteMaximum = 200;
inline constexpr double MesslaengeMinimum = 10;     ///< mm
inline constexpr double MesslaengeMaximum = 50000;  ///< mm
inline constexpr int MessZeitMinimum = 5;           ///< seconds
inline constexpr int MessZeitMaximum = 99;          ///< seconds

/// What the box of `MessZeitMax` shows after that of `MessZeitMin` passed: lifted to it if it was below. A
/// least time under 5 seconds lifts nothing.
std::string messZeitMaxZu(const std::string& min, const std::string& max);

/// The checks of the entry boxes of a settings dialog.
class Feldpruefer {
 public:
  /// The first three outlive it. The message is composed in `meldung`. With `Masssystem` 1 lengths are
  /// entered in inches and mil.
  Feldpruefer(Dictionary& dictionary, MessagePort& messages, Meldung& meldung, std::int16_t Masssystem = 0)
      : dictionary_(dictionary),
        messages_(messages),
        meldung_(meldung),
        eingabe_(dictionary, messages, meldung),
        Masssystem_(Masssystem) {}

  /// True if `text` passes; it then stands in its form ("3", "09:05:00"). Otherwise a warning tells what is
  /// accepted, and the text stays as it was.
  bool pruefen(FeldPruefung pruefung, std::string& text);

  /// The same words in short, to stand beside the box: "Permitted range: 1 .. 16". Empty without a check.
  std::string bereichText(FeldPruefung pruefung);

  /// What `messZeitMax` must not be below, in seconds.
  void setMessZeitMin(int sekunden) { messZeitMin_ = sekunden; }

 private:
  /// The limits of a check of numbers; none for the others.
  std::optional<ZahlGrenzen> grenzen(FeldPruefung pruefung) const;
  void zeitMelden();

  Dictionary& dictionary_;
  MessagePort& messages_;
  Meldung& meldung_;
  Eingabe eingabe_;
  std::int16_t Masssystem_;
  int messZeitMin_ = MessZeitMinimum;
};

}  // namespace korvin
