#pragma once
// The grid of a table editor: row 0 is the heading, row n shows record n. Cells keep their texts until they are set
// again. The record on screen is marked, from the second column to the last.

#include <functional>
#include <vector>

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>
#include <QTableView>

namespace ecr {

class RecordModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Number of records and columns; cells that stay inside keep their texts.
  void resize(int records, int columns);
  void set_headings(const QStringList& headings);
  /// Sets a cell without telling the view; `refreshed` does that for all of them at once.
  void set_cell(int row, int column, QString text);
  [[nodiscard]] QString cell(int row, int column) const;
  void refreshed();
  /// Columns whose texts stand at the right: numbers and amounts.
  void align_right(std::vector<int> columns);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  [[nodiscard]] std::size_t place(int row, int column) const;

  int records_ = 0;
  int columns_ = 0;
  std::vector<QString> cells_;
  QStringList headings_;
  std::vector<int> right_aligned_;
};

class RecordGrid : public QTableView {
  Q_OBJECT

 public:
  RecordGrid(const QString& name, QWidget* parent);

  [[nodiscard]] RecordModel& cells() { return model_; }

  /// Sets the columns' widths after their texts; `stretched` takes what is left. In a window without room for its own
  /// texts it keeps their width, and the grid scrolls.
  void fit_columns(int stretched);
  /// Makes a column wide enough for a text: the longest it can have, where the first rows do not show it.
  void make_room(int column, const QString& text);

  /// Marks the row of the record on screen, 1 for the first.
  void mark(int row);
  /// Brings a row to the top of what can be seen.
  void bring_to_top(int row);

  /// Runs when the person selects a row.
  void on_select(std::function<void(int row)> handler) { select_ = std::move(handler); }

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void stretch();

  RecordModel model_;
  std::function<void(int)> select_;
  bool marking_ = false;
  bool press_selected_ = false;
  int stretched_ = -1;       ///< the column that takes what the others leave
  int stretched_needs_ = 0;  ///< its least width; where less is left, the grid is scrolled sideways
};

}  // namespace ecr
