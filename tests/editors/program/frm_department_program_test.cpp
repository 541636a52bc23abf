#include <algorithm>
#include <array>
#include <functional>
#include <gtest/gtest.h>

#include <QApplication>
#include <QItemSelectionModel>
#include <QLineEdit>

#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/fault.h"
#include "core/global.h"
#include "core/register_text.h"
#include "core/text.h"
#include "support_qt/screen_test.h"

namespace ecr::test::department_program_cases {
namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t first_at = 329;
constexpr std::size_t record_size = 22;
constexpr std::size_t departments = 99;
constexpr std::size_t all_end = first_at + record_size * departments;

// Places in a record.
constexpr std::size_t status1_at = 12;
constexpr std::size_t status2_at = 13;
constexpr std::size_t changed_at = 14;
constexpr std::size_t group_at = 15;
constexpr std::size_t tax_at = 16;
constexpr std::size_t take_out_at = 17;
constexpr std::size_t price_at = 18;

class FrmDepartmentProgramTest : public ScreenTest {
 protected:
  FrmDepartmentProgramTest() { start_session(Global::model_z320); }

  void open_editor() { open("FrmDepartmentProgram"); }
  void save() const { click("C_Salva"); }
  void open_again() {
    stage.top()->unload();
    let_screens_settle();
    open_editor();
  }

  [[nodiscard]] NumberList& number() const { return control<NumberList>("Cmb_DepartmentNumber"); }
  [[nodiscard]] RecordGrid& grid() const { return control<RecordGrid>("Fg_Department"); }
  [[nodiscard]] QString cell(int row, int column) const { return grid().cells().cell(row, column); }
  [[nodiscard]] int marked_row() const {
    const QModelIndexList rows = grid().selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.front().row() + 1 : -1;
  }

  void go_to(int department) const {
    tab_to(number());
    let_screens_settle();
    press(Qt::Key_A, Qt::ControlModifier);
    type(QString::number(department));
  }
  void enter(const char* name, const QString& text) const {
    click(name);
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
  }

  /// The record of a department in the file.
  [[nodiscard]] std::string record(int department) const {
    return image_file().substr(first_at + record_size * static_cast<std::size_t>(department - 1), record_size);
  }
  [[nodiscard]] int stored(int department, std::size_t place) const {
    return static_cast<unsigned char>(record(department)[place]);
  }
  static DeptRecord& in_memory(int department) { return PrgMode.Dept[static_cast<std::size_t>(department - 1)]; }

