#include "link/ui/point_list.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "frame/ui/theme.h"

namespace korvin {
namespace {

constexpr double rowLines = 1.35;  ///< height of a row in lines of text
constexpr int rowsWanted = 12;
constexpr int rowsAtLeast = 1;
/// Left and right of the words, in headings (by the style sheet) and cells alike.
constexpr double cellEdge = 12;

/// Keeps the figures off the edge of their column, right below their heading, on any screen.
class PaddedCell : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const override {
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const QStyle& style = *option.widget->style();
    const QString words = std::exchange(option.text, QString());
    style.drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    const int edge = scaled(cellEdge);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->setFont(option.font);
    style.drawItemText(painter, option.rect.adjusted(edge, 0, -edge, 0),
                       static_cast<int>(option.displayAlignment), option.palette, true, words,
                       selected ? QPalette::HighlightedText : QPalette::Text);
  }
};

}  // namespace

PointList::PointList(PointTableModel& model, QWidget* parent) : QTableView(parent), model_(model) {
  setObjectName(QStringLiteral("PointList"));
  setModel(&model_);
  setItemDelegate(new PaddedCell(this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setTabKeyNavigation(false);
  verticalHeader()->hide();
  // Fixed heights: with heights asked row by row 29999 rows would take seconds.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setHighlightSections(false);
  connect(&model_, &QAbstractItemModel::headerDataChanged, this, &PointList::fitColumns);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  fitColumns();
}

void PointList::setEmptyText(const QString& text) {
  emptyText_ = text;
  viewport()->update();
}

void PointList::follow() {
  model_.follow();
  showCursor();
}

void PointList::reload() {
  model_.reload();
  shownRow_ = -1;
  showCursor();
}

void PointList::showCursor() {
  const int row = model_.cursorRow();
  if (row == shownRow_ || row < 0 || row >= model_.rowCount()) return;
  shownRow_ = row;
  const QModelIndex index = model_.index(row, 0);
  following_ = true;
  // A selection of several rows is the user's and stays.
  const bool single = selectionModel()->selectedRows().size() <= 1;
  selectionModel()->setCurrentIndex(index,
                                    single ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                                           : QItemSelectionModel::NoUpdate);
  scrollTo(index);
  following_ = false;
}

void PointList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!following_ && current.isValid() && onChosen) onChosen(current.row() + 1);
}

void PointList::copy() {
  QVector<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
  if (rows.isEmpty()) {
    for (int row = 0; row < model_.rowCount(); ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  QGuiApplication::clipboard()->setText(model_.tabSeparated(rows));
}

void PointList::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    copy();
    event->accept();
    return;
  }
  QTableView::keyPressEvent(event);
}

void PointList::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (currentIndex().isValid()) scrollTo(currentIndex());
}

void PointList::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (model_.rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

void PointList::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) fitColumns();
}

int PointList::columnWidthOf(int column) const {
  QFont bold = font();
  bold.setBold(true);
  const PointColumn& shape = model_.columns()[static_cast<std::size_t>(column)];
  const int figures =
      QFontMetrics(bold).horizontalAdvance(QLatin1String(shape.widest)) + 2 * scaled(cellEdge);
  return std::max(figures, horizontalHeader()->sectionSizeHint(column));
}

void PointList::fitColumns() {
  const int height = static_cast<int>(fontMetrics().height() * rowLines);
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
  for (int column = 0; column < model_.columnCount(); ++column) {
    const bool stretches = model_.columns()[static_cast<std::size_t>(column)].stretches;
    horizontalHeader()->setSectionResizeMode(column,
                                             stretches ? QHeaderView::Stretch : QHeaderView::Interactive);
    setColumnWidth(column, columnWidthOf(column));
  }
}

QSize PointList::minimumSizeHint() const {
  int width = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  for (int column = 0; column < model_.columnCount(); ++column) width += columnWidthOf(column);
  return {width,
          horizontalHeader()->sizeHint().height() + verticalHeader()->defaultSectionSize() * rowsAtLeast};
}

QSize PointList::sizeHint() const {
  return {minimumSizeHint().width(), verticalHeader()->defaultSectionSize() * rowsWanted};
}

}  // namespace korvin
