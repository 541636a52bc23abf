#include <algorithm>
#include <array>
#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "core/text.h"
#include "editors/option_screen_test.h"
#include "lang/register_language.h"
#include "support/random.h"

namespace ecr::test::initial_menu_cases {
namespace {

const QString screen = QStringLiteral("FrmInitialMenu");
const ListInImage language = {.control = "Cmb_Lingua",
                              .byte = 0,
                              .bit = whole_byte,
                              .entries = {"0. ENGLISH", "1. SPANISH", "2. FRENCH", "3. GERMAN", "4. DUTCH",
                                          "5. PORTOGUESE", "6. DANISH", "7. NORWEGIAN"}};
const std::vector<ListInImage> lists = {
    {.control = "Cmb_DateFormat", .byte = 9, .bit = 0, .entries = {"0. DD-MM-YY", "1. MM-DD-YY"}},
    {.control = "Cmb_TimeFormat", .byte = 9, .bit = 1, .entries = {"0. 24 HOUR", "1. 12 HOUR"}},
    {.control = "Cmb_KeyTone", .byte = 9, .bit = 2, .entries = {"0. SOUND", "1. NO SOUND"}},
    {.control = "Cmb_WindingMotor", .byte = 10, .bit = 0, .entries = {"0. ONLY EJ", "1. PRG, X.Z MODE"}},
    {.control = "Cmb_EuRoundigSel",
     .byte = 4,
     .bit = whole_byte,
     .entries = {"0. NO", "1. EURO", "2. SWISS", "3. DANISH", "", ""}},
    {.control = "Cmb_RegisterMode", .byte = 11, .bit = 5, .entries = {"0. JOURNAL MODE", "1. RECEIPT MODE"}},
};
constexpr const char* changed = "Changing the language resets all ECR parameters";
constexpr const char* missing = "Warning! The Language file definition is not present";
constexpr std::size_t texts_begin = offsetof(PrgModeImage, DeptGroupName);
constexpr std::size_t texts_end = offsetof(PrgModeImage, KeyLayout);

std::vector<ListInImage> all_lists() {
  std::vector<ListInImage> all = lists;
  all.insert(all.begin(), language);
  return all;
}

class FrmInitialMenuTest : public OptionScreenTest {
 protected:
  ~FrmInitialMenuTest() override { Global::DebugMode = false; }

  void take_boxes() {
    watched.answer = [](const WatchedShell::Box&) { return Answer::ok; };
  }

  /// An image of this language on the Z320, on screen.
  void open_with_language(std::uint8_t number) {
    start_session(Global::model_z320);
    PrgModeImage image = good_image(Global::model_z320);
    image.Set00_InitialMenu = number;
    lay_down(image);
    open(screen);
  }

  [[nodiscard]] static std::string texts_of(std::string_view image) {
    return std::string{image.substr(texts_begin, texts_end - texts_begin)};
  }
  [[nodiscard]] static std::string texts_now() { return texts_of(bytes_of_image(PrgMode)); }

  /// What a save leaves of the packed field: the decimal digits up to its first byte that is none, and nothing behind;
  /// where there is no digit to read, all of it.
  static void keep_decimal_head(PrgModeImage& image) {
    auto& bytes = image.InitialMenuBlock5.bytes;
    const auto is_decimal = [](std::uint8_t byte) { return byte >> 4 <= 9 && (byte & 15) <= 9; };
    const auto broken = std::find_if_not(bytes.begin(), bytes.end(), is_decimal);
    if (broken != bytes.begin()) std::fill(broken, bytes.end(), std::uint8_t{0});
  }
};

TEST_F(FrmInitialMenuTest, ListsHaveTheirEntries) {
  check_entries(screen, all_lists());
}

TEST_F(FrmInitialMenuTest, EveryStoredValueIsShown) {
  check_loading(screen, all_lists());
}

TEST_F(FrmInitialMenuTest, EveryChoiceSavesItsPlaceAndNoOther) {
  take_boxes();
  check_every_choice(screen, lists);
}

TEST_F(FrmInitialMenuTest, EveryLanguageIsSaved) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    start_session(model);
    take_boxes();
    open(screen);
    for (int number = 7; number >= 0; --number) {
      list("Cmb_Lingua").show_entry(number);
      std::string expected{bytes_of_image(PrgMode)};
      expected[0] = static_cast<char>(number);
      click("C_Salva");
      EXPECT_EQ(bytes_of_image(PrgMode), expected);
      EXPECT_EQ(image_file(), expected);
    }
    stage.close_top();
  }
}

