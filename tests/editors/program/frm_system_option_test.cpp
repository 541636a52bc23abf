#include <gtest/gtest.h>

#include "editors/option_screen_test.h"
#include "editors/program/editor_test.h"

namespace ecr::test {
namespace {

constexpr std::size_t receipt_at = 3117;
constexpr std::size_t invoice_at = 3121;
constexpr std::size_t z1_at = 3125;
constexpr std::size_t z2_at = 3127;
constexpr std::size_t total_at = 3129;
constexpr std::size_t counters = 20;

const QString screen = QStringLiteral("FrmSystemOption");
const std::vector<ListInImage> lists = {
    {"Cmb_DecimalPosition", 67, whole_byte, {"0. (ex x)", "1. (ex x.x)", "2. (ex x.xx)", "3. (ex x.xxx)"}},
    {"Cmb_FractionRound", 68, decimal_byte, {"0. ROUND DOWN", "1. ROUND OFF", "2. ROUND UP"}},
    {"Cmb_ComPort1", 326, whole_byte, {"1. PC", "2. BCR", "3. EFT"}},
    {"Cmb_ComPort2", 327, whole_byte, {"1. PC", "2. BCR", "3. EFT"}},
};

class ListsOfSystemOptions : public OptionScreenTest {
 protected:
  ListsOfSystemOptions() {
    prepare = [](PrgModeImage& image) {
      number_to_bcds(image.SysOpt3, "1234567");
      number_to_bcds(image.SysOpt4, "7654321");
      number_to_bcds(image.SysOpt5, "9999");
      number_to_bcds(image.SysOpt6, "1");
      number_to_bcds(image.SysOpt7, "9999999999999999");
    };
  }
};

TEST_F(ListsOfSystemOptions, HaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(ListsOfSystemOptions, ShowEveryStoredValue) {
  check_loading(screen, lists);
}

TEST_F(ListsOfSystemOptions, SaveEveryChoiceInItsPlaceAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(ListsOfSystemOptions, ChangeNothingUntouched) {
  check_saving_untouched(screen, lists);
}

class FrmSystemOptionTest : public EditorTest {
 protected:
  FrmSystemOptionTest() : EditorTest{"FrmSystemOption"} {
    number_to_bcds(PrgMode.SysOpt3, "12");
    number_to_bcds(PrgMode.SysOpt4, "345");
    number_to_bcds(PrgMode.SysOpt5, "6");
    number_to_bcds(PrgMode.SysOpt6, "78");
    number_to_bcds(PrgMode.SysOpt7, "1234567890123456");
    PrgMode.SysOpt2 = {1, 2, 0x77};
    lay_down(PrgMode);
  }
};

TEST_F(FrmSystemOptionTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("System Options"));
  expect_captions({{"L_Titolo", "SYSTEM OPTIONS"},
                   {"F_ValueDescription", "Value Description"},
                   {"F_Counter", "Advanced Counter Setting"},
                   {"L_DecimalPosition", "Decimal Position"},
                   {"L_FractionRound", "Fraction Rounding "},
                   {"L_ComPort1", "Com port 1"},
                   {"L_ComPort2", "Com port 2"},
                   {"L_ConsecutiveReceipt", "Consecutive Receipt #"},
                   {"L_InvoiceNumber", "Invoice Number"},
                   {"L_Z1CounterSetting", "Z1 Counter Setting"},
                   {"L_Z2CounterSetting", "Z2 Counter Setting"},
                   {"L_GTCounterSetting", "GT Counter Setting"},
                   {"L_Max(0)", "(Max Value 9999999)"},
                   {"L_Max(1)", "(Max Value 9999999)"},
                   {"L_Max(2)", "(Max Value 9999)"},
                   {"L_Max(3)", "(Max Value 9999)"},
                   {"L_Max(4)", "(Max Value 9999999999999999)"}});
}

TEST_F(FrmSystemOptionTest, CaptionsComeFromTheCatalogue) {
  name_every_key();
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_SYSTEM_OPTION_TITLE"));
  expect_captions({{"L_Titolo", "FRM_SYSTEM_OPTION_L_TITOLO"},
                   {"F_ValueDescription", "FRM_SYSTEM_OPTION_F_VALUE_DESCRIPTION"},
                   {"F_Counter", "FRM_SYSTEM_OPTION_F_COUNTER"},
                   {"L_DecimalPosition", "FRM_SYSTEM_OPTION_L_DECIMAL_POSITION"},
                   {"L_FractionRound", "FRM_SYSTEM_OPTION_L_FRACTION_ROUND"},
                   {"L_ComPort1", "FRM_SYSTEM_OPTION_L_COM_PORT_1"},
                   {"L_ComPort2", "FRM_SYSTEM_OPTION_L_COM_PORT_2"},
                   {"L_ConsecutiveReceipt", "FRM_SYSTEM_OPTION_L_CONSECUTIVE_RECEIPT"},
                   {"L_InvoiceNumber", "FRM_SYSTEM_OPTION_L_INVOICE_NUMBER"},
                   {"L_Z1CounterSetting", "FRM_SYSTEM_OPTION_L_Z1_COUNTER_SETTING"},
                   {"L_Z2CounterSetting", "FRM_SYSTEM_OPTION_L_Z2_COUNTER_SETTING"},
                   {"L_GTCounterSetting", "FRM_SYSTEM_OPTION_L_GT_COUNTER_SETTING"},
                   {"L_Max(0)", "MSG_MAX_9999999"},
                   {"L_Max(1)", "MSG_MAX_9999999"},
                   {"L_Max(2)", "MSG_MAX_9999"},
                   {"L_Max(3)", "MSG_MAX_9999"},
                   {"L_Max(4)", "MSG_MAX_9999999999999999"}});
  EXPECT_EQ(entries_of(list("Cmb_ComPort2")),
            QStringList({"1. FRM_SYSTEM_OPTION_COM_PORT_1_MSG", "2. FRM_SYSTEM_OPTION_COM_PORT_2_MSG",
                         "3. FRM_SYSTEM_OPTION_COM_PORT_3_MSG"}));
  EXPECT_EQ(entries_of(list("Cmb_FractionRound")),
            QStringList({"0. FRM_SYSTEM_OPTION_FRACTION_ROUNDING_SETTING_0_MSG",
                         "1. FRM_SYSTEM_OPTION_FRACTION_ROUNDING_SETTING_1_MSG",
                         "2. FRM_SYSTEM_OPTION_FRACTION_ROUNDING_SETTING_2_MSG"}));
  EXPECT_EQ(list("Cmb_DecimalPosition").itemText(3),
            QStringLiteral("3. FRM_SYSTEM_OPTION_DECIMAL_POINT_POSITION_SETTING_3_MSG"));
}

TEST_F(FrmSystemOptionTest, TheFirstNoteIsTheInvoicesAndTheSecondTheReceipts) {
  open_editor();
  const auto in_line = [this](const char* note, const char* field) {
    return std::abs(control(QString::fromLatin1(note)).geometry().center().y() -
                    control(QString::fromLatin1(field)).geometry().center().y()) < 3;
  };
  EXPECT_TRUE(in_line("L_Max(1)", "E_ConsecutiveReceipt"));
  EXPECT_TRUE(in_line("L_Max(0)", "E_InvoiceNumber"));
  EXPECT_TRUE(in_line("L_Max(2)", "E_Z1CounterSetting"));
  EXPECT_TRUE(in_line("L_Max(3)", "E_Z2CounterSetting"));
  EXPECT_TRUE(in_line("L_Max(4)", "E_GTCounterSetting"));
}

TEST_F(FrmSystemOptionTest, CountersAreShownWithAllTheirDigits) {
  open_editor();
  EXPECT_EQ(shown("E_ConsecutiveReceipt"), QStringLiteral("0000012"));
  EXPECT_EQ(shown("E_InvoiceNumber"), QStringLiteral("0000345"));
  EXPECT_EQ(shown("E_Z1CounterSetting"), QStringLiteral("0006"));
  EXPECT_EQ(shown("E_Z2CounterSetting"), QStringLiteral("0078"));
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("1234567890123456"));
  const std::pair<const char*, int> lengths[] = {{"E_ConsecutiveReceipt", 7},
                                                 {"E_InvoiceNumber", 7},
                                                 {"E_Z1CounterSetting", 4},
                                                 {"E_Z2CounterSetting", 4},
                                                 {"E_GTCounterSetting", 16}};
  for (const auto& [name, length] : lengths) EXPECT_EQ(field(name).maxLength(), length) << name;
}

TEST_F(FrmSystemOptionTest, TheLargestGrandTotalLoadsAndSavesExactly) {
  number_to_bcds(PrgMode.SysOpt7, "9999999999999999");
  open_editor();
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("9999999999999999"));
  save();
  EXPECT_EQ(stored(total_at, 8), std::string(8, '\x99'));
}

TEST_F(FrmSystemOptionTest, EnteringACounterShowsThePlainNumberAndLeavingItsZeros) {
  PrgMode.SysOpt7 = {};
  open_editor();
  const std::pair<const char*, std::pair<const char*, const char*>> forms[] = {
      {"E_ConsecutiveReceipt", {"12", "0000012"}},
      {"E_InvoiceNumber", {"345", "0000345"}},
      {"E_Z1CounterSetting", {"6", "0006"}},
      {"E_Z2CounterSetting", {"78", "0078"}},
      {"E_GTCounterSetting", {"0", "0000000000000000"}}};
  for (int round = 0; round < 2; ++round) {
    for (const auto& [name, form] : forms) {
      click(name);
      EXPECT_EQ(shown(name), QString::fromLatin1(form.first)) << name << ": a zero is not emptied either";
      press(Qt::Key_Tab);
      EXPECT_EQ(shown(name), QString::fromLatin1(form.second)) << name;
    }
  }
}

TEST_F(FrmSystemOptionTest, AnEmptyReceiptInvoiceOrZ1IsZero) {
  open_editor();
  for (const auto& [name, zero] : {std::pair{"E_ConsecutiveReceipt", "0000000"},
                                   std::pair{"E_InvoiceNumber", "0000000"}, std::pair{"E_Z1CounterSetting", "0000"}}) {
    empty(QString::fromLatin1(name));
    press(Qt::Key_Tab);
    EXPECT_EQ(shown(QString::fromLatin1(name)), QString::fromLatin1(zero));
  }
  EXPECT_EQ(log(), Lines{});
}

TEST_F(FrmSystemOptionTest, AnEmptyZ2OrGrandTotalGetsTheStoredValueBackAndIsLogged) {
  open_editor();
  empty("E_Z2CounterSetting");
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_Z2CounterSetting"), QStringLiteral("0078"));
  EXPECT_EQ(log().back(), "FrmSystemOption E_Z2CounterSetting: Type mismatch");
  empty("E_GTCounterSetting");
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("1234567890123456"));
  EXPECT_EQ(log().back(), "FrmSystemOption E_GTCounterSetting: Type mismatch");
  const std::string before = image_file();
  save();
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmSystemOptionTest, AGrandTotalOf16DigitsLosesItsTailWhenItIsMerelyEntered) {
  open_editor();
  click("E_GTCounterSetting");
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("1.23456789012346E+15"));
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("1234567890123460"));
  save();
  EXPECT_EQ(stored(total_at, 8), bytes_of({0x60, 0x34, 0x12, 0x90, 0x78, 0x56, 0x34, 0x12}));
  EXPECT_EQ(field("E_GTCounterSetting").maxLength(), 16);
}

