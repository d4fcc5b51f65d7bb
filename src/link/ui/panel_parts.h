#pragma once

#include <QFrame>
#include <QLabel>
#include <QString>
#include <optional>
#include <string>

#include "link/ui/dark_panel.h"
#include "link/ui/value_panel.h"

namespace korvin {

/// Small parts that the dark panels of the measuring windows are made of.

/// A label in the tone of captions.
QLabel* panelLabel(const QString& name, QWidget* parent);
/// The large name of an axis: `LabelX` or `LabelY` with "X" or "Y".
QLabel* axisLabel(const QString& axis, QWidget* parent);
/// A thin line between two parts of a panel.
QFrame* panelRule(Qt::Orientation orientation, QWidget* parent);
/// A value with the name of its axis and the unit beside it.
QWidget* valueRow(ValuePanel* value, QLabel* name, QLabel* unit, QWidget* parent);

/// Shows `text`; without one the label or field leaves its room to others.
void showOptional(QLabel& label, const std::optional<std::string>& text);
void showOptional(CaptionedField& field, const std::optional<std::string>& text);

}  // namespace korvin
