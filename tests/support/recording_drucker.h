#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/drucker.h"

namespace korvin::test {

/// One mark on paper; all lengths are mm from the page's top left corner, whatever the user scale was.
struct DruckMarke {
  enum class Art { text, linie, kreis, flaeche };

  Art art = Art::text;
  int seite = 1;
  double x = 0;  ///< left and top of a text, one end of a line, corner of a rectangle, centre of a circle
  double y = 0;
  double x2 = 0;  ///< right and bottom of a text, other end of a line, other corner
  double y2 = 0;
  double radius = 0;  ///< along x
  double breite = 0;  ///< of lines
  Farbe farbe = 0;
  std::string text{};
  std::string schrift{};
  double groesse = 0;  ///< of the font in points
  bool fett = false;
};

/// Takes pages like a printer and remembers every mark. Each character of a text is half as wide as the font
/// is high; a line of text is 1.2 times as high as its font. What a report may not do (print behind the
/// document's end, on a page that isn't there, with a scale of no extent, at no place) throws
/// `std::logic_error`.
class RecordingDrucker : public Drucker {
 public:
  void setSkala(double left, double top, double right, double bottom) override;
  void neueSeite() override;
  void dokumentEnde() override;
  int seite() const override { return seite_; }

  void setSchrift(std::string_view name) override { schrift_ = name; }
  void setSchriftGroesse(double points) override;
  double schriftGroesse() const override { return groesse_; }
  void setFett(bool fett) override { fett_ = fett; }
  void setLinienBreite(double breite) override { breite_ = breite; }
  void setFarbe(Farbe farbe) override { farbe_ = farbe; }

  void setX(double x) override { x_ = x; }
  void setY(double y) override { y_ = y; }
  double x() const override { return x_; }
  double y() const override { return y_; }

  void drucke(std::string_view text) override;
  void linie(double x1, double y1, double x2, double y2, Farbe farbe) override;
  void kreis(double x, double y, double radius, Farbe farbe) override;
  void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) override;

  double textBreite(std::string_view text) override;
  double textHoehe(std::string_view text) override;

  /// Marks of a page in the order they were made.
  std::vector<DruckMarke> marken(int seite, DruckMarke::Art art) const;
  std::vector<DruckMarke> texte(int seite) const { return marken(seite, DruckMarke::Art::text); }
  std::vector<DruckMarke> linien(int seite) const { return marken(seite, DruckMarke::Art::linie); }
  /// The first text of a page that begins at (x, y); an empty mark if there is none.
  DruckMarke textBei(int seite, double x, double y) const;
  /// The first text of a page that ends at (x, ...) and begins at the height y.
  DruckMarke textBis(int seite, double x, double y) const;

  std::vector<DruckMarke> alle;
  bool merken = true;  ///< false: takes all and remembers nothing
  int enden = 0;       ///< how often the document was ended
  std::function<void()> beiNeuerSeite;
  std::function<void()> vorText;  ///< before each text; may throw

 private:
  double mmX(double x) const { return (x - left_) / (right_ - left_) * 210; }
  double mmY(double y) const { return (y - top_) / (bottom_ - top_) * 292; }
  DruckMarke& neu(DruckMarke::Art art, double x1, double y1, double x2, double y2, Farbe farbe);
  double breiteMm(std::string_view text) const;
  double hoeheMm() const;

  double left_ = 0;
  double top_ = 0;
  double right_ = 210;
  double bottom_ = 292;
  int seite_ = 1;
  std::string schrift_;
  double groesse_ = 10;
  bool fett_ = false;
  double breite_ = 1;
  Farbe farbe_ = 0;
  double x_ = 0;
  double y_ = 0;
};

}  // namespace korvin::test
