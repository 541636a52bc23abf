#include "fields/key_codes.h"

#include <array>
#include <cstddef>

namespace ecr {
namespace {

struct Name {
  std::array<char, 16> letters{};
  std::size_t length = 0;

  constexpr void append(std::string_view text) {
    for (const char c : text) letters.at(length++) = c;
  }
  [[nodiscard]] constexpr std::string_view view() const { return {letters.data(), length}; }
};

struct Row {
  std::uint8_t code;
  std::string_view name;
};

// clang-format off
constexpr Row single_functions[] = {
    {20, "DEPT SHIFT, CODE"}, {21, "#NS, NEXT"}, {22, "CLERK, ESC"}, {23, "RECEIPT ON/OFF"}, {24, "SUBTOTAL"},
    {25, "CHECK"}, {26, "CHARGE"}, {27, "CREDIT1"}, {28, "CREDIT2"}, {29, "CREDIT3"}, {30, "CREDIT4"},
    {31, "CREDIT5"}, {32, "CREDIT6"}, {33, "FC"}, {34, "%1"}, {35, "%2"}, {36, "+/-1"}, {37, "+/-2"}, {38, "RA"},
    {40, "EC"}, {41, "VOID"}, {42, "FULL VOID"}, {43, "REFUND"}, {44, "PLU CODE"}, {45, "PLU PRICE"},
    {46, "ADD PLU"}, {47, "PLU INQUIRY"}, {48, "HOLD"}, {49, "PAYMENT TRANSFER"}, {50, "TAKE OUT"}, {51, "ABR"},
    {62, "TABLE#NEW BAL"}, {63, "GUEST"}, {64, "REVIEW"}, {65, "TABLE ADD"}, {66, "TABLE SEPARATE"},
    {67, "TABLE CHANGE"}, {68, "PROFORMA"}, {69, "TRAY/TRAY TL"}, {70, "EXTRA INVOICE"}, {71, "=PAYMENT"},
    {72, "PRICE1"}, {73, "PRICE2"}, {no_operation, "NO OPERATION"},
};
// clang-format on

// Functions of one kind: the name with the number behind it, code = before_first + number.
struct Family {
  std::string_view name;
  int before_first;
  int members;
};
constexpr Family families[] = {{"CHAIN FUNC ", first_chain_code - 1, 5},
                               {"POP LIST ", first_pop_list_code - 1, 5},
                               {"PLU PAGE ", 73, 3},
                               {"PLU LIST ", 76, 5},
                               {"DEPT ", 81, 20},
                               {"PLU ", 101, 50}};

using Names = std::array<Name, 256>;

/// The name of a code that must not have one yet.
constexpr Name& unnamed(Names& names, int code) {
  Name& name = names.at(static_cast<std::size_t>(code));
  if (name.length != 0) throw "a code has two names";
  return name;
}

constexpr Names make_names() {
  Names names{};
  for (const Row& row : single_functions) unnamed(names, row.code).append(row.name);
  for (const Family& family : families) {
    for (int number = 1; number <= family.members; ++number) {
      Name& name = unnamed(names, family.before_first + number);
      name.append(family.name);
      const char digits[] = {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
      name.append(number < 10 ? std::string_view{digits + 1, 1} : std::string_view{digits, 2});
    }
  }
  return names;
}

constexpr Names names = make_names();
static_assert(names[39].length == 0 && names[49].view() == "PAYMENT TRANSFER");
static_assert(names[151].view() == "PLU 50" && names[152].length == 0);

}  // namespace

std::string_view key_name(std::uint8_t code) {
  return names[code].view();
}

std::optional<std::uint8_t> key_code(std::string_view name) {
  if (name.empty()) return std::nullopt;
  for (std::size_t code = 0; code < names.size(); ++code) {
    if (names[code].view() == name) return static_cast<std::uint8_t>(code);
  }
  return std::nullopt;
}

}  // namespace ecr
