#pragma once

#include <QWidget>
#include <span>

#include "dialogs/field_set.h"

namespace korvin {

/// The controls of a settings dialog by the lines of its table: entry boxes (`TextEntry`), lists
/// (`QComboBox`), check boxes and options (`QAbstractButton`) somewhere below `dialog`, found by their object
/// names.

/// Shows each value in its control. `werte` has one value a line.
void zeigeFelder(QWidget& dialog, std::span<const EinstellFeld> felder, const FeldWerte& werte);

/// What the controls hold, one value a line.
FeldWerte nimmFelder(const QWidget& dialog, std::span<const EinstellFeld> felder);

}  // namespace korvin
