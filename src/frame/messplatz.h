#pragma once

#include <cstdint>
#include <string>

#include "frame/farbe.h"
#include "frame/message_port.h"

namespace korvin {

/// The values that the whole program shares.
struct Systemwerte {
  std::int16_t Messart =
      0;  ///< measuring kind (messart.h); set before a kind's window is shown or its file loaded
  std::int16_t Masssystem = 0;            ///< 0 metric (mm), 1 inch (mil)
  std::string DbPfad;                     ///< full path of the dictionary's file
  std::string SpracheSpalte = "Deutsch";  ///< column of the present language in the table `DIC`
  double SkalaX =
      1;  ///< factor of every control's x and width: fits the design for 1280 by 1024 to the screen
  double SkalaY = 1;  ///< the same of y, height and font size
  char FilterVorgabe =
      ' ';  ///< filter from the settings, while the fast run overwrites the record's `Filter`
  Farbe LinkFarbe = FarbeRot;  ///< link indicator: `FarbeGruen` online, `FarbeRot` simulation
};

/// The measuring station: the frame's shared records. Made once, in main(), beside those of the link and of
/// the measuring kinds, which the frame doesn't know. No piece takes the whole of it: each asks in its
/// constructor for the records it uses.
struct Messplatz {
  Systemwerte system;
  Meldung meldung;  ///< every message is composed here
};

}  // namespace korvin