  void expect_refusals(int boxes) {
    for (int i = 0; i < boxes; ++i) expect_box(BoxKind::critical, "Value insert to high!");
  }
  /// Whether department 1 counts as changed behind what `person` does: saved, its changed byte says so.
  [[nodiscard]] bool marks(const std::function<void()>& person) {
    open_editor();
    person();
    save();
    const bool marked = stored(1, changed_at) == 1;
    stage.top()->unload();
    let_screens_settle();
    return marked;
  }
};

// How it looks.

TEST_F(FrmDepartmentProgramTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  const std::pair<const char*, const char*> captions[] = {{"L_DepartmentNumber", "Department Number:"},
                                                          {"L_DeptName", "Department Name:"},
                                                          {"L_Status1", "Status 1"},
                                                          {"L_Status2", "Status 2"},
                                                          {"L_Halo", "HDLO"},
                                                          {"L_PriceType", "Price Type"},
                                                          {"L_DeptGroupNumber", "Dept Group Number"},
                                                          {"L_DeptGroupMax", "(Max Value 10)"},
                                                          {"L_Tax", "TAX"},
                                                          {"L_TakeOutTax", "Take Out Tax"},
                                                          {"L_Price", "Price :"},
                                                          {"L_PriceMax", "(Max Value 9999999)"},
                                                          {"C_Salva", "Save Setup"},
                                                          {"C_Annulla", "Back"},
                                                          {"C_Invia_Ecr", "Send to ECR"}};
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Department Program"));
  for (const auto& [name, text] : captions) EXPECT_EQ(caption(name), QString::fromLatin1(text)) << name;
}

TEST_F(FrmDepartmentProgramTest, CaptionsComeFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_editor();
  const std::pair<const char*, const char*> keys[] = {
      {"L_DepartmentNumber", "FRM_DEPARTMENT_PROGRAM_L_DEPARTMENT_NUMBER"},
      {"L_DeptName", "FRM_DEPARTMENT_PROGRAM_L_DEPT_NAME"},
      {"L_Status1", "FRM_DEPARTMENT_PROGRAM_L_STATUS1"},
      {"L_Status2", "FRM_DEPARTMENT_PROGRAM_L_STATUS2"},
      {"L_Halo", "FRM_DEPARTMENT_PROGRAM_L_HALO"},
      {"L_PriceType", "FRM_DEPT_PRICE_TYPE_MSG"},
      {"L_DeptGroupNumber", "FRM_DEPARTMENT_PROGRAM_L_DEPT_GROUP_NUMBER"},
      {"L_DeptGroupMax", "FRM_DEPARTMENT_PROGRAM_L_DEPT_GROUP_MAX"},
      {"L_Tax", "FRM_DEPARTMENT_PROGRAM_L_TAX"},
      {"L_TakeOutTax", "FRM_DEPARTMENT_PROGRAM_L_TAKE_OUT_TAX"},
      {"L_Price", "FRM_DEPARTMENT_PROGRAM_L_PRICE"},
      {"L_PriceMax", "FRM_DEPARTMENT_PROGRAM_L_PRICE_MAX"}};
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_DEPARTMENT_PROGRAM_TITLE"));
  for (const auto& [name, key] : keys) EXPECT_EQ(caption(name), QString::fromLatin1(key)) << name;
}

TEST_F(FrmDepartmentProgramTest, ListsHoldTheirChoices) {
  open_editor();
  const QStringList taxes = {"0. NON TAXABLE", "1. TAX1 TAXABLE", "2. TAX2 TAXABLE", "3. TAX3 TAXABLE",
                             "4. TAX4 TAXABLE"};
  EXPECT_EQ(entries_of(list("Cmb_Status1")), QStringList({"0. POSITIVE", "1. NEGATIVE"}));
  EXPECT_EQ(entries_of(list("Cmb_Status2")), QStringList({"0. NORMAL", "1. SINGLE"}));
  EXPECT_EQ(entries_of(list("Cmb_Halo")),
            QStringList({"0. NO LIMIT", "1. (0 - 0.99)", "2. (0 - 9.99)", "3. (0 - 99.99)", "4. (0 - 999.99)"}));
  EXPECT_EQ(entries_of(list("Cmb_PriceType")), QStringList({"0. OPEN", "1. NORMAL", "2. PRESET"}));
  EXPECT_EQ(entries_of(list("Cmb_Tax")), taxes);
  EXPECT_EQ(entries_of(list("Cmb_TakeOutTax")), taxes);
  EXPECT_EQ(number().count(), 99);
  EXPECT_EQ(field("E_DeptName").maxLength(), 12);
}

TEST_F(FrmDepartmentProgramTest, ChoicesTakeTheirLabelsFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_editor();
  EXPECT_EQ(entries_of(list("Cmb_Status1")), QStringList({"0. FRM_ALL_POSITIVE", "1. FRM_ALL_NEGATIVE"}));
  EXPECT_EQ(entries_of(list("Cmb_Status2")), QStringList({"0. FRM_ALL_NORMAL", "1. FRM_ALL_SINGLE"}));
  EXPECT_EQ(entries_of(list("Cmb_Halo")),
            QStringList({"0. FRM_ALL_NO_LIMIT", "1. FRM_ALL_1DIGITS", "2. FRM_ALL_2DIGITS", "3. FRM_ALL_3DIGITS",
                         "4. FRM_ALL_4DIGITS"}));
  EXPECT_EQ(entries_of(list("Cmb_PriceType")),
            QStringList({"0. FRM_ALL_OPEN", "1. FRM_ALL_NORMAL", "2. FRM_ALL_PRESET"}));
  EXPECT_EQ(entries_of(list("Cmb_Tax")),
            QStringList({"0. FRM_ALL_TAX_0_MSG", "1. FRM_ALL_TAX_1_MSG", "2. FRM_ALL_TAX_2_MSG", "3. FRM_ALL_TAX_3_MSG",
                         "4. FRM_ALL_TAX_4_MSG"}));
  EXPECT_EQ(entries_of(list("Cmb_TakeOutTax")), entries_of(list("Cmb_Tax")));
}

TEST_F(FrmDepartmentProgramTest, TheFirstTwoPriceTypesAskForEachOthersText) {
  set_message(Key::FRM_ALL_OPEN, "Offen");
  open_editor();
  EXPECT_EQ(entries_of(list("Cmb_PriceType")), QStringList({"0. OPEN", "1. ", "2. PRESET"}));
  set_message(Key::FRM_ALL_OPEN, "");
  set_message(Key::FRM_ALL_NORMAL, "Normal");
  set_message(Key::FRM_ALL_PRESET, "Fest");
  open_again();
  EXPECT_EQ(entries_of(list("Cmb_PriceType")), QStringList({"0. ", "1. NORMAL", "2. Fest"}));
  set_message(Key::FRM_ALL_OPEN, "Offen");
  open_again();
  EXPECT_EQ(entries_of(list("Cmb_PriceType")), QStringList({"0. Offen", "1. Normal", "2. Fest"}));
}

TEST_F(FrmDepartmentProgramTest, WithTheEnglishTextsEachChoiceReadsWhatItIs) {
  fill_catalogue();
  open_editor();
  EXPECT_EQ(entries_of(list("Cmb_PriceType")), QStringList({"0. Open", "1. Normal", "2. Preset"}));
  EXPECT_EQ(entries_of(list("Cmb_Status1")), QStringList({"0. Positive", "1. Negative"}));
  EXPECT_EQ(cell(1, 2), QStringLiteral("Positive"));
  EXPECT_EQ(log(), Lines{}) << "every key of the file is known";
}

// The grid.

TEST_F(FrmDepartmentProgramTest, TheGridHasItsHeadings) {
  const auto headings = [this] {
    QStringList texts;
    for (int column = 0; column < grid().cells().columnCount(); ++column) {
      texts.append(grid().cells().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    }
    return texts;
  };
  open_editor();
  EXPECT_EQ(grid().cells().rowCount(), 99);
  EXPECT_EQ(headings(),
            QStringList({"Dept", "Name", "Status 1", "Status 2", "Group", "Tax", "Take Out Tax", "HDLO", "Price"}));
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_again();
  EXPECT_EQ(headings(),
            QStringList({"FRM_DEPT_COL_DEPT_MSG", "FRM_DEPT_COL_NAME_MSG", "FRM_DEPT_COL_STATUS1_MSG",
                         "FRM_DEPT_COL_STATUS2_MSG", "FRM_DEPT_COL_DEPT_GROUP_NUMBER_MSG", "FRM_DEPT_COL_TAX_MSG",
                         "FRM_DEPT_COL_TAKEOUTTAX_MSG", "FRM_DEPT_COL_HDLO_MSG", "FRM_DEPT_COL_PRICE_MSG"}));
}

TEST_F(FrmDepartmentProgramTest, TheGridShowsEachDepartmentWithTheLabelsOfItsChoices) {
  DeptRecord& second = in_memory(2);
  second.Status1 = 0x43;
  second.Group = 16;
  second.Tax = 3;
  second.TakeOutTax = 0;
  open_editor();
  const auto row = [this](int n) {
    QStringList texts;
    for (int column = 0; column < 9; ++column) texts.append(cell(n, column));
    return texts;
  };
  EXPECT_EQ(row(1), QStringList({"1", "BREAD       ", "POSITIVE", "NORMAL", "0", "TAX2 TAXABLE", "TAX2 TAXABLE",
                                 "NO LIMIT", "2.50"}));
  EXPECT_EQ(row(2), QStringList({"2", "CAKES       ", "NEGATIVE", "SINGLE", "10", "TAX3 TAXABLE", "NON TAXABLE",
                                 "(0 - 999.99)", "12.50"}));
  EXPECT_EQ(row(99), QStringList({"99", "DEPT 99     ", "POSITIVE", "NORMAL", "0", "TAX1 TAXABLE", "TAX1 TAXABLE",
                                  "NO LIMIT", "0.00"}));
}

TEST_F(FrmDepartmentProgramTest, CellsOfValuesOutOfRangeKeepWhatStood) {
  in_memory(3).Tax = 5;
  in_memory(3).TakeOutTax = 255;
  in_memory(3).Status1 = 0x50;
  open_editor();
  EXPECT_EQ(cell(3, 5), QString{});
  EXPECT_EQ(cell(3, 6), QString{});
  EXPECT_EQ(cell(3, 7), QString{});
  EXPECT_EQ(cell(4, 5), QStringLiteral("TAX2 TAXABLE"));
  in_memory(4).Tax = 9;
  in_memory(4).TakeOutTax = 9;
  in_memory(4).Status1 = 0xF0;
  in_memory(4).Group = 7;
  save();
  EXPECT_EQ(cell(4, 5), QStringLiteral("TAX2 TAXABLE"));
  EXPECT_EQ(cell(4, 6), QStringLiteral("TAX2 TAXABLE"));
  EXPECT_EQ(cell(4, 7), QStringLiteral("NO LIMIT"));
  EXPECT_EQ(cell(4, 4), QStringLiteral("7")) << "the others are new";
}

TEST_F(FrmDepartmentProgramTest, TheGridIsFilledAnewBySaving) {
  open_editor();
  enter("E_DeptName", QStringLiteral("ROLLS"));
  pick(list("Cmb_Tax"), 4);
  enter("E_Price", QStringLiteral("99"));
  save();
  EXPECT_EQ(cell(1, 1), QStringLiteral("ROLLS       "));
  EXPECT_EQ(cell(1, 5), QStringLiteral("TAX4 TAXABLE"));
  EXPECT_EQ(cell(1, 8), QStringLiteral("0.99"));
}

TEST_F(FrmDepartmentProgramTest, SelectingARowLoadsItsDepartment) {
  open_editor();
  click_row(grid(), 3);
  EXPECT_EQ(number().number(), 3);
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("DRINKS      "));
  EXPECT_EQ(marked_row(), 3);
  press(Qt::Key_Down);
  EXPECT_EQ(number().number(), 4);
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("FRUIT       "));
  EXPECT_EQ(marked_row(), 4);
}

