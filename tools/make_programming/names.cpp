#include "make_programming/names.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ecr {
namespace {

struct KeyName {
  std::uint8_t code;
  std::string_view name;
};

// clang-format off
constexpr KeyName single_keys[] = {
    {20, "DEPT SHIFT, CODE"}, {21, "#NS, NEXT"}, {22, "CLERK, ESC"}, {23, "RECEIPT ON/OFF"}, {24, "SUBTOTAL"},
    {25, "CHECK"}, {26, "CHARGE"}, {27, "CREDIT1"}, {28, "CREDIT2"}, {29, "CREDIT3"}, {30, "CREDIT4"},
    {31, "CREDIT5"}, {32, "CREDIT6"}, {33, "FC"}, {34, "%1"}, {35, "%2"}, {36, "+/-1"}, {37, "+/-2"}, {38, "RA"},
    {40, "EC"}, {41, "VOID"}, {42, "FULL VOID"}, {43, "REFUND"}, {44, "PLU CODE"}, {45, "PLU PRICE"},
    {46, "ADD PLU"}, {47, "PLU INQUIRY"}, {48, "HOLD"}, {49, "PAYMENT TRANSFER"}, {50, "TAKE OUT"}, {51, "ABR"},
    {52, "CHAIN FUNC 1"}, {53, "CHAIN FUNC 2"}, {54, "CHAIN FUNC 3"}, {55, "CHAIN FUNC 4"}, {56, "CHAIN FUNC 5"},
    {57, "POP LIST 1"}, {58, "POP LIST 2"}, {59, "POP LIST 3"}, {60, "POP LIST 4"}, {61, "POP LIST 5"},
    {62, "TABLE#NEW BAL"}, {63, "GUEST"}, {64, "REVIEW"}, {65, "TABLE ADD"}, {66, "TABLE SEPARATE"},
    {67, "TABLE CHANGE"}, {68, "PROFORMA"}, {69, "TRAY/TRAY TL"}, {70, "EXTRA INVOICE"}, {71, "=PAYMENT"},
    {72, "PRICE1"}, {73, "PRICE2"}, {74, "PLU PAGE 1"}, {75, "PLU PAGE 2"}, {76, "PLU PAGE 3"}, {77, "PLU LIST 1"},
    {78, "PLU LIST 2"}, {79, "PLU LIST 3"}, {80, "PLU LIST 4"}, {81, "PLU LIST 5"}, {255, "NO OPERATION"},
};
// clang-format on

// Families of keys: code = before_first + number.
struct KeyFamily {
  std::string_view name;
  int before_first;
  int members;
};
constexpr KeyFamily key_families[] = {{"DEPT ", 81, 20}, {"PLU ", 101, 50}};

constexpr std::string_view price_types[] = {"open", "normal", "preset"};
constexpr std::string_view item_types[] = {"open", "normal", "preset", "unused"};

// A word says what the bit does when it is set. Rows of a field stand together, by rising bit.
// clang-format off
constexpr BitName all_bits[] = {
    {"Set09_ClerkMenu", 0, 1, "month-first"},
    {"Set09_ClerkMenu", 1, 1, "12-hours"},
    {"Set09_ClerkMenu", 2, 1, "no-key-tone"},
    {"Set09_ClerkMenu", 4, 1, "clerks"},
    {"Set09_ClerkMenu", 5, 1, "clerk-password"},
    {"Set09_ClerkMenu", 6, 1, "password-each-sale"},
    {"Set09_ClerkMenu", 7, 1, "login-display"},
    {"Set10_Report", 0, 1, "winding-prg-xz"},
    {"Set10_Report", 1, 1, "reset-consecutive"},
    {"Set10_Report", 2, 1, "reset-invoice"},
    {"Set10_Report", 3, 1, "reset-gt"},
    {"Set10_Report", 4, 1, "reset-z-counters"},
    {"Set10_Report", 5, 1, "no-post-tender"},
    {"Set10_Report", 6, 1, "no-zero-price"},
    {"Set10_Report", 7, 1, "tax-before-total"},
    {"Set11_Shared", 0, 1, "no-percent-result"},
    {"Set11_Shared", 1, 1, "fc-multiply"},
    {"Set11_Shared", 2, 1, "no-multiple-receipts"},
    {"Set11_Shared", 3, 1, "no-duplicate-z"},
    {"Set11_Shared", 4, 1, "no-zero-skip"},
    {"Set11_Shared", 5, 1, "receipt-mode"},
    {"Set11_Shared", 6, 1, "table-optional"},
    {"Set11_Shared", 7, 1, "guest-optional"},
    {"Set12_Hospitality", 0, 1, "any-clerk"},
    {"Set12_Hospitality", 1, 1, "no-review-receipt"},
    {"Set12_Hospitality", 2, 1, "no-count-new-balance"},
    {"Set12_Hospitality", 3, 1, "no-count-invoice"},
    {"Set12_Hospitality", 4, 1, "no-count-review"},
    {"Set13_EJ", 0, 1, "store-all"},
    {"Set13_EJ", 1, 1, "no-start-beep"},
    {"Set13_EJ", 2, 1, "no-end-beep"},
    {"Set13_EJ", 3, 1, "no-new-balance"},
    {"Set13_EJ", 4, 1, "no-invoice"},
    {"Set13_EJ", 5, 1, "no-review"},
    {"Set14_Print", 0, 1, "manual-abr"},
    {"Set14_Print", 1, 1, "no-multiple-invoice"},
    {"Set15_Print", 0, 1, "small-xz"},
    {"Set15_Print", 1, 1, "small-ej"},
    {"Set15_Print", 2, 1, "small-prg"},
    {"Set15_Print", 3, 1, "small-invoice"},
    {"Set15_Print", 4, 1, "small-review"},
    {"Set16_Print", 0, 1, "no-picture-on-receipt"},
    {"Set16_Print", 1, 1, "no-picture-on-new-balance"},
    {"Set16_Print", 2, 1, "no-picture-on-invoice"},
    {"Set16_Print", 3, 1, "no-picture-on-review"},
    {"Set17_Print", 0, 1, "no-date"},
    {"Set17_Print", 1, 1, "no-time"},
    {"Set17_Print", 2, 1, "no-clerk"},
    {"Set17_Print", 3, 1, "no-machine"},
    {"Set17_Print", 4, 1, "no-consecutive"},
    {"Set17_Print", 5, 1, "no-plu-number"},
    {"Set17_Print", 6, 1, "no-subtotal"},
    {"Set17_Print", 7, 1, "no-z-counters"},
    {"Set18_Print", 0, 1, "no-gt"},
    {"Set18_Print", 1, 1, "no-refund-total"},
    {"Set18_Print", 2, 1, "no-tax-rate"},
    {"Set18_Print", 3, 1, "no-total-tax"},
    {"Set18_Print", 4, 1, "no-tax-per-rate"},
    {"Set18_Print", 5, 1, "no-taxable-per-rate"},
    {"Set18_Print", 6, 1, "no-total-taxable"},
    {"Set18_Print", 7, 1, "no-net-per-rate"},
    {"Set19_Print", 0, 1, "no-total-net"},
    {"Set19_Print", 1, 1, "no-tax-symbol"},
    {"Set19_Print", 2, 1, "no-header"},
    {"Set19_Print", 3, 1, "no-footer"},
    {"Set19_Print", 4, 1, "xz-header"},
    {"Set19_Print", 5, 1, "no-ratio"},
    {"Set19_Print", 6, 1, "no-new-balance-header"},
    {"Set19_Print", 7, 1, "no-new-balance-footer"},
    {"Set20_Print", 0, 1, "no-invoice-header"},
    {"Set20_Print", 1, 1, "no-invoice-footer"},
    {"Set20_Print", 2, 1, "no-review-header"},
    {"Set20_Print", 3, 1, "no-review-footer"},
    {"Set20_Print", 4, 1, "no-new-balance-amounts"},
    {"Set20_Print", 5, 1, "no-proforma-amounts"},
    {"Set20_Print", 6, 1, "no-void-total"},
    {"KeyOpt4", 0, 1, "percent1-discount"},
    {"KeyOpt4", 1, 1, "percent2-add-on"},
    {"KeyOpt4", 2, 1, "plus-minus1-add-on"},
    {"KeyOpt4", 3, 1, "plus-minus2-add-on"},
    {"KeyOpt4", 4, 1, "no-ra-header"},
    {"KeyOpt4", 5, 1, "no-po-header"},
    {"NoSaleOpt", 0, 1, "drawer-closed"},
    {"NoSaleOpt", 1, 1, "manager-only"},
    {"NoSaleOpt", 2, 1, "no-receipt"},
    {"NoSaleOpt", 3, 1, "no-header"},
    {"NoSaleOpt", 4, 1, "no-ej"},
    {"NoSaleOpt", 5, 1, "no-consecutive"},
    {"AdvSet8", 0, 1, "receipt-on-off"},
    {"AdvSet8", 1, 1, "subtotal"},
    {"AdvSet8", 2, 1, "check"},
    {"AdvSet8", 3, 1, "charge"},
    {"AdvSet8", 4, 1, "credit1"},
    {"AdvSet8", 5, 1, "credit2"},
    {"AdvSet8", 6, 1, "credit3"},
    {"AdvSet8", 7, 1, "credit4"},
    {"AdvSet8", 8, 1, "credit5"},
    {"AdvSet8", 9, 1, "credit6"},
    {"AdvSet8", 10, 1, "fc"},
    {"AdvSet8", 11, 1, "percent1"},
    {"AdvSet8", 12, 1, "percent2"},
    {"AdvSet8", 13, 1, "plus-minus1"},
    {"AdvSet8", 14, 1, "plus-minus2"},
    {"AdvSet8", 15, 1, "ra"},
    {"AdvSet8", 16, 1, "po"},
    {"AdvSet8", 17, 1, "ec"},
    {"AdvSet8", 18, 1, "void"},
    {"AdvSet8", 19, 1, "full-void"},
    {"AdvSet8", 20, 1, "refund"},
    {"AdvSet8", 21, 1, "plu-code"},
    {"AdvSet8", 22, 1, "plu-alt"},
    {"AdvSet8", 23, 1, "add-plu"},
    {"AdvSet8", 24, 1, "plu-inquiry"},
    {"AdvSet8", 25, 1, "hold"},
    {"AdvSet8", 26, 1, "payment-transfer"},
    {"AdvSet8", 27, 1, "take-out"},
    {"AdvSet8", 28, 1, "abr"},
    {"AdvSet8", 32, 1, "table"},
    {"AdvSet8", 33, 1, "guest"},
    {"AdvSet8", 34, 1, "review"},
    {"AdvSet8", 35, 1, "table-add"},
    {"AdvSet8", 36, 1, "table-separate"},
    {"AdvSet8", 37, 1, "table-change"},
    {"AdvSet8", 38, 1, "proforma"},
    {"AdvSet8", 39, 1, "tray"},
    {"AdvSet8", 40, 1, "extra-invoice"},
    {"AdvSet8", 41, 1, "payment"},
    {"AdvSet8", 42, 1, "price1"},
    {"AdvSet8", 43, 1, "price2"},
    {"AdvSet8", 44, 1, "plu-page1"},
    {"AdvSet8", 45, 1, "plu-page2"},
    {"AdvSet8", 46, 1, "plu-page3"},
    {"AdvSet2", 0, 1, "department-financial"},
    {"AdvSet2", 1, 1, "department-group"},
    {"AdvSet2", 2, 1, "all-plu"},
    {"AdvSet2", 3, 1, "clerk"},
    {"AdvSet2", 4, 1, "training-clerk"},
    {"AdvSet2", 5, 1, "hourly"},
    {"AdvSet2", 6, 1, "training"},
    {"AdvSet2", 7, 1, "department-financial-gt"},
    {"AdvSet2", 8, 1, "full-ej"},
    {"AdvSet2", 9, 1, "plu-stock"},
    {"Dept.Status1", 0, 1, "negative"},
    {"Dept.Status1", 1, 1, "single"},
    {"Dept.Status1", 3, 1, "saved"},
    {"Dept.Status1", 4, 4, "limit"},
    {"Dept.Status2", 0, 2, "type", price_types},
    {"Clerk.Rights", 0, 1, "no-void"},
    {"Clerk.Rights", 1, 1, "no-refund"},
    {"Clerk.Rights", 2, 1, "no-discount"},
    {"Clerk.Rights", 3, 1, "no-paid-out"},
    {"Clerk.Rights", 4, 1, "no-negative"},
    {"Clerk.Rights", 5, 1, "no-coupon"},
    {"Clerk.Rights", 6, 1, "no-extra-invoice"},
    {"Clerk.Rights", 7, 1, "training"},
    {"Tender.Options", 0, 1, "amount"},
    {"Tender.Options", 1, 1, "no-change"},
    {"Tender.Options", 2, 1, "drawer-closed"},
    {"Plu.Flags1", 0, 2, "type", item_types},
    {"Plu.Flags1", 5, 1, "stock"},
    {"Plu.Flags1", 6, 1, "price1"},
    {"Plu.Flags1", 7, 1, "price2"},
};
// clang-format on

}  // namespace

std::string key_name(std::uint8_t code) {
  for (const KeyFamily& family : key_families) {
    const int number = code - family.before_first;
    if (number >= 1 && number <= family.members) return std::string{family.name} + std::to_string(number);
  }
  for (const KeyName& key : single_keys) {
    if (key.code == code) return std::string{key.name};
  }
  return {};
}

std::optional<std::uint8_t> key_code(std::string_view name) {
  if (name.empty()) return std::nullopt;
  for (int code = 0; code <= 255; ++code) {
    if (key_name(static_cast<std::uint8_t>(code)) == name) return static_cast<std::uint8_t>(code);
  }
  return std::nullopt;
}

std::span<const BitName> bit_names(std::string_view field) {
  const auto belongs = [&](const BitName& bit) { return bit.field == field; };
  const auto* first = std::find_if(std::begin(all_bits), std::end(all_bits), belongs);
  const auto* last = std::find_if_not(first, std::end(all_bits), belongs);
  return {first, last};
}

}  // namespace ecr
