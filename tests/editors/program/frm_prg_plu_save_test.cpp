// What a save of the item editor makes of the table, the pop-up lists and the file.

#include <gtest/gtest.h>
#include <numeric>

#include "editors/program/plu_editor_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class PluSave : public PluEditorTest {
 protected:
  std::vector<std::string> codes(int rows) {
    std::vector<std::string> found;
    for (int row = 1; row <= rows; ++row) found.push_back(code(row));
    return found;
  }
  void save_code(int item_number, const QString& text) {
    go_to(item_number);
    enter("E_FreeCode", text);
    save();
  }
  static std::string table_bytes() { return {reinterpret_cast<const char*>(&PrgPlu), sizeof PrgPlu}; }
  void choose_list(int item_number, int list_number) {
    go_to(item_number);
    pick(list("Cmb_PluListLink"), list_number);
  }
};

TEST_F(PluSave, EveryFieldGoesIntoTheRecordAndTheFile) {
  open_editor();
  go_to(3);
  enter("E_FreeCode", QStringLiteral("33"));
  enter("E_Name", QStringLiteral("Crème €"));
  enter("E_Price1", QStringLiteral("1250"));
  enter("E_Price2", QStringLiteral("0"));
  enter("E_StockCount", QStringLiteral("-2.5"));
  pick(list("Cmb_Status"), 2);
  pick(list("Cmb_LinkDept"), 14);
  pick(list("Cmb_Tax"), 4);
  pick(list("Cmb_TakeOutTax"), 3);
  pick(list("Cmb_PluListLink"), 5);
  save();
  const std::string expected(
      "\x33\0\0\0\0\0\0\0"
      "Cr\xEFme \xF8         "
      "\x42\x15\x04\x03"
      "\x50\x12\0\0"
      "\0\0\0\0"
      "\x05\x01",
      38);
  EXPECT_EQ(file().substr(802 + 2 * record_size, 38), expected);
  EXPECT_EQ(Bcds_To_Stock(item(3).Stock), "-2.5");
  EXPECT_EQ(cells(3), QStringList({"3", "33", "Crème €         ", "preset", "15", "tax4 taxable", "tax3 taxable",
                                   "12.50", "0.00", "-2.5"}));
  EXPECT_EQ(file().size(), 802 + 5 * record_size);
}

TEST_F(PluSave, AnUntouchedSaveKeepsTheFileByteForByte) {
  const std::string before = file();
  open_editor();
  for (int i = 0; i < 5; ++i) save();
  EXPECT_EQ(file(), before);
  EXPECT_EQ(number().number(), 6);
}

TEST_F(PluSave, BitsThatTheScreenDoesNotOwnSurvive) {
  item(1).Flags1 = 0x1C | 0x41;
  open_editor();
  save();
  EXPECT_EQ(item(1).Flags1, 0x1C | 0x41);
}

TEST_F(PluSave, APriceAboveZeroSetsItsBit) {
  open_editor();
  enter("E_Price1", QStringLiteral("0"));
  enter("E_Price2", QStringLiteral("1"));
  save();
  EXPECT_EQ(item(1).Flags1 & 0xC0, 0x80);
}

TEST_F(PluSave, ALowerCodeMovesTheItemUpAndTheNumberGoesOn) {
  open_editor();
  // 40 becomes 15: as a text it comes in front of 40.
  save_code(4, QStringLiteral("15"));
  EXPECT_EQ(codes(5), Lines({"10", "15", "20", "30", "50"}));
  EXPECT_EQ(number().number(), 5);
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("50"));
}

TEST_F(PluSave, AHigherCodeMovesTheItemDownAndTheNumberShowsTheNextItem) {
  open_editor();
  save_code(2, QStringLiteral("45"));
  EXPECT_EQ(codes(5), Lines({"10", "30", "40", "45", "50"}));
  EXPECT_EQ(number().number(), 2);
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("30"));
}

TEST_F(PluSave, CodesAreComparedAsTextsForTheFollowingNumber) {
  open_editor();
  save_code(2, QStringLiteral("5"));
  EXPECT_EQ(codes(2), Lines({"5", "10"})) << "20 became 5 and moved up";
  EXPECT_EQ(number().number(), 2) << "but 5 comes behind 20 as a text";
  save_code(3, QStringLiteral("100"));
  EXPECT_EQ(codes(5), Lines({"5", "10", "40", "50", "100"})) << "30 became 100 and moved down";
  EXPECT_EQ(number().number(), 4) << "but 100 comes in front of 30 as a text";
}

