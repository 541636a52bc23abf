#include "widgets/record_grid.h"

#include <algorithm>
#include <utility>

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

namespace ecr {
namespace {

/// Draws a cell itself: the style sheet would look its rules up for each of hundreds at every key. The mark is left off
/// the first column, which holds the record's number.
class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool marked = (option.state & QStyle::State_Selected) != 0;
    if (marked)
      painter->fillRect(option.rect, index.column() == 0 ? option.palette.base() : option.palette.highlight());
    painter->setFont(option.font);
    painter->setPen(option.palette.color(marked && index.column() > 0 ? QPalette::HighlightedText : QPalette::Text));
    // As far from the sides as sizeHint reckons.
    constexpr int side = 11;
    const QRect place = option.rect.adjusted(side, 0, -side, 0);
    const QString text = option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, place.width());
    const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    painter->drawText(place, static_cast<int>(alignment) | Qt::TextSingleLine, text);
  }
};

}  // namespace

void RecordModel::resize(int records, int columns) {
  if (records == records_ && columns == columns_) return;
  beginResetModel();
  std::vector<QString> cells(static_cast<std::size_t>(records) * static_cast<std::size_t>(columns));
  for (int row = 1; row <= std::min(records, records_); ++row) {
    for (int column = 0; column < std::min(columns, columns_); ++column) {
      cells[static_cast<std::size_t>((row - 1) * columns + column)] = std::move(cells_[place(row, column)]);
    }
  }
  cells_ = std::move(cells);
  records_ = records;
  columns_ = columns;
  endResetModel();
}

void RecordModel::set_headings(const QStringList& headings) {
  headings_ = headings;
  if (columns_ > 0) emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
}

void RecordModel::set_cell(int row, int column, QString text) {
  cells_[place(row, column)] = std::move(text);
}

QString RecordModel::cell(int row, int column) const {
  return cells_[place(row, column)];
}

void RecordModel::refreshed() {
  if (!cells_.empty()) emit dataChanged(index(0, 0), index(records_ - 1, columns_ - 1), {Qt::DisplayRole});
}

void RecordModel::align_right(std::vector<int> columns) {
  right_aligned_ = std::move(columns);
}

int RecordModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : records_;
}
int RecordModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant RecordModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return cell(index.row() + 1, index.column());
  if (role == Qt::TextAlignmentRole) {
    const bool right = std::find(right_aligned_.begin(), right_aligned_.end(), index.column()) != right_aligned_.end();
    return QVariant::fromValue(Qt::Alignment{(right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter});
  }
  return {};
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= headings_.size()) return {};
  if (role == Qt::DisplayRole) return headings_[section];
  if (role == Qt::TextAlignmentRole) return data(index(0, section), role);
  return {};
}

std::size_t RecordModel::place(int row, int column) const {
  return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
}

RecordGrid::RecordGrid(const QString& name, QWidget* parent) : QTableView{parent} {
  setObjectName(name);
  setModel(&model_);
  setItemDelegate(new CellDelegate{this});
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  verticalHeader()->hide();
  // One height for all rows: asking each of thousands would cost time.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setResizeContentsPrecision(64);
  // A click on the row that is current already selects it once more; on another one the press has done so.
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
    if (select_ && !press_selected_) select_(index.row() + 1);
  });
}

void RecordGrid::fit_columns(int stretched) {
  horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  resizeColumnsToContents();
  stretched_ = stretched;
  stretched_needs_ = columnWidth(stretched);
  stretch();
}

void RecordGrid::make_room(int column, const QString& text) {
  QStyleOptionViewItem cell;
  initViewItemOption(&cell);
  cell.features |= QStyleOptionViewItem::HasDisplay;
  cell.text = text;
  const int width = style()->sizeFromContents(QStyle::CT_ItemViewItem, &cell, {}, this).width();
  if (column == stretched_) {
    stretched_needs_ = std::max(stretched_needs_, width);
  } else {
    setColumnWidth(column, std::max(columnWidth(column), width));
  }
  stretch();
}

void RecordGrid::stretch() {
  if (stretched_ < 0) return;
  const int left = viewport()->width() - (horizontalHeader()->length() - columnWidth(stretched_));
  if (left < stretched_needs_) {
    horizontalHeader()->setSectionResizeMode(stretched_, QHeaderView::Interactive);
    setColumnWidth(stretched_, stretched_needs_);
  } else {
    horizontalHeader()->setSectionResizeMode(stretched_, QHeaderView::Stretch);
  }
}

void RecordGrid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  stretch();
}

void RecordGrid::mark(int row) {
  marking_ = true;
  setCurrentIndex(model_.index(row - 1, std::max(0, currentIndex().column())));
  selectRow(row - 1);
  marking_ = false;
}

void RecordGrid::bring_to_top(int row) {
  scrollTo(model_.index(row - 1, 0), QAbstractItemView::PositionAtTop);
}

void RecordGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (marking_ || !current.isValid() || current.row() == previous.row() || !select_) return;
  press_selected_ = true;
  select_(current.row() + 1);
}

void RecordGrid::mousePressEvent(QMouseEvent* event) {
  press_selected_ = false;
  QTableView::mousePressEvent(event);
}

}  // namespace ecr
