#include "image/plu_csv.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/amount_text.h"
#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/fault.h"
#include "core/global.h"
#include "core/text.h"
#include "image/prg_plu.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view bare_heading = ";;;;;;;;;\r\n";

class ItemText : public InstallationTest {
 protected:
  ItemText() { Global::choose_model(Global::model_z320); }

  static PluRecord& row(std::size_t number) { return PrgPlu.Row[number - 1]; }
  static std::string bytes_of_row(std::size_t number) {
    return {reinterpret_cast<const char*>(&row(number)), sizeof(PluRecord)};
  }

  static PluRecord espresso() {
    PluRecord record{};
    number_to_bcds(record.Code, "4711");
    record.Name.set("Espresso");
    record.Flags1 = 0xC2;
    record.LinkDept = 0x12;
    record.Tax = 2;
    record.TakeOutTax = 3;
    number_to_bcds(record.Price1, "160");
    number_to_bcds(record.Price2, "130");
    record.PluListLink = 4;
    record.SendFlag = 1;
    Stock_To_Bcds("-2.5", record.Stock);
    return record;
  }

  /// One data line behind a heading.
  static PluImport take(const std::string& line) { return import_plu_csv("heading\r\n" + line + "\r\n"); }
};

TEST_F(ItemText, AnItemIsOneLineWithASeparatorBehindEachField) {
  PrgPlu.PluCount = 1;
  row(1) = espresso();
  EXPECT_EQ(plu_csv_text(), std::string{bare_heading} + "1;Espresso        ;4711;12;160;130;2;2;3;-2.5;\r\n");
}

TEST_F(ItemText, TheHeadingIsTheCataloguesAndHasNoSeparatorAtItsEnd) {
  const Key keys[] = {Key::FRM_PRG_PLU_L_PLU_NUMBER, Key::FRM_PRG_PLU_L_NAME,   Key::FRM_PRG_PLU_L_FREECODE,
                      Key::FRM_PRG_PLU_L_LINK_DEPT,  Key::FRM_PRG_PLU_L_PRICE1, Key::FRM_PRG_PLU_L_PRICE2,
                      Key::FRM_PRG_PLU_L_STATUS,     Key::FRM_PRG_PLU_L_TAX,    Key::FRM_PRG_PLU_L_TAKE_OUT_TAX,
                      Key::FRM_PRG_PLU_L_STOCK_COUNT};
  char name = 'a';
  for (const Key key : keys) set_message(key, std::string(1, name++));
  EXPECT_EQ(plu_csv_text(), "a;b;c;d;e;f;g;h;i;j\r\n");
}

TEST_F(ItemText, WithAnEmptyCatalogueTheHeadingIsNineBareSeparators) {
  EXPECT_EQ(plu_csv_text(), bare_heading);
}

TEST_F(ItemText, AnOddTypeAndAnOddDepartmentAreWrittenAsTheyAre) {
  PrgPlu.PluCount = 1;
  row(1) = espresso();
  row(1).Flags1 = 0xFF;
  row(1).LinkDept = 0xAB;
  EXPECT_EQ(plu_csv_text(), std::string{bare_heading} + "1;Espresso        ;4711;AB;160;130;3;2;3;-2.5;\r\n");
}

TEST_F(ItemText, RowsThatMemoryDoesNotHaveAreLoggedAndLeftOut) {
  PrgPlu.PluCount = 3003;
  const std::string text = plu_csv_text();
  EXPECT_EQ(lines_of(text).size(), 1U + 3001U);
  EXPECT_EQ(log(), Lines({"FrmPrgPlu Errore: Index out of range", "FrmPrgPlu Errore: Index out of range"}));
}

TEST_F(ItemText, ANegativeCountHasNoLines) {
  PrgPlu.PluCount = -1;
  EXPECT_EQ(plu_csv_text(), bare_heading);
}

