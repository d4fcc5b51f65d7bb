#pragma once

#include <functional>
#include <string>

#include "frame/drucker.h"

namespace korvin {

/// A report that can be composed as often as it is wanted: for the printer, the preview, a PDF. It owns a
/// snapshot of all it prints, so that a measurement that goes on changes nothing in it.
struct Bericht {
  std::string titel;      ///< the document's title, UTF-8
  std::string dateiName;  ///< what a PDF of it would be called, without folder and extension; UTF-8
  /// Composes all pages, `dokumentEnde` included. Throws what the `Drucker` throws, and
  /// `std::runtime_error`, `std::out_of_range` where the data cannot be printed.
  std::function<void(Drucker&)> drucken;
};

}  // namespace korvin