TEST_F(FrmSystemOptionTest, AGrandTotalOf15DigitsLosesNothing) {
  number_to_bcds(PrgMode.SysOpt7, "999999999999999");
  open_editor();
  click("E_GTCounterSetting");
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("999999999999999"));
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("0999999999999999"));
}

TEST_F(FrmSystemOptionTest, AGrandTotalThatRoundsToMoreThanItsDigitsStaysWhatItWas) {
  number_to_bcds(PrgMode.SysOpt7, "9999999999999999");
  open_editor();
  click("E_GTCounterSetting");
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("1E+16"));
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("9999999999999999"));
  EXPECT_EQ(log().back(), "FrmSystemOption E_GTCounterSetting: Overflow");
}

TEST_F(FrmSystemOptionTest, InPlaceOfAnExponentSixteenDigitsCanBeTyped) {
  open_editor();
  enter("E_GTCounterSetting", QStringLiteral("98765432109876543"));
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("9876543210987654"));
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_GTCounterSetting"), QStringLiteral("9876543210987654"));
}

TEST_F(FrmSystemOptionTest, ASaveWritesItsPlacesAndNoOtherByte) {
  open_editor();
  std::string expected = image_file();
  enter("E_ConsecutiveReceipt", QStringLiteral("1234567"));
  enter("E_InvoiceNumber", QStringLiteral("7x"));
  enter("E_Z1CounterSetting", QStringLiteral("9999"));
  enter("E_Z2CounterSetting", QStringLiteral("10"));
  enter("E_GTCounterSetting", QStringLiteral("5"));
  pick(list("Cmb_DecimalPosition"), 3);
  pick(list("Cmb_FractionRound"), 2);
  pick(list("Cmb_ComPort1"), 2);
  pick(list("Cmb_ComPort2"), 0);
  save();
  expected.replace(67, 2, bytes_of({3, 2}));
  expected.replace(326, 2, bytes_of({3, 1}));
  expected.replace(receipt_at, 4, bytes_of({0x67, 0x45, 0x23, 0x01}));
  expected.replace(invoice_at, 4, bytes_of({7, 0, 0, 0}));
  expected.replace(z1_at, 2, bytes_of({0x99, 0x99}));
  expected.replace(z2_at, 2, bytes_of({0x10, 0}));
  expected.replace(total_at, 8, bytes_of({5, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(image_file(), expected) << "byte 328 is as it was";
  EXPECT_EQ(expected[328], 0x77);
  EXPECT_EQ(file_bytes(PrgMode), expected);
}

TEST_F(FrmSystemOptionTest, SavedDecimalsTakeEffectInTheOtherEditorsAtOnce) {
  ASSERT_EQ(Global::DecimalPoint, 2);
  open_editor();
  pick(list("Cmb_DecimalPosition"), 3);
  EXPECT_EQ(Global::DecimalPoint, 2) << "not before they are saved";
  save();
  EXPECT_EQ(Global::DecimalPoint, 3);
  open("FrmDepartmentProgram");
  EXPECT_EQ(shown("E_Price"), QStringLiteral("0.250"));
}

TEST_F(FrmSystemOptionTest, APortOfZeroShowsNothingAndIsWrittenBack) {
  PrgMode.SysOpt2 = {0, 4, 5};
  open_editor();
  EXPECT_EQ(list("Cmb_ComPort1").text(), QString{});
  EXPECT_EQ(list("Cmb_ComPort2").text(), QString{});
  save();
  EXPECT_EQ(stored(326, 3), bytes_of({0, 0, 5})) << "an unknown use becomes 0";
}

TEST_F(FrmSystemOptionTest, UnknownDecimalsShowNothingAndSaveAsZero) {
  PrgMode.SysOpt0 = 4;
  PrgMode.SysOpt1 = 0x12;
  open_editor();
  EXPECT_EQ(list("Cmb_DecimalPosition").text(), QString{});
  EXPECT_EQ(list("Cmb_FractionRound").text(), QString{});
  save();
  EXPECT_EQ(stored(67, 2), bytes_of({0, 0}));
  EXPECT_EQ(Global::DecimalPoint, 0);
}

TEST_F(FrmSystemOptionTest, ACounterThatCannotBeReadStaysAndTheOthersAreSaved) {
  PrgMode.SysOpt5.bytes = {0xAA, 0x01};
  lay_down(PrgMode);
  open_editor();
  EXPECT_EQ(shown("E_Z1CounterSetting"), QString{}) << "what can't be read is not shown";
  enter("E_ConsecutiveReceipt", QStringLiteral("5"));
  pick(list("Cmb_DecimalPosition"), 0);
  save();
  EXPECT_EQ(stored(receipt_at, 4), bytes_of({5, 0, 0, 0}));
  EXPECT_EQ(stored(z1_at, 2), bytes_of({0xAA, 0x01}));
  EXPECT_EQ(Global::DecimalPoint, 0);
}

TEST_F(FrmSystemOptionTest, ASaveWithATextThatIsNoNumberEndsThereWithALogLine) {
  open_editor();
  const std::string before = image_file();
  enter("E_ConsecutiveReceipt", QStringLiteral("5"));
  pick(list("Cmb_DecimalPosition"), 0);
  click("E_Z1CounterSetting");
  paste_over(QStringLiteral("word"));
  button("C_Salva").click();
  EXPECT_EQ(log().back(), "FrmSystemOption Salva: Type mismatch");
  EXPECT_EQ(image_file(), before) << "nothing is written to the file";
  EXPECT_EQ(file_bytes(PrgMode), before) << "nor to memory";
  EXPECT_EQ(Global::DecimalPoint, 2);
}

TEST_F(FrmSystemOptionTest, AnyCountersSurviveLoadAndSave) {
  Random random{17};
  for (int round = 0; round < 20; ++round) {
    PrgModeImage image = random_image(Global::model_z320, random);
    number_to_bcds(image.SysOpt3, random.digits(7));
    number_to_bcds(image.SysOpt4, random.digits(7));
    number_to_bcds(image.SysOpt5, random.digits(4));
    number_to_bcds(image.SysOpt6, random.digits(4));
    number_to_bcds(image.SysOpt7, random.digits(16));
    lay_down(image);
    open_editor();
    for (const char* name : {"E_ConsecutiveReceipt", "E_InvoiceNumber", "E_Z1CounterSetting", "E_Z2CounterSetting"}) {
      click(QString::fromLatin1(name));
    }
    save();
    EXPECT_EQ(stored(receipt_at, counters), file_bytes(image).substr(receipt_at, counters));
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(FrmSystemOptionTest, SendSendsWhatWasSavedLast) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  pick(list("Cmb_ComPort1"), 2);
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0][326], before[326]);
}

}  // namespace
}  // namespace ecr::test