TEST_F(FrmDepartmentProgramTest, SelectingARowLoadsItsDepartmentOnce) {
  Global::DecimalPoint = 0;
  number_to_bcds(in_memory(5).Price, "99999999");
  open_editor();
  // The load itself brings one box; a second load would bring another.
  expect_refusals(1);
  click_row(grid(), 5);
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("9999999"));
}

// The number list.

TEST_F(FrmDepartmentProgramTest, OpensWithDepartmentOneAndTheFocusOnItsNumber) {
  open_editor();
  EXPECT_EQ(number().currentText(), QStringLiteral("1"));
  EXPECT_TRUE(number().hasFocus());
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("BREAD       "));
  EXPECT_EQ(marked_row(), 1);
}

TEST_F(FrmDepartmentProgramTest, EachTypedDigitLoadsADepartment) {
  open_editor();
  go_to(7);
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("STAMPS      "));
  type(QStringLiteral("5"));
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("DEPT 75     "));
  EXPECT_EQ(marked_row(), 75);
  EXPECT_EQ(grid().rowAt(0) + 1, 75) << "the grid's top row moves there";
}

TEST_F(FrmDepartmentProgramTest, Typing100Gives99BehindTheThirdDigit) {
  open_editor();
  go_to(100);
  EXPECT_EQ(number().currentText(), QStringLiteral("99"));
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("DEPT 99     "));
}

TEST_F(FrmDepartmentProgramTest, LettersInTheNumberAreDropped) {
  open_editor();
  go_to(4);
  type(QStringLiteral("x"));
  EXPECT_EQ(number().currentText(), QStringLiteral("4"));
}

// Loading.

TEST_F(FrmDepartmentProgramTest, ARecordIsShownInItsControls) {
  DeptRecord& record = in_memory(6);
  record.Name.set("TOBACCO");
  record.Status1 = 0x23;
  record.Status2 = 2;
  record.Group = 9;
  record.Tax = 4;
  record.TakeOutTax = 1;
  number_to_bcds(record.Price, "123456");
  open_editor();
  go_to(6);
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("TOBACCO     "));
  EXPECT_EQ(list("Cmb_Status1").text(), QStringLiteral("1. NEGATIVE"));
  EXPECT_EQ(list("Cmb_Status2").text(), QStringLiteral("1. SINGLE"));
  EXPECT_EQ(list("Cmb_Halo").text(), QStringLiteral("2. (0 - 9.99)"));
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("9"));
  EXPECT_EQ(list("Cmb_Tax").text(), QStringLiteral("4. TAX4 TAXABLE"));
  EXPECT_EQ(list("Cmb_TakeOutTax").text(), QStringLiteral("1. TAX1 TAXABLE"));
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("1234.56"));
  EXPECT_EQ(list("Cmb_PriceType").text(), QStringLiteral("2. PRESET"));
}

TEST_F(FrmDepartmentProgramTest, EachStatusBitIsItsOwnList) {
  const std::pair<std::uint8_t, std::pair<const char*, const char*>> states[] = {{0x00, {"0. POSITIVE", "0. NORMAL"}},
                                                                                 {0x01, {"1. NEGATIVE", "0. NORMAL"}},
                                                                                 {0x02, {"0. POSITIVE", "1. SINGLE"}},
                                                                                 {0x0C, {"0. POSITIVE", "0. NORMAL"}}};
  open_editor();
  int department = 10;
  for (const auto& [bits, texts] : states) {
    in_memory(department).Status1 = bits;
    go_to(department++);
    EXPECT_EQ(list("Cmb_Status1").text(), QString::fromLatin1(texts.first));
    EXPECT_EQ(list("Cmb_Status2").text(), QString::fromLatin1(texts.second));
  }
}