TEST_F(FrmInitialMenuTest, SavingUntouchedChangesOnlyWhatTheScreenShows) {
  Random random{2203};
  take_boxes();
  for (int round = 0; round < 32; ++round) {
    const std::uint8_t model = round % 2 == 0 ? Global::model_z300 : Global::model_z320;
    SCOPED_TRACE("round " + std::to_string(round) + ", model " + std::to_string(model));
    start_session(model);
    reset_catalogue();
    if (round % 4 > 1) {
      fill_catalogue();
      // Their texts are tested below.
      for (const std::string_view file : register_language_files) remove("Setup/" + std::string{file});
    }
    PrgModeImage image = random_image(model, random);
    if (random.coin()) image.Set00_InitialMenu = static_cast<std::uint8_t>(random.below(10));
    if (random.coin()) image.Set04_InitialMenu = static_cast<std::uint8_t>(random.below(8));
    if (random.coin()) {
      for (std::uint8_t& byte : image.InitialMenuBlock5.bytes) {
        byte = static_cast<std::uint8_t>(random.below(10) * 16 + random.below(10));
      }
    }
    lay_down(image);
    open(screen);
    keep_decimal_head(image);
    const std::string expected = saved_image(std::string{bytes_of_image(image)}, all_lists());
    click("C_Salva");
    EXPECT_EQ(bytes_of_image(PrgMode), expected);
    EXPECT_EQ(image_file(), expected);
    stage.close_top();
  }
}

TEST_F(FrmInitialMenuTest, CaptionsAreTheBuiltInOnesUntilTheCatalogueHasOthers) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Initial Setup"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("INITIAL SETUP MENU"));
  EXPECT_EQ(caption("L_BusinessID"), QStringLiteral("Business ID"));
  EXPECT_EQ(caption("C_SettaLingua"), QStringLiteral("Setta Lingua"));
  stage.close_top();
  fill_catalogue();
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Initial setup"));
  EXPECT_EQ(caption("L_EuropeanRoundingSel"), QStringLiteral("European rounding"));
}

// ---- choices after the catalogue

TEST_F(FrmInitialMenuTest, FromGermanOnTheLanguageBeforeDecides) {
  start_session(Global::model_z320);
  for (const Key key : {Key::FRM_INITIAL_MENU_CMB_LINGUA0_MSG, Key::FRM_INITIAL_MENU_CMB_LINGUA1_MSG,
                        Key::FRM_INITIAL_MENU_CMB_LINGUA2_MSG}) {
    set_message(key, "text");
  }
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_Lingua")), (QStringList{"0. text", "1. text", "2. text", "3. ", "4. DUTCH",
                                                         "5. PORTOGUESE", "6. DANISH", "7. NORWEGIAN"}));
  stage.close_top();
  set_message(Key::FRM_INITIAL_MENU_CMB_LINGUA2_MSG, "");
  set_message(Key::FRM_INITIAL_MENU_CMB_LINGUA3_MSG, "Deutsch");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_Lingua")), (QStringList{"0. text", "1. text", "2. FRENCH", "3. GERMAN", "4. ",
                                                         "5. PORTOGUESE", "6. DANISH", "7. NORWEGIAN"}));
}

