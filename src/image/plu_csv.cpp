#include "image/plu_csv.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/amount_text.h"
#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/decimal.h"
#include "core/fault.h"
#include "core/register_text.h"
#include "core/run_log.h"
#include "image/prg_plu.h"

namespace ecr {
namespace {

constexpr char separator = ';';
constexpr std::string_view line_end = "\r\n";

constexpr std::array headings = {Key::FRM_PRG_PLU_L_PLU_NUMBER,   Key::FRM_PRG_PLU_L_NAME,
                                 Key::FRM_PRG_PLU_L_FREECODE,     Key::FRM_PRG_PLU_L_LINK_DEPT,
                                 Key::FRM_PRG_PLU_L_PRICE1,       Key::FRM_PRG_PLU_L_PRICE2,
                                 Key::FRM_PRG_PLU_L_STATUS,       Key::FRM_PRG_PLU_L_TAX,
                                 Key::FRM_PRG_PLU_L_TAKE_OUT_TAX, Key::FRM_PRG_PLU_L_STOCK_COUNT};

constexpr std::uint8_t type_bits = 3;
constexpr std::uint8_t price1_above_zero = 6;
constexpr std::uint8_t price2_above_zero = 7;

/// The fields of a line, in order.
enum class CsvField { number, name, code, department, price1, price2, type, tax, take_out_tax, stock, last = stock };

std::string data_line(int row) {
  if (row > static_cast<int>(plu_rows)) throw FaultError{FaultCode::out_of_range};
  const PluRecord& record = PrgPlu.Row[static_cast<std::size_t>(row - 1)];
  std::string line;
  line.reserve(96);
  const auto add = [&line](std::string_view text) {
    line += text;
    line += separator;
  };
  add(std::to_string(row));
  add(sostituzione_from_ecr(record.Name.view()));
  add(bcds_to_number(record.Code));
  add(link_dept_text(record.LinkDept));
  add(bcds_to_number(record.Price1));
  add(bcds_to_number(record.Price2));
  add(std::to_string(record.Flags1 & type_bits));
  add(std::to_string(record.Tax));
  add(std::to_string(record.TakeOutTax));
  add(Bcds_To_Stock(record.Stock));
  line += line_end;
  return line;
}

/// Takes the next line off the text, without its end.
std::string_view take_line(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of(line_end), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end);
  text.remove_prefix(text.substr(0, line_end.size()) == line_end ? line_end.size()
                                                                 : std::min<std::size_t>(text.size(), 1));
  return line;
}

bool is_above_zero(std::string_view text) {
  try {
    if (const std::optional<Decimal> number = Decimal::parse(text)) return *number > Decimal{};
  } catch (const FaultError&) {
    // More digits than a number has: those in front of the point decide.
  }
  return Decimal::leading(text) > Decimal{};
}

std::uint8_t byte_number(std::string_view text) {
  const std::int64_t number = leading_number(text);
  if (number < 0 || number > 255) throw FaultError{FaultCode::overflow};
  return static_cast<std::uint8_t>(number);
}

void take_price(Bcd<4>& price, std::uint8_t& flags, std::uint8_t flag, std::string_view text) {
  number_to_bcds(price, text);
  byte_bit_change(flags, flag, is_above_zero(text));
}

void take_type(std::uint8_t& flags, std::string_view text) {
  if (text != "0" && text != "1" && text != "2") return;
  flags = static_cast<std::uint8_t>((flags & ~type_bits) | (text.front() - '0'));
}

void take_field(PluRecord& record, CsvField field, std::string_view text) {
  switch (field) {
    case CsvField::number:
      return;
    case CsvField::name:
      // As it stands: what an export has put into the code page is not put back into the register's characters.
      record.Name.set(text);
      return;
    case CsvField::code:
      number_to_bcds(record.Code, text);
      return;
    case CsvField::department:
      record.LinkDept = link_dept_of(text);
      return;
    case CsvField::price1:
      take_price(record.Price1, record.Flags1, price1_above_zero, text);
      return;
    case CsvField::price2:
      take_price(record.Price2, record.Flags1, price2_above_zero, text);
      return;
    case CsvField::type:
      take_type(record.Flags1, text);
      return;
    case CsvField::tax:
      record.Tax = byte_number(text);
      return;
    case CsvField::take_out_tax:
      record.TakeOutTax = byte_number(text);
      return;
    case CsvField::stock:
      Stock_To_Bcds(text, record.Stock);
      return;
  }
}

void take_data_line(PluRecord& record, std::string_view line) {
  for (int field = 0; field <= static_cast<int>(CsvField::last); ++field) {
    const std::size_t end = line.find(separator);
    if (end == std::string_view::npos) return;
    take_field(record, static_cast<CsvField>(field), line.substr(0, end));
    line.remove_prefix(end + 1);
  }
}

}  // namespace

std::string plu_csv_text() {
  std::string text;
  text.reserve(static_cast<std::size_t>(std::max<int>(PrgPlu.PluCount, 0) + 1) * 96);
  for (const Key heading : headings) {
    if (!text.empty() || heading != headings.front()) text += separator;
    text += message(heading);
  }
  text += line_end;
  for (int row = 1; row <= PrgPlu.PluCount; ++row) {
    guarded("FrmPrgPlu Errore: ", [&] { text += data_line(row); });
  }
  return text;
}

PluImport import_plu_csv(std::string_view text) {
  PluImport result;
  result.finished = guarded("Frm_PrgPlu_Import ", [&] {
    const int headings_read = text.empty() ? 0 : 1;
    if (headings_read > 0) take_line(text);
    while (!text.empty()) {
      const std::string_view line = take_line(text);
      const auto row = static_cast<std::size_t>(result.lines);
      if (row >= plu_rows) throw FaultError{FaultCode::out_of_range};
      take_data_line(PrgPlu.Row[row], line);
      ++result.lines;
    }
    PrgPlu.PluCount = static_cast<std::int16_t>(result.lines + headings_read - 1);
  });
  return result;
}

}  // namespace ecr