TEST_F(FrmDepartmentProgramTest, EachDigitLimitIsShownAndUnknownOnesLeaveTheListAsItStands) {
  open_editor();
  for (int limit = 0; limit < 16; ++limit) {
    in_memory(20 + limit).Status1 = static_cast<std::uint8_t>(limit << 4);
    click_row(grid(), 20 + limit);
    EXPECT_EQ(list("Cmb_Halo").number(), std::min(limit, 4));
  }
}

TEST_F(FrmDepartmentProgramTest, UnknownTaxesAndPriceTypesLeaveTheirListsAsTheyStand) {
  in_memory(2).Tax = 3;
  in_memory(2).TakeOutTax = 4;
  in_memory(2).Status2 = 2;
  in_memory(3).Tax = 5;
  in_memory(3).TakeOutTax = 200;
  in_memory(3).Status2 = 3;
  open_editor();
  go_to(2);
  go_to(3);
  EXPECT_EQ(list("Cmb_Tax").number(), 3);
  EXPECT_EQ(list("Cmb_TakeOutTax").number(), 4);
  EXPECT_EQ(list("Cmb_PriceType").number(), 2);
  save();
  EXPECT_EQ(stored(3, tax_at), 3);
  EXPECT_EQ(stored(3, take_out_at), 4);
  EXPECT_EQ(stored(3, status2_at) & 3, 2);
}

TEST_F(FrmDepartmentProgramTest, AnUnknownLimitShowsThePreviousChoiceAndASaveWritesIt) {
  in_memory(2).Status1 = 0x30;
  in_memory(3).Status1 = 0x90;
  open_editor();
  go_to(2);
  go_to(3);
  EXPECT_EQ(list("Cmb_Halo").text(), QStringLiteral("3. (0 - 99.99)"));
  save();
  EXPECT_EQ(stored(3, status1_at), 0x38);
}

TEST_F(FrmDepartmentProgramTest, WithoutAPreviousChoiceAnUnknownLimitIsNoneAndSavesAsZero) {
  in_memory(1).Status1 = 0xF0;
  open_editor();
  EXPECT_EQ(list("Cmb_Halo").text(), QString{});
  save();
  EXPECT_EQ(stored(1, status1_at), 0x08);
}

TEST_F(FrmDepartmentProgramTest, Group16IsShownAs10) {
  in_memory(2).Group = 16;
  open_editor();
  go_to(2);
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("10"));
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmDepartmentProgramTest, NamesComeOutOfTheRegistersCharacters) {
  in_memory(1).Name.set("CR\xDBME \xF8");
  open_editor();
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("CRÈME €     "));
  EXPECT_EQ(cell(1, 1), QStringLiteral("CRÈME €     "));
}

TEST_F(FrmDepartmentProgramTest, ThePriceHasTheDecimalsOfTheProgramming) {
  for (const auto& [decimals, shown] :
       {std::pair{0, "250"}, std::pair{1, "25.0"}, std::pair{2, "2.50"}, std::pair{3, "0.250"}}) {
    Global::DecimalPoint = static_cast<std::uint8_t>(decimals);
    open_editor();
    EXPECT_EQ(field("E_Price").text(), QString::fromLatin1(shown));
    EXPECT_EQ(cell(1, 8), QString::fromLatin1(shown));
    click("E_Price");
    EXPECT_EQ(field("E_Price").text(), QStringLiteral("250"));
    save();
    EXPECT_EQ(record(1).substr(price_at), std::string("\x50\x02\x00\x00", 4));
  }
}

// The price.

TEST_F(FrmDepartmentProgramTest, ThePriceIsTypedInSmallestUnits) {
  open_editor();
  enter("E_Price", QStringLiteral("1250"));
  press(Qt::Key_Tab);
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("12.50"));
  save();
  EXPECT_EQ(record(1).substr(price_at), std::string("\x50\x12\x00\x00", 4));
}

TEST_F(FrmDepartmentProgramTest, ThePriceMayBeTheMaximumAndNotMore) {
  open_editor();
  enter("E_Price", QStringLiteral("9999999"));
  EXPECT_TRUE(watched.boxes.empty());
  expect_refusals(1);
  type(QStringLiteral("0"));
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("9999999"));
  save();
  EXPECT_EQ(record(1).substr(price_at), std::string("\x99\x99\x99\x09", 4));
}

TEST_F(FrmDepartmentProgramTest, EnterDoesNothingInThePriceTheNameAndTheGroup) {
  open_editor();
  const std::string before = image_file();
  for (const char* name : {"E_Price", "E_DeptName", "E_DeptGroupNumber"}) {
    click(name);
    press(Qt::Key_Return);
    EXPECT_TRUE(control(name).hasFocus());
  }
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmDepartmentProgramTest, AnEmptyPriceStoresZero) {
  open_editor();
  click("E_Price");
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  save();
  EXPECT_EQ(record(1).substr(price_at), std::string(4, '\0'));
  go_to(2);
  field("E_Price").show_text({});
  save();
  EXPECT_EQ(record(2).substr(price_at), std::string(4, '\0')) << "also where it was not left";
}

TEST_F(FrmDepartmentProgramTest, AZeroPriceEmptiesTheFieldOnEntry) {
  open_editor();
  go_to(4);
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("0.00"));
  click("E_Price");
  EXPECT_EQ(field("E_Price").text(), QString{});
}

TEST_F(FrmDepartmentProgramTest, APriceAboveTheMaximumFromElsewhereIsCutWhenItIsEntered) {
  number_to_bcds(in_memory(1).Price, "99999999");
  open_editor();
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("999999.99"));
  expect_refusals(1);
  click("E_Price");
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("9999999"));
}

TEST_F(FrmDepartmentProgramTest, APastedPriceIsCutUntilItFits) {
  open_editor();
  click("E_Price");
  expect_refusals(2);
  paste_over(QStringLiteral("123456789"));
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("1234567"));
}

TEST_F(FrmDepartmentProgramTest, LettersInThePriceAreDropped) {
  open_editor();
  enter("E_Price", QStringLiteral("1.5,0 x"));
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("150"));
}

// The group.

TEST_F(FrmDepartmentProgramTest, AGroupOfZeroEmptiesTheFieldOnEntryAndAnotherOneStays) {
  in_memory(2).Group = 7;
  open_editor();
  click("E_DeptGroupNumber");
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QString{});
  go_to(2);
  click("E_DeptGroupNumber");
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("7"));
}

