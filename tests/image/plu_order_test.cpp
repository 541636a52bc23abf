#include "image/plu_order.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "core/codecs.h"
#include "core/global.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Codes = std::vector<std::uint64_t>;

/// A table as rows that can be told apart: the code, and where the row stood at first.
struct Rows {
  Codes codes;
  std::vector<int> stood;
  int count = 0;
};

/// The passes, one by one: neighbours change places, and each pass begins just above the first exchange of the one
/// before.
Rows by_passes(Codes codes, int row, int count) {
  Rows rows{codes, std::vector<int>(codes.size()), count};
  std::iota(rows.stood.begin(), rows.stood.end(), 0);
  int start = row > 0 ? row - 1 : 0;
  bool exchanged = true;
  while (exchanged) {
    exchanged = false;
    int next_start = start;
    for (int r = start; r <= static_cast<int>(codes.size()) - 2; ++r) {
      std::uint64_t& a = rows.codes[static_cast<std::size_t>(r)];
      std::uint64_t& b = rows.codes[static_cast<std::size_t>(r + 1)];
      if (!((a > b && b != 0) || (a == 0 && b > 0))) continue;
      std::swap(a, b);
      std::swap(rows.stood[static_cast<std::size_t>(r)], rows.stood[static_cast<std::size_t>(r + 1)]);
      if (!exchanged) next_start = r > 0 ? r - 1 : 0;
      exchanged = true;
    }
    start = next_start;
  }
  const auto empty = std::find(rows.codes.begin(), rows.codes.end(), std::uint64_t{0});
  if (empty != rows.codes.end()) rows.count = static_cast<int>(empty - rows.codes.begin());
  return rows;
}

class ItemOrder : public InstallationTest {
 protected:
  ItemOrder() { Global::choose_model(Global::model_z320); }

  /// Records with these codes, every other byte random.
  static void lay(const Codes& codes, Random& random) {
    for (std::size_t i = 0; i < codes.size(); ++i) {
      const std::string bytes = random.bytes(sizeof(PluRecord));
      std::memcpy(static_cast<void*>(&PrgPlu.Row[i]), bytes.data(), bytes.size());
      number_to_bcds(PrgPlu.Row[i].Code, std::to_string(codes[i]));
    }
  }

  static std::string row(const PluRecord& record) { return {reinterpret_cast<const char*>(&record), sizeof record}; }

  /// The routine's outcome must be that of the passes, in every byte of every row.
  static void expect_as_by_passes(const Codes& codes, int saved, int count, Random& random) {
    lay(codes, random);
    PrgPlu.PluCount = static_cast<std::int16_t>(count);
    const auto before = std::make_unique<decltype(PrgPlu.Row)>(PrgPlu.Row);
    const Rows expected = by_passes(codes, saved, count);
    Ordina_Plu(codes, saved);
    EXPECT_EQ(PrgPlu.PluCount, expected.count);
    for (std::size_t i = 0; i < codes.size(); ++i) {
      const auto from = static_cast<std::size_t>(expected.stood[i]);
      ASSERT_EQ(row(PrgPlu.Row[i]), row((*before)[from])) << "row " << i;
    }
    ASSERT_EQ(std::memcmp(PrgPlu.Row.data() + codes.size(), before->data() + codes.size(),
                          (plu_rows - codes.size()) * sizeof(PluRecord)),
              0)
        << "the rows after them";
  }

  static Codes first_codes(std::size_t rows) {
    Codes codes;
    for (std::size_t i = 0; i < rows; ++i) codes.push_back(code_number(bcds_to_number(PrgPlu.Row[i].Code)));
    return codes;
  }
};

TEST_F(ItemOrder, ALowerCodeMovesItsItemUp) {
  Random random{1};
  lay({10, 20, 30, 5, 50, 0, 0}, random);
  const std::string moved = row(PrgPlu.Row[3]);
  Ordina_Plu({10, 20, 30, 5, 50, 0, 0}, 3);
  EXPECT_EQ(first_codes(5), Codes({5, 10, 20, 30, 50}));
  EXPECT_EQ(row(PrgPlu.Row[0]), moved) << "with all its fields";
}

TEST_F(ItemOrder, AHigherCodeMovesItsItemDown) {
  Random random{10};
  lay({10, 35, 30, 40, 0}, random);
  Ordina_Plu({10, 35, 30, 40, 0}, 1);
  EXPECT_EQ(first_codes(5), Codes({10, 30, 35, 40, 0}));
}

TEST_F(ItemOrder, EveryTableOfSixRowsGoesAsByPasses) {
  Random random{2};
  // All tables of six rows with the codes 0 to 3, from each row on.
  for (int table = 0; table < 4096; ++table) {
    Codes codes;
    for (int rest = table, i = 0; i < 6; ++i, rest /= 4) codes.push_back(static_cast<std::uint64_t>(rest % 4));
    for (int saved = 0; saved < 6; ++saved) {
      expect_as_by_passes(codes, saved, 4, random);
      if (HasFatalFailure() || HasNonfatalFailure()) FAIL() << "table " << table << ", saved row " << saved;
    }
  }
}

