#include "editors/program/plu_grid.h"

#include <algorithm>
#include <cstring>

#include "core/amount_text.h"
#include "core/codecs.h"
#include "core/global.h"
#include "core/register_text.h"
#include "image/plu_order.h"
#include "widgets/choice_list.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr Flags type_bits = 3;

/// A record without what the grid does not show.
PluRecord shown_part(const PluRecord& record) {
  PluRecord part = record;
  part.Flags1 &= type_bits;
  part.PluListLink = 0;
  part.SendFlag = 0;
  return part;
}

bool same(const PluRecord& one, const PluRecord& other) {
  return std::memcmp(&one, &other, sizeof one) == 0;
}

/// What a row is sorted by: the code as it is shown.
std::uint64_t sort_code(const PluRecord& record, const std::string& shown) {
  if (!shown.empty()) return code_number(shown);
  return std::max<std::uint64_t>(1, code_number(bcds_to_number_str(record.Code)));
}

QStringList labels_of(const QStringList& choices) {
  QStringList labels;
  for (const QString& choice : choices) labels.append(label_of(choice).toLower());
  return labels;
}

}  // namespace

void PluGrid::begin(const QStringList& headings, const QStringList& types, const QStringList& taxes) {
  types_ = labels_of(types);
  taxes_ = labels_of(taxes);
  RecordModel& cells = grid_.cells();
  cells.resize(Global::MaxPlu, columns);
  cells.align_right({number, code, link_dept, price1, price2, stock});
  cells.set_headings(headings);
}

void PluGrid::fit_columns() {
  grid_.fit_columns(name);
  grid_.make_room(number, QString::number(Global::MaxPlu));
  grid_.make_room(code, QStringLiteral("9999999999999"));
  grid_.make_room(name, QStringLiteral("Bread of wheat 1"));
  for (const QString& label : types_) grid_.make_room(status, label);
  for (const QString& label : taxes_) {
    grid_.make_room(tax, label);
    grid_.make_room(take_out_tax, label);
  }
  for (const Column price : {price1, price2}) grid_.make_room(price, QStringLiteral("9999.99"));
  grid_.make_room(stock, QStringLiteral("-999.99"));
}

void PluGrid::fill() {
  const auto rows = static_cast<std::size_t>(Global::MaxPlu);
  const bool is_first = shown_.empty();
  shown_.resize(rows);
  codes_.resize(rows);
  for (std::size_t i = 0; i < rows; ++i) {
    const PluRecord part = shown_part(PrgPlu.Row[i]);
    if (!is_first && same(part, shown_[i])) continue;
    fill_row(static_cast<int>(i + 1), part);
    shown_[i] = part;
  }
  grid_.cells().refreshed();
}

void PluGrid::fill_row(int row, const PluRecord& record) {
  RecordModel& cells = grid_.cells();
  const std::string code_bytes = bcds_to_number(record.Code);
  codes_[static_cast<std::size_t>(row - 1)] = sort_code(record, code_bytes);
  cells.set_cell(row, number, QString::number(row));
  cells.set_cell(row, code, screen_text(code_bytes));
  cells.set_cell(row, name, shown_name(record));
  set_label(row, status, types_, type_of(record));
  cells.set_cell(row, link_dept, screen_text(link_dept_text(record.LinkDept)));
  set_label(row, tax, taxes_, record.Tax);
  set_label(row, take_out_tax, taxes_, record.TakeOutTax);
  cells.set_cell(row, price1, shown_price(record.Price1));
  cells.set_cell(row, price2, shown_price(record.Price2));
  cells.set_cell(row, stock, shown_stock(record));
}

void PluGrid::set_label(int row, Column column, const QStringList& labels, int value) {
  if (value < labels.size()) grid_.cells().set_cell(row, column, labels[value]);
}

std::string PluGrid::code_text(int row) const {
  return page_bytes(grid_.cells().cell(row, code));
}

QString shown_code(const PluRecord& record) {
  return screen_text(bcds_to_number(record.Code));
}

QString shown_name(const PluRecord& record) {
  return field_text(sostituzione_from_ecr(record.Name.view()));
}

QString shown_price(const Bcd<4>& price) {
  return screen_text(Amount_Text(bcds_to_number(price), Global::DecimalPoint));
}

QString shown_stock(const PluRecord& record) {
  return screen_text(Bcds_To_Stock(record.Stock));
}

int type_of(const PluRecord& record) {
  return record.Flags1 & type_bits;
}

}  // namespace ecr