TEST_F(FrmDepartmentProgramTest, AnEmptyGroupStaysEmptyWhenItIsLeftAndSavesAsZero) {
  in_memory(1).Group = 7;
  open_editor();
  click("E_DeptGroupNumber");
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  click("E_DeptName");
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QString{});
  save();
  EXPECT_EQ(stored(1, group_at), 0);
}

TEST_F(FrmDepartmentProgramTest, GroupsUpToTenAreTakenAndTenIsStoredAs16) {
  open_editor();
  for (int group = 0; group <= 10; ++group) {
    go_to(group + 30);
    enter("E_DeptGroupNumber", QString::number(group));
    save();
    EXPECT_EQ(stored(group + 30, group_at), group == 10 ? 16 : group);
  }
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmDepartmentProgramTest, Group16Becomes10WithoutAWord) {
  open_editor();
  enter("E_DeptGroupNumber", QStringLiteral("16"));
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("10"));
  save();
  EXPECT_EQ(stored(1, group_at), 16);
}

TEST_F(FrmDepartmentProgramTest, Group11IsRefusedAndLeavesA1) {
  open_editor();
  expect_refusals(1);
  enter("E_DeptGroupNumber", QStringLiteral("11"));
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("1"));
}

TEST_F(FrmDepartmentProgramTest, LettersInTheGroupAreDropped) {
  open_editor();
  enter("E_DeptGroupNumber", QStringLiteral("a3b"));
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("3"));
}

TEST_F(FrmDepartmentProgramTest, APastedGroupIsCutUntilItIsTaken) {
  open_editor();
  click("E_DeptGroupNumber");
  expect_refusals(2);
  paste_over(QStringLiteral("234"));
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("2"));
  expect_refusals(1);
  paste_over(QStringLiteral("160"));
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("10")) << "cut to 16, which is the stored form of 10";
}

TEST_F(FrmDepartmentProgramTest, ANegativeGroupIsRefusedAsOneAboveTen) {
  in_memory(1).Group = 3;
  open_editor();
  click("E_DeptGroupNumber");
  expect_refusals(1);
  paste_over(QStringLiteral("-5"));
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("-"));
  expect_refusals(2);
  paste_over(QStringLiteral("-12"));
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("-"));
  save();
  EXPECT_EQ(stored(1, group_at), 0) << "what is left says no number";
}

TEST_F(FrmDepartmentProgramTest, AGroupFromElsewhereThatIsTooHighIsRefusedAsItIsShown) {
  in_memory(2).Group = 25;
  open_editor();
  expect_refusals(1);
  go_to(2);
  EXPECT_EQ(field("E_DeptGroupNumber").text(), QStringLiteral("2"));
  save();
  EXPECT_EQ(stored(2, group_at), 2);
}

// The name.

TEST_F(FrmDepartmentProgramTest, TheNameIsSavedInTheRegistersCharactersPaddedWithBlanks) {
  open_editor();
  enter("E_DeptName", QStringLiteral("CRÈME €"));
  save();
  EXPECT_EQ(record(1).substr(0, 12), "CR\xDBME \xF8     ");
}

TEST_F(FrmDepartmentProgramTest, TheNameTakesTwelveCharacters) {
  open_editor();
  enter("E_DeptName", QStringLiteral("ABCDEFGHIJKLMNOP"));
  save();
  EXPECT_EQ(record(1).substr(0, 12), "ABCDEFGHIJKL");
  click("E_DeptName");
  paste_over(QStringLiteral("A name that is far too long"));
  save();
  EXPECT_EQ(record(2).substr(0, 12), "A name that ");
}

TEST_F(FrmDepartmentProgramTest, BlanksInFrontOfTheNameStayAndAnEmptyNameIsTwelveBlanks) {
  open_editor();
  enter("E_DeptName", QStringLiteral("  Tea"));
  save();
  EXPECT_EQ(record(1).substr(0, 12), "  Tea       ");
  click("E_DeptName");
  press(Qt::Key_Backspace);
  save();
  EXPECT_EQ(record(2).substr(0, 12), std::string(12, ' '));
  EXPECT_EQ(cell(2, 1), QString(12, u' '));
}

TEST_F(FrmDepartmentProgramTest, EnteringTheNameSelectsItWithoutItsBlanks) {
  open_editor();
  click("E_DeptName");
  EXPECT_EQ(field("E_DeptName").selectedText(), QStringLiteral("BREAD"));
  save();
  EXPECT_EQ(record(1).substr(0, 12), "BREAD       ");
}

TEST_F(FrmDepartmentProgramTest, ACharacterThatThePageLacksIsLeftOutAndLogged) {
  open_editor();
  enter("E_DeptName", QStringLiteral("A\u0416B"));
  save();
  EXPECT_EQ(record(1).substr(0, 12), "AB          ");
  EXPECT_EQ(log().size(), 1U);
  EXPECT_TRUE(log()[0].starts_with("sostituzione_to_ecr : "));
}

TEST_F(FrmDepartmentProgramTest, ALetterThatTheRegisterCannotFormEndsTheProgramAndNothingIsWritten) {
  open_editor();
  const std::string before = image_file();
  expect_program_ends([this] {
    enter("E_DeptName", QStringLiteral("\u00C3X"));
    save();
  });
  EXPECT_EQ(image_file(), before);
}

// What counts as changed.

TEST_F(FrmDepartmentProgramTest, NothingDoneIsNothingChanged) {
  in_memory(1).Changed = 1;
  EXPECT_FALSE(marks([] {}));
  EXPECT_EQ(stored(1, changed_at), 0) << "the byte of an earlier save is taken back";
}

TEST_F(FrmDepartmentProgramTest, EveryListMarksTheRecordWhenItShowsAnotherDigit) {
  for (const char* name : {"Cmb_Status1", "Cmb_Status2", "Cmb_Halo", "Cmb_Tax", "Cmb_TakeOutTax", "Cmb_PriceType"}) {
    EXPECT_TRUE(marks([&] { pick(list(name), (list(name).currentIndex() + 1) % 2); })) << name;
  }
}

