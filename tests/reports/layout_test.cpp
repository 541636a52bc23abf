#include "reports/layout.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace ecr::test {
namespace {

struct Header {
  std::vector<std::uint8_t> reports;
  const char* text;
};

// clang-format off
const Header headers[] = {
    {{3},
     "CashInDrawerTotal;CheckInDrawerTotal;ChergeInDrawerTotal;Credit1InDrawerTotal;Credit2InDrawerTotal"},
    {{4},
     "AllDepartmentSalesTotal;Tax0TotalSales;Tax1Amount;Tax1SalesWithoutTax;Tax1SalesWithTax;Tax2Amount"
     ";Tax2SalesWithoutTax;Tax2SalesWithTax;Tax3Amount;Tax3SalesWithoutTax;Tax3SalesWithTax;Tax4Amount"
     ";Tax4SalesWithoutTax;Tax4SalesWithTax;AllTaxAmount;AllTaxSalesWithoutTax;AllTaxSalesWithTax;ItemPM1Total"
     ";SubtotalPM1Total;ItemPM2Total;SubtotalPM2Total;ItemP1Total;SubtotalP1Total;ItemP2Total;SubtotalP2Total"
     ";RefoundCounter;RefoundTotal;VoidTotal;FullVoidCounter;FullVoidTotaler;NetSalesTotal;GrossSalesTotal"
     ";AdjustTotal;CashPaymentCounter;CashTotal;CheckPaymentCounter;CheckTotal;ChargePaymentCounter;ChargeTotal"
     ";Credit1PaymentCounter;Credit1Total;Credit2PaymentCounter;Credit2Total;Credit3PaymentCounter;Credit3Total"
     ";Credit4PaymentCounter;Credit4Total;Credit5PaymentCounter;Credit5Total;Credit6PaymentCounter;Credit6Total"
     ";RaCounter;RaTotal;PoCounter;PoTotal;NoSaleCounter;CashInDrawerTotal;CheckInDrawerTotal;ChargeInDrawerTotal"
     ";Credit1InDrawerTotal;Credit2InDrawerTotal;Credit3InDrawerTotal;Credit4InDrawerTotal;Credit5InDrawerTotal"
     ";Credit6InDrawerTotal;Fc1InDrawerTotal;Fc2InDrawerTotal;Fc3InDrawerTotal;Fc4InDrawerTotal;NewBalanceCounter"
     ";NewBalanceTotal;CloseBalanceCounter;CloseBalanceTotal;OpenTableCounter;OpenTableTotal;GuestCounter"
     ";InvoiceCounter;OpeningPettyCash;PriceChangeCounter;DrawerOpenCounter;TrainingReceiptCounter"
     ";TrainingSalesTotale;CopyReceiptCounter;CopyReceiptTotal;ProformaReceiptCounter;ProfotmaReceiptTotal"
     ";GrandTotal;GTGross;GTReturn"},
    {{5, 6},
     "DeptGroupNumber;DeptNumber;DeptItemCounter;RegSalesTotal"},
    {{7},
     "FreeCode;Price1Cnt;Price1Total;Price2Cnt;Price2Total"},
    {{9, 10},
     "ClerkNumber;AllDepartmentSalesTotal;Tax0TotalSales;Tax1Amount;Tax1SalesWithoutTax;Tax1SalesWithTax"
     ";Tax2Amount;Tax2SalesWithoutTax;Tax2SalesWithTax;Tax3Amount;Tax3SalesWithoutTax;Tax3SalesWithTax;Tax4Amount"
     ";Tax4SalesWithoutTax;Tax4SalesWithTax;AllTaxAmount;AllTaxSalesWithoutTax;AllTaxSalesWithTax;ItemPMTotal"
     ";SubtotalPMTotal;ItemP1Total;SubtotalP1Total;ItemP2Total;SubtotalP2Total;RefoundCounter;RefoundTotal"
     ";VoidTotal;FullVoidCounter;FullVoidTotal;NetSalesTotal;GrossSalesTotal;AdjustTotal;CashPaymentCounter"
     ";CashTotal;CheckPaymentCounter;CheckTotal;ChargePaymentCounter;ChargeTotal;Credit1PaymentCounter"
     ";Credit1Total;Credit2PaymentCounter;Credit2Total;Credit3PaymentCounter;Credit3Total;Credit4PaymentCounter"
     ";Credit4Total;Credit5PaymentCounter;Credit5Total;Credit6PaymentCounter;Credit6Total;RaCounter;RaTotal"
     ";PoCounter;PoTotal;NoSaleCounter;CashInDrawerTotal;CheckInDrawerTotal;ChargeInDrawerTotal"
     ";Credit1InDrawerTotal;Credit2InDrawerTotal;Fc1InDrawerTotal;Fc2InDrawerTotal;Fc3InDrawerTotal"
     ";Fc4InDrawerTotal;NewBalanceCounter;NewBalanceTotal;CloseBalanceCounter;CloseBalanceTotal;OpenTableCounter"
     ";OpenTableTotal;GuestCounter;InvoiceCounter;OpeningPettyCash;PriceChangeCounter;DrawerOpenCounter"
     ";TrainingReceiptCounter;TrainingSalesTotale;CopyReceiptCounter;CopyReceiptTotal;ProformaReceiptCounter"
     ";ProfotmaReceiptTotal"},
    {{11},
     "ClerkNumber;AllDepartmentSalesTotal;Tax0TotalSales;Tax1Amount;Tax1SalesWithoutTax;Tax1SalesWithTax"
     ";Tax2Amount;Tax2SalesWithoutTax;Tax2SalesWithTax;Tax3Amount;Tax3SalesWithoutTax;Tax3SalesWithTax;Tax4Amount"
     ";Tax4SalesWithoutTax;Tax4SalesWithTax;AllTaxAmount;AllTaxSalesWithoutTax;AllTaxSalesWithTax;ItemPMTotal"
     ";SubtotalPMTotal;ItemP1Total;SubtotalP1Total;ItemP2Total;SubtotalP2Total;RefoundCounter;RefoundTotal"
     ";VoidTotal;FullVoidCounter;FullVoidTotaler;NetSalesTotal;GrossSalesTotal;AdjustTotal;CashPaymentCounter"
     ";CashTotal;CheckPaymentCounter;CheckTotal;ChargePaymentCounter;ChargeTotal;Credit1PaymentCounter"
     ";Credit1Total;Credit2PaymentCounter;Credit2Total;RaCounter;RaTotal;PoCounter;PoTotal;NoSaleCounter"
     ";CashInDrawerTotal;CheckInDrawerTotal;ChargeInDrawerTotal;Credit1InDrawerTotal;Credit2InDrawerTotal"
     ";Fc1InDrawerTotal;Fc2InDrawerTotal;Fc3InDrawerTotal;Fc4InDrawerTotal;NewBalanceCounter;NewBalanceTotal"
     ";CloseBalanceCounter;CloseBalanceTotal;OpenTableCounter;OpenTableTotal;GuestCounter"
     ";InvoiceCounterInvoiceCounter;OpeningPettyCash;PriceChangeCounter;DrawerOpenCounter;TrainingReceiptCounter"
     ";TrainingSalesTotale;CopyReceiptCounter;CopyReceiptTotal;ProformaReceiptCounter;ProfotmaReceiptTotal"},
    {{12},
     "SalesCount;SalesTotal"},
    {{13, 14},
     "AllDepartmentSalesTotal;Tax0TotalSales;Tax1Amount;Tax1SalesWithoutTax;Tax1SalesWithTax;Tax2Amount"
     ";Tax2SalesWithoutTax;Tax2SalesWithTax;Tax3Amount;Tax3SalesWithoutTax;Tax3SalesWithTax;Tax4Amount"
     ";Tax4SalesWithoutTax;Tax4SalesWithTax;AllTaxAmount;AllTaxSalesWithoutTax;AllTaxSalesWithTax;ItemPM1Total"
     ";SubtotalPM1Total;ItemPM2Total;SubtotalPM2Total;ItemP1Total;SubtotalP1Total;ItemP2Total;SubtotalP2Total"
     ";RefoundCounter;RefoundTotal;VoidTotal;FullVoidCounter;FullVoidTotaler;NetSalesTotal;GrossSalesTotal"
     ";AdjustTotal;CashPaymentCounter;CashTotal;CheckPaymentCounter;CheckTotal;ChargePaymentCounter;ChargeTotal"
     ";Credit1PaymentCounter;Credit1Total;Credit2PaymentCounter;Credit2Total;Credit3PaymentCounter;Credit3Total"
     ";Credit4PaymentCounter;Credit4Total;Credit5PaymentCounter;Credit5Total;Credit6PaymentCounter;Credit6Total"
     ";RaCounter;RaTotal;PoCounter;PoTotal;NoSaleCounter;CashInDrawerTotal;CheckInDrawerTotal;ChargeInDrawerTotal"
     ";Credit1InDrawerTotal;Credit2InDrawerTotal;Credit3InDrawerTotal;Credit4InDrawerTotal;Credit5InDrawerTotal"
     ";Credit6InDrawerTotal;Fc1InDrawerTotal;Fc2InDrawerTotal;Fc3InDrawerTotal;Fc4InDrawerTotal;NewBalanceCounter"
     ";NewBalanceTotal;CloseBalanceCounter;CloseBalanceTotal;OpenTableCounter;OpenTableTotal;GuestCounter"
     ";InvoiceCounter;OpeningPettyCash;PriceChangeCounter;DrawerOpenCounter;TrainingReceiptCounter"
     ";TrainingSalesTotale;CopyReceiptCounter;CopyReceiptTotal;ProformaReceiptCounter;ProfotmaReceiptTotal"
     ";GrandTotal"},
    {{15},
     "TableNumber;TotalSales"},
    {{16, 17, 18, 19},
     "LineFromEj"},
    {{20, 21},
     "FreeCode;Name;StockCounter"},
};
// clang-format on

TEST(ReportLayouts, HaveTheseHeaders) {
  std::size_t seen = 0;
  for (const Header& header : headers) {
    for (const std::uint8_t number : header.reports) {
      ASSERT_NE(report_layout(number), nullptr);
      EXPECT_EQ(report_header(*report_layout(number)), header.text) << int{number};
      ++seen;
    }
  }
  EXPECT_EQ(seen, 18U);
}

TEST(ReportLayouts, ExistForReports3To21Only) {
  for (int number = 0; number < 256; ++number) {
    const ReportLayout* layout = report_layout(static_cast<std::uint8_t>(number));
    EXPECT_EQ(layout != nullptr, number >= 3 && number <= 21) << number;
    EXPECT_EQ(layout != nullptr && layout->columns.empty(), number == 8) << number;
  }
}

TEST(ReportLayouts, HaveTheseSizes) {
  struct Size {
    std::uint8_t number;
    std::size_t record;
    RecordCount count;
    std::size_t records;
    std::size_t columns;
  };
  constexpr RecordCount fixed = RecordCount::fixed;
  constexpr RecordCount journal = RecordCount::journal;
  const Size sizes[] = {{3, 40, fixed, 1, 5},
                        {4, 568, fixed, 1, 89},
                        {5, 16, fixed, 99, 4},
                        {6, 16, fixed, 1, 4},
                        {7, 36, fixed, 3000, 5},
                        {8, 36, fixed, 1, 0},
                        {9, 545, fixed, 15, 81},
                        {10, 545, fixed, 15, 81},
                        {11, 1089, fixed, 1, 64},
                        {12, 10, fixed, 24, 2},
                        {13, 552, fixed, 1, 87},
                        {14, 552, fixed, 1, 87},
                        {15, 5, fixed, 70, 2},
                        {16, 26, journal, 0, 1},
                        {17, 26, journal, 0, 1},
                        {18, 26, journal, 0, 1},
                        {19, 26, journal, 0, 1},
                        {20, 30, fixed, 3000, 3},
                        {21, 30, RecordCount::by_size, 0, 3}};
  for (const Size& size : sizes) {
    const ReportLayout& layout = *report_layout(size.number);
    EXPECT_EQ(layout.record_size, size.record) << int{size.number};
    EXPECT_EQ(layout.count, size.count) << int{size.number};
    EXPECT_EQ(layout.records, size.records) << int{size.number};
    EXPECT_EQ(layout.columns.size(), size.columns) << int{size.number};
  }
}

/// The bytes of a record that no column shows, as the first and the last of each gap.
std::vector<std::pair<std::size_t, std::size_t>> gaps(int number) {
  const ReportLayout& layout = *report_layout(static_cast<std::uint8_t>(number));
  std::vector<bool> shown(layout.record_size, false);
  for (const ReportColumn& column : layout.columns) {
    for (std::size_t i = 0; i < column.width; ++i) shown[column.offset + i] = true;
  }
  std::vector<std::pair<std::size_t, std::size_t>> found;
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (shown[i]) continue;
    if (found.empty() || found.back().second + 1 != i) found.emplace_back(i, i);
    found.back().second = i;
  }
  return found;
}

TEST(ReportLayouts, LeaveOutWhatNobodyReads) {
  using Gaps = std::vector<std::pair<std::size_t, std::size_t>>;
  for (const int whole : {3, 5, 6, 7, 12, 15, 20, 21}) EXPECT_EQ(gaps(whole), Gaps{}) << whole;
  for (const int financial : {4, 13, 14}) EXPECT_EQ(gaps(financial), (Gaps{{152, 159}}));
  for (const int clerk : {9, 10}) EXPECT_EQ(gaps(clerk), (Gaps{{153, 168}, {405, 436}}));
  EXPECT_EQ(gaps(11), (Gaps{{153, 168}, {303, 342}, {405, 436}, {503, 1088}}));
  for (const int journal : {16, 17, 18, 19}) EXPECT_EQ(gaps(journal), (Gaps{{24, 25}}));
}

}  // namespace
}  // namespace ecr::test