TEST_F(ItemOrder, ThousandsOfRandomTablesGoAsByPasses) {
  Random random{3};
  for (int round = 0; round < 3000; ++round) {
    const auto size = static_cast<std::size_t>(random.between(1, 60));
    const std::uint64_t most = random.coin() ? 12 : 9'999'999'999'999;
    Codes codes(size);
    for (std::uint64_t& code : codes) code = random.below(5) == 0 ? 0 : random.below(most) + 1;
    // Often sorted but for a few rows, as tables are.
    if (random.coin()) {
      std::sort(codes.begin(), codes.end());
      for (int i = 0; i < 3; ++i) codes[random.below(size)] = random.below(most);
    }
    expect_as_by_passes(codes, static_cast<int>(random.below(size)), static_cast<int>(random.below(size + 1)), random);
    if (HasFatalFailure() || HasNonfatalFailure()) FAIL() << "round " << round;
  }
}

TEST_F(ItemOrder, AFullTableGoesAsByPasses) {
  Random random{4};
  for (const int used : {2999, 3000}) {
    Codes codes(3000);
    for (int i = 0; i < used; ++i) codes[static_cast<std::size_t>(i)] = random.below(5000) + 1;
    expect_as_by_passes(codes, 1500, used, random);
    expect_as_by_passes(codes, 0, used, random);
  }
}

TEST_F(ItemOrder, DisorderAboveTheSavedRowStays) {
  Random random{5};
  lay({30, 10, 40, 50, 45, 0}, random);
  Ordina_Plu({30, 10, 40, 50, 45, 0}, 4);
  EXPECT_EQ(first_codes(5), Codes({30, 10, 40, 45, 50}));
}

TEST_F(ItemOrder, ASmallCodeComesInAmongTheDisorderAbove) {
  Random random{6};
  lay({30, 10, 40, 50, 20, 0}, random);
  Ordina_Plu({30, 10, 40, 50, 20, 0}, 4);
  EXPECT_EQ(first_codes(5), Codes({30, 10, 20, 40, 50})) << "it goes up to the first code that is not larger";
}

TEST_F(ItemOrder, ACodeOfZeroGoesToTheEndAndLowersTheCount) {
  Random random{7};
  lay({10, 0, 30, 40, 0, 0}, random);
  PrgPlu.PluCount = 4;
  Ordina_Plu({10, 0, 30, 40, 0, 0}, 1);
  EXPECT_EQ(first_codes(4), Codes({10, 30, 40, 0}));
  EXPECT_EQ(PrgPlu.PluCount, 3);
}

TEST_F(ItemOrder, WithoutAnEmptyRowTheCountStays) {
  Codes codes(3000);
  std::iota(codes.begin(), codes.end(), std::uint64_t{1});
  PrgPlu.PluCount = 2999;
  Ordina_Plu(codes, 2999);
  EXPECT_EQ(PrgPlu.PluCount, 2999);
}

TEST_F(ItemOrder, SendFlagAndListLinkTravelWithTheirItem) {
  Random random{8};
  lay({20, 10}, random);
  PrgPlu.Row[1].SendFlag = 1;
  PrgPlu.Row[1].PluListLink = 4;
  PrgPlu.Row[0].SendFlag = 0;
  Ordina_Plu({20, 10}, 0);
  EXPECT_EQ(PrgPlu.Row[0].SendFlag, 1);
  EXPECT_EQ(PrgPlu.Row[0].PluListLink, 4);
  EXPECT_EQ(PrgPlu.Row[1].SendFlag, 0);
}

TEST_F(ItemOrder, EqualCodesEndUpNextToEachOtherInTheirOrder) {
  Random random{9};
  expect_as_by_passes({10, 30, 20, 30, 10}, 0, 5, random);
}

TEST_F(ItemOrder, NothingToSortIsNoFault) {
  PrgPlu.PluCount = 7;
  Ordina_Plu({}, 0);
  Ordina_Plu({5}, 12);
  EXPECT_EQ(PrgPlu.PluCount, 7);
}

TEST_F(ItemOrder, ACodeIsTheNumberThatItsTextBeginsWith) {
  EXPECT_EQ(code_number("9999999999999999"), 9999999999999999U);
  EXPECT_EQ(code_number("007"), 7U);
  EXPECT_EQ(code_number(""), 0U);
  EXPECT_EQ(code_number("12x"), 12U);
  EXPECT_EQ(code_number("x"), 0U);
  EXPECT_EQ(code_number("-4"), 0U);
}

}  // namespace
}  // namespace ecr::test