TEST_F(FrmDepartmentProgramTest, NoListMarksTheRecordWhenItShowsTheStoredDigit) {
  for (const char* name : {"Cmb_Status1", "Cmb_Status2", "Cmb_Halo", "Cmb_Tax", "Cmb_TakeOutTax", "Cmb_PriceType"}) {
    EXPECT_FALSE(marks([&] { pick(list(name), list(name).currentIndex()); })) << name;
  }
}

TEST_F(FrmDepartmentProgramTest, AChoicePutBackDoesNotTakeTheMarkBack) {
  EXPECT_TRUE(marks([this] {
    const int stored_tax = list("Cmb_Tax").currentIndex();
    pick(list("Cmb_Tax"), 4);
    pick(list("Cmb_Tax"), stored_tax);
  }));
}

TEST_F(FrmDepartmentProgramTest, ChoicesByArrowKeysMarkTheRecordToo) {
  EXPECT_TRUE(marks([this] {
    tab_to(list("Cmb_Tax"));
    press(Qt::Key_Down);
  }));
}

TEST_F(FrmDepartmentProgramTest, ADifferentNameMarksTheRecord) {
  EXPECT_TRUE(marks([this] { enter("E_DeptName", QStringLiteral("ROLLS")); }));
}

TEST_F(FrmDepartmentProgramTest, EnteringANameMarksTheRecordUnlessItFillsItsField) {
  in_memory(1).Name.set("TWELVE CHARS");
  EXPECT_FALSE(marks([this] { click("E_DeptName"); }));
  in_memory(1).Name.set("ELEVEN CHAR");
  EXPECT_TRUE(marks([this] { click("E_DeptName"); })) << "its blanks are gone";
}

TEST_F(FrmDepartmentProgramTest, EnteringAPriceMarksTheRecordAlready) {
  EXPECT_TRUE(marks([this] {
    click("E_Price");
    click("E_DeptGroupNumber");
  })) << "its text has become raw digits";
}

TEST_F(FrmDepartmentProgramTest, EnteringAZeroPriceDoesNotMarkTheRecord) {
  Global::DecimalPoint = 0;
  in_memory(1).Price = {};
  EXPECT_FALSE(marks([this] {
    click("E_Price");
    EXPECT_EQ(field("E_Price").text(), QString{});
    click("E_DeptGroupNumber");
    EXPECT_EQ(field("E_Price").text(), QStringLiteral("0"));
  }));
}

TEST_F(FrmDepartmentProgramTest, AnEmptiedPriceAloneDoesNotMarkTheRecord) {
  Global::DecimalPoint = 0;
  EXPECT_FALSE(marks([this] { field("E_Price").show_text({}); }));
  EXPECT_EQ(record(1).substr(price_at), std::string(4, '\0'));
}

TEST_F(FrmDepartmentProgramTest, ADifferentGroupMarksTheRecordAndAnEmptiedOneDoesNot) {
  EXPECT_TRUE(marks([this] { enter("E_DeptGroupNumber", QStringLiteral("4")); }));
  EXPECT_FALSE(marks([this] {
    click("E_DeptGroupNumber");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
  }));
}

TEST_F(FrmDepartmentProgramTest, ADepartmentOfGroupTenCountsAsChangedWheneverItIsLoaded) {
  for (const int department : {1, 2, 3, 4}) in_memory(department).Group = 16;
  open_editor();
  save();
  EXPECT_EQ(stored(1, changed_at), 0) << "the opening leaves no mark";
  save();
  save();
  EXPECT_EQ(stored(2, changed_at), 1);
  EXPECT_EQ(stored(3, changed_at), 1) << "also behind another one of that group";
}

TEST_F(FrmDepartmentProgramTest, AMarkStaysWithItsRecordUntilThatIsSaved) {
  open_editor();
  enter("E_DeptName", QStringLiteral("ROLLS"));
  go_to(2);
  save();
  EXPECT_EQ(stored(2, changed_at), 0) << "the mark is department 1's";
  go_to(1);
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("BREAD       ")) << "what was not saved is gone";
  save();
  EXPECT_EQ(stored(1, changed_at), 1);
  go_to(1);
  save();
  EXPECT_EQ(stored(1, changed_at), 0) << "the save has taken the mark";
}

TEST_F(FrmDepartmentProgramTest, AllMarksAreGoneWhenTheScreenOpensAgain) {
  open_editor();
  enter("E_DeptName", QStringLiteral("ROLLS"));
  open_again();
  save();
  EXPECT_EQ(stored(1, changed_at), 0);
}

// Saving.

TEST_F(FrmDepartmentProgramTest, ASaveWritesTheWholeRecordAndNoOtherByte) {
  open_editor();
  const std::string before = image_file();
  enter("E_DeptName", QStringLiteral("ROLLS"));
  pick(list("Cmb_Status1"), 1);
  pick(list("Cmb_Status2"), 1);
  pick(list("Cmb_Halo"), 3);
  pick(list("Cmb_PriceType"), 2);
  enter("E_DeptGroupNumber", QStringLiteral("10"));
  pick(list("Cmb_Tax"), 4);
  pick(list("Cmb_TakeOutTax"), 0);
  enter("E_Price", QStringLiteral("123"));
  save();
  const std::string after = image_file();
  EXPECT_EQ(after.substr(first_at, record_size),
            std::string("ROLLS       \x3B\x02\x01\x10\x04\x00\x23\x01\x00\x00", record_size));
  EXPECT_EQ(after.substr(0, first_at), before.substr(0, first_at));
  EXPECT_EQ(after.substr(first_at + record_size), before.substr(first_at + record_size));
  EXPECT_EQ(file_bytes(PrgMode), after);
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmDepartmentProgramTest, EachDigitLimitHasItsBits) {
  open_editor();
  const int bits[] = {0x00, 0x10, 0x20, 0x30, 0x40};
  for (int limit = 0; limit <= 4; ++limit) {
    in_memory(1).Status1 = limit % 2 == 0 ? 0xF4 : 0x04;
    go_to(1);
    pick(list("Cmb_Halo"), limit);
    save();
    EXPECT_EQ(stored(1, status1_at), bits[limit] | 0x0C) << "bit 2 stays, bit 3 is set";
  }
}

