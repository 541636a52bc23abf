#include <gtest/gtest.h>

#include <QItemSelectionModel>

#include "editors/program/editor_test.h"

namespace ecr::test::instore_barcode_setting_cases {
namespace {

constexpr std::size_t first_at = 94;
constexpr std::size_t width = 8;

class FrmInstoreBarcodeSettingTest : public EditorTest {
 protected:
  FrmInstoreBarcodeSettingTest() : EditorTest{"FrmInstoreBarcodeSetting"} {
    for (int rule = 1; rule <= 10; ++rule) number_to_bcds(in_memory(rule).FlagCode, std::to_string(20 + rule));
    lay_down(PrgMode);
  }

  static InstoreBarcodeRecord& in_memory(int rule) {
    return PrgMode.InstoreBarcode[static_cast<std::size_t>(rule - 1)];
  }
  [[nodiscard]] std::string rule_in_file(int rule) const {
    return stored(first_at + width * static_cast<std::size_t>(rule - 1), width);
  }
  [[nodiscard]] ChoiceList& number() const { return list("Cmb_InstoreBarcodeSettingNumber"); }
  [[nodiscard]] RecordGrid& grid() const { return control<RecordGrid>("FG_InstoreBarcode"); }
  [[nodiscard]] QStringList row(int n) const {
    QStringList texts;
    for (int column = 0; column < 8; ++column) texts.append(grid().cells().cell(n, column));
    return texts;
  }
  [[nodiscard]] int marked_row() const { return grid().selectionModel()->selectedRows().front().row() + 1; }
};

TEST_F(FrmInstoreBarcodeSettingTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program Instore Barcodes"));
  expect_captions({{"L_InstoreBarcodeSettingNumber", "Instore Barcode Setting Number"},
                   {"L_Instore", "Flag Code"},
                   {"L_DigitsOfFlag", "Digits in Flag"},
                   {"L_DigitsOfPrice", "Digits in Price"},
                   {"L_NumberOfFc", "FC Number"},
                   {"L_CodeLenght", "Version"},
                   {"L_PriceCheckDigit", "Price Check Digit"},
                   {"L_NewPaper", "News paper"}});
  QStringList headings;
  for (int i = 0; i < 8; ++i) {
    headings.append(grid().cells().headerData(i, Qt::Horizontal, Qt::DisplayRole).toString());
  }
  EXPECT_EQ(headings, QStringList({QStringLiteral("Inst.Bar N°"), "Flag Code", "Digits in Flag", "Digits in Price",
                                   "FC Number", "Code length", "Price check", "Newspaper"}));
}

TEST_F(FrmInstoreBarcodeSettingTest, CaptionsComeFromTheCatalogue) {
  name_every_key();
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_INSTORE_BARCODE_SETTING_TITLE"));
  expect_captions({{"L_InstoreBarcodeSettingNumber", "FRM_INSTORE_BARCODE_SETTING_L_INSTORE_BARCODE_SETTING_NUMBER"},
                   {"L_Instore", "FRM_INSTORE_BARCODE_SETTING_L_INSTORE"},
                   {"L_DigitsOfFlag", "FRM_INSTORE_BARCODE_SETTING_L_DIGITS_OF_FLAG"},
                   {"L_DigitsOfPrice", "FRM_INSTORE_BARCODE_SETTING_L_DIGITS_OF_PRICE"},
                   {"L_NumberOfFc", "FRM_INSTORE_BARCODE_SETTING_L_NUMBER_OF_FC"},
                   {"L_CodeLenght", "FRM_INSTORE_BARCODE_SETTING_L_CODE_LENGHT"},
                   {"L_PriceCheckDigit", "FRM_INSTORE_BARCODE_SETTING_L_PRICE_CHECK_DIGIT"},
                   {"L_NewPaper", "FRM_INSTORE_BARCODE_SETTING_L_NEWS_PAPER"}});
  EXPECT_EQ(entries_of(list("Cmb_CodeLenght")), QStringList({"0. FRM_INSTORE_BARCODE_SETTING_CMB_CODE_LENGHT_0_MSG",
                                                             "1. FRM_INSTORE_BARCODE_SETTING_CMB_CODE_LENGHT_1_MSG"}));
  EXPECT_EQ(entries_of(list("Cmb_PriceCheckDigit")), QStringList({"0. FRM_ALL_NO", "1. FRM_ALL_YES"}));
  QStringList headings;
  for (int i = 0; i < 8; ++i) {
    headings.append(grid().cells().headerData(i, Qt::Horizontal, Qt::DisplayRole).toString());
  }
  EXPECT_EQ(headings,
            QStringList({"FRM_INSTORE_BARCODE_COL_N_MSG", "FRM_INSTORE_BARCODE_COL_FLAG_CODE_MSG",
                         "FRM_INSTORE_BARCODE_COL_DIGIT_OF_FLAG_MSG", "FRM_INSTORE_BARCODE_COL_DIGIT_OF_PRICE_MSG",
                         "FRM_INSTORE_BARCODE_COL_NUMBER_OF_FC_MSG", "FRM_INSTORE_BARCODE_COL_CODE_LENGHT_MSG",
                         "FRM_INSTORE_BARCODE_COL_PRICE_CHEK_DIGIT_MSG", "FRM_INSTORE_BARCODE_COL_NEWS_PAPER_MSG"}));
}

TEST_F(FrmInstoreBarcodeSettingTest, ListsHoldTheirEntries) {
  open_editor();
  EXPECT_EQ(entries_of(number()), QStringList({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(entries_of(list("Cmb_DigitsOfFlag")), QStringList({"0", "1", "2", "3"}));
  EXPECT_EQ(entries_of(list("Cmb_DigitsOfPrice")), QStringList({"0", "1", "2", "3", "4", "5", "6", "7", "8"}));
  EXPECT_EQ(entries_of(list("Cmb_NumberOfFc")), QStringList({"0", "1", "2", "3", "4"}));
  EXPECT_EQ(entries_of(list("Cmb_CodeLenght")), QStringList({"0. LONG", "1. SHORT"}));
  EXPECT_EQ(entries_of(list("Cmb_PriceCheckDigit")), QStringList({"0. NO", "1. YES"}));
  EXPECT_EQ(entries_of(list("Cmb_NewsPaper")), QStringList({"0. NO", "1. YES"}));
}

TEST_F(FrmInstoreBarcodeSettingTest, ARuleIsShownInItsControlsAndItsRow) {
  InstoreBarcodeRecord& record = in_memory(4);
  number_to_bcds(record.FlagCode, "977");
  record.DigitsOfFlag = 3;
  record.DigitsOfPrice = 8;
  record.NumberOfFc = 4;
  record.CodeLenght = 1;
  record.PriceCheckDigit = 0;
  record.NewsPaper = 1;
  open_editor();
  EXPECT_EQ(row(4), QStringList({"4", "977", "3", "8", "4", "SHORT", "NO", "YES"}));
  click_row(grid(), 4);
  EXPECT_EQ(number().text(), QStringLiteral("4"));
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("977"));
  EXPECT_EQ(list("Cmb_DigitsOfFlag").text(), QStringLiteral("3"));
  EXPECT_EQ(list("Cmb_DigitsOfPrice").text(), QStringLiteral("8"));
  EXPECT_EQ(list("Cmb_NumberOfFc").text(), QStringLiteral("4"));
  EXPECT_EQ(list("Cmb_CodeLenght").text(), QStringLiteral("1. SHORT"));
  EXPECT_EQ(list("Cmb_PriceCheckDigit").text(), QStringLiteral("0. NO"));
  EXPECT_EQ(list("Cmb_NewsPaper").text(), QStringLiteral("1. YES"));
}

TEST_F(FrmInstoreBarcodeSettingTest, TheNumberListLoadsARuleAndMarksItsRow) {
  open_editor();
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("21"));
  pick(number(), 6);
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("27"));
  EXPECT_EQ(marked_row(), 7);
}

TEST_F(FrmInstoreBarcodeSettingTest, AnyByteAboveZeroShowsTheEntryWithDigitOne) {
  for (const int byte : {1, 2, 255}) {
    in_memory(1).CodeLenght = static_cast<std::uint8_t>(byte);
    in_memory(1).PriceCheckDigit = static_cast<std::uint8_t>(byte);
    in_memory(1).NewsPaper = static_cast<std::uint8_t>(byte);
    open_editor();
    EXPECT_EQ(list("Cmb_CodeLenght").text(), QStringLiteral("1. SHORT"));
    EXPECT_EQ(list("Cmb_PriceCheckDigit").text(), QStringLiteral("1. YES"));
    EXPECT_EQ(list("Cmb_NewsPaper").text(), QStringLiteral("1. YES"));
    EXPECT_EQ(row(1).mid(5), QStringList({"SHORT", "YES", "YES"}));
  }
  save();
  EXPECT_EQ(rule_in_file(1).substr(5), bytes_of({1, 1, 1})) << "a save makes it 1";
}

TEST_F(FrmInstoreBarcodeSettingTest, NumbersAboveTheListsAreShownAndWrittenBack) {
  in_memory(1).DigitsOfFlag = 9;
  in_memory(1).DigitsOfPrice = 255;
  in_memory(1).NumberOfFc = 77;
  open_editor();
  EXPECT_EQ(list("Cmb_DigitsOfFlag").text(), QStringLiteral("9"));
  EXPECT_EQ(list("Cmb_DigitsOfPrice").text(), QStringLiteral("255"));
  EXPECT_EQ(list("Cmb_NumberOfFc").text(), QStringLiteral("77"));
  save();
  EXPECT_EQ(rule_in_file(1).substr(2, 3), bytes_of({9, 255, 77}));
}

TEST_F(FrmInstoreBarcodeSettingTest, ASaveWritesTheWholeRuleAndNoOtherByte) {
  open_editor();
  pick(number(), 2);
  const std::string before = image_file();
  enter("E_FlagCode", QStringLiteral("1234"));
  pick(list("Cmb_DigitsOfFlag"), 3);
  pick(list("Cmb_DigitsOfPrice"), 7);
  pick(list("Cmb_NumberOfFc"), 2);
  pick(list("Cmb_CodeLenght"), 1);
  pick(list("Cmb_PriceCheckDigit"), 0);
  pick(list("Cmb_NewsPaper"), 1);
  save();
  EXPECT_EQ(rule_in_file(3), bytes_of({0x34, 0x12, 3, 7, 2, 1, 0, 1}));
  expect_untouched_outside(before, first_at + 2 * width, width);
  EXPECT_EQ(row(3), QStringList({"3", "1234", "3", "7", "2", "SHORT", "NO", "YES"})) << "the grid follows";
}

TEST_F(FrmInstoreBarcodeSettingTest, AnyPairOfDigitsIsStored) {
  open_editor();
  pick(list("Cmb_CodeLenght"), 1);
  pick(list("Cmb_DigitsOfFlag"), 3);
  pick(list("Cmb_DigitsOfPrice"), 8);
  save();
  EXPECT_EQ(rule_in_file(1).substr(2), bytes_of({3, 8, 0, 1, 0, 0})) << "a short code has room for neither";
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmInstoreBarcodeSettingTest, SavingWalksToRuleNineAndStaysThere) {
  open_editor();
  QStringList walk;
  for (int i = 0; i < 10; ++i) {
    walk.append(number().text());
    save();
  }
  EXPECT_EQ(walk, QStringList({"1", "2", "3", "4", "5", "6", "7", "8", "9", "9"}));
  EXPECT_EQ(number().text(), QStringLiteral("9"));
  EXPECT_EQ(marked_row(), 9);
}

TEST_F(FrmInstoreBarcodeSettingTest, SavingRuleTenStaysOnIt) {
  open_editor();
  pick(number(), 9);
  enter("E_FlagCode", QStringLiteral("5"));
  save();
  EXPECT_EQ(number().text(), QStringLiteral("10"));
  EXPECT_EQ(rule_in_file(10).substr(0, 2), bytes_of({5, 0}));
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("5"));
}

TEST_F(FrmInstoreBarcodeSettingTest, AFlagCodeOfZeroEmptiesTheFieldAndComesBackAsZero) {
  number_to_bcds(in_memory(1).FlagCode, "0");
  open_editor();
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("0"));
  click("E_FlagCode");
  EXPECT_EQ(shown("E_FlagCode"), QString{});
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("0"));
}