TEST_F(ItemText, ALineFillsItsRow) {
  row(1).PluListLink = 3;
  row(1).SendFlag = 1;
  row(1).Flags1 = 0x21;
  const PluImport import = take("77;Tea;21;9;250;0;2;1;4;12.5;");
  EXPECT_TRUE(import.finished);
  EXPECT_EQ(import.lines, 1);
  EXPECT_EQ(PrgPlu.PluCount, 1);
  EXPECT_EQ(bcds_to_number(row(1).Code), "21");
  EXPECT_EQ(row(1).Name.view(), "Tea             ");
  EXPECT_EQ(row(1).LinkDept, 0x09);
  EXPECT_EQ(bcds_to_number(row(1).Price1), "250");
  EXPECT_EQ(bcds_to_number(row(1).Price2), "0");
  EXPECT_EQ(row(1).Flags1, 0x62) << "price 1 above zero, price 2 not, stock used as it was, type 2";
  EXPECT_EQ(row(1).Tax, 1);
  EXPECT_EQ(row(1).TakeOutTax, 4);
  EXPECT_EQ(Bcds_To_Stock(row(1).Stock), "12.5");
  EXPECT_EQ(row(1).PluListLink, 3) << "not in the text";
  EXPECT_EQ(row(1).SendFlag, 1) << "not in the text";
}

TEST_F(ItemText, AFieldWithoutItsSeparatorStaysAsItWas) {
  const std::string whole = "1;Tea;21;9;250;90;1;1;4;12.5;";
  std::size_t fields = 0;
  for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
    row(1) = espresso();
    ASSERT_TRUE(take(whole.substr(0, cut)).finished);
    if (cut > 0 && whole[cut - 1] == ';') ++fields;
    EXPECT_EQ(row(1).Name.view() == "Tea             ", fields >= 2) << cut;
    EXPECT_EQ(bcds_to_number(row(1).Code), fields >= 3 ? "21" : "4711") << cut;
    EXPECT_EQ(row(1).LinkDept, fields >= 4 ? 0x09 : 0x12) << cut;
    EXPECT_EQ(bcds_to_number(row(1).Price1), fields >= 5 ? "250" : "160") << cut;
    EXPECT_EQ(bcds_to_number(row(1).Price2), fields >= 6 ? "90" : "130") << cut;
    EXPECT_EQ(row(1).Flags1 & 3, fields >= 7 ? 1 : 2) << cut;
    EXPECT_EQ(row(1).Tax, fields >= 8 ? 1 : 2) << cut;
    EXPECT_EQ(row(1).TakeOutTax, fields >= 9 ? 4 : 3) << cut;
    EXPECT_EQ(Bcds_To_Stock(row(1).Stock), fields >= 10 ? "12.5" : "-2.5") << cut;
  }
  EXPECT_EQ(fields, 10U);
}

TEST_F(ItemText, FieldsBehindTheTenthAreNobodys) {
  ASSERT_TRUE(take("1;Tea;21;9;250;90;1;1;4;12.5;13;14;").finished);
  EXPECT_EQ(Bcds_To_Stock(row(1).Stock), "12.5");
}

TEST_F(ItemText, AnyOtherTypeLeavesTheType) {
  for (const char* type : {"", "3", "01", " 1", "1 ", "x", "-1"}) {
    row(1) = espresso();
    take(std::string{"1;Tea;21;9;250;90;"} + type + ";1;");
    EXPECT_EQ(row(1).Flags1 & 3, 2) << type;
    EXPECT_EQ(row(1).Tax, 1) << type;
  }
}

TEST_F(ItemText, PricesAreWholeNumbersAndAreRounded) {
  struct Case {
    const char* text;
    const char* stored;
    bool above_zero;
  };
  for (const Case& price : {Case{"1.5", "2", true}, Case{"2.5", "3", true}, Case{"2.49", "2", true},
                            Case{"0.4", "0", true}, Case{"0", "0", false}, Case{"", "0", false},
                            Case{"99999999", "99999999", true}, Case{" 7 ", "7", true}, Case{"-3", "3", false}}) {
    row(1) = espresso();
    take(std::string{"1;Tea;21;9;"} + price.text + ";" + price.text + ";");
    EXPECT_EQ(bcds_to_number(row(1).Price1), price.stored) << price.text;
    EXPECT_EQ(row(1).Price2, row(1).Price1) << price.text;
    EXPECT_EQ(byte_bit_tst(row(1).Flags1, 6), price.above_zero) << price.text;
    EXPECT_EQ(byte_bit_tst(row(1).Flags1, 7), price.above_zero) << price.text;
  }
}

TEST_F(ItemText, NamesAreTakenAsTheyStandAndCutAtTheirWidth) {
  take("1;caf\xE9 \x80 and much more;1;");
  EXPECT_EQ(row(1).Name.view(), "caf\xE9 \x80 and much ");
}

