// What trading moves, what it leaves alone, and what makes it happen.

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

#include "core/codecs.h"
#include "core/global.h"
#include "core/register_text.h"
#include "core/text.h"
#include "emulator/graphic.h"
#include "emulator/receipt.h"
#include "emulator/trading.h"
#include "emulator/trading_test.h"

namespace ecr::test {
namespace {

std::int64_t number(std::span<const std::uint8_t> field) {
  return std::stoll(bcds_to_number(field));
}

using TradingStateTest = TradingTest;

class Counters : public EachShop {};

INSTANTIATE_TEST_SUITE_P(Trading, Counters, ::testing::Values("Z300", "Z320"), model_in_name);

TEST_P(Counters, OfTheRegisterMoveOnByADay) {
  const PrgModeImage before = image();
  trade();
  const PrgModeImage after = image();
  const auto financial = line(4);
  EXPECT_EQ(number(after.SysOpt5), number(before.SysOpt5) + 1);
  EXPECT_EQ(number(after.SysOpt6), number(before.SysOpt6) + 1);
  EXPECT_EQ(number(after.SysOpt7), number(before.SysOpt7) + units(financial.at("NetSalesTotal")));
  const std::int64_t numbered = count_of(table(12), "SalesCount") + std::stoll(financial.at("FullVoidCounter")) +
                                std::stoll(financial.at("RaCounter")) + std::stoll(financial.at("PoCounter"));
  EXPECT_EQ(number(after.SysOpt3), number(before.SysOpt3) + numbered);
  EXPECT_EQ(units(financial.at("GrandTotal")), number(after.SysOpt7));
}

TEST_P(Counters, AreAllThatMovesInTheProgramming) {
  PrgModeImage before = image();
  trade();
  const PrgModeImage after = image();
  before.SysOpt3 = after.SysOpt3;
  before.SysOpt5 = after.SysOpt5;
  before.SysOpt6 = after.SysOpt6;
  before.SysOpt7 = after.SysOpt7;
  EXPECT_EQ(bytes_of_image(before), bytes_of_image(after));
}

TEST_P(Counters, OfTheGrandTotalAgreeWithItsGrossAndTheRefunds) {
  std::int64_t refunds = 0;
  for (int day = 0; day < 5; ++day) {
    trade();
    const auto financial = line(4);
    refunds += units(financial.at("RefoundTotal"));
    EXPECT_EQ(units(financial.at("GTReturn")), refunds);
    EXPECT_EQ(units(financial.at("GTGross")), units(financial.at("GrandTotal")) + refunds);
  }
  EXPECT_GT(refunds, 0);
}

TEST_P(Counters, BeginAnewBehindTheirLastDigit) {
  std::string programming = bytes("register/PRG_MODE.BIN");
  programming.replace(3117, 4, "\x99\x99\x99\x09");
  programming.replace(3125, 4, "\x99\x99\x99\x99");
  write("register/PRG_MODE.BIN", programming);
  trade();
  const PrgModeImage after = image();
  EXPECT_EQ(number(after.SysOpt5), 1);
  EXPECT_EQ(number(after.SysOpt6), 1);
  EXPECT_GT(number(after.SysOpt3), 50);
  EXPECT_LT(number(after.SysOpt3), 200);
  EXPECT_EQ(journal(16).at(0).right_of(word(26)), "0000001");
}

TEST_P(Counters, AndStockStayWhenReportsAreFetched) {
  trade();
  for (std::uint8_t report = 3; report <= 21; ++report) {
    EXPECT_EQ(changing_nothing([this, report] { return send_cmd(upload, report); }), done) << int{report};
    EXPECT_EQ(changing_nothing([this, report] { return range_report(report); }), done) << int{report};
  }
}

TEST_P(Counters, StockGoesDownByWhatWasSoldAndNothingElseOfAnItemChanges) {
  const std::vector<PluRecord> before = items();
  trade();
  const std::vector<PluRecord> after = items();
  const ReportTable sold = table(7);
  const ReportTable stock = table(20);
  ASSERT_EQ(after.size(), before.size());
  int moved = 0;
  for (std::size_t row = 0; row < after.size(); ++row) {
    const std::int64_t quantity =
        ten_thousandths(sold[row].at("Price1Cnt")) + ten_thousandths(sold[row].at("Price2Cnt"));
    const auto stock_in = [](const PluRecord& item) {
      return signed_number({reinterpret_cast<const char*>(item.Stock.bytes.data()), item.Stock.bytes.size()});
    };
    EXPECT_EQ(stock_in(after[row]), stock_in(before[row]) - quantity) << row;
    EXPECT_EQ(ten_thousandths(stock[row].at("StockCounter")), stock_in(after[row])) << row;
    EXPECT_EQ(stock[row].at("FreeCode"), sold[row].at("FreeCode"));
    EXPECT_EQ(stock[row].at("Name").size(), 16U);
    moved += quantity > 0 ? 1 : 0;
    PluRecord same = before[row];
    same.Stock = after[row].Stock;
    EXPECT_EQ(std::memcmp(&same, &after[row], sizeof same), 0) << row;
  }
  EXPECT_GT(moved, 50);
}

TEST_F(TradingStateTest, ItemsThatKeepNoStockKeepTheirNumber) {
  become("Z320");
  std::string held = bytes("register/PRG_PLU.BIN");
  for (std::size_t flags = 802 + 24; flags < held.size(); flags += 44)
    held[flags] = static_cast<char>(held[flags] & ~32);
  write("register/PRG_PLU.BIN", held);
  trade();
  EXPECT_EQ(bytes("register/PRG_PLU.BIN"), held);
  EXPECT_GT(quantity_of(table(7), "Price1Cnt"), 0);
}

TEST_F(TradingStateTest, StockThatIsNoNumberStaysAsItIs) {
  become("Z320");
  std::string held = bytes("register/PRG_PLU.BIN");
  for (std::size_t stock = 802 + 38; stock < held.size(); stock += 44) held[stock] = '\xAA';
  write("register/PRG_PLU.BIN", held);
  trade();
  EXPECT_EQ(bytes("register/PRG_PLU.BIN"), held);
}

// What makes it trade

TEST_F(TradingStateTest, TheNextCallBringsTheDaysThatTheLineNamesAndClearsIt) {
  become("Z320");
  const std::int64_t closes = number(image().SysOpt5);
  write("register/register.txt", "# mine\nport = 4\nTrade = 3\nowner = me\n");
  EXPECT_EQ(send_cmd(upload, 22), done);
  EXPECT_EQ(number(image().SysOpt5), closes + 3);
  EXPECT_EQ(bytes("register/register.txt"), "# mine\nport = 4\nTrade = 0\nowner = me\n");
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 22); }), done);
}