TEST_F(PluSave, ANewItemFindsItsPlaceAndTheNumberGoesOn) {
  open_editor();
  save_code(6, QStringLiteral("25"));
  EXPECT_EQ(codes(6), Lines({"10", "20", "25", "30", "40", "50"}));
  EXPECT_EQ(PrgPlu.PluCount, 6);
  EXPECT_EQ(file_count(), 6);
  EXPECT_EQ(number().number(), 7);
}

TEST_F(PluSave, ACodeOfZeroMovesTheRowToTheEndAndLowersTheCount) {
  open_editor();
  save_code(2, QStringLiteral("0"));
  EXPECT_EQ(codes(5), Lines({"10", "30", "40", "50", "0"}));
  EXPECT_EQ(PrgPlu.PluCount, 4);
  EXPECT_EQ(file().size(), 802 + 4 * record_size);
}

TEST_F(PluSave, AnEmptyCodeIsStoredAsZero) {
  open_editor();
  go_to(5);
  click("E_FreeCode");
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  save();
  EXPECT_EQ(codes(5), Lines({"10", "20", "30", "40", "0"}));
  EXPECT_EQ(PrgPlu.PluCount, 4);
}

TEST_F(PluSave, TwoItemsOfOneCodeEndUpNextToEachOther) {
  open_editor();
  save_code(5, QStringLiteral("20"));
  EXPECT_EQ(codes(5), Lines({"10", "20", "20", "30", "40"}));
  EXPECT_EQ(item(3).Name.view(), "ITEM 50         ") << "behind the one that was there";
}

TEST_F(PluSave, The3000thCodeLeavesTheCountAt2999) {
  PrgPlu.PluCount = 2999;
  for (int row = 1; row <= 2999; ++row) item(row) = made(row);
  item(3000) = PluRecord{};
  open_editor();
  save_code(3000, QStringLiteral("5000"));
  EXPECT_EQ(code(3000), "5000");
  EXPECT_EQ(PrgPlu.PluCount, 2999);
  EXPECT_EQ(file().size(), 802 + 2999 * record_size) << "the last record is not written";
  EXPECT_EQ(number().number(), 3000) << "there is nothing behind it";
  EXPECT_EQ(item(3000).Flags1 & 3, 3) << "shown again, it is a row above the count";
}

TEST_F(PluSave, DisorderAboveTheSavedRowStays) {
  item(1) = made(25);
  open_editor();
  save_code(5, QStringLiteral("35"));
  EXPECT_EQ(codes(5), Lines({"25", "20", "30", "35", "40"}));
}

TEST_F(PluSave, SendFlagsTravelAndChangedMarksDoNot) {
  open_editor();
  go_to(2);
  enter("E_Name", QStringLiteral("Typed"));  // marks row 2, and is dropped by going on
  save_code(1, QStringLiteral("25"));
  EXPECT_EQ(codes(3), Lines({"20", "25", "30"}));
  EXPECT_EQ(item(2).SendFlag, 1) << "the flag came along with the item";
  go_to(1);
  save();
  EXPECT_EQ(item(1).SendFlag, 0) << "row 1 was marked by the saved item, and cleared";
  save();
  EXPECT_EQ(item(2).SendFlag, 1) << "row 2 was marked by the typing, whoever stands there now";
}

TEST_F(PluSave, TheStockChoiceGoesIntoEveryRecord) {
  open_editor();
  go_to(2);
  pick(list("Cmb_StockUsed"), 1);
  save();
  for (const int row : {1, 2, 3, 5, 6, 3000}) EXPECT_TRUE(byte_bit_tst(item(row).Flags1, 5)) << row;
  EXPECT_FALSE(byte_bit_tst(PrgPlu.Row[3000].Flags1, 5)) << "the row behind the table is nobody's";
  go_to(4);
  EXPECT_EQ(list("Cmb_StockUsed").text(), QStringLiteral("1. USED"));
  pick(list("Cmb_StockUsed"), 0);
  save();
  for (const int row : {1, 2, 3, 3000}) EXPECT_FALSE(byte_bit_tst(item(row).Flags1, 5)) << row;
}

TEST_F(PluSave, TheGridsTopRowIsTheOneInFrontOfTheFollowingNumber) {
  open_editor();
  go_to(50);
  save();
  EXPECT_EQ(number().number(), 51);
  EXPECT_EQ(grid().rowAt(0) + 1, 50);
  go_to(1);
  save();
  EXPECT_EQ(grid().rowAt(0) + 1, 1);
}

TEST_F(PluSave, APriceThatIsNoNumberIsLoggedAndNothingIsWritten) {
  open_editor();
  const std::string before = file();
  click("E_Price2");
  paste_over(QStringLiteral("free"));
  save();
  EXPECT_EQ(log().back(), "FrmPrgPlu Salva: Type mismatch");
  EXPECT_EQ(file(), before);
  EXPECT_EQ(number().number(), 1);
}

