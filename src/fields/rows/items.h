#pragma once
// The item table, and what lies beside it: the PLU pages of the keyboard and the five pop-up lists.

#include <array>

#include "fields/rows/choices.h"
#include "fields/rows/departments.h"
#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr Choice item_types[] = {
    {.digit = 0, .token = "open", .literal = "0. OPEN", .text = Key::FRM_PRG_PLU_CMB_STATUS_0_MSG},
    {.digit = 1, .token = "normal", .literal = "1. NORMAL", .text = Key::FRM_PRG_PLU_CMB_STATUS_1_MSG},
    {.digit = 2, .token = "preset", .literal = "2. PRESET", .text = Key::FRM_PRG_PLU_CMB_STATUS_2_MSG}};
inline constexpr Choice stock_used[] = {{.digit = 0, .token = "no", .literal = "0. NOT USED", .text = Key::FRM_ALL_NO},
                                        {.digit = 1, .token = "yes", .literal = "1. USED", .text = Key::FRM_ALL_YES}};

inline constexpr std::int64_t highest_code = 9'999'999'999'999;
/// An entry of a pop-up list can have one digit more than a code.
inline constexpr std::int64_t highest_entry = 99'999'999'999'999;
/// Ten thousandths of a piece.
inline constexpr std::int64_t highest_stock = 99'999'999'999;

inline constexpr auto item_rows =
    in_section(Section::items, {{.id = "plu.code",
                                 .name = {Key::FRM_PRG_PLU_L_FREECODE, "PLU :"},
                                 .place = item_place("Plu.Code"),
                                 .coding = Coding::code,
                                 .limits = {.highest = highest_code},
                                 .edited = {"E_FreeCode", "L_FreeCode", Reach::record_list}},
                                {.id = "plu.name",
                                 .name = {Key::FRM_PRG_PLU_L_NAME, "PLU Name:"},
                                 .place = item_place("Plu.Name"),
                                 .coding = Coding::text,
                                 .edited = {"E_Name", "L_Name", Reach::record_list}},
                                {.id = "plu.price1",
                                 .name = {Key::FRM_PRG_PLU_L_PRICE1, "Price 1"},
                                 .place = item_place("Plu.Price1"),
                                 .coding = Coding::amount,
                                 .limits = {.highest = highest_price},
                                 .edited = {"E_Price1", "L_Price1", Reach::record_list},
                                 .bit_above_zero = item_bit("Plu.Flags1", 6)},
                                {.id = "plu.price2",
                                 .name = {Key::FRM_PRG_PLU_L_PRICE2, "Price 2"},
                                 .place = item_place("Plu.Price2"),
                                 .coding = Coding::amount,
                                 .limits = {.highest = highest_price},
                                 .edited = {"E_Price2", "L_Price2", Reach::record_list},
                                 .bit_above_zero = item_bit("Plu.Flags1", 7)},
                                {.id = "plu.stock",
                                 .name = {Key::FRM_PRG_PLU_L_STOCK_COUNT, "Stock Count"},
                                 .place = read_as(Stored::quantity, item_place("Plu.Stock")),
                                 .coding = Coding::quantity,
                                 .limits = {.lowest = -highest_stock, .highest = highest_stock, .decimals = 4},
                                 .edited = {"E_StockCount", "L_StockCount", Reach::record_list}},
                                {.id = "plu.type",
                                 .name = {Key::FRM_PRG_PLU_L_STATUS, "Type"},
                                 .place = item_bits("Plu.Flags1", 0x03),
                                 .choices = item_types,
                                 .edited = {"Cmb_Status", "L_Status", Reach::record_list}},
                                {.id = "plu.dept",
                                 .name = {Key::FRM_PRG_PLU_L_LINK_DEPT, "Link Dept:"},
                                 .place = read_as(Stored::packed, item_place("Plu.LinkDept")),
                                 .coding = Coding::number,
                                 .limits = {.highest = 99},
                                 .edited = {"Cmb_LinkDept", "L_LinkDept", Reach::record_list}},
                                {.id = "plu.tax",
                                 .name = {Key::FRM_PRG_PLU_L_TAX, "TAX"},
                                 .place = item_place("Plu.Tax"),
                                 .choices = taxes,
                                 .edited = {"Cmb_Tax", "L_Tax", Reach::record_list}},
                                {.id = "plu.take-out-tax",
                                 .name = {Key::FRM_PRG_PLU_L_TAKE_OUT_TAX, "Take Out Tax"},
                                 .place = item_place("Plu.TakeOutTax"),
                                 .choices = taxes,
                                 .edited = {"Cmb_TakeOutTax", "L_TakeOutTax", Reach::record_list}},
                                {.id = "plu.pop-up-list",
                                 .name = {Key::FRM_PRG_PLU_PLU_LIST_LINK, "PLU list Link:"},
                                 .place = item_place("Plu.PluListLink"),
                                 .coding = Coding::number,
                                 .limits = {.highest = 5},
                                 .edited = {"Cmb_PluListLink", "L_PluListLink", Reach::record_list}},
                                {.id = "plu.keep-stock",
                                 .name = {Key::FRM_PRG_PLU_L_STOCK_USED, "Stock USED:"},
                                 .place = item_bit("Plu.Flags1", 5),
                                 .choices = stock_used,
                                 .edited = {"Cmb_StockUsed", "L_StockUsed", Reach::record_list},
                                 .oddity = Oddity::one_for_all},
                                {.id = "plu.has-price1",
                                 .name = {.own = OwnText::field_price_above_zero, .number = 1},
                                 .place = item_bit("Plu.Flags1", 6),
                                 .coding = Coding::flag,
                                 .owner = Owner::program},
                                {.id = "plu.has-price2",
                                 .name = {.own = OwnText::field_price_above_zero, .number = 2},
                                 .place = item_bit("Plu.Flags1", 7),
                                 .coding = Coding::flag,
                                 .owner = Owner::program},
                                {.id = "plu.to-send",
                                 .name = {.own = OwnText::field_to_be_sent},
                                 .place = item_place("Plu.SendFlag"),
                                 .coding = Coding::number,
                                 .limits = {.highest = 1},
                                 .owner = Owner::program}});

