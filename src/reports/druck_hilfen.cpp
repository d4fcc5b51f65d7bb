#include "reports/druck_hilfen.h"

#include <algorithm>

namespace korvin {
namespace {

constexpr double kleinsteSchrift = 1;  // points
constexpr double spielraum = 0.001;    // mm: what rounding may cost a text that just fits
constexpr double nachgabe = 0.97;      // font sizes need not scale evenly on every medium

/// The font shrunk until `text` takes no more than `raum`, for as long as this lives.
class PassendeSchrift {
 public:
  PassendeSchrift(Drucker& drucker, std::string_view text, double raum) : drucker_(drucker) {
    breite_ = drucker.textBreite(text);
    if (breite_ <= raum + spielraum) return;
    vorher_ = drucker.schriftGroesse();
    double groesse = std::max(vorher_ * raum / breite_, kleinsteSchrift);
    drucker.setSchriftGroesse(groesse);
    while ((breite_ = drucker.textBreite(text)) > raum + spielraum && groesse > kleinsteSchrift) {
      groesse = std::max(groesse * nachgabe, kleinsteSchrift);
      drucker.setSchriftGroesse(groesse);
    }
  }
  PassendeSchrift(const PassendeSchrift&) = delete;
  PassendeSchrift& operator=(const PassendeSchrift&) = delete;

  /// Width of the text as it will be printed.
  double breite() const { return breite_; }

  /// The former size. No destructor does this: a medium that has failed is left alone.
  void zurueck() {
    if (vorher_ > 0) drucker_.setSchriftGroesse(vorher_);
  }

 private:
  Drucker& drucker_;
  double breite_ = 0;
  double vorher_ = 0;
};

}  // namespace

void millimeterSkala(Drucker& drucker) {
  drucker.setSkala(0, 0, SeitenBreite, SeitenHoehe);
}

void schriftSetzen(Drucker& drucker, double groesse) {
  drucker.setSchrift(BerichtSchrift);
  drucker.setSchriftGroesse(groesse);
  drucker.setFett(false);
  drucker.setFarbe(FarbeSchwarz);
}

void PositionSetzen(Drucker& drucker, double x, double y) {
  drucker.setX(static_cast<float>(x));
  drucker.setY(static_cast<float>(y));
}

void regel(Drucker& drucker, double x1, double y1, double x2, double y2) {
  drucker.linie(x1, y1, x2, y2, FarbeSchwarz);
}

void RechtsDruck(Drucker& drucker, std::string_view text, double links) {
  const double ende = drucker.x();
  PassendeSchrift schrift(drucker, text, ende - links);
  drucker.setX(ende - schrift.breite());
  drucker.drucke(text);
  schrift.zurueck();
  drucker.setX(ende);
}

void LinksDruck(Drucker& drucker, std::string_view text, double rechts) {
  PassendeSchrift schrift(drucker, text, rechts - drucker.x());
  drucker.drucke(text);
  schrift.zurueck();
}

}  // namespace korvin
