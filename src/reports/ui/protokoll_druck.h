#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "frame/datei_kopf.h"
#include "reports/ui/berichtsausgabe.h"
#include "reports/ui/form_druck_info.h"

namespace korvin {

/// Path of the file that a report is of, UTF-8: the one that was chosen when the measurement was loaded or
/// saved, whatever path its record keeps. A measurement that has no file yet has its folder only.
std::string protokollPfad(const DateiKopf& kopf, const std::string& gewaehlt);

/// What the dialog shows and changes of a record of any kind.
DruckInfoFelder druckInfoFelder(const DateiKopf& kopf, std::vector<std::reference_wrapper<Flagge>> diagramme,
                                std::vector<std::reference_wrapper<Flagge>> tabellen,
                                const std::string& gewaehlt);

/// Shows the print dialog `art` over `fenster` and puts out what is chosen there. `bericht` makes the report
/// of the record as it is at that moment; a running measurement goes on.
void protokollDrucken(const DruckInfoArt& art, Dictionary& dictionary, const DruckInfoFelder& felder,
                      const std::function<Bericht()>& bericht, Berichtsausgabe& ausgabe, QWidget* fenster);

}  // namespace korvin