TEST_F(FrmInitialMenuTest, AChoiceThatReadsItsNumberAloneStillSavesIt) {
  set_message(Key::FRM_INITIAL_MENU_CMB_LINGUA2_MSG, "text");
  open_with_language(3);
  EXPECT_EQ(list("Cmb_Lingua").text(), QStringLiteral("3. "));
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set00_InitialMenu, 3);
}

TEST_F(FrmInitialMenuTest, TheDateKeysAreCrossed) {
  start_session(Global::model_z320);
  set_message(Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG, "key 0");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_DateFormat")), (QStringList{"0. ", "1. MM-DD-YY"}));
  stage.close_top();
  set_message(Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT1_MSG, "key 1");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_DateFormat")), (QStringList{"0. key 1", "1. key 0"}));
}

TEST_F(FrmInitialMenuTest, TheEmptyRoundingRowsAreShownAndSaveZero) {
  start_session(Global::model_z320);
  for (const std::uint8_t code : std::array<std::uint8_t, 2>{4, 5}) {
    PrgModeImage image = good_image(Global::model_z320);
    image.Set04_InitialMenu = code;
    lay_down(image);
    open(screen);
    EXPECT_EQ(list("Cmb_EuRoundigSel").currentIndex(), code);
    EXPECT_EQ(list("Cmb_EuRoundigSel").text(), QString{});
    click("C_Salva");
    EXPECT_EQ(image_file()[4], '\0');
    stage.close_top();
  }
}

// ---- the register's language

TEST_F(FrmInitialMenuTest, AnUnchangedLanguageShowsNothingAndKeepsTheTexts) {
  install_setup();
  open_with_language(3);
  const std::string before = texts_now();
  list("Cmb_KeyTone").show_entry(1);
  click("C_Salva");
  EXPECT_EQ(texts_now(), before);
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmInitialMenuTest, AChangedLanguageFillsAllTextsFromItsFile) {
  install_setup();
  open_with_language(0);
  list("Cmb_Lingua").show_entry(3);
  expect_box(BoxKind::information, changed);
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set00_InitialMenu, 3);
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), "GRUPPE 1    ");
  EXPECT_EQ(trim_end(PrgMode.Other[22].view()), "ENDE DES BERICHTS");
  EXPECT_EQ(image_file(), bytes_of_image(PrgMode));
  EXPECT_EQ(texts_of(image_file()), texts_now());
}

TEST_F(FrmInitialMenuTest, AChangedLanguageWithoutItsFileShowsBothMessagesAndIsSaved) {
  open_with_language(0);
  const std::string before = texts_now();
  list("Cmb_Lingua").show_entry(6);
  expect_box(BoxKind::information, changed);
  expect_box(BoxKind::warning, missing);
  click("C_Salva");
  EXPECT_EQ(image_file()[0], 6);
  EXPECT_EQ(texts_of(image_file()), before);
  EXPECT_EQ(log(), std::vector<std::string>{"The file language 6 is not present"});
}

TEST_F(FrmInitialMenuTest, TheMessagesHaveTheCataloguesWords) {
  set_message(Key::MSG_CHANGE_LANGUAGE_STR, "new words");
  set_message(Key::MSG_FILE_LANG_NOT_PRESET_STR, "no words");
  open_with_language(0);
  list("Cmb_Lingua").show_entry(1);
  expect_box(BoxKind::information, "new words");
  expect_box(BoxKind::warning, "no words");
  click("C_Salva");
}

TEST_F(FrmInitialMenuTest, AnUnknownLanguageShowsNothingAndSavesEnglishWithItsTexts) {
  install_setup();
  open_with_language(9);
  EXPECT_EQ(list("Cmb_Lingua").text(), QString{});
  expect_box(BoxKind::information, changed);
  click("C_Salva");
  EXPECT_EQ(image_file()[0], 0);
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), "GROUP 1     ");
  // A second save finds nothing changed.
  click("C_Salva");
}

