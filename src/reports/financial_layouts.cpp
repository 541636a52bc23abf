// The records of totals: financial, clerk, and the clerk record with a second body behind the first.

#include "reports/layout.h"

namespace ecr {
namespace {

using ColumnKind::byte;
using ColumnKind::count;
using ColumnKind::value;

template <std::size_t N, std::size_t M>
constexpr std::array<ReportColumn, N> first_of(const std::array<ReportColumn, M>& columns) {
  static_assert(N <= M);
  std::array<ReportColumn, N> result{};
  for (std::size_t i = 0; i < N; ++i) result[i] = columns[i];
  return result;
}

}  // namespace

// clang-format off
// Heading, offset, width, kind. The totals of the percentages are not in the record's order: the heads of the columns
// and what stands below them have been so since the first spreadsheet was made from these files. The total at 152 is
// shown nowhere, the one at 184 twice.
constexpr std::array<ReportColumn, 89> financial_columns = {{
    {"AllDepartmentSalesTotal", 0, 8, value},
    {"Tax0TotalSales", 8, 8, value},
    {"Tax1Amount", 16, 8, value},
    {"Tax1SalesWithoutTax", 24, 8, value},
    {"Tax1SalesWithTax", 32, 8, value},
    {"Tax2Amount", 40, 8, value},
    {"Tax2SalesWithoutTax", 48, 8, value},
    {"Tax2SalesWithTax", 56, 8, value},
    {"Tax3Amount", 64, 8, value},
    {"Tax3SalesWithoutTax", 72, 8, value},
    {"Tax3SalesWithTax", 80, 8, value},
    {"Tax4Amount", 88, 8, value},
    {"Tax4SalesWithoutTax", 96, 8, value},
    {"Tax4SalesWithTax", 104, 8, value},
    {"AllTaxAmount", 112, 8, value},
    {"AllTaxSalesWithoutTax", 120, 8, value},
    {"AllTaxSalesWithTax", 128, 8, value},
    {"ItemPM1Total", 136, 8, value},
    {"SubtotalPM1Total", 144, 8, value},
    {"ItemPM2Total", 168, 8, value},
    {"SubtotalPM2Total", 160, 8, value},
    {"ItemP1Total", 184, 8, value},
    {"SubtotalP1Total", 176, 8, value},
    {"ItemP2Total", 184, 8, value},
    {"SubtotalP2Total", 192, 8, value},
    {"RefoundCounter", 200, 2, count},
    {"RefoundTotal", 202, 8, value},
    {"VoidTotal", 210, 8, value},
    {"FullVoidCounter", 218, 2, count},
    {"FullVoidTotaler", 220, 8, value},
    {"NetSalesTotal", 228, 8, value},
    {"GrossSalesTotal", 236, 8, value},
    {"AdjustTotal", 244, 8, value},
    {"CashPaymentCounter", 252, 2, count},
    {"CashTotal", 254, 8, value},
    {"CheckPaymentCounter", 262, 2, count},
    {"CheckTotal", 264, 8, value},
    {"ChargePaymentCounter", 272, 2, count},
    {"ChargeTotal", 274, 8, value},
    {"Credit1PaymentCounter", 282, 2, count},
    {"Credit1Total", 284, 8, value},
    {"Credit2PaymentCounter", 292, 2, count},
    {"Credit2Total", 294, 8, value},
    {"Credit3PaymentCounter", 302, 2, count},
    {"Credit3Total", 304, 8, value},
    {"Credit4PaymentCounter", 312, 2, count},
    {"Credit4Total", 314, 8, value},
    {"Credit5PaymentCounter", 322, 2, count},
    {"Credit5Total", 324, 8, value},
    {"Credit6PaymentCounter", 332, 2, count},
    {"Credit6Total", 334, 8, value},
    {"RaCounter", 342, 2, count},
    {"RaTotal", 344, 8, value},
    {"PoCounter", 352, 2, count},
    {"PoTotal", 354, 8, value},
    {"NoSaleCounter", 362, 2, count},
    {"CashInDrawerTotal", 364, 8, value},
    {"CheckInDrawerTotal", 372, 8, value},
    {"ChargeInDrawerTotal", 380, 8, value},
    {"Credit1InDrawerTotal", 388, 8, value},
    {"Credit2InDrawerTotal", 396, 8, value},
    {"Credit3InDrawerTotal", 404, 8, value},
    {"Credit4InDrawerTotal", 412, 8, value},
    {"Credit5InDrawerTotal", 420, 8, value},
    {"Credit6InDrawerTotal", 428, 8, value},
    {"Fc1InDrawerTotal", 436, 8, value},
    {"Fc2InDrawerTotal", 444, 8, value},
    {"Fc3InDrawerTotal", 452, 8, value},
    {"Fc4InDrawerTotal", 460, 8, value},
    {"NewBalanceCounter", 468, 2, count},
    {"NewBalanceTotal", 470, 8, value},
    {"CloseBalanceCounter", 478, 2, count},
    {"CloseBalanceTotal", 480, 8, value},
    {"OpenTableCounter", 488, 2, count},
    {"OpenTableTotal", 490, 8, value},
    {"GuestCounter", 498, 2, count},
    {"InvoiceCounter", 500, 2, count},
    {"OpeningPettyCash", 502, 8, value},
    {"PriceChangeCounter", 510, 2, count},
    {"DrawerOpenCounter", 512, 2, count},
    {"TrainingReceiptCounter", 514, 2, count},
    {"TrainingSalesTotale", 516, 8, value},
    {"CopyReceiptCounter", 524, 2, count},
    {"CopyReceiptTotal", 526, 8, value},
    {"ProformaReceiptCounter", 534, 2, count},
    {"ProfotmaReceiptTotal", 536, 8, value},
    {"GrandTotal", 544, 8, value},
    {"GTGross", 552, 8, value},
    {"GTReturn", 560, 8, value},
}};

// The clerk's number, then the same totals one byte later. Those at 153, 161 and 405 to 436 are shown nowhere.
constexpr std::array<ReportColumn, 81> clerk_columns = {{
    {"ClerkNumber", 0, 1, byte},
    {"AllDepartmentSalesTotal", 1, 8, value},
    {"Tax0TotalSales", 9, 8, value},
    {"Tax1Amount", 17, 8, value},
    {"Tax1SalesWithoutTax", 25, 8, value},
    {"Tax1SalesWithTax", 33, 8, value},
    {"Tax2Amount", 41, 8, value},
    {"Tax2SalesWithoutTax", 49, 8, value},
    {"Tax2SalesWithTax", 57, 8, value},
    {"Tax3Amount", 65, 8, value},
    {"Tax3SalesWithoutTax", 73, 8, value},
    {"Tax3SalesWithTax", 81, 8, value},
    {"Tax4Amount", 89, 8, value},
    {"Tax4SalesWithoutTax", 97, 8, value},
    {"Tax4SalesWithTax", 105, 8, value},
    {"AllTaxAmount", 113, 8, value},
    {"AllTaxSalesWithoutTax", 121, 8, value},
    {"AllTaxSalesWithTax", 129, 8, value},
    {"ItemPMTotal", 137, 8, value},
    {"SubtotalPMTotal", 145, 8, value},
    {"ItemP1Total", 169, 8, value},
    {"SubtotalP1Total", 177, 8, value},
    {"ItemP2Total", 185, 8, value},
    {"SubtotalP2Total", 193, 8, value},
    {"RefoundCounter", 201, 2, count},
    {"RefoundTotal", 203, 8, value},
    {"VoidTotal", 211, 8, value},
    {"FullVoidCounter", 219, 2, count},
    {"FullVoidTotal", 221, 8, value},
    {"NetSalesTotal", 229, 8, value},
    {"GrossSalesTotal", 237, 8, value},
    {"AdjustTotal", 245, 8, value},
    {"CashPaymentCounter", 253, 2, count},
    {"CashTotal", 255, 8, value},
    {"CheckPaymentCounter", 263, 2, count},
    {"CheckTotal", 265, 8, value},
    {"ChargePaymentCounter", 273, 2, count},
    {"ChargeTotal", 275, 8, value},
    {"Credit1PaymentCounter", 283, 2, count},
    {"Credit1Total", 285, 8, value},
    {"Credit2PaymentCounter", 293, 2, count},
    {"Credit2Total", 295, 8, value},
    {"Credit3PaymentCounter", 303, 2, count},
    {"Credit3Total", 305, 8, value},
    {"Credit4PaymentCounter", 313, 2, count},
    {"Credit4Total", 315, 8, value},
    {"Credit5PaymentCounter", 323, 2, count},
    {"Credit5Total", 325, 8, value},
    {"Credit6PaymentCounter", 333, 2, count},
    {"Credit6Total", 335, 8, value},
    {"RaCounter", 343, 2, count},
    {"RaTotal", 345, 8, value},
    {"PoCounter", 353, 2, count},
    {"PoTotal", 355, 8, value},
    {"NoSaleCounter", 363, 2, count},
    {"CashInDrawerTotal", 365, 8, value},
    {"CheckInDrawerTotal", 373, 8, value},
    {"ChargeInDrawerTotal", 381, 8, value},
    {"Credit1InDrawerTotal", 389, 8, value},
    {"Credit2InDrawerTotal", 397, 8, value},
    {"Fc1InDrawerTotal", 437, 8, value},
    {"Fc2InDrawerTotal", 445, 8, value},
    {"Fc3InDrawerTotal", 453, 8, value},
    {"Fc4InDrawerTotal", 461, 8, value},
    {"NewBalanceCounter", 469, 2, count},
    {"NewBalanceTotal", 471, 8, value},
    {"CloseBalanceCounter", 479, 2, count},
    {"CloseBalanceTotal", 481, 8, value},
    {"OpenTableCounter", 489, 2, count},
    {"OpenTableTotal", 491, 8, value},
    {"GuestCounter", 499, 2, count},
    {"InvoiceCounter", 501, 2, count},
    {"OpeningPettyCash", 503, 8, value},
    {"PriceChangeCounter", 511, 2, count},
    {"DrawerOpenCounter", 513, 2, count},
    {"TrainingReceiptCounter", 515, 2, count},
    {"TrainingSalesTotale", 517, 8, value},
    {"CopyReceiptCounter", 525, 2, count},
    {"CopyReceiptTotal", 527, 8, value},
    {"ProformaReceiptCounter", 535, 2, count},
    {"ProfotmaReceiptTotal", 537, 8, value},
}};

// More heads than values, and two of the heads run together.
constexpr char double_clerk_header[] =
    "ClerkNumber;AllDepartmentSalesTotal;Tax0TotalSales;Tax1Amount;Tax1SalesWithoutTax;Tax1SalesWithTax;Tax2Amount;"
    "Tax2SalesWithoutTax;Tax2SalesWithTax;Tax3Amount;Tax3SalesWithoutTax;Tax3SalesWithTax;Tax4Amount;"
    "Tax4SalesWithoutTax;Tax4SalesWithTax;AllTaxAmount;AllTaxSalesWithoutTax;AllTaxSalesWithTax;ItemPMTotal;"
    "SubtotalPMTotal;ItemP1Total;SubtotalP1Total;ItemP2Total;SubtotalP2Total;RefoundCounter;RefoundTotal;VoidTotal;"
    "FullVoidCounter;FullVoidTotaler;NetSalesTotal;GrossSalesTotal;AdjustTotal;CashPaymentCounter;CashTotal;"
    "CheckPaymentCounter;CheckTotal;ChargePaymentCounter;ChargeTotal;Credit1PaymentCounter;Credit1Total;"
    "Credit2PaymentCounter;Credit2Total;RaCounter;RaTotal;PoCounter;PoTotal;NoSaleCounter;CashInDrawerTotal;"
    "CheckInDrawerTotal;ChargeInDrawerTotal;Credit1InDrawerTotal;Credit2InDrawerTotal;Fc1InDrawerTotal;"
    "Fc2InDrawerTotal;Fc3InDrawerTotal;Fc4InDrawerTotal;NewBalanceCounter;NewBalanceTotal;CloseBalanceCounter;"
    "CloseBalanceTotal;OpenTableCounter;OpenTableTotal;GuestCounter;InvoiceCounterInvoiceCounter;OpeningPettyCash;"
    "PriceChangeCounter;DrawerOpenCounter;TrainingReceiptCounter;TrainingSalesTotale;CopyReceiptCounter;"
    "CopyReceiptTotal;ProformaReceiptCounter;ProfotmaReceiptTotal";
// clang-format on

// Without the two grand totals at the end.
constexpr std::array<ReportColumn, 87> short_financial_columns = first_of<87>(financial_columns);

// The first body only, and of that no credit above the second and nothing behind the invoices.
constexpr std::array<ReportColumn, 64> double_clerk_columns = [] {
  constexpr std::size_t up_to_credit2 = 42;
  constexpr std::size_t from_received = 50;
  std::array<ReportColumn, 64> columns = first_of<64>(clerk_columns);
  for (std::size_t i = up_to_credit2; i < columns.size(); ++i) {
    columns[i] = clerk_columns[from_received + i - up_to_credit2];
  }
  return columns;
}();

static_assert(columns_fit(financial_columns, financial_size));
static_assert(columns_fit(short_financial_columns, short_financial_size));
static_assert(columns_fit(clerk_columns, clerk_size));
static_assert(columns_fit(double_clerk_columns, double_clerk_size));
static_assert(double_clerk_columns[41].heading == "Credit2Total" && double_clerk_columns[42].heading == "RaCounter" &&
              double_clerk_columns[63].heading == "InvoiceCounter");

}  // namespace ecr
