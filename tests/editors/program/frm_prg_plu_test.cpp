#include <gtest/gtest.h>

#include "editors/program/plu_editor_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class FrmPrgPluTest : public PluEditorTest {
 protected:
  /// Whether item 1 counts as changed behind what `person` does: saved, its flag says so.
  bool marks(const std::function<void()>& person) {
    item(1).SendFlag = 0;
    open_editor();
    person();
    save();
    const bool marked = item(1).SendFlag == 1;
    stage.top()->unload();
    let_screens_settle();
    return marked;
  }
};

TEST_F(FrmPrgPluTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  const std::pair<const char*, const char*> captions[] = {{"L_PluNumber", "Number:"},
                                                          {"L_FreeCode", "PLU :"},
                                                          {"L_PriceMax", "(Max Value 9999999999999)"},
                                                          {"L_Name", "PLU Name:"},
                                                          {"L_Status", "Type"},
                                                          {"L_LinkDept", "Link Dept:"},
                                                          {"L_Price1", "Price 1"},
                                                          {"L_Price2", "Price 2"},
                                                          {"L_Tax", "TAX"},
                                                          {"L_TakeOutTax", "Take Out Tax"},
                                                          {"L_PluListLink", "PLU list Link:"},
                                                          {"L_StockCount", "Stock Count"},
                                                          {"L_StockUsed", "Stock USED:"},
                                                          {"C_Erase", "Erase PLU"},
                                                          {"C_Import", "Import"},
                                                          {"C_Export", "Export"},
                                                          {"C_Salva", "Save Setup"},
                                                          {"C_Annulla", "Back"},
                                                          {"C_Invia_Ecr", "Send to ECR"}};
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program PLUs"));
  for (const auto& [name, text] : captions) EXPECT_EQ(caption(name), QString::fromLatin1(text)) << name;
}

TEST_F(FrmPrgPluTest, CaptionsComeFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i) {
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  }
  open_editor();
  const std::pair<const char*, const char*> keys[] = {{"L_PluNumber", "FRM_PRG_PLU_L_PLU_NUMBER"},
                                                      {"L_FreeCode", "FRM_PRG_PLU_L_FREECODE"},
                                                      {"L_PriceMax", "MSG_MAX_9999999999999"},
                                                      {"L_Name", "FRM_PRG_PLU_L_NAME"},
                                                      {"L_Status", "FRM_PRG_PLU_L_STATUS"},
                                                      {"L_LinkDept", "FRM_PRG_PLU_L_LINK_DEPT"},
                                                      {"L_Price1", "FRM_PRG_PLU_L_PRICE1"},
                                                      {"L_Price2", "FRM_PRG_PLU_L_PRICE2"},
                                                      {"L_Tax", "FRM_PRG_PLU_L_TAX"},
                                                      {"L_TakeOutTax", "FRM_PRG_PLU_L_TAKE_OUT_TAX"},
                                                      {"L_PluListLink", "FRM_PRG_PLU_PLU_LIST_LINK"},
                                                      {"L_StockCount", "FRM_PRG_PLU_L_STOCK_COUNT"},
                                                      {"L_StockUsed", "FRM_PRG_PLU_L_STOCK_USED"},
                                                      {"C_Erase", "FRM_PRG_PLU_C_ERASE"},
                                                      {"C_Import", "FRM_PRG_PLU_C_IMPORT"},
                                                      {"C_Export", "FRM_PRG_PLU_C_EXPORT"}};
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_PRG_PLU_TITLE"));
  for (const auto& [name, key] : keys) EXPECT_EQ(caption(name), QString::fromLatin1(key)) << name;
  EXPECT_EQ(entries_of(list("Cmb_Status")),
            QStringList({"0. FRM_PRG_PLU_CMB_STATUS_0_MSG", "1. FRM_PRG_PLU_CMB_STATUS_1_MSG",
                         "2. FRM_PRG_PLU_CMB_STATUS_2_MSG"}));
  EXPECT_EQ(entries_of(list("Cmb_StockUsed")), QStringList({"0. FRM_ALL_NO", "1. FRM_ALL_YES"}));
}

