#pragma once
// A report as a grid: its wished rows, and below them the sums.

#include <vector>

#include <QAbstractTableModel>

#include "reports/report_table.h"

namespace ecr {

class ReportModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  void show(ReportTable table);
  void wish(const TableWishes& wishes);
  [[nodiscard]] const TableWishes& wishes() const { return wishes_; }
  [[nodiscard]] const ReportTable& table() const { return table_; }

  /// Rows of the report that are on show, without the sums.
  [[nodiscard]] int rows_shown() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] bool has_sums() const { return !sums_.empty(); }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  void sort(int column, Qt::SortOrder order) override;

 private:
  void arrange();

  ReportTable table_;
  TableWishes wishes_;
  std::vector<std::size_t> rows_;
  std::vector<std::string> sums_;  ///< a cell for every column, or none at all
};

}  // namespace ecr