TEST_F(FrmInitialMenuTest, AFileOfTooManyLinesIsLoggedAndTheSaveGoesOn) {
  std::string file;
  for (int i = 0; i < 300; ++i) file += "line\n";
  write("Setup/Norwegian.txt", file);
  open_with_language(0);
  list("Cmb_Lingua").show_entry(7);
  list("Cmb_KeyTone").show_entry(1);
  expect_box(BoxKind::information, changed);
  click("C_Salva");
  EXPECT_EQ(log(), std::vector<std::string>{"Setta ligua: Overflow"});
  EXPECT_EQ(image_file()[0], 7);
  EXPECT_EQ(image_file()[9] & 4, 4);
}

TEST_F(FrmInitialMenuTest, AFileWithAnUnknownLetterOfTwoBytesEndsTheProgramBeforeAnythingIsWritten) {
  write("Setup/German.txt",
        "GR\xC3\xBC"
        "N\r\n");
  open_with_language(0);
  const std::string before = image_file();
  list("Cmb_Lingua").show_entry(3);
  expect_program_ends([this] {
    expect_box(BoxKind::information, changed);
    click("C_Salva");
  });
  EXPECT_EQ(image_file(), before);
}

// ---- the business id

TEST_F(FrmInitialMenuTest, TheBusinessIdIsHiddenAndSurvives) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    start_session(model);
    PrgModeImage image = good_image(model);
    image.InitialMenuBlock5.bytes = {0x90, 0x78, 0x56, 0x34, 0x12};
    lay_down(image);
    open(screen);
    EXPECT_TRUE(control("L_BusinessID").isHidden());
    EXPECT_TRUE(control("E_BusinessID").isHidden());
    EXPECT_EQ(field("E_BusinessID").text(), QStringLiteral("1234567890"));
    EXPECT_EQ(field("E_BusinessID").maxLength(), 10);
    click("C_Salva");
    EXPECT_EQ(image_file().substr(25, 5), "\x90\x78\x56\x34\x12");
    stage.close_top();
  }
}

TEST_F(FrmInitialMenuTest, ABusinessIdWithLeadingZerosSurvives) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.InitialMenuBlock5.bytes = {0x07, 0x00, 0x00, 0x00, 0x00};
  lay_down(image);
  open(screen);
  EXPECT_EQ(field("E_BusinessID").text(), QStringLiteral("7"));
  click("C_Salva");
  EXPECT_EQ(PrgMode.InitialMenuBlock5, image.InitialMenuBlock5);
}

TEST_F(FrmInitialMenuTest, ABusinessIdThatCannotBeReadSurvivesUnseen) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.InitialMenuBlock5.bytes = {0xA7, 0x01, 0x02, 0x03, 0x04};
  lay_down(image);
  open(screen);
  EXPECT_EQ(field("E_BusinessID").text(), QString{});
  click("C_Salva");
  EXPECT_EQ(image_file().substr(25, 5), "\xA7\x01\x02\x03\x04");
}

// ---- the button of the option DEBUG

TEST_F(FrmInitialMenuTest, TheLanguageButtonIsThereWithTheOptionDebugOnly) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_TRUE(control("C_SettaLingua").isHidden());
  stage.close_top();
  Global::DebugMode = true;
  open(screen);
  EXPECT_TRUE(control("C_SettaLingua").isVisible());
}

TEST_F(FrmInitialMenuTest, TheLanguageButtonFillsTheTextsInMemoryAlone) {
  install_setup();
  Global::DebugMode = true;
  open_with_language(0);
  const std::string before = image_file();
  list("Cmb_Lingua").show_entry(2);
  click("C_SettaLingua");
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), "GROUPE 1    ");
  EXPECT_EQ(PrgMode.Set00_InitialMenu, 0);
  EXPECT_EQ(image_file(), before);
}

}  // namespace
}  // namespace ecr::test::initial_menu_cases