inline constexpr Caption plu_page_captions[] = {{Key::FRM_PLU_PAGE_PROGRAM_L_PLU_PAGE1, "PLU Page 1:"},
                                                {Key::FRM_PLU_PAGE_PROGRAM_L_PLU_PAGE2, "PLU Page 2:"},
                                                {Key::FRM_PLU_PAGE_PROGRAM_L_PLU_PAGE3, "PLU Page 3"}};

inline constexpr auto plu_page_fields =
    in_section(Section::plu_pages, {{.id = "plu-page.first",
                                     .name = {Key::FRM_PLU_PAGE_PROGRAM_L_DESC, "PLU Start #"},
                                     .place = image_place("PluPage"),
                                     .coding = Coding::code,
                                     .limits = {.highest = highest_code},
                                     .models = Models::z320_only,
                                     .edited = {"E_PluPage", "L_Desc", Reach::array_from_0}}});

inline constexpr std::size_t pop_up_lists = 5;
inline constexpr std::size_t pop_up_entries = 20;

inline constexpr std::string_view pop_up_plu_ids[pop_up_entries] = {
    "pop-plu.entry1",  "pop-plu.entry2",  "pop-plu.entry3",  "pop-plu.entry4",  "pop-plu.entry5",
    "pop-plu.entry6",  "pop-plu.entry7",  "pop-plu.entry8",  "pop-plu.entry9",  "pop-plu.entry10",
    "pop-plu.entry11", "pop-plu.entry12", "pop-plu.entry13", "pop-plu.entry14", "pop-plu.entry15",
    "pop-plu.entry16", "pop-plu.entry17", "pop-plu.entry18", "pop-plu.entry19", "pop-plu.entry20"};

/// One row for each entry; the five lists are the records. The catalogue's labels on the screen count from 0, those
/// that are built in from 1, as here.
inline constexpr auto pop_up_plu_fields = [] {
  std::array<Field, pop_up_entries> rows{};
  for (std::size_t entry = 0; entry < rows.size(); ++entry) {
    const int number = static_cast<int>(entry + 1);
    rows[entry] = {.id = pop_up_plu_ids[entry],
                   .section = Section::pop_up_plus,
                   .name = {.key = Key::FRM_ALL_PLU_MSG, .built_in = "PLU", .number = number},
                   .place = {.where = Where::pop_up_lists,
                             .stored = Stored::packed,
                             .offset = entry * sizeof(Bcd<8>),
                             .width = sizeof(Bcd<8>),
                             .count = pop_up_lists,
                             .stride = sizeof(PopUpList)},
                   .coding = Coding::code,
                   .limits = {.highest = highest_entry},
                   .edited = {"E_Plu", "L_Plu", Reach::array_for_each, number}};
  }
  return rows;
}();

}  // namespace ecr::fields
