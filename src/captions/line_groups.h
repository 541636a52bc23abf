#pragma once
// The five groups of lines, in the order of their tabs.

#include <array>
#include <cstddef>
#include <string_view>

#include "core/catalogue.h"

namespace ecr {

enum class LineGroup : std::size_t { header, footer, extra_invoice, other, abbreviations };

struct LineGroupRow {
  Key tab_key;
  std::string_view tab;  ///< built-in caption of the tab
  Key label_key;
  std::string_view label;  ///< built-in caption of a line's label, without the line's number
  const char* field;       ///< names of control arrays
  const char* label_name;
  const char* preview;  ///< name of a line's row on paper, without the line's number
  int lines;
  const char* key_prefix;  ///< in front of a key's fault in the log; nullptr where no key prints double
};

// clang-format off
inline constexpr std::array<LineGroupRow, 5> line_groups = {{
    {.tab_key = Key::FRM_CAPTION_TAB_INVOICE1, .tab = "HEADER",
     .label_key = Key::FRM_CAPTION_HEADER_N, .label = "Header ",
     .field = "E_ReceiptHeader", .label_name = "L_ReceiptHeader", .preview = "T_Hraw", .lines = 10,
     .key_prefix = "E_ReceiptHeader_KeyPress "},
    {.tab_key = Key::FRM_CAPTION_TAB_INVOICE2, .tab = "FOOTER",
     .label_key = Key::FRM_CAPTION_FOOTER_N, .label = "Footer ",
     .field = "E_ReceiptFooter", .label_name = "L_ReceiptFooter", .preview = "T_Fraw", .lines = 10,
     .key_prefix = "E_ReceiptFooter_KeyPress "},
    {.tab_key = Key::FRM_CAPTION_TAB_INVOICE3, .tab = "EXTRA INVOICE",
     .label_key = Key::FRM_CAPTION_EXTRA_INVOICE_N, .label = "Extra invoice ",
     .field = "E_ExtraInvoice", .label_name = "L_ExtraInvoice", .preview = "T_Eraw", .lines = 5,
     .key_prefix = "E_ExtraInvoice_KeyPress "},
    {.tab_key = Key::FRM_CAPTION_TAB_INVOICE4, .tab = "OTHER",
     .label_key = Key::FRM_CAPTION_EXTRA_OTHER_N, .label = "Other ",
     .field = "E_Other", .label_name = "L_Other", .preview = "T_Other", .lines = 23,
     .key_prefix = "E_Other_KeyPress "},
    {.tab_key = Key::FRM_CAPTION_TAB_INVOICE5, .tab = "ABR",
     .label_key = Key::FRM_CAPTION_ABR_N, .label = "ABR ",
     .field = "E_Abr", .label_name = "L_Abr", .preview = "T_Abr", .lines = 7,
     .key_prefix = nullptr},
}};
// clang-format on

[[nodiscard]] constexpr std::size_t index_of(LineGroup group) {
  return static_cast<std::size_t>(group);
}
[[nodiscard]] constexpr const LineGroupRow& row_of(LineGroup group) {
  return line_groups[index_of(group)];
}

}  // namespace ecr