TEST_F(ItemText, AnExportAndAnImportLeaveAllExchangedFieldsAsTheyWere) {
  Random random{11};
  const int count = 3000;
  PrgPlu.PluCount = count;
  for (std::size_t i = 1; i <= count; ++i) {
    PluRecord& record = row(i);
    number_to_bcds(record.Code, random.digits(13));
    record.Name.set(random.text(random.below(17), "ABCxyz 0189"));
    number_to_bcds(record.Price1, random.digits(7));
    number_to_bcds(record.Price2, random.coin() ? "0" : random.digits(7));
    record.Flags1 = static_cast<Flags>(random.below(3) | (random.byte() & 0x3C));
    byte_bit_change(record.Flags1, 6, bcds_to_number(record.Price1) != "0");
    byte_bit_change(record.Flags1, 7, bcds_to_number(record.Price2) != "0");
    record.LinkDept = static_cast<std::uint8_t>(random.below(10) * 16 + random.below(10));
    record.Tax = static_cast<std::uint8_t>(random.below(5));
    record.TakeOutTax = random.byte();
    record.PluListLink = random.byte();
    record.SendFlag = random.byte();
    Stock_To_Bcds((random.coin() ? "-" : "") + random.digits(6) + "." + random.digits(4), record.Stock);
  }
  const auto before = std::make_unique<decltype(PrgPlu.Row)>(PrgPlu.Row);
  const std::string text = plu_csv_text();
  EXPECT_EQ(lines_of(text).size(), 3001U);
  EXPECT_EQ(import_plu_csv(text).lines, count);
  EXPECT_EQ(PrgPlu.PluCount, count);
  for (std::size_t i = 1; i <= count; ++i) {
    const PluRecord& stood = (*before)[i - 1];
    EXPECT_EQ(bytes_of_row(i), std::string(reinterpret_cast<const char*>(&stood), sizeof stood)) << "row " << i;
  }
  EXPECT_EQ(plu_csv_text(), text);
}

TEST_F(ItemText, AHeadingAloneSetsTheCountToZero) {
  PrgPlu.PluCount = 5;
  row(1) = espresso();
  EXPECT_TRUE(import_plu_csv("anything;at all").finished);
  EXPECT_EQ(PrgPlu.PluCount, 0);
  EXPECT_EQ(bcds_to_number(row(1).Code), "4711");
}

TEST_F(ItemText, AnEmptyTextSetsTheCountToMinusOne) {
  PrgPlu.PluCount = 5;
  const PluImport import = import_plu_csv("");
  EXPECT_TRUE(import.finished);
  EXPECT_EQ(import.lines, 0);
  EXPECT_EQ(PrgPlu.PluCount, -1);
}

TEST_F(ItemText, AnEmptyLineIsALine) {
  row(1) = espresso();
  row(2) = espresso();
  import_plu_csv("\r\n\r\n1;Tea;21;\r\n");
  EXPECT_EQ(PrgPlu.PluCount, 2);
  EXPECT_EQ(bcds_to_number(row(1).Code), "4711");
  EXPECT_EQ(bcds_to_number(row(2).Code), "21");
}

TEST_F(ItemText, LinesMayEndInAnyWayAndTheLastOneNotAtAll) {
  import_plu_csv("h\n1;A;1;\r2;B;2;\r\n3;C;3;");
  EXPECT_EQ(PrgPlu.PluCount, 3);
  EXPECT_EQ(row(1).Name.view().front(), 'A');
  EXPECT_EQ(row(2).Name.view().front(), 'B');
  EXPECT_EQ(row(3).Name.view().front(), 'C');
}

TEST_F(ItemText, RowsAboveTheLinesKeepWhatTheyHad) {
  PrgPlu.PluCount = 3;
  row(3) = espresso();
  take("1;Tea;21;");
  EXPECT_EQ(PrgPlu.PluCount, 1);
  EXPECT_EQ(bcds_to_number(row(3).Code), "4711");
}

TEST_F(ItemText, ThreeThousandAndOneRowsAreTaken) {
  std::string text = "h\r\n";
  for (int i = 0; i < 3001; ++i) text += "1;Tea;21;\r\n";
  EXPECT_TRUE(import_plu_csv(text).finished);
  EXPECT_EQ(PrgPlu.PluCount, 3001);
  EXPECT_EQ(bcds_to_number(row(3001).Code), "21");
}

