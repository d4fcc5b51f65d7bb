#include "link/ui/panel_parts.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double axisScale = 2.0;  ///< size of "X" and "Y" against plain text

}  // namespace

QLabel* panelLabel(const QString& name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  setTextColour(*label, panelCaption());
  return label;
}

QLabel* axisLabel(const QString& axis, QWidget* parent) {
  QLabel* label = panelLabel(QStringLiteral("Label") + axis, parent);
  label->setFont(themeFont(axisScale, true));
  label->setText(axis);
  return label;
}

QFrame* panelRule(Qt::Orientation orientation, QWidget* parent) {
  auto* rule = new QFrame(parent);
  if (orientation == Qt::Horizontal) {
    rule->setFixedHeight(1);
  } else {
    rule->setFixedWidth(1);
  }
  rule->setAutoFillBackground(true);
  QPalette colours = rule->palette();
  colours.setColor(QPalette::Window, panelGround().lighter(190));
  rule->setPalette(colours);
  return rule;
}

QWidget* valueRow(ValuePanel* value, QLabel* name, QLabel* unit, QWidget* parent) {
  auto* row = new QWidget(parent);
  auto* names = new QVBoxLayout;
  names->setSpacing(0);
  names->addStretch();
  names->addWidget(name);
  names->addWidget(unit);
  names->addStretch();
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->addLayout(names);
  line->addWidget(value, 1);
  return row;
}

void showOptional(QLabel& label, const std::optional<std::string>& text) {
  label.setText(text ? qText(*text) : QString());
  label.setVisible(text.has_value());
}

void showOptional(CaptionedField& field, const std::optional<std::string>& text) {
  field.value().setText(text ? qText(*text) : QString());
  field.setVisible(text.has_value());
}

}  // namespace korvin