TEST_F(TradingStateTest, TheLastSaleOfTheDayIsSeenBelowTheLogo) {
  become("Z320");
  const std::string logo = std::string{"\x80\x01\xA2\x00", 4} + std::string(7776, '\x0F');
  write("register/GRAPHIC.BIN", logo);
  trade();
  const std::optional<DotPicture> picture = picture_in_graphic(logo);
  ASSERT_TRUE(picture.has_value());
  std::vector<std::string> lines;
  for (const auto& line : image().ReceiptHeader) lines.emplace_back(trim_end(sostituzione_from_ecr(line.view())));
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
  lines.emplace_back();
  // The first record of the report is its own; the others are those that the register keeps.
  const std::vector<std::string> sale = last_receipt(fetched(16).substr(26));
  ASSERT_GT(sale.size(), 3U) << "a sale has more than a line";
  lines.insert(lines.end(), sale.begin(), sale.end());
  EXPECT_EQ(bytes("register/receipt.bmp"), receipt_picture(*picture, lines));
}

TEST_F(TradingStateTest, AnyCallBringsThemAlsoOneThatFails) {
  become("Z320");
  const std::int64_t closes = number(image().SysOpt5);
  set("fails = yes\ntrade = 1");
  EXPECT_EQ(send_logo("x"), not_made);
  EXPECT_EQ(number(image().SysOpt5), closes + 1);
}

TEST_F(TradingStateTest, AnyOtherValueBringsNone) {
  become("Z320");
  for (const char* value : {"0", "-1", "367", "yes", "1.5", "", "99999999999999999999"}) {
    set(std::string{"trade = "} + value);
    EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 22); }), done) << value;
  }
}

TEST_F(TradingStateTest, NothingIsTradedWhereTheLineCannotBeCleared) {
  become("Z320");
  set("trade = 1");
  const SystemThatCannotWrite system{FaultCode::permission_denied};
  changing_nothing([this] { return send_cmd(upload, 22); });
}

TEST_F(TradingStateTest, TheSameSeedBringsTheSameDayAndAnotherSeedAnother) {
  const auto day_of = [this](const std::string& seed) {
    become("Z320");
    set("trade = 1\nseed = " + seed);
    EXPECT_EQ(send_cmd(upload, 22), done);
    return bytes("register/TOTALS.BIN");
  };
  const std::string first = day_of("1");
  EXPECT_EQ(day_of("1"), first);
  EXPECT_EQ(day_of("no number"), first) << "counts as 1";
  EXPECT_NE(day_of("2"), first);
  EXPECT_NE(day_of("18446744073709551615"), first);
}

TEST_F(TradingStateTest, EachDayIsAnotherOne) {
  become("Z300");
  trade();
  const std::string first = fetched(4);
  trade();
  EXPECT_NE(fetched(4), first);
}

