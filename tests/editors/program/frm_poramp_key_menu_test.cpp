#include "editors/program/frm_poramp_key_menu.h"

#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "editors/option_screen_test.h"

namespace ecr::test::poramp_key_menu_cases {
namespace {

const QString screen = QStringLiteral("FrmPORAMPKeyMenu");
const std::vector<const char*> limits = {"0. NO LIMIT", "1. (0 - 0.99)", "2. (0 - 9.99)", "3. (0 - 99.99)",
                                         "4. (0 - 999.99)"};
const std::vector<ListInImage> lists = {
    {"Cmb_RAKeyHDLOSetting", 62, whole_byte, limits},
    {"Cmb_POKeyHDLOSetting", 63, whole_byte, limits},
    {"Cmb_PM1KeyHDLOSetting", 64, whole_byte, limits},
    {"Cmb_PM2KeyHDLOSetting", 65, whole_byte, limits},
    {"Cmb_PM1Sign", 66, 2, {"0. DISCOUNT", "1. ADD ON"}},
    {"Cmb_PM2Sign", 66, 3, {"0. DISCOUNT", "1. ADD ON"}},
    {"Cmb_RAHeaderPrint", 66, 4, {"0. PRINT", "1. NOT PRINT"}},
    {"Cmb_POHeaderPrint", 66, 5, {"0. PRINT", "1. NOT PRINT"}},
};

class FrmPORAMPKeyMenuTest : public OptionScreenTest {
 protected:
  void open_with(const std::function<void(PrgModeImage&)>& change) {
    start_session(Global::model_z320);
    PrgModeImage image = good_image(Global::model_z320);
    change(image);
    lay_down(image);
    open(screen);
  }
};

TEST_F(FrmPORAMPKeyMenuTest, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(FrmPORAMPKeyMenuTest, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(FrmPORAMPKeyMenuTest, EveryChoiceSavesItsPlaceAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(FrmPORAMPKeyMenuTest, SavingUntouchedChangesNothing) {
  check_saving_untouched(screen, lists);
}

TEST_F(FrmPORAMPKeyMenuTest, CaptionsAreTheBuiltInOnes) {
  open_with([](PrgModeImage&) {});
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program PO, RA and -/+ Keys"));
  const std::pair<const char*, const char*> captions[] = {{"L_Titolo", "PROGRAM PO, RA AND -/+ KEYS"},
                                                          {"L_RAKeyHDLOSetting", "RA Key HDLO Setting"},
                                                          {"L_POKeyHDLOSetting", "PO Key HDLO Setting"},
                                                          {"L_PM1KeyHDLOSetting", "+/- 1 Key HDLO Setting"},
                                                          {"L_PM2KeyHDLOSetting", "+/- 2 Key HDLO Setting"},
                                                          {"L_PM1Sign", "+/-1 Sign"},
                                                          {"L_PM2Sign", "+/-2 Sign"},
                                                          {"L_RAHeaderPrint", "RA Header Print"},
                                                          {"L_POHeaderPrint", "PO Header Print"}};
  for (const auto& [name, text] : captions) EXPECT_EQ(caption(name), QString::fromLatin1(text)) << name;
}

TEST_F(FrmPORAMPKeyMenuTest, CaptionsAndChoicesComeFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_with([](PrgModeImage&) {});
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_PO_RA_MP_KEY_MENU_TITLE"));
  const std::pair<const char*, const char*> captions[] = {
      {"L_Titolo", "FRM_PO_RA_MP_KEY_MENU_L_TITOLO"},
      {"L_RAKeyHDLOSetting", "FRM_PO_RA_MP_KEY_MENU_L_RA_KEY_HDLO_SETTING"},
      {"L_POKeyHDLOSetting", "FRM_PO_RA_MP_KEY_MENU_L_PO_KEY_HDLO_SETTING"},
      {"L_PM1KeyHDLOSetting", "FRM_PO_RA_MP_KEY_MENU_L_PM1_KEY_HDLO_SETTING"},
      {"L_PM2KeyHDLOSetting", "FRM_PO_RA_MP_KEY_MENU_L_PM2_KEY_HDLO_SETTING"},
      {"L_PM1Sign", "FRM_PO_RA_MP_KEY_MENU_L_PM1_SIGN"},
      {"L_PM2Sign", "FRM_PO_RA_MP_KEY_MENU_L_PM2_SIGN"},
      {"L_RAHeaderPrint", "FRM_PO_RA_MP_KEY_MENU_L_RA_HEADER_PRINT"},
      {"L_POHeaderPrint", "FRM_PO_RA_MP_KEY_MENU_L_PO_HEADER_PRINT"}};
  for (const auto& [name, text] : captions) EXPECT_EQ(caption(name), QString::fromLatin1(text)) << name;
  EXPECT_EQ(entries_of(list("Cmb_PM1Sign")), QStringList({"0. FRM_ALL_DISCOUNT", "1. FRM_ALL_ADDON"}));
  EXPECT_EQ(entries_of(list("Cmb_PM2Sign")), QStringList({"0. FRM_ALL_DISCOUNT", "1. FRM_ALL_ADDON"}));
  EXPECT_EQ(entries_of(list("Cmb_RAHeaderPrint")), QStringList({"0. FRM_ALL_PRINT", "1. FRM_ALL_NOTPRINT"}));
  EXPECT_EQ(entries_of(list("Cmb_POKeyHDLOSetting")),
            QStringList({"0. FRM_ALL_NO_LIMIT", "1. FRM_ALL_1DIGITS", "2. FRM_ALL_2DIGITS", "3. FRM_ALL_3DIGITS",
                         "4. FRM_ALL_4DIGITS"}));
}

TEST_F(FrmPORAMPKeyMenuTest, ALimitOfFiveShowsNothingAndSavesAsZero) {
  open_with([](PrgModeImage& image) { image.KeyOpt0 = 5; });
  EXPECT_EQ(list("Cmb_RAKeyHDLOSetting").text(), QString{});
  click("C_Salva");
  EXPECT_EQ(image_file()[62], 0);
}

TEST_F(FrmPORAMPKeyMenuTest, TheBitsOfThePercentageKeysSurvive) {
  open_with([](PrgModeImage& image) { image.KeyOpt4 = 0xC3; });
  list("Cmb_PM2Sign").show_entry(1);
  click("C_Salva");
  EXPECT_EQ(image_file()[66], '\xCB');
}

TEST_F(FrmPORAMPKeyMenuTest, FaultsWouldStandInTheLogBehindThesePrefixes) {
  EXPECT_EQ(poramp_key_menu.load_prefix, "FrmPORAMPKeyMenu form_load: ");
  EXPECT_EQ(poramp_key_menu.save_prefix, "FrmPORAMPKeyMenu Salva: ");
}

}  // namespace
}  // namespace ecr::test::poramp_key_menu_cases
