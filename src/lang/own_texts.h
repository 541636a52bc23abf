#pragma once
// The texts that are built in beside the catalogue, in each of the program's languages: the report viewer, the hints of
// some screens, the words of the wait card, the book of fields. No file changes them.
//
// %1, %2 and %3 stand for what goes into a text; each language has those that English has.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/work.h"

namespace ecr {

enum class OwnText : std::uint8_t {
  // The card of a wait, and what goes on meanwhile
  one_of_several,
  time_left,
  reading_programming,
  sending_programming,
  reading_items,
  sending_items,
  taking_in_items,
  sending_logo,
  converting_logo,
  looking_for_ports,
  looking_for_register,
  asking_release,
  reading_report,
  looking_on_port,  ///< %1: the port's number
  go_on_without_port,
  // The start screen
  emulated_register,
  // The report screen and the viewer
  view,
  report_viewer,
  report,
  export_of_file,
  find,
  only_rows_with_figures,
  previous,
  next,
  print,
  ways_to_look,
  the_receipt,
  report_as_table,
  sums_of_rows,
  report_as_pictures,
  table,
  pictures,
  receipts,
  rows_shown,
  nothing_exported,
  no_receipt,
  not_found,
  receipt_of_several,
  not_printed,
  save_as_pdf,
  not_written,
  reports_not_written,  ///< %1: names of files
  // Headings of the viewer's tables, where the files have none
  total,
  sum,
  clerk_number,
  value,
  department,
  item,
  hour,
  // Charts
  in_the_drawer,
  sales_by_medium,
  vat_by_rate,
  sales_by_department,
  department_number,
  list_number,  ///< %1: 1 to 5
  net_sales_by_clerk,
  best_sellers,
  worst_sellers,
  sales_by_hour,
  receipts_by_hour,
  cash,
  check,
  charge,
  credit_number,
  vat_number,
  // The texts of the register
  play,
  stop,
  while_you_type,
  display,
  short_caption_list,
  // The logo
  no_file_chosen,
  logo_place,
  open_journal,
  path,
  preview,
  logo_that_fits,
  logo_cannot_be_shown,
  logo_size,
  logo_too_many_colours,
  logo_blank_in_path,
  journal_records,
  // The book of fields: what no control shows
  field_rate,
  field_text,
  field_function,
  field_saved_here,
  field_changed,
  field_price_above_zero,
  field_to_be_sent,
  field_carried,
  field_key_number,
  field_position_number,
  // Why a value is not taken
  refused_no_number,  ///< %1: what was written; %2, %3: the limits
  refused_too_low,
  refused_too_high,
  refused_decimals,  ///< %2: how many there can be
  refused_too_long,  ///< %1, %2: how many characters it has, and can have
  refused_character,
  refused_choice,  ///< %2: the choices
  refused_bytes,   ///< %2: how many
  refused_bits,
  refused_model,
  refused_field,
  refused_reference,
  refused_record,  ///< %1: the field; %2, %3: the first and the last record
  refused_alone,
  refused_item,
  refused_items,  ///< %1: the code; %2: how many have it
};

inline constexpr std::size_t own_text_count = static_cast<std::size_t>(OwnText::refused_items) + 1;

/// The text in the chosen language, UTF-8. A language number outside the table reads English.
[[nodiscard]] std::string_view own_text(OwnText text);

/// The same, as bytes of the code page, which has every letter of these texts; `first` stands in place of %1.
[[nodiscard]] std::string own_bytes(OwnText text, std::string_view first = "%1");

/// What goes on during a wait, in the chosen language, as bytes of the code page; empty for unnamed work.
[[nodiscard]] std::string own_bytes_of_work(const WorkInHand& what);

}  // namespace ecr