TEST_F(TradingStateTest, NothingIsTradedOnProgrammingOfWrongLengthAndTheReasonIsTold) {
  const std::string folder = Global::PathApp + "register\\";
  const auto reason = [&] { return trading::trade(folder, 1, trading::TradedDay::next); };
  become("Z320");
  EXPECT_EQ(reason(), "");
  write("register/PRG_PLU.BIN", std::string(801, '\0'));
  const auto before = register_files();
  EXPECT_EQ(reason(), "PRG_PLU.BIN: wrong length");
  EXPECT_TRUE(register_files() == before);
  write("register/PRG_MODE.BIN", "short");
  EXPECT_EQ(reason(), "PRG_MODE.BIN: wrong length");
  remove("register/PRG_MODE.BIN");
  EXPECT_EQ(reason(), "PRG_MODE.BIN: " + std::string{Fault{FaultCode::file_not_found}.description()});
  set("trade = 1");
  EXPECT_EQ(send_cmd(upload, 22), done) << "what keeps it from trading is no matter of the call";
}

TEST_F(TradingStateTest, ADayThatCannotBeWrittenIsTold) {
  become("Z320");
  const SystemThatCannotWrite system{FaultCode::disk_full};
  const std::string folder = Global::PathApp + "register\\";
  EXPECT_EQ(trading::trade(folder, 1, trading::TradedDay::next),
            "PRG_PLU.BIN: " + std::string{Fault{FaultCode::disk_full}.description()});
  EXPECT_EQ(trading::trade(folder, 1, trading::TradedDay::last),
            "TOTALS.BIN: " + std::string{Fault{FaultCode::disk_full}.description()});
}

TEST_F(TradingStateTest, TheDayJustOverEndsAtTheCountersThatStand) {
  become("Z320");
  const PrgModeImage before = image();
  const std::string stock = bytes("register/PRG_PLU.BIN");
  EXPECT_EQ(trading::trade(Global::PathApp + "register\\", 1, trading::TradedDay::last), "");
  EXPECT_EQ(bytes_of_image(image()), bytes_of_image(before));
  EXPECT_EQ(bytes("register/PRG_PLU.BIN"), stock);
  EXPECT_EQ(units(line(4).at("GrandTotal")), number(before.SysOpt7));
  std::string last;
  for (const JournalEntry& entry : journal(16)) {
    if (const std::string receipt = entry.right_of(word(26)); !receipt.empty()) last = receipt;
  }
  EXPECT_EQ(std::stoll(last), number(before.SysOpt3));
}

// Odd programming

TEST_F(TradingStateTest, ProgrammingOfRandomBytesTradesAndAgrees) {
  for (unsigned seed = 0; seed < 60; ++seed) {
    write("register/PRG_MODE.BIN", bytes_for_image(seed));
    write("register/PRG_PLU.BIN", bytes_for_items(seed, seed * 7 % 60));
    EXPECT_EQ(trading::trade(Global::PathApp + "register\\", seed, trading::TradedDay::next), "") << seed;
    const std::string financial = fetched(4);
    ASSERT_EQ(financial.size(), 568U);
    std::int64_t paid = 0;
    for (std::size_t medium = 0; medium < 9; ++medium) paid += signed_number(financial.substr(254 + 10 * medium, 8));
    EXPECT_EQ(paid, signed_number(financial.substr(228, 8))) << seed;
    const std::string departments = fetched(5);
    std::int64_t sold = 0;
    for (std::size_t start = 8; start < departments.size(); start += 16)
      sold += signed_number(departments.substr(start, 8));
    EXPECT_EQ(sold, signed_number(financial.substr(0, 8))) << seed;
    // A byte 0 would end the journal for whoever reads it.
    const std::string lines = fetched(16);
    ASSERT_EQ(lines.size() % 26, 0U);
    for (std::size_t start = 0; start < lines.size(); start += 26) EXPECT_NE(lines[start], '\0') << seed;
  }
}

TEST_F(TradingStateTest, ARegisterWithNothingProgrammedStillTrades) {
  become("Z320");
  write("register/PRG_MODE.BIN", std::string(5656, '\0'));
  write("register/PRG_PLU.BIN", std::string(802, '\0'));
  trade();
  const std::string financial = fetched(4);
  EXPECT_EQ(number(image().SysOpt5), 1);
  // Day 1 of seed 1 is the same on every machine.
  EXPECT_EQ(signed_number(financial.substr(228, 8)), 3570);
  EXPECT_EQ(number(image().SysOpt3), 121);
}

TEST_F(TradingStateTest, TotalsThatAreTooShortCountAsNone) {
  become("Z320");
  trade();
  const std::string whole = bytes("register/TOTALS.BIN");
  write("register/TOTALS.BIN", whole.substr(0, 127577));
  EXPECT_EQ(signed_number(fetched(4).substr(228, 8)), 0);
  EXPECT_EQ(fetched(16), "");
  for (std::uint8_t report = 3; report <= 21; ++report) EXPECT_EQ(send_cmd(upload, report), done) << int{report};
  trade();
  EXPECT_GT(signed_number(fetched(4).substr(228, 8)), 0);
}

}  // namespace
}  // namespace ecr::test