TEST_F(FrmPrgPluTest, ListsHoldTheirChoices) {
  open_editor();
  const QStringList taxes = {"0. NON TAXABLE", "1. TAX1 TAXABLE", "2. TAX2 TAXABLE", "3. TAX3 TAXABLE",
                             "4. TAX4 TAXABLE"};
  EXPECT_EQ(entries_of(list("Cmb_Status")), QStringList({"0. OPEN", "1. NORMAL", "2. PRESET"}));
  EXPECT_EQ(entries_of(list("Cmb_Tax")), taxes);
  EXPECT_EQ(entries_of(list("Cmb_TakeOutTax")), taxes);
  EXPECT_EQ(entries_of(list("Cmb_PluListLink")), QStringList({"0", "1", "2", "3", "4", "5"}));
  EXPECT_EQ(entries_of(list("Cmb_StockUsed")), QStringList({"0. NOT USED", "1. USED"}));
  EXPECT_EQ(list("Cmb_LinkDept").count(), 99);
  EXPECT_EQ(list("Cmb_LinkDept").itemText(0), QStringLiteral("1"));
  EXPECT_EQ(number().count(), 3000);
  EXPECT_EQ(number().itemText(2999), QStringLiteral("3000"));
}

TEST_F(FrmPrgPluTest, TheGridShowsLabelsInLowerCase) {
  item(2).Flags1 = 0xC2;
  item(2).LinkDept = 0x05;
  item(2).TakeOutTax = 0;
  number_to_bcds(item(2).Price2, "7");
  Stock_To_Bcds("-1.5", item(2).Stock);
  open_editor();
  EXPECT_EQ(grid().cells().rowCount(), 3000);
  EXPECT_EQ(cells(1), QStringList({"1", "10", "ITEM 10         ", "normal", "12", "tax2 taxable", "tax1 taxable",
                                   "1.00", "0.00", "0"}));
  EXPECT_EQ(cells(2), QStringList({"2", "20", "ITEM 20         ", "preset", "5", "tax2 taxable", "non taxable", "2.00",
                                   "0.07", "-1.5"}));
  EXPECT_EQ(cells(3000), QStringList({"3000", "0", "                ", "open", "0", "non taxable", "non taxable",
                                      "0.00", "0.00", "0"}));
}

TEST_F(FrmPrgPluTest, TheStockColumnHasTheHeadingOfTheTakeOutTax) {
  open_editor();
  QStringList headings;
  for (int column = 0; column < 10; ++column) {
    headings.append(grid().cells().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
  }
  EXPECT_EQ(headings, QStringList({"", "PLU #", "PLU Name", "Status", "Dept", "Tax", "T.O.Tax", "Price 1", "Price 2",
                                   "T.O.Tax"}));
}

TEST_F(FrmPrgPluTest, ARecordIsShownInItsControls) {
  item(3).Flags1 = 0xE2;
  item(3).LinkDept = 0x99;
  item(3).Tax = 4;
  item(3).TakeOutTax = 3;
  item(3).PluListLink = 5;
  number_to_bcds(item(3).Price2, "1250");
  Stock_To_Bcds("12.25", item(3).Stock);
  open_editor();
  go_to(3);
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("30"));
  EXPECT_EQ(shown("E_Name"), QStringLiteral("ITEM 30         "));
  EXPECT_EQ(shown("E_Price1"), QStringLiteral("3.00"));
  EXPECT_EQ(shown("E_Price2"), QStringLiteral("12.50"));
  EXPECT_EQ(shown("E_StockCount"), QStringLiteral("12.25"));
  EXPECT_EQ(list("Cmb_Status").text(), QStringLiteral("2. PRESET"));
  EXPECT_EQ(list("Cmb_LinkDept").text(), QStringLiteral("99"));
  EXPECT_EQ(list("Cmb_Tax").text(), QStringLiteral("4. TAX4 TAXABLE"));
  EXPECT_EQ(list("Cmb_TakeOutTax").text(), QStringLiteral("3. TAX3 TAXABLE"));
  EXPECT_EQ(list("Cmb_PluListLink").text(), QStringLiteral("5"));
  EXPECT_EQ(list("Cmb_StockUsed").text(), QStringLiteral("1. USED"));
  EXPECT_EQ(marked_row(), 3);
}

