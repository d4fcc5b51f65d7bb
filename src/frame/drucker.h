#pragma once

#include <string_view>

#include "frame/farbe.h"

namespace korvin {

/// A printer, or whatever takes pages like one: a preview, a PDF. A port. Texts are UTF-8.
///
/// The paper is A4. The user scale tells which coordinates its corners have; at the start it is (0, 0) at the
/// top left corner and (210, 292) 292 mm further down, so that one unit is a millimetre, exactly: the last 5
/// mm of the paper lie below 292. Under another scale the paper stays the same, and 210 by 292 mm of it run
/// from one corner of the scale to the other. All positions and sizes below are in units of the user scale,
/// but for font sizes (points) and line widths (multiples of the thinnest line).
///
/// Every operation may throw `DruckAbgebrochen` once the user has cancelled, and `std::runtime_error` if the
/// medium fails.
class Drucker {
 public:
  virtual ~Drucker() = default;

  virtual void setSkala(double left, double top, double right, double bottom) = 0;

  /// The first page is there from the start. A new one keeps font, widths and colour; the scale goes back to
  /// millimetres.
  virtual void neueSeite() = 0;
  /// The document is complete. Nothing may be printed after it.
  virtual void dokumentEnde() = 0;
  /// Number of the current page, from 1.
  virtual int seite() const = 0;

  virtual void setSchrift(std::string_view name) = 0;
  virtual void setSchriftGroesse(double points) = 0;
  virtual double schriftGroesse() const = 0;
  virtual void setFett(bool fett) = 0;
  virtual void setLinienBreite(double breite) = 0;
  /// Colour of the texts.
  virtual void setFarbe(Farbe farbe) = 0;

  /// The current position: the top left corner of the next text.
  virtual void setX(double x) = 0;
  virtual void setY(double y) = 0;
  virtual double x() const = 0;
  virtual double y() const = 0;

  /// Prints one line of text at the current position, which moves to the text's right end.
  virtual void drucke(std::string_view text) = 0;
  virtual void linie(double x1, double y1, double x2, double y2, Farbe farbe) = 0;
  /// A round circle; `radius` is measured along x.
  virtual void kreis(double x, double y, double radius, Farbe farbe) = 0;
  /// A filled rectangle.
  virtual void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) = 0;

  /// Size of a text in the current font.
  virtual double textBreite(std::string_view text) = 0;
  virtual double textHoehe(std::string_view text) = 0;
};

/// Ends a print that the user has cancelled. On purpose no `std::exception`: it is no failure, and no
/// failure's trap may show it.
struct DruckAbgebrochen {};

}  // namespace korvin
