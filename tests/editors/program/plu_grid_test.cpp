#include "editors/program/plu_grid.h"

#include <cstring>
#include <gtest/gtest.h>

#include "core/codecs.h"
#include "core/global.h"
#include "support/random.h"
#include "support_qt/screen_test.h"
#include "widgets/choice_list.h"

namespace ecr::test {
namespace {

const QStringList types = {"0. OPEN", "1. NORMAL", "2. PRESET"};
const QStringList taxes = {"0. NON TAXABLE", "1. TAX1 TAXABLE", "2. TAX2 TAXABLE"};

class PluGridTest : public ScreenTest {
 protected:
  PluGridTest() { Global::choose_model(Global::model_z320); }

  static PluRecord random_record(Random& random) {
    PluRecord record{};
    number_to_bcds(record.Code, random.below(4) == 0 ? "0" : random.digits(13));
    record.Name.set(random.text(random.below(17), "ABCxyz \xDB 0189"));
    record.Flags1 = random.byte();
    record.LinkDept = random.byte();
    record.Tax = static_cast<std::uint8_t>(random.below(5));
    record.TakeOutTax = random.byte();
    number_to_bcds(record.Price1, random.digits(8));
    number_to_bcds(record.Price2, random.digits(3));
    number_to_bcds(record.Stock, random.digits(12));
    return record;
  }
};

TEST_F(PluGridTest, ShowsWhatAFillingAnewWouldShow) {
  Random random{21};
  RecordGrid quick_view{QStringLiteral("Fg_Quick"), nullptr};
  RecordGrid whole_view{QStringLiteral("Fg_Whole"), nullptr};
  PluGrid quick{quick_view};
  quick.begin({}, types, taxes);
  for (PluRecord& row : PrgPlu.Row) row = random_record(random);
  for (int round = 0; round < 12; ++round) {
    quick.fill();
    // A grid that has shown nothing yet works out every row, into cells that keep what stood.
    PluGrid whole{whole_view};
    whole.begin({}, types, taxes);
    whole.fill();
    for (int row = 1; row <= Global::MaxPlu; ++row) {
      for (int column = 0; column < PluGrid::columns; ++column) {
        ASSERT_EQ(quick_view.cells().cell(row, column), whole_view.cells().cell(row, column)) << row << ", " << column;
      }
      ASSERT_EQ(quick.code_text(row), bcds_to_number(PrgPlu.Row[static_cast<std::size_t>(row - 1)].Code));
    }
    EXPECT_EQ(quick.codes(), whole.codes());
    for (int change = 0; change < 300; ++change) PrgPlu.Row[random.below(3000)] = random_record(random);
    for (int change = 0; change < 50; ++change) {
      PluRecord& row = PrgPlu.Row[random.below(3000)];
      reinterpret_cast<unsigned char*>(&row)[24 + random.below(20)] = random.byte() & 0x77;
    }
    std::swap(PrgPlu.Row[random.below(3000)], PrgPlu.Row[random.below(3000)]);
  }
}

TEST_F(PluGridTest, AValueThatNoChoiceHasLeavesItsCell) {
  RecordGrid view{QStringLiteral("Fg_Plu"), nullptr};
  PluGrid grid{view};
  grid.begin({}, types, taxes);
  PrgPlu.Row[0].Tax = 2;
  PrgPlu.Row[0].Flags1 = 1;
  grid.fill();
  PrgPlu.Row[0].Tax = 9;
  PrgPlu.Row[0].Flags1 = 3;
  PrgPlu.Row[1].Tax = 9;
  PrgPlu.Row[1].TakeOutTax = 1;
  grid.fill();
  EXPECT_EQ(view.cells().cell(1, PluGrid::tax), QStringLiteral("tax2 taxable"));
  EXPECT_EQ(view.cells().cell(1, PluGrid::status), QStringLiteral("normal"));
  EXPECT_EQ(view.cells().cell(2, PluGrid::tax), QStringLiteral("non taxable"));
  EXPECT_EQ(view.cells().cell(2, PluGrid::take_out_tax), QStringLiteral("tax1 taxable"));
}

}  // namespace
}  // namespace ecr::test