TEST_F(ItemText, ARowMoreEndsTheImportAndTheCountStays) {
  PrgPlu.PluCount = 7;
  std::string text = "h\r\n";
  for (int i = 0; i < 3002; ++i) text += "1;Tea;21;\r\n";
  const PluImport import = import_plu_csv(text);
  EXPECT_FALSE(import.finished);
  EXPECT_EQ(import.lines, 3001);
  EXPECT_EQ(PrgPlu.PluCount, 7);
  EXPECT_EQ(bcds_to_number(row(3001).Code), "21") << "what was read stays";
  EXPECT_EQ(log(), Lines{"Frm_PrgPlu_Import Index out of range"});
}

TEST_F(ItemText, ADepartmentIsReadByItsHexadecimalText) {
  struct Case {
    const char* text;
    int stored;
  };
  for (const Case& dept : {Case{"12", 0x12}, Case{"99", 0x99}, Case{"", 0}, Case{"zz", 0}, Case{"1z", 1}, Case{" 7", 7},
                           Case{"ff", 0xFF}, Case{"00012", 0x12}}) {
    row(1) = espresso();
    EXPECT_TRUE(take(std::string{"1;Tea;21;"} + dept.text + ";").finished) << dept.text;
    EXPECT_EQ(row(1).LinkDept, dept.stored) << dept.text;
  }
}

TEST_F(ItemText, ADepartmentOrATaxAboveAByteEndsTheImport) {
  for (const char* line :
       {"1;Tea;21;100;", "1;Tea;21;fffffffffffffffff;", "1;Tea;21;1;1;1;1;256;", "1;Tea;21;1;1;1;1;1;-1;"}) {
    PrgPlu.PluCount = 7;
    row(1) = espresso();
    const PluImport import = take(line);
    EXPECT_FALSE(import.finished) << line;
    EXPECT_EQ(import.lines, 0) << line;
    EXPECT_EQ(PrgPlu.PluCount, 7) << line;
    EXPECT_EQ(bcds_to_number(row(1).Code), "21") << line;
    EXPECT_EQ(log().back(), "Frm_PrgPlu_Import Overflow") << line;
  }
}

TEST_F(ItemText, ATextThatIsNoNumberIsLoggedAndTheImportGoesOn) {
  row(1) = espresso();
  row(2) = espresso();
  EXPECT_TRUE(import_plu_csv("h\r\n1;A;x;1;y;z;1;t;u;w;\r\n2;B;2;1;3;4;1;1;1;5;\r\n").finished);
  EXPECT_EQ(PrgPlu.PluCount, 2);
  EXPECT_EQ(bcds_to_number(row(1).Code), "0");
  EXPECT_EQ(row(1).Tax, 0);
  EXPECT_EQ(Bcds_To_Stock(row(1).Stock), "-2.5") << "a stock that is no number stays";
  EXPECT_EQ(bcds_to_number(row(2).Code), "2");
  EXPECT_EQ(Bcds_To_Stock(row(2).Stock), "5");
}

TEST_F(ItemText, AnyBytesComeToAnEnd) {
  Random random{12};
  for (int round = 0; round < 300; ++round) {
    std::string text = random.text(random.below(3000), ";;;;;\r\n0123456789.-+eE ABCx\x01\xFF");
    import_plu_csv(text);
    text.resize(text.size() / 2);
    import_plu_csv(text);
  }
  EXPECT_EQ(import_plu_csv(std::string(1'000'000, '9') + "\r\n;" + std::string(1'000'000, '9') + ";" +
                           std::string(1'000'000, '9') + ";")
                .lines,
            1);
}

TEST_F(ItemText, DepartmentsAsText) {
  for (int byte = 0; byte < 256; ++byte) {
    const auto stored = static_cast<std::uint8_t>(byte);
    EXPECT_EQ(link_dept_of(link_dept_text(stored)), stored);
  }
  EXPECT_EQ(link_dept_text(0x05), "5");
  EXPECT_EQ(link_dept_text(0x99), "99");
  EXPECT_THROW(static_cast<void>(link_dept_of("100")), FaultError);
}

}  // namespace
}  // namespace ecr::test
