#include "reports/seiten_zahl.h"

namespace korvin {
namespace {

/// Paper that takes no mark. Its texts have no extent, so that each fits where it is to stand.
class Seitenzaehler : public Drucker {
 public:
  void setSkala(double /*left*/, double /*top*/, double /*right*/, double /*bottom*/) override {}
  void neueSeite() override { ++seite_; }
  void dokumentEnde() override {}
  int seite() const override { return seite_; }
  void setSchrift(std::string_view /*name*/) override {}
  void setSchriftGroesse(double points) override { groesse_ = points; }
  double schriftGroesse() const override { return groesse_; }
  void setFett(bool /*fett*/) override {}
  void setLinienBreite(double /*breite*/) override {}
  void setFarbe(Farbe /*farbe*/) override {}
  void setX(double x) override { x_ = x; }
  void setY(double y) override { y_ = y; }
  double x() const override { return x_; }
  double y() const override { return y_; }
  void drucke(std::string_view /*text*/) override {}
  void linie(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, Farbe /*farbe*/) override {}
  void kreis(double /*x*/, double /*y*/, double /*radius*/, Farbe /*farbe*/) override {}
  void flaeche(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, Farbe /*farbe*/) override {}
  double textBreite(std::string_view /*text*/) override { return 0; }
  double textHoehe(std::string_view /*text*/) override { return 0; }

 private:
  int seite_ = 1;
  double groesse_ = 10;
  double x_ = 0;
  double y_ = 0;
};

}  // namespace

int SeitenZahl(const Bericht& bericht) {
  Seitenzaehler zaehler;
  bericht.drucken(zaehler);
  return zaehler.seite();
}

}  // namespace korvin
