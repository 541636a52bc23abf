#include "reports/report_model.h"

#include <algorithm>
#include <utility>

#include "widgets/screen_text.h"

namespace ecr {

void ReportModel::show(ReportTable table) {
  beginResetModel();
  table_ = std::move(table);
  wishes_.sorted_by = -1;
  arrange();
  endResetModel();
}

void ReportModel::wish(const TableWishes& wishes) {
  beginResetModel();
  wishes_ = wishes;
  arrange();
  endResetModel();
}

void ReportModel::sort(int column, Qt::SortOrder order) {
  TableWishes wishes = wishes_;
  wishes.sorted_by = column;
  wishes.descending = order == Qt::DescendingOrder;
  wish(wishes);
}

void ReportModel::arrange() {
  rows_ = wished_rows(table_, wishes_);
  sums_.clear();
  if (std::none_of(table_.columns.begin(), table_.columns.end(), [](const auto& column) { return column.is_summed; }))
    return;
  for (std::size_t i = 0; i < table_.columns.size(); ++i) {
    sums_.push_back(table_.columns[i].is_summed ? column_sum(table_, i, rows_) : std::string{});
  }
  if (sums_.front().empty()) sums_.front() = own_bytes(OwnText::sum);
}

QString ReportModel::sum(int column) const {
  const auto place = static_cast<std::size_t>(column);
  return column < 0 || place >= sums_.size() ? QString{} : screen_text(sums_[place]);
}

int ReportModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_shown();
}

int ReportModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::DisplayRole) return screen_text(table_.rows[rows_[static_cast<std::size_t>(index.row())]][column]);
  if (role == Qt::TextAlignmentRole) return headerData(index.column(), Qt::Horizontal, role);
  return {};
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const ReportTable::Column& column = table_.columns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return screen_text(column.heading);
  if (role == Qt::TextAlignmentRole) {
    return QVariant{(column.is_number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter};
  }
  return {};
}

SumsModel::SumsModel(ReportModel& report) : report_{report} {
  connect(&report, &ReportModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
  connect(&report, &ReportModel::modelReset, this, [this] { endResetModel(); });
}

int SumsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !report_.has_sums() ? 0 : 1;
}

int SumsModel::columnCount(const QModelIndex& parent) const {
  return report_.columnCount(parent);
}

QVariant SumsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return report_.sum(index.column());
  if (role == Qt::TextAlignmentRole) return report_.headerData(index.column(), Qt::Horizontal, role);
  return {};
}

}  // namespace ecr
