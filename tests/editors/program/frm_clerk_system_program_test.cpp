#include <gtest/gtest.h>

#include <QItemSelectionModel>

#include "editors/option_screen_test.h"
#include "editors/program/editor_test.h"

namespace ecr::test {
namespace {

constexpr std::size_t first_at = 2507;
constexpr std::size_t width = 28;
constexpr std::size_t rights_at = first_at + 24;

const QString screen = QStringLiteral("FrmClerkSystemProgram");
// The rights of clerk 1.
const std::vector<ListInImage> lists = {
    {"Cmb_Void", rights_at, 0, {"0. ENABLE", "1. DISABLE"}},
    {"Cmb_Refund", rights_at, 1, {"0. ENABLE", "1. DISABLE"}},
    {"Cmb_Discount", rights_at, 2, {"0. ENABLE", "1. DISABLE"}},
    {"Cmb_PaidOut", rights_at, 3, {"0. ENABLE", "1. DISABLE"}},
    {"Cmb_NegativeDeptPlu", rights_at, 4, {"0. ENABLE", "1. DISABLE"}},
    {"Cmb_Coupon", rights_at, 5, {"0. ENABLE", "1. DISABLE"}},
    {.control = "Cmb_ExtraInvoice",
     .byte = rights_at,
     .bit = 6,
     .entries = {"0. ENABLE", "1. DISABLE"},
     .hidden_on_z300 = true},
    {"Cmb_Mode", rights_at, 7, {"0. NORMAL", "1. TRAINING"}},
};

class RightsOfClerks : public OptionScreenTest {
 protected:
  RightsOfClerks() {
    prepare = [](PrgModeImage& image) {
      image.Clerk[0].Name.set("CLERK");
      number_to_bcds(image.Clerk[0].Password, "123");
    };
    behind_a_save = [this] { click_row(control<RecordGrid>("Fg_Clerk"), 1); };
  }
};

TEST_F(RightsOfClerks, HaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(RightsOfClerks, ShowEveryStoredValue) {
  check_loading(screen, lists);
}

TEST_F(RightsOfClerks, SaveEveryChoiceInItsBitAndNoOther) {
  check_every_choice(screen, lists);
}

class FrmClerkSystemProgramTest : public EditorTest {
 protected:
  FrmClerkSystemProgramTest() : EditorTest{"FrmClerkSystemProgram"} {
    for (int clerk = 1; clerk <= 15; ++clerk) {
      in_memory(clerk).Name.set("CLERK " + std::to_string(clerk));
      number_to_bcds(in_memory(clerk).Password, std::to_string(clerk * 11));
    }
    lay_down(PrgMode);
  }

  static ClerkRecord& in_memory(int clerk) { return PrgMode.Clerk[static_cast<std::size_t>(clerk - 1)]; }
  [[nodiscard]] std::string record(int clerk) const {
    return stored(first_at + width * static_cast<std::size_t>(clerk - 1), width);
  }
  [[nodiscard]] ChoiceList& number() const { return list("Cmb_ClerkNumber"); }
  [[nodiscard]] RecordGrid& grid() const { return control<RecordGrid>("Fg_Clerk"); }
  [[nodiscard]] QStringList row(int n) const {
    QStringList texts;
    for (int column = 0; column < 11; ++column) texts.append(grid().cells().cell(n, column));
    return texts;
  }
  [[nodiscard]] QStringList headings() const {
    QStringList texts;
    for (int column = 0; column < 11; ++column) {
      texts.append(grid().cells().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    }
    return texts;
  }
};

TEST_F(FrmClerkSystemProgramTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program Clerk System"));
  expect_captions({{"L_ClerkNumber", "Clerk Number:"},
                   {"L_DeptName", "Clerk Name:"},
                   {"L_Password", "Password:"},
                   {"L_PswMax", "(Max 999)"},
                   {"L_Void", "Void"},
                   {"L_Refund", "Refund"},
                   {"L_Discount", "Discount"},
                   {"L_PaidOut", "Paid Out"},
                   {"L_NegativeDeptPlu", "Negative Dept && PLU"},
                   {"L_Coupon", "Coupon"},
                   {"L_ExtraInvoice", "Extra Invoice"},
                   {"L_Mode", "Mode"}});
  EXPECT_EQ(list("Cmb_NegativeDeptPlu").accessibleName(), QStringLiteral("Negative Dept & PLU")) << "one & is seen";
  EXPECT_EQ(headings(), QStringList({"Clerk", "Name", "Pdw", "Void", "Refund", "Discount", "Coupon", "E.Invoice",
                                     "Paid Out", "N. Dep&PLU", "Mode"}));
}

TEST_F(FrmClerkSystemProgramTest, CaptionsComeFromTheCatalogue) {
  name_every_key();
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_CLERK_SYSTEM_PROGRAM_TITLE"));
  expect_captions({{"L_ClerkNumber", "FRM_CLERK_SYSTEM_PROGRAM_L_CLERK_NUMBER"},
                   {"L_DeptName", "FRM_CLERK_SYSTEM_PROGRAM_L_DEPT_NAME"},
                   {"L_Password", "FRM_CLERK_SYSTEM_PROGRAM_L_PASSWORD"},
                   {"L_PswMax", "FRM_CLERK_SYSTEM_PROGRAM_L_PSW_MAX"},
                   {"L_Void", "FRM_CLERK_SYSTEM_PROGRAM_L_VOID"},
                   {"L_Refund", "FRM_CLERK_SYSTEM_PROGRAM_L_REFUND"},
                   {"L_Discount", "FRM_CLERK_SYSTEM_PROGRAM_L_DISCOUNT"},
                   {"L_PaidOut", "FRM_CLERK_SYSTEM_PROGRAM_L_PAID_OUT"},
                   {"L_NegativeDeptPlu", "FRM_CLERK_SYSTEM_PROGRAM_L_NEGATIVE_DEPT_PLU"},
                   {"L_Coupon", "FRM_CLERK_SYSTEM_PROGRAM_L_COUPON"},
                   {"L_ExtraInvoice", "FRM_CLERK_SYSTEM_PROGRAM_L_EXTRA_INVOICE"},
                   {"L_Mode", "FRM_CLERK_SYSTEM_PROGRAM_L_MODE"}});
  EXPECT_EQ(entries_of(list("Cmb_Void")), QStringList({"0. FRM_ALL_ENABLE", "1. FRM_ALL_DISABLE"}));
  EXPECT_EQ(entries_of(list("Cmb_Mode")),
            QStringList({"0. FRM_CLERK_SYSTEM_PROGRAM_CMB_MODE_0_MSG", "1. FRM_CLERK_SYSTEM_PROGRAM_CMB_MODE_1_MSG"}));
  EXPECT_EQ(headings(),
            QStringList({"FRM_CLERK_SYSTEM_COL_TITOLO_MSG", "FRM_CLERK_SYSTEM_COL_NAME_MSG",
                         "FRM_CLERK_SYSTEM_COL_PASSWORD_MSG", "FRM_CLERK_SYSTEM_COL_VOID_MSG",
                         "FRM_CLERK_SYSTEM_COL_REFUND_MSG", "FRM_CLERK_SYSTEM_COL_DISCOUNT_MSG",
                         "FRM_CLERK_SYSTEM_COL_COUPON_MSG", "E.Invoice", "Paid Out", "N. Dep&PLU", "Mode"}));
}

TEST_F(FrmClerkSystemProgramTest, TheGridShowsEachRightInItsColumn) {
  const QStringList all_allowed = {"1",      "CLERK 1", "011",    "ENABLE", "ENABLE", "ENABLE",
                                   "ENABLE", "ENABLE",  "ENABLE", "ENABLE", "NORMAL"};
  // The column of each bit.
  const int columns[] = {3, 4, 5, 8, 9, 6, 7, 10};
  for (int bit = 0; bit < 8; ++bit) {
    in_memory(1).Rights = static_cast<std::uint8_t>(1 << bit);
    open_editor();
    QStringList expected = all_allowed;
    expected[columns[bit]] = bit == 7 ? QStringLiteral("TRAINING") : QStringLiteral("DISABLE");
    EXPECT_EQ(row(1), expected) << "bit " << bit;
  }
  EXPECT_EQ(row(15).mid(0, 3), QStringList({"15", "CLERK 15", "165"}));
}

TEST_F(FrmClerkSystemProgramTest, OnTheZ300TheExtraInvoiceIsOutOfSightAndItsBitStays) {
  start_session(Global::model_z300);
  in_memory(1).Rights = 0x40;
  in_memory(2).Rights = 0x00;
  lay_down(PrgMode);
  open_editor();
  EXPECT_FALSE(control("L_ExtraInvoice").isVisible());
  EXPECT_FALSE(control("Cmb_ExtraInvoice").isVisible());
  EXPECT_TRUE(grid().isColumnHidden(7));
  EXPECT_EQ(headings()[7], QString{});
  save();
  save();
  EXPECT_EQ(record(1)[24], 0x40);
  EXPECT_EQ(record(2)[24], 0x00);
}

TEST_F(FrmClerkSystemProgramTest, OnTheZ320TheExtraInvoiceIsSeen) {
  open_editor();
  EXPECT_TRUE(control("L_ExtraInvoice").isVisible());
  EXPECT_TRUE(control("Cmb_ExtraInvoice").isVisible());
  EXPECT_FALSE(grid().isColumnHidden(7));
}

TEST_F(FrmClerkSystemProgramTest, AClerkIsShownInItsControls) {
  in_memory(3).Name.set("J\xBERGEN  K.");
  in_memory(3).Rights = 0x81;
  number_to_bcds(in_memory(3).Password, "7");
  open_editor();
  EXPECT_EQ(number().text(), QStringLiteral("1"));
  EXPECT_EQ(shown("E_Name"), QStringLiteral("CLERK 1")) << "without the blanks behind it";
  EXPECT_EQ(shown("E_Password"), QStringLiteral("011"));
  EXPECT_EQ(field("E_Name").maxLength(), 24);
  pick(number(), 2);
  EXPECT_EQ(shown("E_Name"), QStringLiteral("JØRGEN  K."));
  EXPECT_EQ(shown("E_Password"), QStringLiteral("007"));
  EXPECT_EQ(list("Cmb_Void").text(), QStringLiteral("1. DISABLE"));
  EXPECT_EQ(list("Cmb_Refund").text(), QStringLiteral("0. ENABLE"));
  EXPECT_EQ(list("Cmb_Mode").text(), QStringLiteral("1. TRAINING"));
  EXPECT_EQ(grid().selectionModel()->selectedRows().front().row(), 2);
}

TEST_F(FrmClerkSystemProgramTest, ARowLoadsItsClerkAndTypingInTheNumberDoesNothing) {
  open_editor();
  click_row(grid(), 9);
  EXPECT_EQ(number().text(), QStringLiteral("9"));
  EXPECT_EQ(shown("E_Name"), QStringLiteral("CLERK 9"));
  tab_to(number());
  type(QStringLiteral("4"));
  EXPECT_EQ(number().text(), QStringLiteral("9"));
}

TEST_F(FrmClerkSystemProgramTest, APasswordMayBe999AndAFourthDigitIsCut) {
  open_editor();
  enter("E_Password", QStringLiteral("99a9"));
  EXPECT_TRUE(watched.boxes.empty());
  expect_refusals(1);
  type(QStringLiteral("9"));
  EXPECT_EQ(shown("E_Password"), QStringLiteral("999"));
  save();
  EXPECT_EQ(record(1).substr(26), bytes_of({0x99, 0x09}));
  expect_refusals(1);
  enter("E_Password", QStringLiteral("1000"));
  EXPECT_EQ(shown("E_Password"), QStringLiteral("100"));
}

TEST_F(FrmClerkSystemProgramTest, ThePasswordGetsItsZerosWhenItIsLeft) {
  number_to_bcds(in_memory(1).Password, "0");
  open_editor();
  EXPECT_EQ(shown("E_Password"), QStringLiteral("000"));
  click("E_Password");
  EXPECT_EQ(shown("E_Password"), QString{}) << "a zero empties the field";
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_Password"), QStringLiteral("000"));
  enter("E_Password", QStringLiteral("7"));
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_Password"), QStringLiteral("007"));
  click("E_Password");
  EXPECT_EQ(shown("E_Password"), QStringLiteral("007")) << "another number stays as it is";
}

TEST_F(FrmClerkSystemProgramTest, AnEmptyPasswordSavesAsZero) {
  open_editor();
  empty("E_Password");
  save();
  EXPECT_EQ(record(1).substr(26), bytes_of({0, 0}));
}

TEST_F(FrmClerkSystemProgramTest, ASaveWritesTheRecordAndNoOtherByte) {
  in_memory(2).Unused = 0x5A;
  lay_down(PrgMode);
  open_editor();
  pick(number(), 1);
  const std::string before = image_file();
  enter("E_Name", QStringLiteral("CRÈME €"));
  enter("E_Password", QStringLiteral("123"));
  pick(list("Cmb_Refund"), 1);
  pick(list("Cmb_Mode"), 1);
  save();
  EXPECT_EQ(record(2), "CR\xDBME \xF8                 " + bytes_of({0x82, 0x5A, 0x23, 0x01}));
  expect_untouched_outside(before, first_at + width, width);
  EXPECT_EQ(row(2).mid(0, 5), QStringList({"2", QStringLiteral("CRÈME €"), "123", "ENABLE", "DISABLE"}));
  EXPECT_EQ(file_bytes(PrgMode), image_file());
}

TEST_F(FrmClerkSystemProgramTest, SavingWalksToClerk14AndStaysThere) {
  open_editor();
  std::vector<int> walk;
  for (int i = 0; i < 16; ++i) {
    walk.push_back(number().whole_number());
    save();
  }
  EXPECT_EQ(walk, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 14, 14}));
  EXPECT_EQ(shown("E_Name"), QStringLiteral("CLERK 14"));
}

TEST_F(FrmClerkSystemProgramTest, SavingClerk15StaysOnIt) {
  open_editor();
  pick(number(), 14);
  save();
  EXPECT_EQ(number().text(), QStringLiteral("15"));
  EXPECT_EQ(shown("E_Name"), QStringLiteral("CLERK 15"));
}

TEST_F(FrmClerkSystemProgramTest, APasswordFromElsewhereAbove999IsRefusedAsItIsShown) {
  number_to_bcds(in_memory(2).Password, "4567");
  open_editor();
  expect_refusals(1);
  pick(number(), 1);
  EXPECT_EQ(shown("E_Password"), QStringLiteral("456"));
}

TEST_F(FrmClerkSystemProgramTest, AnyGoodClerksSurviveLoadAndSave) {
  Random random{11};
  for (int round = 0; round < 6; ++round) {
    PrgModeImage image = random_image(round % 2 == 0 ? Global::model_z300 : Global::model_z320, random);
    for (auto& clerk : image.Clerk) {
      clerk.Name.set("NAME " + random.digits(9));
      number_to_bcds(clerk.Password, random.digits(3));
    }
    start_session(round % 2 == 0 ? Global::model_z300 : Global::model_z320);
    lay_down(image);
    open_editor();
    for (int clerk = 0; clerk < 15; ++clerk) {
      pick(number(), clerk);
      save();
    }
    EXPECT_EQ(image_file(), file_bytes(image));
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(FrmClerkSystemProgramTest, SendSendsWhatWasSavedLast) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  enter("E_Name", QStringLiteral("TYPED"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], before);
}

}  // namespace
}  // namespace ecr::test