TEST_F(FrmDepartmentProgramTest, EachPriceTypeHasItsBits) {
  open_editor();
  for (int type = 0; type <= 2; ++type) {
    in_memory(1).Status2 = 0xFF;
    go_to(1);
    pick(list("Cmb_PriceType"), type);
    save();
    EXPECT_EQ(stored(1, status2_at), 0xFC | type) << "the other bits stay";
    in_memory(1).Status2 = 0x00;
    go_to(1);
    pick(list("Cmb_PriceType"), type);
    save();
    EXPECT_EQ(stored(1, status2_at), type);
  }
}

TEST_F(FrmDepartmentProgramTest, ASaveSetsBit3OnARecordThatNeverHadIt) {
  in_memory(1).Status1 = 0;
  open_editor();
  save();
  EXPECT_EQ(stored(1, status1_at), 0x08);
}

TEST_F(FrmDepartmentProgramTest, TheStatusBitsAreSetAndTakenBack) {
  open_editor();
  for (const int value : {1, 0}) {
    go_to(1);
    pick(list("Cmb_Status1"), value);
    pick(list("Cmb_Status2"), 1 - value);
    save();
    EXPECT_EQ(stored(1, status1_at), 0x08 | value | (1 - value) << 1);
  }
}

TEST_F(FrmDepartmentProgramTest, SavingWalksToDepartment98AndStaysThere) {
  open_editor();
  std::vector<int> walk;
  for (int i = 0; i < 100; ++i) {
    walk.push_back(number().number());
    EXPECT_EQ(marked_row(), number().number());
    save();
  }
  for (int i = 0; i < 98; ++i) EXPECT_EQ(walk[static_cast<std::size_t>(i)], i + 1);
  EXPECT_EQ(walk[98], 98);
  EXPECT_EQ(walk[99], 98);
  EXPECT_EQ(number().currentText(), QStringLiteral("98"));
}

TEST_F(FrmDepartmentProgramTest, SavingDepartment99StaysOnIt) {
  open_editor();
  go_to(99);
  enter("E_DeptName", QStringLiteral("LAST"));
  save();
  EXPECT_EQ(number().number(), 99);
  EXPECT_EQ(record(99).substr(0, 12), "LAST        ");
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("LAST        "));
}

TEST_F(FrmDepartmentProgramTest, TheNextDepartmentIsLoadedBehindASave) {
  open_editor();
  save();
  EXPECT_EQ(number().number(), 2);
  EXPECT_EQ(field("E_DeptName").text(), QStringLiteral("CAKES       "));
  EXPECT_EQ(marked_row(), 2);
}

TEST_F(FrmDepartmentProgramTest, ATableCanBeWalkedByKeyboardAlone) {
  open_editor();
  for (const char* name : {"ONE", "TWO", "THREE"}) {
    tab_to(control("E_DeptName"));
    type(QString::fromLatin1(name));
    tab_to(control("C_Salva"));
    press(Qt::Key_Return);
  }
  EXPECT_EQ(record(1).substr(0, 5), "ONE  ");
  EXPECT_EQ(record(2).substr(0, 5), "TWO  ");
  EXPECT_EQ(record(3).substr(0, 5), "THREE");
  EXPECT_EQ(number().number(), 4);
}

TEST_F(FrmDepartmentProgramTest, WhatIsTypedAndNotSavedIsNotSent) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  enter("E_DeptName", QStringLiteral("ROLLS"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], before);
}

TEST_F(FrmDepartmentProgramTest, TheSendButtonsComeBackBehindAFailedSend) {
  link().be_a_register();
  link().answers[0] = {1, 4097};
  open_editor();
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Invia_Ecr");
  for (const char* name : {"C_Salva", "C_Invia_Ecr", "C_Annulla"}) EXPECT_TRUE(control(name).isEnabled()) << name;
}

TEST_F(FrmDepartmentProgramTest, BackBringsTheProgramMenu) {
  open("FrmProgramMode");
  click("C_DepartmentProgram");
  ASSERT_EQ(top(), QStringLiteral("FrmDepartmentProgram"));
  click("C_Annulla");
  let_screens_settle();
  EXPECT_EQ(top(), QStringLiteral("FrmProgramMode"));
}

// Faults.

TEST_F(FrmDepartmentProgramTest, ASaveWithoutANumberIsLoggedAndWritesNothing) {
  open_editor();
  const std::string before = image_file();
  go_to(5);
  press(Qt::Key_Backspace);
  ASSERT_EQ(number().currentText(), QString{});
  save();
  EXPECT_EQ(log(), Lines{"FrmDepartmentProgram Salva: " + std::string{Fault{FaultCode::out_of_range}.description()}});
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmDepartmentProgramTest, APriceThatIsNoNumberIsLoggedAndNothingIsWritten) {
  Global::DecimalPoint = 0;
  open_editor();
  const std::string before = image_file();
  click("E_Price");
  paste_over(QStringLiteral("1.2.3"));
  save();
  EXPECT_EQ(log().back(), "FrmDepartmentProgram Salva: Type mismatch");
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmDepartmentProgramTest, ASaveWithDecimalsThatNoAmountHasIsLoggedAndNothingIsWritten) {
  open_editor();
  const std::string before = image_file();
  ASSERT_NE(record(1).substr(price_at), std::string(4, '\0')) << "a department that has a price";
  for (const int decimals : {29, 100, 255}) {
    Global::DecimalPoint = static_cast<std::uint8_t>(decimals);
    open_again();
    EXPECT_EQ(field("E_Price").text(), QString{}) << "no price is shown as 0";
    enter("E_DeptName", QStringLiteral("ROLLS"));
    save();
    EXPECT_EQ(log().back(), "FrmDepartmentProgram Salva: Overflow") << decimals;
    EXPECT_EQ(number().number(), 1);
    EXPECT_EQ(image_file(), before);
    EXPECT_EQ(file_bytes(PrgMode), before);
    click("E_Price");
    type(QStringLiteral("123"));
    press(Qt::Key_Tab);
    EXPECT_EQ(field("E_Price").text(), QStringLiteral("123")) << "it stays to be seen";
    save();
    EXPECT_EQ(log().back(), "FrmDepartmentProgram Salva: Overflow");
    EXPECT_EQ(image_file(), before);
  }
}