TEST_F(FrmInstoreBarcodeSettingTest, TheFlagCodeMayBe9999AndAFifthDigitIsCut) {
  open_editor();
  enter("E_FlagCode", QStringLiteral("99a99"));
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("9999"));
  EXPECT_TRUE(watched.boxes.empty());
  expect_refusals(1);
  type(QStringLiteral("1"));
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("9999"));
  save();
  EXPECT_EQ(rule_in_file(1).substr(0, 2), bytes_of({0x99, 0x99}));
}

TEST_F(FrmInstoreBarcodeSettingTest, TypingInTheNumberListFindsARuleAndInTheOthersDoesNothing) {
  open_editor();
  tab_to(number());
  type(QStringLiteral("4"));
  EXPECT_EQ(shown("E_FlagCode"), QStringLiteral("24"));
  tab_to(control("Cmb_DigitsOfPrice"));
  type(QStringLiteral("4"));
  EXPECT_EQ(list("Cmb_DigitsOfPrice").text(), QStringLiteral("0"));
}

TEST_F(FrmInstoreBarcodeSettingTest, AnyGoodRulesSurviveLoadAndSave) {
  Random random{9};
  for (int round = 0; round < 10; ++round) {
    PrgModeImage image = random_image(Global::model_z320, random);
    for (auto& rule : image.InstoreBarcode) {
      number_to_bcds(rule.FlagCode, random.digits(4));
      for (std::uint8_t* flag : {&rule.CodeLenght, &rule.PriceCheckDigit, &rule.NewsPaper}) {
        *flag = static_cast<std::uint8_t>(*flag & 1);
      }
    }
    lay_down(image);
    open_editor();
    for (int rule = 0; rule < 10; ++rule) {
      pick(number(), rule);
      save();
    }
    EXPECT_EQ(image_file(), file_bytes(image));
    stage.top()->unload();
    let_screens_settle();
  }
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmInstoreBarcodeSettingTest, ABrokenFlagCodeIsLoggedAndTheRestIsShown) {
  in_memory(2).FlagCode.bytes = {0x1A, 0};
  in_memory(2).NewsPaper = 1;
  open_editor();
  pick(number(), 1);
  EXPECT_EQ(shown("E_FlagCode"), QString{});
  EXPECT_EQ(list("Cmb_NewsPaper").text(), QStringLiteral("1. YES"));
  EXPECT_EQ(log().front(), "bcds_to_number Type mismatch");
}

TEST_F(FrmInstoreBarcodeSettingTest, SendSendsWhatWasSavedLast) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  enter("E_FlagCode", QStringLiteral("5"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], before);
}

}  // namespace
}  // namespace ecr::test::instore_barcode_setting_cases
