#pragma once

#include <QWidget>
#include <span>
#include <vector>

#include "dialogs/settings_field.h"

namespace korvin {

/// The controls of a settings dialog by the lines of its table: entry boxes (`TextEntry`), lists
/// (`QComboBox`) and check boxes (`QCheckBox`) somewhere below `dialog`, found by their object names.

/// Shows each value in its control. `werte` has one value a line.
void zeigeFelder(QWidget& dialog, std::span<const EinstellFeld> felder, const std::vector<FeldWert>& werte);

/// What the controls hold, one value a line.
std::vector<FeldWert> nimmFelder(const QWidget& dialog, std::span<const EinstellFeld> felder);

}  // namespace korvin
