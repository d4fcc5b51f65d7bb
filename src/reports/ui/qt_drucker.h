#pragma once

#include "frame/drucker.h"
#include "reports/ui/page_marks.h"
#include "reports/ui/text_shaper.h"

namespace korvin {

/// The `Drucker` of all of Qt's media: turns what is printed into marks in millimetres and hands each page on
/// when it is complete, to a printer, a PDF or the preview (`PageSink`). Measuring is done with the glyphs
/// that are painted later, so what ends at a place on one medium does so on all.
///
/// A figure that is not finite makes no mark.
class QtDrucker : public Drucker {
 public:
  /// Both outlive it.
  QtDrucker(TextShaper& shaper, PageSink& sink) : shaper_(shaper), sink_(sink) {}

  /// Throws `std::invalid_argument` if the corners have a coordinate in common or are not finite.
  void setSkala(double left, double top, double right, double bottom) override;
  void neueSeite() override;
  void dokumentEnde() override;
  int seite() const override { return seite_; }
  /// True after `dokumentEnde`.
  bool beendet() const { return beendet_; }

  void setSchrift(std::string_view name) override;
  void setSchriftGroesse(double points) override;
  double schriftGroesse() const override { return schrift_.points; }
  void setFett(bool fett) override;
  void setLinienBreite(double breite) override { breite_ = breite; }
  void setFarbe(Farbe farbe) override { farbe_ = farbe; }

  void setX(double x) override { x_ = skalaX_.paper(x); }
  void setY(double y) override { y_ = skalaY_.paper(y); }
  double x() const override { return skalaX_.user(x_); }
  double y() const override { return skalaY_.user(y_); }

  void drucke(std::string_view text) override;
  void linie(double x1, double y1, double x2, double y2, Farbe farbe) override;
  void kreis(double x, double y, double radius, Farbe farbe) override;
  void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override;

  double textBreite(std::string_view text) override;
  double textHoehe(std::string_view text) override;

 private:
  /// One axis of the user scale: where it begins, and how many units a millimetre has.
  struct Axis {
    double origin = 0;
    double unitsPerMm = 1;
    double paper(double user) const { return (user - origin) / unitsPerMm; }
    double user(double paper) const { return paper * unitsPerMm + origin; }
  };

  void addMark(PageMark::Kind kind, double x1, double y1, double x2, double y2, Farbe farbe);
  std::uint16_t fontOnPage();
  void completePage();

  TextShaper& shaper_;
  PageSink& sink_;
  PageMarks marks_;
  Axis skalaX_;
  Axis skalaY_;
  PageFont schrift_;
  double breite_ = 1;
  Farbe farbe_ = 0;
  double x_ = 0;  ///< the current position in mm
  double y_ = 0;
  int seite_ = 1;
  bool beendet_ = false;
};

}  // namespace korvin
