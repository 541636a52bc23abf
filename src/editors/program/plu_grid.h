#pragma once
// The grid of the item table. It shows what a filling anew of all its cells would show, but works out only the rows
// whose records are not those that it shows already: a save changes few of thousands.

#include <cstdint>
#include <string>
#include <vector>

#include <QStringList>

#include "image/prg_plu.h"
#include "widgets/record_grid.h"

namespace ecr {

class PluGrid {
 public:
  explicit PluGrid(RecordGrid& grid) : grid_{grid} {}

  enum Column { number, code, name, status, link_dept, tax, take_out_tax, price1, price2, stock, columns };

  /// What belongs to a load: the headings, and the choices whose labels the cells show in lower case.
  void begin(const QStringList& headings, const QStringList& types, const QStringList& taxes);

  /// Sets the columns' widths for what items usually hold, whatever the first ones do.
  void fit_columns();

  /// Brings all rows up to the working table. A value that no choice has leaves its cell as it stood.
  void fill();

  /// The code that a row, 1 for the first, shows.
  [[nodiscard]] std::string code_text(int row) const;
  /// The codes that all rows show, as numbers. A code that cannot be read is not shown; for its row stands a number
  /// near it, so that the row isn't taken for an empty one.
  [[nodiscard]] const std::vector<std::uint64_t>& codes() const { return codes_; }

 private:
  void fill_row(int row, const PluRecord& record);
  void set_label(int row, Column column, const QStringList& labels, int value);

  RecordGrid& grid_;
  QStringList types_;
  QStringList taxes_;
  std::vector<PluRecord> shown_;  ///< what the rows were worked out from; empty before the first filling
  std::vector<std::uint64_t> codes_;
};

/// How the screen shows the fields of an item.
[[nodiscard]] QString shown_code(const PluRecord& record);
[[nodiscard]] QString shown_name(const PluRecord& record);
[[nodiscard]] QString shown_price(const Bcd<4>& price);
[[nodiscard]] QString shown_stock(const PluRecord& record);
/// 0 open, 1 normal, 2 preset, 3 a row above the count.
[[nodiscard]] int type_of(const PluRecord& record);

}  // namespace ecr
