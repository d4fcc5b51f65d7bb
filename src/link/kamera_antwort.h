#pragma once

#include <cstdint>
#include <string>

namespace korvin {

/// The one shared answer record of the sensor head: every transaction writes into it. Texts are bytes of
/// Windows-1252 as they stood on the line; a text of 1 is one character, blank if nothing came yet.
struct KameraAntwort {
  char Klasse = ' ';             ///< first character; '1' is the small head
  char Zeichen2 = ' ';           ///< second character; stored, never evaluated
  char Taste = ' ';              ///< key state reported by the head: K, M, J, L, R
  char Status = ' ';             ///< B battery low, S simulated head, 9 no valid answer
  std::int16_t Intensitaet = 0;  ///< received laser intensity in percent
  char Antwortart = ' ';         ///< m, j, L, R, T; '?' after an unknown kind
  double RohX = 0;               ///< raw X in counts of 0.1 um; 250000 is the centre
  double RohY = 0;               ///< raw Y in counts
  double Wert3 = 0;              ///< third number; kept, nothing reads it
  std::string LetztesTelegramm;  ///< body of the last frame found
  std::string Puffer;            ///< received characters not yet consumed
  std::int32_t BCC = 0;          ///< frames with a wrong check character
  std::int32_t COM = 0;          ///< run-time errors caught since opening
  std::int32_t ERR = 0;          ///< number of the first of them
  std::int16_t ICA = 0;          ///< `InBufferCount` at the last look
  std::int32_t ICM = 0;          ///< highest `ICA` since opening
  std::int16_t KameraNr = 0;     ///< the head id as a number
  std::int16_t Port = 0;         ///< port number last opened
  std::string Settings;          ///< settings string last opened
};

}  // namespace korvin
