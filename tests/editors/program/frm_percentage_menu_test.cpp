#include <gtest/gtest.h>

#include "editors/option_screen_test.h"
#include "editors/program/editor_test.h"

namespace ecr::test::percentage_menu_cases {
namespace {

constexpr std::size_t rates_at = 54;
constexpr std::size_t sign_at = 66;
constexpr const char* rate_fields[] = {"E_P1KeyRate", "E_P1KeyRateLimit", "E_P2KeyRate", "E_P2KeyRateLimit"};

// The built-in entries stand crosswise: the first one, which a clear bit shows, has the digit 1.
const QString screen = QStringLiteral("FrmPercentageMenu");
const std::vector<ListInImage> lists = {{"Cmb_P1Sign", sign_at, 0, {"1. DISCOUNT", "0. ADD ON"}},
                                        {"Cmb_P2Sign", sign_at, 1, {"1. DISCOUNT", "0. ADD ON"}}};

class SignsOfPercentageKeys : public OptionScreenTest {
 protected:
  SignsOfPercentageKeys() {
    prepare = [](PrgModeImage& image) {
      number_to_bcds(image.PercentA[0], "1000");
      number_to_bcds(image.PercentA[1], "5000");
      number_to_bcds(image.PercentB[0], "29");
      number_to_bcds(image.PercentB[1], "9999");
    };
  }
};

TEST_F(SignsOfPercentageKeys, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(SignsOfPercentageKeys, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(SignsOfPercentageKeys, EveryChoiceSavesItsBitAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(SignsOfPercentageKeys, SavingUntouchedWritesWhatTheListsRead) {
  check_saving_untouched(screen, lists);
}

class FrmPercentageMenuTest : public EditorTest {
 protected:
  FrmPercentageMenuTest() : EditorTest{"FrmPercentageMenu"} {
    number_to_bcds(PrgMode.PercentA[0], "1000");
    number_to_bcds(PrgMode.PercentA[1], "5000");
    number_to_bcds(PrgMode.PercentB[0], "29");
    number_to_bcds(PrgMode.PercentB[1], "0");
    lay_down(PrgMode);
  }
};

TEST_F(FrmPercentageMenuTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program % Key"));
  expect_captions({{"L_Titolo", "PROGRAM % KEY"},
                   {"L_P1KeyRate", "Key %1 Rate"},
                   {"L_P1KeyRateLimit", "Key %1 Rate Limit"},
                   {"L_P1Sign", "Key %1 Function:"},
                   {"L_P2KeyRate", "Key %2 Rate"},
                   {"L_P2KeyRateLimit", "Key %2 Rate Limit"},
                   {"L_P2Sign", "Key %2 Function:"},
                   {"L_RateMax", "(Max Value 9999)"},
                   {"L_RateLimitMax", "(Max Value 9999)"}});
}

TEST_F(FrmPercentageMenuTest, CaptionsComeFromTheCatalogue) {
  name_every_key();
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_PERCENTAGE_MENU_TITLE"));
  expect_captions({{"L_Titolo", "FRM_PERCENTAGE_MENU_L_TITOLO"},
                   {"L_P1KeyRate", "FRM_PERCENTAGE_MENU_L_P1_KEY_RATE"},
                   {"L_P1KeyRateLimit", "FRM_PERCENTAGE_MENU_L_P1_KEY_RATE_LIMIT"},
                   {"L_P1Sign", "FRM_PERCENTAGE_MENU_L_P1_SIGN"},
                   {"L_P2KeyRate", "FRM_PERCENTAGE_MENU_L_P2_KEY_RATE"},
                   {"L_P2KeyRateLimit", "FRM_PERCENTAGE_MENU_L_P2_KEY_RATE_LIMIT"},
                   {"L_P2Sign", "FRM_PERCENTAGE_MENU_L_P2_SIGN"},
                   {"L_RateMax", "(Max Value 9999)"},
                   {"L_RateLimitMax", "(Max Value 9999)"}});
}

TEST_F(FrmPercentageMenuTest, RatesAreShownWithTwoDecimals) {
  open_editor();
  EXPECT_EQ(shown("E_P1KeyRate"), QStringLiteral("10.00 %"));
  EXPECT_EQ(shown("E_P1KeyRateLimit"), QStringLiteral("50.00 %"));
  EXPECT_EQ(shown("E_P2KeyRate"), QStringLiteral("0.29 %"));
  EXPECT_EQ(shown("E_P2KeyRateLimit"), QStringLiteral("0.00 %"));
}

TEST_F(FrmPercentageMenuTest, ARateOfZeroEmptiesItsFieldAndComesBack) {
  open_editor();
  click("E_P2KeyRateLimit");
  EXPECT_EQ(shown("E_P2KeyRateLimit"), QString{});
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_P2KeyRateLimit"), QStringLiteral("0.00 %"));
}

TEST_F(FrmPercentageMenuTest, RatesAreTypedInHundredths) {
  open_editor();
  for (const char* name : rate_fields) {
    enter(QString::fromLatin1(name), QStringLiteral("1a2.50"));
    press(Qt::Key_Tab);
    EXPECT_EQ(shown(QString::fromLatin1(name)), QStringLiteral("12.50 %")) << name;
  }
  save();
  EXPECT_EQ(stored(rates_at, 8), bytes_of({0x50, 0x12, 0x50, 0x12, 0x50, 0x12, 0x50, 0x12}));
}

TEST_F(FrmPercentageMenuTest, AFifthDigitIsRefusedAndCut) {
  open_editor();
  for (const char* name : rate_fields) {
    enter(QString::fromLatin1(name), QStringLiteral("9999"));
    expect_refusals(1);
    type(QStringLiteral("9"));
    EXPECT_EQ(shown(QString::fromLatin1(name)), QStringLiteral("9999")) << name;
  }
  EXPECT_EQ(watched.boxes.size(), 4U);
}

TEST_F(FrmPercentageMenuTest, EveryRateGoesInAndOutUnchanged) {
  open_editor();
  for (const char* digits : {"1", "29", "435", "1001", "5799", "8115", "9999"}) {
    enter("E_P1KeyRate", QString::fromLatin1(digits));
    click("E_P2KeyRate");
    click("E_P1KeyRate");
    EXPECT_EQ(shown("E_P1KeyRate"), QString::fromLatin1(digits));
    save();
    EXPECT_EQ(bcds_to_number(PrgMode.PercentA[0]), digits);
  }
}

TEST_F(FrmPercentageMenuTest, EnterGoesToSave) {
  open_editor();
  for (const char* name : rate_fields) {
    click(QString::fromLatin1(name));
    press(Qt::Key_Return);
    EXPECT_TRUE(control("C_Salva").hasFocus()) << name;
  }
}

TEST_F(FrmPercentageMenuTest, WithoutACatalogueEachSaveFlipsTheSigns) {
  PrgMode.KeyOpt4 = 0x3C;
  for (int round = 0; round < 4; ++round) {
    const bool clear = round % 2 == 0;
    open_editor();
    const QString entry = clear ? QStringLiteral("1. DISCOUNT") : QStringLiteral("0. ADD ON");
    EXPECT_EQ(list("Cmb_P1Sign").text(), entry);
    EXPECT_EQ(list("Cmb_P2Sign").text(), entry);
    save();
    EXPECT_EQ(stored(sign_at, 1), bytes_of({clear ? 0x3F : 0x3C})) << "the other bits stay";
  }
}

TEST_F(FrmPercentageMenuTest, WithACatalogueAClearBitAddsOnTheFirstKeyAndTakesOffOnTheSecond) {
  set_message(Key::FRM_ALL_ADDON, "Plus");
  set_message(Key::FRM_ALL_DISCOUNT, "Minus");
  PrgMode.KeyOpt4 = 0;
  open_editor();
  EXPECT_EQ(list("Cmb_P1Sign").text(), QStringLiteral("0.Plus"));
  EXPECT_EQ(list("Cmb_P2Sign").text(), QStringLiteral("0.Minus"));
  EXPECT_EQ(entries_of(list("Cmb_P1Sign")), QStringList({"0.Plus", "1.Minus"})) << "no blank behind the point";
  EXPECT_EQ(entries_of(list("Cmb_P2Sign")), QStringList({"0.Minus", "1.Plus"}));
  save();
  EXPECT_EQ(stored(sign_at, 1), bytes_of({0})) << "nothing flips";
}

TEST_F(FrmPercentageMenuTest, WithOneOfTheTwoWordsTheOtherEntryIsBuiltIn) {
  set_message(Key::FRM_ALL_ADDON, "Plus");
  open_editor();
  EXPECT_EQ(entries_of(list("Cmb_P1Sign")), QStringList({"0.Plus", "0. ADD ON"}));
  EXPECT_EQ(entries_of(list("Cmb_P2Sign")), QStringList({"0.", "0. ADD ON"})) << "decided by the other word";
  set_message(Key::FRM_ALL_ADDON, "");
  set_message(Key::FRM_ALL_DISCOUNT, "Minus");
  open_again();
  EXPECT_EQ(entries_of(list("Cmb_P1Sign")), QStringList({"1. DISCOUNT", "1.Minus"}));
  EXPECT_EQ(entries_of(list("Cmb_P2Sign")), QStringList({"1. DISCOUNT", "1."}));
}

TEST_F(FrmPercentageMenuTest, ASaveWritesRatesAndSignsAndNoOtherByte) {
  fill_catalogue();
  open_editor();
  const std::string before = image_file();
  enter("E_P1KeyRate", QStringLiteral("1"));
  enter("E_P1KeyRateLimit", QStringLiteral("22"));
  enter("E_P2KeyRate", QStringLiteral("333"));
  enter("E_P2KeyRateLimit", QStringLiteral("4444"));
  pick(list("Cmb_P2Sign"), 1);
  save();
  std::string expected = before;
  expected.replace(rates_at, 8, bytes_of({0x01, 0, 0x22, 0, 0x33, 0x03, 0x44, 0x44}));
  expected[sign_at] = 2;
  EXPECT_EQ(image_file(), expected);
  EXPECT_EQ(file_bytes(PrgMode), expected);
}

TEST_F(FrmPercentageMenuTest, ABrokenRateIsLoggedAndTheOthersAreShownAndSaved) {
  PrgMode.PercentA[1].bytes = {0x0A, 0x33};
  open_editor();
  EXPECT_EQ(log().back(), "FrmPercentageMenu form_load: Type mismatch");
  EXPECT_EQ(shown("E_P1KeyRate"), QStringLiteral("10.00 %"));
  EXPECT_EQ(shown("E_P1KeyRateLimit"), QString{});
  EXPECT_EQ(shown("E_P2KeyRate"), QStringLiteral("0.29 %"));
  EXPECT_EQ(shown("E_P2KeyRateLimit"), QStringLiteral("0.00 %"));
  enter("E_P2KeyRate", QStringLiteral("1234"));
  save();
  EXPECT_EQ(stored(rates_at, 8), bytes_of({0x00, 0x10, 0x0A, 0x33, 0x34, 0x12, 0, 0}));
}

TEST_F(FrmPercentageMenuTest, SendSendsWhatWasSavedLast) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  enter("E_P1KeyRate", QStringLiteral("5"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], before);
}

}  // namespace
}  // namespace ecr::test::percentage_menu_cases
