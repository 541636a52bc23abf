#pragma once
// The texts that are built in beside the catalogue, in each of the program's languages: the report viewer, the hints of
// some screens, the words of the wait card. No file changes them.
//
// %1, %2 and %3 stand for what goes into a text; each language has those that English has.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

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
  looking_for_register,
  asking_release,
  reading_report,
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
};

inline constexpr std::size_t own_text_count = static_cast<std::size_t>(OwnText::journal_records) + 1;

/// The text in the chosen language, UTF-8. A language number outside the table reads English.
[[nodiscard]] std::string_view own_text(OwnText text);

/// The same, as bytes of the code page, which has every letter of these texts; `first` stands in place of %1.
[[nodiscard]] std::string own_bytes(OwnText text, std::string_view first = "%1");

/// What goes on during a wait, in the chosen language, as bytes of the code page. The rooms below name it in English;
/// words that are none of these texts stay as they are.
[[nodiscard]] std::string own_bytes_of_work(std::string_view english);

}  // namespace ecr