TEST_F(FrmPrgPluTest, ADepartmentThatNoEntryHasIsShownAllTheSame) {
  item(1).LinkDept = 0;
  item(2).LinkDept = 0x1A;
  open_editor();
  EXPECT_EQ(list("Cmb_LinkDept").text(), QStringLiteral("0"));
  save();
  EXPECT_EQ(item(1).LinkDept, 0);
  EXPECT_EQ(list("Cmb_LinkDept").text(), QStringLiteral("1A"));
  save();
  EXPECT_EQ(item(2).LinkDept, 0x1A);
}

TEST_F(FrmPrgPluTest, ARowAboveTheCountTakesOverTheTypeThatWasShown) {
  item(5).Flags1 = 2;
  open_editor();
  go_to(5);
  go_to(6);
  EXPECT_EQ(item(6).Flags1, 3) << "its type is that of a row above the count";
  EXPECT_EQ(list("Cmb_Status").text(), QStringLiteral("2. PRESET"));
  enter("E_FreeCode", QStringLiteral("60"));
  save();
  EXPECT_EQ(item(6).Flags1 & 3, 2);
  EXPECT_EQ(PrgPlu.PluCount, 6);
}

TEST_F(FrmPrgPluTest, InAnEmptyTableTheTypeIsNothingAndSavesAsOpen) {
  PrgPlu.PluCount = 0;
  item(1) = PluRecord{};
  open_editor();
  EXPECT_EQ(list("Cmb_Status").text(), QString{});
  enter("E_FreeCode", QStringLiteral("5"));
  save();
  EXPECT_EQ(item(1).Flags1 & 3, 0);
}

TEST_F(FrmPrgPluTest, TypingANumberLoadsWithEachDigitAndStopsAt3000) {
  open_editor();
  go_to(4);
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("40"));
  type(QStringLiteral("00"));
  EXPECT_EQ(marked_row(), 400);
  EXPECT_EQ(grid().rowAt(0) + 1, 400);
  type(QStringLiteral("0"));
  EXPECT_EQ(number().currentText(), QStringLiteral("3000"));
  EXPECT_EQ(marked_row(), 3000);
}

TEST_F(FrmPrgPluTest, AnEmptiedNumberKeepsTheItemThatWasShown) {
  open_editor();
  go_to(2);
  const std::string before = file();
  press(Qt::Key_Backspace);
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("20"));
  save();
  EXPECT_EQ(log(), Lines{"FrmPrgPlu Salva: Index out of range"});
  EXPECT_EQ(file(), before);
}

TEST_F(FrmPrgPluTest, SelectingARowLoadsItsItem) {
  open_editor();
  click_row(grid(), 4);
  EXPECT_EQ(number().number(), 4);
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("40"));
}

TEST_F(FrmPrgPluTest, ACodeHasAtMostThirteenDigitsAndNothingElse) {
  open_editor();
  enter("E_FreeCode", QStringLiteral("12a.34567890123456"));
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("1234567890123"));
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmPrgPluTest, ANameIsTrimmedWhenEnteredAndPaddedWhenLeft) {
  open_editor();
  click("E_Name");
  EXPECT_EQ(shown("E_Name"), QStringLiteral("ITEM 10"));
  EXPECT_EQ(field("E_Name").selectedText(), QStringLiteral("ITEM 10"));
  type(QStringLiteral("ABCDEFGHIJKLMNOPQR"));
  EXPECT_EQ(shown("E_Name"), QStringLiteral("ABCDEFGHIJKLMNOP"));
  press(Qt::Key_A, Qt::ControlModifier);
  type(QStringLiteral("Tea"));
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_Name"), QStringLiteral("Tea             "));
}

TEST_F(FrmPrgPluTest, APriceMayBeTheMaximumAndNotMore) {
  open_editor();
  for (const char* name : {"E_Price1", "E_Price2"}) {
    enter(name, QStringLiteral("9999999"));
    EXPECT_TRUE(watched.boxes.empty());
    expect_box(BoxKind::critical, "Value insert to high!");
    type(QStringLiteral("0"));
    EXPECT_EQ(shown(name), QStringLiteral("9999999"));
    press(Qt::Key_Tab);
    EXPECT_EQ(shown(name), QStringLiteral("99999.99"));
    watched.boxes.clear();
  }
}

