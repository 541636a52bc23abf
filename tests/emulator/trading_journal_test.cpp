// The journal of a traded day lists its receipts; ranges are kept to.

#include <gtest/gtest.h>

#include "core/codecs.h"
#include "emulator/journal.h"
#include "emulator/trading_test.h"

namespace ecr::test {
namespace {

// Captions that the journal uses, from 1.
constexpr std::size_t total = 1;
constexpr std::size_t subtotal = 2;
constexpr std::size_t change = 7;
constexpr std::size_t full_void = 14;
constexpr std::size_t clerk = 24;
constexpr std::size_t receipt = 26;
constexpr std::size_t training = 68;

class Journal : public EachShop {
 protected:
  Journal() { trade(); }

  [[nodiscard]] bool is_sale(const JournalEntry& entry) const {
    return entry.has(word(total)) && !entry.has(word(training)) && !entry.has(word(full_void));
  }
};

INSTANTIATE_TEST_SUITE_P(Trading, Journal, ::testing::Values("Z300", "Z320"), model_in_name);

TEST_P(Journal, ListsEveryReceiptOfTheDay) {
  const auto financial = line(4);
  std::int64_t sales = 0;
  std::int64_t sum = 0;
  for (const JournalEntry& entry : journal(16)) {
    if (!is_sale(entry)) continue;
    ++sales;
    sum += units(entry.right_of(word(total)));
  }
  EXPECT_EQ(sales, count_of(table(12), "SalesCount"));
  EXPECT_EQ(sum, units(financial.at("NetSalesTotal")));
}

TEST_P(Journal, HasReceiptsWhoseLinesSumToTheirTotal) {
  int looked_at = 0;
  for (const JournalEntry& entry : journal(16)) {
    if (!is_sale(entry)) continue;
    std::int64_t sum = 0;
    for (const std::string& text : entry.lines) {
      if (text.starts_with(word(total) + " ")) break;
      // Amounts have two decimals; a multiplication, which has them too, has a price behind its sign.
      const std::string right = text.substr(text.rfind(' ') + 1);
      const bool amount = right.size() > 3 && right[right.size() - 3] == '.' && text.size() == 24;
      if (amount && !text.starts_with(word(subtotal) + " ") && text.find(" x ") == std::string::npos)
        sum += units(right);
    }
    EXPECT_EQ(sum, units(entry.right_of(word(total)))) << entry.lines.front();
    ++looked_at;
  }
  EXPECT_GT(looked_at, 50);
}

TEST_P(Journal, HasPaymentsThatSumToTheTotalAndGiveChange) {
  bool gave_change = false;
  for (const JournalEntry& entry : journal(16)) {
    if (!is_sale(entry)) continue;
    std::int64_t paid = 0;
    bool behind_total = false;
    for (const std::string& text : entry.lines) {
      const bool is_total = text.starts_with(word(total) + " ");
      behind_total = behind_total || is_total;
      if (!behind_total || is_total || text.find(" % ") != std::string::npos || text.find('.') == std::string::npos)
        continue;
      const std::int64_t amount = units(text.substr(text.rfind(' ') + 1));
      const bool back = text.starts_with(word(change) + " ");
      gave_change = gave_change || back;
      paid += back ? -amount : amount;
    }
    EXPECT_EQ(paid, units(entry.right_of(word(total)))) << entry.lines.front();
  }
  EXPECT_TRUE(gave_change);
}

TEST_P(Journal, NumbersItsReceiptsOneAfterTheOther) {
  std::int64_t last = 0;
  for (const JournalEntry& entry : journal(16)) {
    const std::string number = entry.right_of(word(receipt));
    if (number.empty()) continue;
    EXPECT_EQ(number.size(), 7U);
    if (last != 0) {
      EXPECT_EQ(std::stoll(number), last + 1);
    }
    last = std::stoll(number);
  }
  EXPECT_EQ(last, std::stoll(bcds_to_number(image().SysOpt3)));
}

TEST_P(Journal, RunsThroughTheDayInOrder) {
  std::string before;
  for (const JournalEntry& entry : journal(16)) {
    const std::string& time = entry.lines.at(1).substr(19);
    EXPECT_LE(before, time);
    before = time;
    EXPECT_TRUE(entry.lines.at(2).starts_with(word(clerk))) << entry.lines.at(2);
  }
}

TEST_P(Journal, KeepsTheDaysThatWereBefore) {
  const std::string first = fetched(16);
  EXPECT_EQ(fetched(17), first);
  EXPECT_EQ(fetched(18), first);
  EXPECT_EQ(fetched(19), first);
  trade();
  const std::string both = fetched(16);
  EXPECT_EQ(fetched(17), first);
  EXPECT_EQ(fetched(18), fetched(19));
  EXPECT_EQ(both, first + fetched(19));
  EXPECT_NE(fetched(19), first);
}

TEST_P(Journal, DropsTheOldestDaysWhenItIsFull) {
  trade(40);
  const std::string all = fetched(16);
  EXPECT_LE(all.size() / 26, trading::JournalForm::lines_max);
  EXPECT_GT(all.size() / 26, trading::JournalForm::lines_max * 9 / 10);
  EXPECT_EQ(all[24], trading::JournalForm::day_mark) << "it begins with a whole day";
  EXPECT_TRUE(all.ends_with(fetched(19)));
  EXPECT_TRUE(all.starts_with(fetched(17)));
  EXPECT_GT(journal_lines(16).size(), 20000U) << "and the decoder still takes it whole";
}

TEST(JournalDates, FollowTheNumberOfTheDay) {
  EXPECT_EQ(trading::date_of_day(1), "01.01.2024");
  EXPECT_EQ(trading::date_of_day(60), "29.02.2024");
  EXPECT_EQ(trading::date_of_day(366), "31.12.2024");
  EXPECT_EQ(trading::date_of_day(367), "01.01.2025");
  EXPECT_EQ(trading::date_of_day(0), "01.01.2024");
  EXPECT_EQ(trading::date_of_day(9999), "17.05.2051");
}

// Ranges

class Ranges : public EachShop {
 protected:
  Ranges() { trade(); }
};

INSTANTIATE_TEST_SUITE_P(Trading, Ranges, ::testing::Values("Z300", "Z320"), model_in_name);

TEST_P(Ranges, OfDepartmentsBringThoseAndNoOthers) {
  const std::string all = fetched(5);
  EXPECT_EQ(fetched(5, 1, 99), all);
  EXPECT_EQ(fetched(5, 0, 2147483647), all);
  EXPECT_EQ(fetched(5, 3, 7), all.substr(2 * 16, 5 * 16));
  EXPECT_EQ(fetched(5, 99, 99), all.substr(98 * 16));
  EXPECT_EQ(fetched(5, 100, 200), "");
  EXPECT_EQ(fetched(5, -5, 0), "");
}

TEST_P(Ranges, OfItemsGoByTheirCodes) {
  const std::string all = fetched(7);
  const std::string some = fetched(8, 2, 7);
  EXPECT_EQ(some, all.substr(36, 6 * 36)) << "both shops have the items 1 to 8 first";
  EXPECT_EQ(fetched(8), all.substr(0, 36)) << "without a range, the first item";
  EXPECT_EQ(fetched(8, -10, 0), "") << "a row without an item is in no range";
}

TEST_P(Ranges, OfClerksBringTheirDoubleRecords) {
  const std::string normal = fetched(9);
  const std::string learning = fetched(10);
  EXPECT_EQ(fetched(11, 2, 3), normal.substr(545, 545) + learning.substr(546, 544) + normal.substr(1090, 545) +
                                   learning.substr(1091, 544));
  EXPECT_EQ(fetched(11, 1, 15).size(), 15 * 1089U);
}

TEST_P(Ranges, OfStockBringTheItemsWithSoManyLeft) {
  const std::string all = fetched(20);
  for (const auto& [from, to] : {std::pair{0, 9999}, {5, 9999}, {5, 10}, {9999, 9999}, {-100, -1}}) {
    std::string expected;
    for (std::size_t start = 0; start < all.size(); start += 30) {
      const std::string record = all.substr(start, 30);
      const std::int64_t stock = signed_number(record.substr(24, 6));
      if (packed_number(record.substr(0, 8)) != 0 && stock >= from * 10000 && stock <= to * 10000) expected += record;
    }
    EXPECT_EQ(fetched(21, from, to), expected) << from << " to " << to;
  }
  EXPECT_GT(fetched(21, 5, 9999).size(), 10 * 30U);
  EXPECT_EQ(fetched(21), fetched(21, 0, 9999));
}

TEST_P(Ranges, MeanNothingToReportsThatHaveNone) {
  for (const int number : {3, 4, 7, 9, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20}) {
    const auto report = static_cast<std::uint8_t>(number);
    const std::string whole = fetched(report);
    EXPECT_EQ(fetched(report, 2, 3), whole) << number;
  }
}

TEST_P(Ranges, MeanNothingToAReportThatAFileAnswers) {
  write("register/reports/5.bin", "my own");
  EXPECT_EQ(fetched(5), "my own");
  EXPECT_EQ(fetched(5, 3, 3), "my own");
}

}  // namespace
}  // namespace ecr::test