TEST_F(PluSave, ASaveThatFailsLeavesTableListsAndCountAsTheyWere) {
  item(2).PluListLink = 1;
  set_entry(1, 1, 20);
  Write_PrgPlu();
  open_editor();
  const std::string before = file();
  const std::string memory = table_bytes();
  choose_list(2, 3);
  enter("E_FreeCode", QStringLiteral("45"));
  enter("E_Name", QStringLiteral("Typed"));
  pick(list("Cmb_StockUsed"), 1);
  click("E_Price2");
  paste_over(QStringLiteral("free"));
  save();
  EXPECT_EQ(log().back(), "FrmPrgPlu Salva: Type mismatch");
  EXPECT_EQ(table_bytes(), memory);
  EXPECT_EQ(file(), before);
  EXPECT_EQ(number().number(), 2);
  EXPECT_EQ(cell(2, 1), QStringLiteral("20"));

  // A later save of another row finds the table in order, and nothing of the failed one in it.
  go_to(5);
  enter("E_FreeCode", QStringLiteral("15"));
  save();
  EXPECT_EQ(codes(6), Lines({"10", "15", "20", "30", "40", "0"}));
  EXPECT_EQ(entry_code(1, 1), "20");
  EXPECT_EQ(entry_code(3, 1), "0");
  go_to(3);
  EXPECT_EQ(shown("E_Name"), QStringLiteral("ITEM 20         "));
}

TEST_F(PluSave, ACorrectedSaveDoesWhatTheFailedOneWouldHaveDone) {
  open_editor();
  choose_list(2, 3);
  enter("E_FreeCode", QStringLiteral("45"));
  click("E_Price2");
  paste_over(QStringLiteral("free"));
  save();
  click("E_Price2");
  paste_over(QStringLiteral("7"));
  save();
  EXPECT_EQ(codes(5), Lines({"10", "30", "40", "45", "50"}));
  EXPECT_EQ(entry_code(3, 1), "45");
  EXPECT_EQ(entry_code(3, 2), "0") << "it is in the list once";
  EXPECT_EQ(item(4).SendFlag, 1) << "the mark of the change has outlived the failed save";
}

TEST_F(PluSave, DecimalsThatNoAmountHasEndTheSave) {
  Global::DecimalPoint = 255;
  open_editor();
  const std::string before = file();
  const std::string memory = table_bytes();
  EXPECT_EQ(shown("E_Price1"), QString{});
  enter("E_Name", QStringLiteral("Typed"));
  save();
  EXPECT_EQ(log().back(), "FrmPrgPlu Salva: Overflow");
  EXPECT_EQ(file(), before);
  EXPECT_EQ(table_bytes(), memory);
}

TEST_F(PluSave, PricesAndStockThatCannotBeReadStayAsTheyAre) {
  item(2).Price1.bytes = {0x1A, 2, 3, 4};
  item(2).Price2.bytes = {0xFF, 0, 0, 0};
  item(2).Stock.bytes = {0xA0, 1, 2, 3, 4, 5};
  item(2).Flags1 = 0x81;
  const PluRecord stood = item(2);
  open_editor();
  go_to(2);
  EXPECT_EQ(shown("E_Price1"), QString{});
  EXPECT_EQ(shown("E_StockCount"), QString{});
  enter("E_Name", QStringLiteral("Typed"));
  save();
  EXPECT_EQ(item(2).Name.view(), "Typed           ");
  EXPECT_EQ(item(2).Price1, stood.Price1);
  EXPECT_EQ(item(2).Price2, stood.Price2);
  EXPECT_EQ(item(2).Stock, stood.Stock);
  EXPECT_EQ(item(2).Flags1, stood.Flags1) << "the bits of prices stay with them";
}

TEST_F(PluSave, AnItemWhoseCodeCannotBeReadIsNotTakenForAnEmptyRow) {
  item(3).Code.bytes = {0x3A, 0, 0, 0, 0, 0, 0, 0};
  const PluRecord stood = item(3);
  Write_PrgPlu();
  open_editor();
  const std::string before = file();
  go_to(3);
  EXPECT_EQ(shown("E_FreeCode"), QString{});
  save();
  EXPECT_EQ(log().back(), "FrmPrgPlu Salva: Type mismatch");
  EXPECT_EQ(file(), before);
  // Saves of other items leave it in the table.
  save_code(1, QStringLiteral("12"));
  EXPECT_EQ(PrgPlu.PluCount, 5);
  const auto found = std::find_if(PrgPlu.Row.begin(), PrgPlu.Row.begin() + 5,
                                  [&](const PluRecord& row) { return row.Code == stood.Code; });
  ASSERT_NE(found, PrgPlu.Row.begin() + 5);
  EXPECT_EQ(found->Name.view(), stood.Name.view());
  // With a code of its own, or erased, it can be saved again.
  save_code(static_cast<int>(found - PrgPlu.Row.begin()) + 1, QStringLiteral("35"));
  EXPECT_EQ(codes(5), Lines({"12", "20", "35", "40", "50"}));
}