TEST_F(FrmPrgPluTest, EnterInAPriceGoesToSave) {
  open_editor();
  for (const char* name : {"E_Price1", "E_Price2"}) {
    click(name);
    press(Qt::Key_Return);
    EXPECT_TRUE(button("C_Salva").hasFocus()) << name;
  }
}

TEST_F(FrmPrgPluTest, OnlyTwoListsLetKeysFindEntries) {
  open_editor();
  for (const char* name : {"Cmb_Status", "Cmb_TakeOutTax", "Cmb_PluListLink", "Cmb_LinkDept"}) {
    const QString before = list(name).text();
    tab_to(list(name));
    type(QStringLiteral("4"));
    EXPECT_EQ(list(name).text(), before) << name;
  }
  tab_to(list("Cmb_Tax"));
  type(QStringLiteral("4"));
  EXPECT_EQ(list("Cmb_Tax").text(), QStringLiteral("4. TAX4 TAXABLE"));
  tab_to(list("Cmb_StockUsed"));
  type(QStringLiteral("1"));
  EXPECT_EQ(list("Cmb_StockUsed").text(), QStringLiteral("1. USED"));
}

// What counts as changed.

TEST_F(FrmPrgPluTest, NothingDoneIsNothingChanged) {
  EXPECT_FALSE(marks([] {}));
}

TEST_F(FrmPrgPluTest, EachFieldMarksTheItem) {
  EXPECT_TRUE(marks([this] { enter("E_FreeCode", QStringLiteral("11")); }));
  item(1) = made(10);
  EXPECT_TRUE(marks([this] { enter("E_Name", QStringLiteral("Tea")); }));
  EXPECT_TRUE(marks([this] { enter("E_Price2", QStringLiteral("5")); }));
  EXPECT_TRUE(marks([this] { enter("E_StockCount", QStringLiteral("5")); }));
}

TEST_F(FrmPrgPluTest, EnteringAFieldMarksAPriceButNotANameOrACode) {
  EXPECT_TRUE(marks([this] { click("E_Price1"); })) << "the bare digits are not the display form";
  EXPECT_FALSE(marks([this] { click("E_Name"); })) << "names are compared without their blanks";
  EXPECT_FALSE(marks([this] { click("E_FreeCode"); }));
  EXPECT_TRUE(marks([this] { click("E_Price2"); })) << "a zero that is left is a bare 0 for a moment";
}

TEST_F(FrmPrgPluTest, AnEmptiedCodeDoesNotMark) {
  open_editor();
  click("E_FreeCode");
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  save();
  // The item with the code 0 went to the end of the used rows.
  EXPECT_EQ(code(5), "0");
  EXPECT_EQ(item(5).SendFlag, 0);
}

TEST_F(FrmPrgPluTest, EachListMarksTheItemWhenItShowsSomethingElse) {
  for (const char* name : {"Cmb_Status", "Cmb_LinkDept", "Cmb_Tax", "Cmb_TakeOutTax"}) {
    EXPECT_FALSE(marks([&] { pick(list(name), list(name).currentIndex()); })) << name;
    EXPECT_TRUE(marks([&] { pick(list(name), list(name).currentIndex() == 0 ? 1 : 0); })) << name;
  }
}

TEST_F(FrmPrgPluTest, TheStockChoiceMarksNothing) {
  EXPECT_FALSE(marks([&] { pick(list("Cmb_StockUsed"), 1); }));
  EXPECT_TRUE(byte_bit_tst(item(1).Flags1, 5));
}

TEST_F(FrmPrgPluTest, TheListLinkIsComparedWithTheDepartment) {
  item(1).LinkDept = 0x03;
  item(1).PluListLink = 0;
  EXPECT_FALSE(marks([&] { pick(list("Cmb_PluListLink"), 3); })) << "list 3, department 3";
  item(1).PluListLink = 2;
  EXPECT_TRUE(marks([&] { pick(list("Cmb_PluListLink"), 2); })) << "the stored list, but department 3";
}

TEST_F(FrmPrgPluTest, MarksEndWithTheScreen) {
  open_editor();
  enter("E_Name", QStringLiteral("Tea"));
  open_again();
  save();
  EXPECT_EQ(item(1).SendFlag, 0);
}

