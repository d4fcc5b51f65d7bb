#pragma once

#include <string>

#include "frame/dictionary.h"
#include "frame/drucker.h"
#include "frame/flagge.h"

namespace korvin {

/// The words of head and foot of every page, UTF-8.
struct SeitenTexte {
  std::string kopf;        ///< "KORVIN-", the word for a report, and whose it is
  std::string hersteller;  ///< the maker line
  std::string seite;       ///< in front of the page's number
};

/// The words in the present language; `FirmaName` in UTF-8.
SeitenTexte seitenTexte(Dictionary& dictionary, const std::string& FirmaName);

/// Head and foot of a report's pages.
class Seitenrahmen {
 public:
  Seitenrahmen(Drucker& drucker, const SeitenTexte& texte) : drucker_(drucker), texte_(texte) {}

  /// Begins a page, on new paper but for the first one, with its head.
  void SeiteKopf();
  /// Foot of the page: maker, program, number of the page.
  void SeiteFuss();

  Drucker& drucker() { return drucker_; }

 private:
  Drucker& drucker_;
  const SeitenTexte& texte_;
  Flagge ErsteSeite{true};
};

}  // namespace korvin