TEST_F(PluSave, AStockThatIsNoNumberStays) {
  Stock_To_Bcds("7", item(1).Stock);
  open_editor();
  enter("E_StockCount", QStringLiteral("many"));
  save();
  EXPECT_EQ(Bcds_To_Stock(item(1).Stock), "7");
  EXPECT_EQ(log(), Lines{"Stock_To_Bcds: Type mismatch"});
}

// The pop-up lists.

TEST_F(PluSave, AnItemTakesTheFirstFreeEntryOfItsList) {
  set_entry(2, 1, 10);
  set_entry(2, 3, 30);
  open_editor();
  choose_list(2, 2);
  save();
  EXPECT_EQ(item(2).PluListLink, 2);
  EXPECT_EQ(entry_code(2, 2), "20");
  EXPECT_EQ(file().substr(2 + 160 + 8, 8), std::string("\x20\0\0\0\0\0\0\0", 8));
}

TEST_F(PluSave, MovingAnItemFreesItsEntryAndTakesAnother) {
  item(2).PluListLink = 2;
  set_entry(2, 4, 20);
  set_entry(2, 5, 20);
  set_entry(3, 1, 99);
  open_editor();
  choose_list(2, 3);
  save();
  EXPECT_EQ(entry_code(2, 4), "0");
  EXPECT_EQ(entry_code(2, 5), "20") << "the first one alone";
  EXPECT_EQ(entry_code(3, 2), "20");
  EXPECT_EQ(item(2).PluListLink, 3);
}

TEST_F(PluSave, AnEntryIsFoundByTheOldCodeAndWrittenWithTheNewOne) {
  item(2).PluListLink = 1;
  set_entry(1, 1, 20);
  open_editor();
  choose_list(2, 4);
  enter("E_FreeCode", QStringLiteral("22"));
  save();
  EXPECT_EQ(entry_code(1, 1), "0");
  EXPECT_EQ(entry_code(4, 1), "22");
}

TEST_F(PluSave, ANewCodeAloneLeavesTheEntryAtTheOldOne) {
  item(2).PluListLink = 1;
  set_entry(1, 1, 20);
  open_editor();
  save_code(2, QStringLiteral("22"));
  EXPECT_EQ(entry_code(1, 1), "20");
}

TEST_F(PluSave, AMissingEntryIsNoFault) {
  item(2).PluListLink = 1;
  open_editor();
  choose_list(2, 0);
  save();
  EXPECT_EQ(item(2).PluListLink, 0);
  EXPECT_EQ(log(), Lines{});
}

TEST_F(PluSave, AFullListTellsAndTheListGoesBackToZero) {
  for (std::size_t i = 1; i <= 20; ++i) set_entry(5, i, 900 + static_cast<int>(i));
  open_editor();
  expect_box(BoxKind::warning, "Plu List Full. PLU not put in the List");
  choose_list(2, 5);
  EXPECT_EQ(list("Cmb_PluListLink").text(), QStringLiteral("0"));
  save();
  EXPECT_EQ(item(2).PluListLink, 0);
}

TEST_F(PluSave, AFullListThatTheItemIsInAlreadyIsNotComplainedOf) {
  for (std::size_t i = 1; i <= 20; ++i) set_entry(5, i, 900 + static_cast<int>(i));
  item(2).PluListLink = 5;
  open_editor();
  choose_list(2, 5);
  EXPECT_TRUE(watched.boxes.empty());
  EXPECT_EQ(list("Cmb_PluListLink").text(), QStringLiteral("5"));
}

TEST_F(PluSave, AListThatIsFilledBehindTheChoiceTakesNothing) {
  open_editor();
  choose_list(2, 5);
  for (std::size_t i = 1; i <= 20; ++i) set_entry(5, i, 900 + static_cast<int>(i));
  save();
  EXPECT_EQ(item(2).PluListLink, 5);
  EXPECT_EQ(entry_code(5, 20), "920");
}

TEST_F(PluSave, ALinkToAListThatIsNotThereCanBeTakenAway) {
  item(2).PluListLink = 9;
  open_editor();
  go_to(2);
  EXPECT_EQ(list("Cmb_PluListLink").text(), QStringLiteral("9"));
  save();
  EXPECT_EQ(item(2).PluListLink, 9);
  choose_list(2, 1);
  save();
  EXPECT_EQ(item(2).PluListLink, 1);
  EXPECT_EQ(entry_code(1, 1), "20");
}

}  // namespace
}  // namespace ecr::test