// Erasing.

TEST_F(FrmPrgPluTest, EraseFillsTheScreenAndLeavesTheImage) {
  item(1).PluListLink = 2;
  item(1).Flags1 |= 0x20;
  const std::string before = file();
  open_editor();
  pick(list("Cmb_Status"), 2);
  click("C_Erase");
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("0"));
  EXPECT_EQ(shown("E_Name"), QString{});
  for (const char* name : {"E_Price1", "E_Price2", "E_StockCount"}) EXPECT_EQ(shown(name), QStringLiteral("0")) << name;
  EXPECT_EQ(list("Cmb_LinkDept").text(), QStringLiteral("0"));
  EXPECT_EQ(list("Cmb_Status").text(), QStringLiteral("1. NORMAL"));
  EXPECT_EQ(list("Cmb_Tax").text(), QStringLiteral("0. NON TAXABLE"));
  EXPECT_EQ(list("Cmb_TakeOutTax").text(), QStringLiteral("0. NON TAXABLE"));
  EXPECT_EQ(list("Cmb_PluListLink").text(), QStringLiteral("2"));
  EXPECT_EQ(list("Cmb_StockUsed").text(), QStringLiteral("1. USED"));
  EXPECT_EQ(code(1), "10");
  EXPECT_EQ(file(), before);
}

TEST_F(FrmPrgPluTest, AnErasedAndSavedItemLeavesTheTableButNotItsList) {
  item(2).PluListLink = 3;
  set_entry(3, 1, 20);
  open_editor();
  go_to(2);
  click("C_Erase");
  save();
  EXPECT_EQ(PrgPlu.PluCount, 4);
  EXPECT_EQ(file_count(), 4);
  EXPECT_EQ(code(2), "30");
  EXPECT_EQ(code(5), "0");
  EXPECT_EQ(item(5).PluListLink, 3) << "the emptied row";
  EXPECT_EQ(item(5).SendFlag, 1);
  EXPECT_EQ(entry_code(3, 1), "20") << "its entry stays";
  EXPECT_EQ(cell(5, 1), QStringLiteral("0"));
}

// Sending.

TEST_F(FrmPrgPluTest, SendSendsTheItemsAloneAndHoldsTheButtons) {
  link().be_a_register();
  open_editor();
  bool disabled = false;
  watched.on_run_beside = [&](Waiting) {
    disabled =
        !control("C_Salva").isEnabled() && !control("C_Annulla").isEnabled() && !control("C_Invia_Ecr").isEnabled();
  };
  click("C_Invia_Ecr");
  EXPECT_TRUE(disabled);
  EXPECT_EQ(link().received.count(0), 0U);
  EXPECT_EQ(link().received[1], file());
  for (const char* name : {"C_Salva", "C_Invia_Ecr", "C_Annulla"}) EXPECT_TRUE(control(name).isEnabled()) << name;
}

TEST_F(FrmPrgPluTest, ASendWaitsForEachFlaggedItemAndClearsTheFlags) {
  link().be_a_register();
  open_editor();
  enter("E_Name", QStringLiteral("Tea"));
  save();
  enter("E_Name", QStringLiteral("Milk"));
  save();
  ASSERT_EQ(Count_PluToSend(false), 2);
  click("C_Invia_Ecr");
  ASSERT_FALSE(shell.seconds_waited.empty());
  EXPECT_DOUBLE_EQ(shell.seconds_waited.back(), 2.8);
  EXPECT_EQ(Count_PluToSend(false), 0);
  Read_PrgPlu();
  EXPECT_EQ(Count_PluToSend(false), 0) << "the file has no flags either";
}

TEST_F(FrmPrgPluTest, AFailedSendTellsAndKeepsTheFlags) {
  link().be_a_register();
  link().answers[1] = {1, 4097};
  open_editor();
  enter("E_Name", QStringLiteral("Tea"));
  save();
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Invia_Ecr");
  EXPECT_EQ(Count_PluToSend(false), 1);
  for (const char* name : {"C_Salva", "C_Invia_Ecr", "C_Annulla"}) EXPECT_TRUE(control(name).isEnabled()) << name;
}

}  // namespace
}  // namespace ecr::test
