#pragma once
// A report as a grid of its wished rows, and beside it a grid of one row, their sums.

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

  /// Rows of the report that are on show.
  [[nodiscard]] int rows_shown() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] bool has_sums() const { return !sums_.empty(); }
  /// What stands below a column: its sum, the word for it below the first one, or nothing.
  [[nodiscard]] QString sum(int column) const;

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

class SumsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit SumsModel(ReportModel& report);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  ReportModel& report_;
};

}  // namespace ecr
