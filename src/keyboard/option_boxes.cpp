#include "keyboard/option_boxes.h"

#include <algorithm>
#include <iterator>

#include "core/codecs.h"
#include "core/model.h"

namespace ecr {
namespace {

// clang-format off
constexpr OptionBox chain_rows[] = {
    {.control = "Chk_AllPlu", .caption = "All Plu", .key = Key::FRM_ADVANCED_SETTING_CHK_ALL_PLU_MSG, .byte = 0, .bit = 2},
    {.control = "Chk_DepartmentAndFinanciaGT", .caption = "Department And Financia GT", .key = Key::FRM_ADVANCED_SETTING_CHK_DEPARTMENT_AND_FINANCIAL_GT_MSG, .byte = 0, .bit = 7},
    {.control = "ChK_DepartmentAndFinancial", .caption = "Department And Financial", .key = Key::FRM_ADVANCED_SETTING_CHK_DEPARTMENT_AND_FINANCIAL_MSG, .byte = 0, .bit = 0},
    {.control = "Chk_DepartmentGroup", .caption = "Department Group", .key = Key::FRM_ADVANCED_SETTING_CHK_DEPARTMENT_GROUP_MSG, .byte = 0, .bit = 1},
    {.control = "Chk_Hourly", .caption = "Hourly", .key = Key::FRM_ADVANCED_SETTING_CHK_HOURLY_MSG, .byte = 0, .bit = 5},
    {.control = "Chk_SalesClerk", .caption = "Sales Clerk", .byte = 0, .bit = 3},
    {.control = "Chk_Training", .caption = "Training", .key = Key::FRM_ADVANCED_SETTING_CHK_TRAINING_MSG, .byte = 0, .bit = 6},
    {.control = "Chk_TrainingClerk", .caption = "Training Clerk", .key = Key::FRM_ADVANCED_SETTING_CHK_TRAINING_CLERK_MSG, .byte = 0, .bit = 4},
    {.control = "Chk_FullEJ", .caption = "Full EJ", .key = Key::FRM_ADVANCED_SETTING_CHK_FULL_EJ_MSG, .byte = 1, .bit = 0},
    {.control = "Chk_AllPluStock", .caption = "All PLU stock", .key = Key::FRM_ADVANCED_SETTING_CHK_ALL_PLU_STOCK_MSG, .byte = 1, .bit = 1},
};

// The captions of Chk_P1, Chk_P2, ChK_PM1 and ChK_PM2 are the names of the boxes before them; the texts of their keys
// say what they are. Chk_PluInquiry shows the bit of Chk_PO when it is loaded.
constexpr OptionBox pop_rows[] = {
    {.control = "Chk_ReceiptOn_Off", .caption = "RECEIPT ON/OFF", .key = Key::FRM_ADVANCED_SETTING_CHK_RECEIPT_ON_OFF_MSG, .byte = 0, .bit = 0},
    {.control = "Chk_Subtotal", .caption = "SUBTOTAL", .key = Key::FRM_ADVANCED_SETTING_CHK_SUBTOTAL_MSG, .byte = 0, .bit = 1},
    {.control = "Chk_Check", .caption = "CHECK", .key = Key::FRM_ADVANCED_SETTING_CHK_CHECK_MSG, .byte = 0, .bit = 2},
    {.control = "Chk_Charge", .caption = "CHARGE", .key = Key::FRM_ADVANCED_SETTING_CHK_CHARGE_MSG, .byte = 0, .bit = 3},
    {.control = "Chk_Credit1", .caption = "CREDIT1", .key = Key::FRM_ADVANCED_SETTING_CHK_CREDIT1_MSG, .byte = 0, .bit = 4},
    {.control = "Chk_Credit2", .caption = "CREDIT2", .key = Key::FRM_ADVANCED_SETTING_CHK_CREDIT2_MSG, .byte = 0, .bit = 5},
    {.control = "Chk_Credit3", .caption = "CREDIT3", .key = Key::FRM_ADVANCED_SETTING_CHK_CREDIT3_MSG, .byte = 0, .bit = 6},
    {.control = "Chk_Credit4", .caption = "CREDIT4", .key = Key::FRM_ADVANCED_SETTING_CHK_CREDIT4_MSG, .byte = 0, .bit = 7},
    {.control = "Chk_Credit5", .caption = "CREDIT5", .key = Key::FRM_ADVANCED_SETTING_CHK_CREDIT5_MSG, .byte = 1, .bit = 0},
    {.control = "Chk_Credit6", .caption = "CREDIT6", .key = Key::FRM_ADVANCED_SETTING_CHK_CREDIT6_MSG, .byte = 1, .bit = 1},
    {.control = "Chk_FC", .caption = "FC", .key = Key::FRM_ADVANCED_SETTING_CHK_FC_MSG, .byte = 1, .bit = 2},
    {.control = "Chk_P1", .caption = "Chk_FC", .key = Key::FRM_ADVANCED_SETTING_CHK_P1_MSG, .byte = 1, .bit = 3},
    {.control = "Chk_P2", .caption = "Chk_P1", .key = Key::FRM_ADVANCED_SETTING_CHK_P2_MSG, .byte = 1, .bit = 4},
    {.control = "ChK_PM1", .caption = "Chk_P2", .key = Key::FRM_ADVANCED_SETTING_CHK_PM1_MSG, .byte = 1, .bit = 5},
    {.control = "ChK_PM2", .caption = "ChK_PM1", .key = Key::FRM_ADVANCED_SETTING_CHK_PM2_MSG, .byte = 1, .bit = 6},
    {.control = "Chk_RA", .caption = "RA", .key = Key::FRM_ADVANCED_SETTING_CHK_RA_MSG, .byte = 1, .bit = 7},
    {.control = "Chk_PO", .caption = "PO", .key = Key::FRM_ADVANCED_SETTING_CHK_PO_MSG, .byte = 2, .bit = 0},
    {.control = "Chk_Ec", .caption = "EC", .key = Key::FRM_ADVANCED_SETTING_CHK_EC_MSG, .byte = 2, .bit = 1},
    {.control = "Chk_Void", .caption = "VOID", .key = Key::FRM_ADVANCED_SETTING_CHK_VOID_MSG, .byte = 2, .bit = 2},
    {.control = "Chk_FullVoid", .caption = "FULL VOID", .key = Key::FRM_ADVANCED_SETTING_CHK_FULL_VOID_MSG, .byte = 2, .bit = 3},
    {.control = "Chk_Refund", .caption = "REFUND", .key = Key::FRM_ADVANCED_SETTING_CHK_REFUND_MSG, .byte = 2, .bit = 4},
    {.control = "Chk_PluCode", .caption = "PLU CODE", .key = Key::FRM_ADVANCED_SETTING_CHK_PLU_CODE_MSG, .byte = 2, .bit = 5},
    {.control = "Chk_PluAlt", .caption = "PLU ALT", .key = Key::FRM_ADVANCED_SETTING_CHK_PLU_ALT_MSG, .byte = 2, .bit = 6},
    {.control = "Chk_AddPlu", .caption = "ADD PLU", .key = Key::FRM_ADVANCED_SETTING_CHK_ADD_PLU_MSG, .byte = 2, .bit = 7},
    {.control = "Chk_PluInquiry", .caption = "PLU INQUIRY", .key = Key::FRM_ADVANCED_SETTING_CHK_PLU_INQUIRY_MSG, .byte = 3, .bit = 0, .loads = LoadsFrom::bit_of_chk_po},
    {.control = "Chk_Hold", .caption = "HOLD", .key = Key::FRM_ADVANCED_SETTING_CHK_HOLD_MSG, .byte = 3, .bit = 1},
    {.control = "Chk_PaymentTransfer", .caption = "PAYMENT TRANSFER", .key = Key::FRM_ADVANCED_SETTING_CHK_PAYMENT_TRANSFER_MSG, .byte = 3, .bit = 2},
    {.control = "ChK_TakeOut", .caption = "TAKE OUT", .key = Key::FRM_ADVANCED_SETTING_CHK_TAKE_OUT_MSG, .byte = 3, .bit = 3},
    {.control = "ChK_Abr", .caption = "ABR", .key = Key::FRM_ADVANCED_SETTING_CHK_ABR_MSG, .byte = 3, .bit = 4},
    {.control = "ChK_Table_NewBal", .caption = "TABLE#/NEW BAL.", .key = Key::FRM_ADVANCED_SETTING_CHK_TABLE_NEW_BAL_MSG, .byte = 4, .bit = 0},
    {.control = "Chk_Guest", .caption = "GUEST", .key = Key::FRM_ADVANCED_SETTING_CHK_GUEST_MSG, .byte = 4, .bit = 1},
    {.control = "ChK_Review", .caption = "REVIEW", .key = Key::FRM_ADVANCED_SETTING_CHK_REVIEW_MSG, .byte = 4, .bit = 2},
    {.control = "ChK_TableAdd", .caption = "TABLE ADD.", .key = Key::FRM_ADVANCED_SETTING_CHK_TABLE_ADD_MSG, .byte = 4, .bit = 3},
    {.control = "ChK_TableSeparate", .caption = "TABLE SEPARATE", .key = Key::FRM_ADVANCED_SETTING_CHK_TABLE_SEPARATE_MSG, .byte = 4, .bit = 4},
    {.control = "ChK_TableChange", .caption = "TABLE CHANGE", .key = Key::FRM_ADVANCED_SETTING_CHK_TABLE_CHANGE_MSG, .byte = 4, .bit = 5},
    {.control = "ChK_Proforma", .caption = "PROFORMA", .key = Key::FRM_ADVANCED_SETTING_CHK_PROFORMA_MSG, .byte = 4, .bit = 6},
    {.control = "ChK_Tray_TrayTL", .caption = "TRAY / TRAY TL", .key = Key::FRM_ADVANCED_SETTING_CHK_TRAY_TRAY_TL_MSG, .byte = 4, .bit = 7},
    {.control = "ChK_ExtraInvoice", .caption = "EXTRA INVOICE", .key = Key::FRM_ADVANCED_SETTING_CHK_EXTRA_INVOICE_MSG, .byte = 5, .bit = 0},
    {.control = "ChK_Payment", .caption = "= PAYMENT", .key = Key::FRM_ADVANCED_SETTING_CHK_PAYMENT_MSG, .byte = 5, .bit = 1},
    {.control = "ChK_Price1", .caption = "PRICE 1", .key = Key::FRM_ADVANCED_SETTING_CHK_PRICE1_MSG, .byte = 5, .bit = 2},
    {.control = "ChK_Price2", .caption = "PRICE 2", .key = Key::FRM_ADVANCED_SETTING_CHK_PRICE2_MSG, .byte = 5, .bit = 3},
    {.control = "ChK_PluPage1", .caption = "PLU PAGE 1", .key = Key::FRM_ADVANCED_SETTING_CHK_PLU_PAGE1_MSG, .byte = 5, .bit = 4},
    {.control = "ChK_PluPage2", .caption = "PLU PAGE 2", .key = Key::FRM_ADVANCED_SETTING_CHK_PLU_PAGE2_MSG, .byte = 5, .bit = 5},
    {.control = "ChK_PluPage3", .caption = "PLU PAGE 3", .key = Key::FRM_ADVANCED_SETTING_CHK_PLU_PAGE3_MSG, .byte = 5, .bit = 6},
};
// clang-format on

constexpr const OptionBox* box_named(std::string_view control) {
  for (const OptionBox& box : pop_rows) {
    if (box.control == control) return &box;
  }
  return nullptr;
}
constexpr const OptionBox& chk_po = *box_named("Chk_PO");

/// Whether every box has a bit of its own inside of the record, and a name of its own.
template <std::size_t Count>
constexpr bool is_sound(const OptionBox (&boxes)[Count], std::size_t record_size) {
  for (std::size_t i = 0; i < Count; ++i) {
    if (boxes[i].byte >= record_size || boxes[i].bit > 7 || boxes[i].caption.empty()) return false;
    for (std::size_t j = 0; j < i; ++j) {
      const bool shares_a_key = boxes[i].key && boxes[i].key == boxes[j].key;
      if (boxes[i].control == boxes[j].control || shares_a_key) return false;
      if (boxes[i].byte == boxes[j].byte && boxes[i].bit == boxes[j].bit) return false;
    }
  }
  return true;
}
static_assert(is_sound(chain_rows, chain_record_size));
static_assert(is_sound(pop_rows, pop_record_size));
static_assert(std::size(chain_rows) == 10 && std::size(pop_rows) == 44);

struct DefaultTick {
  int list;
  std::string_view control;
  Models models = Models::both;
};

// Credit 1 is not among the defaults of the third list.
// clang-format off
constexpr DefaultTick default_ticks[] = {
    {0, "Chk_P1"}, {0, "Chk_P2"}, {0, "ChK_PM1"}, {0, "ChK_PM2"},
    {1, "Chk_Void"}, {1, "Chk_FullVoid"}, {1, "Chk_Refund", Models::z320_only},
    {2, "Chk_Check"}, {2, "Chk_Charge"}, {2, "Chk_Credit2"}, {2, "Chk_Credit3"}, {2, "Chk_Credit4"},
    {2, "Chk_Credit5"},
    {3, "Chk_RA"}, {3, "Chk_PO"},
    {4, "ChK_TakeOut", Models::z300_only}, {4, "Chk_FC", Models::z300_only},
};
// clang-format on

constexpr bool all_defaults_are_boxes() {
  for (const DefaultTick& tick : default_ticks) {
    if (box_named(tick.control) == nullptr || tick.list < 0 || tick.list >= pop_list_count) return false;
  }
  return true;
}
static_assert(all_defaults_are_boxes());

}  // namespace

std::span<const OptionBox> chain_boxes() {
  return chain_rows;
}

std::span<const OptionBox> pop_boxes() {
  return pop_rows;
}

bool is_ticked(std::span<const Flags> record, const OptionBox& box) {
  const OptionBox& place = box.loads == LoadsFrom::bit_of_chk_po ? chk_po : box;
  return byte_bit_tst(record[place.byte], place.bit);
}

void store_tick(std::span<Flags> record, const OptionBox& box, bool ticked) {
  byte_bit_change(record[box.byte], box.bit, ticked);
}

bool is_default_tick(int list, const OptionBox& box, std::uint8_t model) {
  return std::any_of(std::begin(default_ticks), std::end(default_ticks), [&](const DefaultTick& tick) {
    return tick.list == list && tick.control == box.control && is_on(tick.models, model);
  });
}

}  // namespace ecr
