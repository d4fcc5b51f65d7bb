#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "frame/dictionary.h"
#include "straightness/mehr_punkt.h"

namespace korvin {

/// What the frame `FRM_MPM` shows in words and numbers. UTF-8.
struct MehrPunktTexte {
  std::string titel;                  ///< of the frame, with the number of the point
  std::array<std::string, 3> Label1;  ///< "Xc:", "Yc:", or "X/:", "Y/:" of plain means; and the progress
  std::vector<std::string> LstXvals;  ///< "1: 0.1234", in mm or mil
  std::vector<std::string> LstYvals;
  std::string LblX_mitte;  ///< empty before the evaluation
  std::string LblY_mitte;
  std::string hinweis;  ///< says why the centre is a plain mean, where it is
};

/// `punkt` is the number of the point that the centre is for; `Masssystem` 1 is inch.
MehrPunktTexte mehrPunktTexte(const MehrPunkt& messung, std::int16_t punkt, std::int16_t Masssystem,
                              Dictionary& dictionary);

/// Pattern of the frame's numbers: mm with four decimals, mil with two.
const char* wertMuster(std::int16_t Masssystem);
/// A length in mm as the frame shows it, in mm or mil.
std::string mehrPunktWert(double mm, std::int16_t Masssystem);

}  // namespace korvin