TEST_F(FrmDepartmentProgramTest, TheMostDecimalsThatAnAmountHasLoseNoDigit) {
  number_to_bcds(in_memory(1).Price, "12345678");
  lay_down(PrgMode);
  Global::DecimalPoint = 28;
  open_editor();
  EXPECT_EQ(field("E_Price").text(), QStringLiteral("0.0000000000000000000012345678"));
  save();
  EXPECT_EQ(record(1).substr(price_at), "\x78\x56\x34\x12");
  EXPECT_EQ(number().number(), 2);
}

TEST_F(FrmDepartmentProgramTest, AFileThatCannotBeWrittenFailsSilently) {
  open_editor();
  remove("Dati/PRG_MODE.BIN");
  make_folder("Dati/PRG_MODE.BIN");
  enter("E_DeptName", QStringLiteral("ROLLS"));
  save();
  EXPECT_EQ(log(), Lines{});
  EXPECT_TRUE(watched.boxes.empty());
  EXPECT_EQ(number().number(), 2);
  EXPECT_EQ(in_memory(1).Name.view(), "ROLLS       ");
}

// Any programming.

/// The number that is left of a stored group.
int group_left(int stored) {
  std::string text = std::to_string(stored == 16 ? 10 : stored);
  while (std::stoi(text) > 10) {
    if (text == "16") return 10;
    text.pop_back();
  }
  return std::stoi(text);
}

class AnyProgramming : public FrmDepartmentProgramTest, public ::testing::WithParamInterface<int> {};

TEST_P(AnyProgramming, WalkedThroughBySavingChangesOnlyWhatASaveChanges) {
  const int decimals = GetParam();
  Random random{static_cast<std::uint64_t>(100 + decimals)};
  PrgModeImage image = random_image(Global::model_z320, random);
  for (DeptRecord& record : image.Dept) number_to_bcds(record.Price, random.digits(8));
  lay_down(image);
  Global::DecimalPoint = static_cast<std::uint8_t>(decimals);
  watched.answer = [](const WatchedShell::Box& box) {
    EXPECT_EQ(box.text, "Value insert to high!");
    return Answer::ok;
  };

  // What each list shows, by department: a value that it does not have leaves it with that of the department before.
  PrgModeImage expected = image;
  int limit = 0;
  int tax = 0;
  int take_out_tax = 0;
  int price_type = 0;
  const auto take = [](int& shown, int value, int most) { shown = value <= most ? value : shown; };
  for (std::size_t i = 0; i < departments - 1; ++i) {
    DeptRecord& record = expected.Dept[i];
    take(limit, record.Status1 >> 4, 4);
    take(tax, record.Tax, 4);
    take(take_out_tax, record.TakeOutTax, 4);
    take(price_type, record.Status2 & 3, 2);
    const int group = group_left(record.Group);
    const std::string digits = bcds_to_number(record.Price);
    const bool price_cut = decimals == 0 && std::stoll(digits) > 9999999;
    record.Name.set(sostituzione_to_ecr(sostituzione_from_ecr(record.Name.view())));
    record.Status1 = static_cast<std::uint8_t>((record.Status1 & 0x07) | 0x08 | limit << 4);
    record.Status2 = static_cast<std::uint8_t>((record.Status2 & 0xFC) | price_type);
    // The opening leaves no mark on the first one.
    record.Changed = i > 0 && (group != record.Group || price_cut) ? 1 : 0;
    record.Group = static_cast<std::uint8_t>(group == 10 ? 16 : group);
    record.Tax = static_cast<std::uint8_t>(tax);
    record.TakeOutTax = static_cast<std::uint8_t>(take_out_tax);
    if (price_cut) number_to_bcds(record.Price, digits.substr(0, 7));
  }

  open_editor();
  for (std::size_t i = 0; i < departments - 1; ++i) save();
  const std::string after = image_file();
  const std::string wanted = file_bytes(expected);
  ASSERT_EQ(after.size(), wanted.size());
  for (std::size_t at = 0; at < after.size(); ++at) {
    ASSERT_EQ(static_cast<unsigned char>(after[at]), static_cast<unsigned char>(wanted[at]))
        << "byte " << at << ", department " << (at >= first_at ? (at - first_at) / record_size + 1 : 0) << ", place "
        << (at >= first_at ? (at - first_at) % record_size : 0);
  }
}

INSTANTIATE_TEST_SUITE_P(WithDecimals, AnyProgramming, ::testing::Values(0, 1, 2, 3));

TEST_F(FrmDepartmentProgramTest, BytesOfAnyKindAreCarriedThrough) {
  watched.answer = [](const WatchedShell::Box&) { return Answer::ok; };
  for (const int decimals : {0, 2, 9, 200, 255}) {
    Random random{static_cast<std::uint64_t>(300 + decimals)};
    const PrgModeImage image = random_image(Global::model_z300, random);
    lay_down(image);
    Global::DecimalPoint = static_cast<std::uint8_t>(decimals);
    open_editor();
    for (const int department : {1, 17, 50, 99}) {
      go_to(department);
      click("E_Price");
      click("E_DeptGroupNumber");
      click("E_DeptName");
      save();
    }
    const std::string after = image_file();
    const std::string before = file_bytes(image);
    EXPECT_EQ(after.size(), before.size());
    EXPECT_EQ(after.substr(0, first_at), before.substr(0, first_at));
    EXPECT_EQ(after.substr(all_end), before.substr(all_end));
    EXPECT_EQ(record(2), before.substr(first_at + record_size, record_size)) << "a record that was not saved";
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(FrmDepartmentProgramTest, ANameOfAnyBytesKeepsItsLength) {
  Random random{7};
  for (int round = 0; round < 20; ++round) {
    std::string name = random.bytes(12);
    if (round == 0) name = std::string("A\r\nB\0\tC\rD   ", 12);
    in_memory(1).Name.set(name);
    open_editor();
    save();
    EXPECT_EQ(record(1).substr(0, 12), sostituzione_to_ecr(sostituzione_from_ecr(name)));
    stage.top()->unload();
    let_screens_settle();
  }
}

}  // namespace
}  // namespace ecr::test::department_program_cases
