#include <gtest/gtest.h>

#include <QTabWidget>

#include "editors/option_screen_test.h"
#include "editors/program/editor_test.h"

namespace ecr::test::tender_menu_setting_cases {
namespace {

constexpr std::size_t first_at = 2991;
constexpr std::size_t width = 14;

constexpr const char* halos[] = {"Cmb_Halo(0)", "Cmb_Halo(1)", "Cmb_Halo(2)", "Cmb_Halo(3)", "Cmb_Halo(4)",
                                 "Cmb_Halo(5)", "Cmb_Halo(6)", "Cmb_Halo(7)", "Cmb_Halo(8)"};
constexpr const char* amounts[] = {"Cmb_TenderingAmount(0)", "Cmb_TenderingAmount(1)", "Cmb_TenderingAmount(2)",
                                   "Cmb_TenderingAmount(3)", "Cmb_TenderingAmount(4)", "Cmb_TenderingAmount(5)",
                                   "Cmb_TenderingAmount(6)", "Cmb_TenderingAmount(7)", "Cmb_TenderingAmount(8)"};
constexpr const char* changes[] = {"Cmb_ChangeAllowed(0)", "Cmb_ChangeAllowed(1)", "Cmb_ChangeAllowed(2)",
                                   "Cmb_ChangeAllowed(3)", "Cmb_ChangeAllowed(4)", "Cmb_ChangeAllowed(5)",
                                   "Cmb_ChangeAllowed(6)", "Cmb_ChangeAllowed(7)", "Cmb_ChangeAllowed(8)"};
constexpr const char* drawers[] = {"Cmb_Drawer(0)", "Cmb_Drawer(1)", "Cmb_Drawer(2)", "Cmb_Drawer(3)", "Cmb_Drawer(4)",
                                   "Cmb_Drawer(5)", "Cmb_Drawer(6)", "Cmb_Drawer(7)", "Cmb_Drawer(8)"};

std::vector<ListInImage> all_lists() {
  std::vector<ListInImage> lists;
  for (std::size_t i = 0; i < 9; ++i) {
    const std::size_t record = first_at + width * i;
    lists.push_back({halos[i],
                     record + 12,
                     whole_byte,
                     {"0. NO LIMIT", "1. (0 - 0.99)", "2. (0 - 9.99)", "3. (0 - 99.99)", "4. (0 - 999.99)"}});
    lists.push_back({amounts[i], record + 13, 0, {"0. NOT COMPULSORY", "1. COMPULSORY"}});
    lists.push_back({changes[i], record + 13, 1, {"0. YES", "1. NO"}});
    lists.push_back({drawers[i], record + 13, 2, {"0. OPEN", "1. CLOSED"}});
  }
  return lists;
}

const QString screen = QStringLiteral("FrmTenderMenuSetting");

class ListsOfPaymentMedia : public OptionScreenTest {
 protected:
  ListsOfPaymentMedia() {
    prepare = [](PrgModeImage& image) {
      for (auto& medium : image.Tender) medium.Name.set("MEDIUM");
    };
  }
};

TEST_F(ListsOfPaymentMedia, HaveTheirEntries) {
  check_entries(screen, all_lists());
}

TEST_F(ListsOfPaymentMedia, ShowEveryStoredValue) {
  check_loading(screen, all_lists());
}

TEST_F(ListsOfPaymentMedia, SaveEveryChoiceInItsPlaceAndNoOther) {
  check_every_choice(screen, all_lists());
}

TEST_F(ListsOfPaymentMedia, ChangeNothingUntouched) {
  check_saving_untouched(screen, all_lists());
}

class FrmTenderMenuSettingTest : public EditorTest {
 protected:
  FrmTenderMenuSettingTest() : EditorTest{"FrmTenderMenuSetting"} {
    for (std::size_t i = 0; i < 9; ++i) PrgMode.Tender[i].Name.set("MEDIUM " + std::to_string(i));
    lay_down(PrgMode);
  }
  [[nodiscard]] std::string record(std::size_t i) const { return stored(first_at + width * i, width); }
  [[nodiscard]] QTabWidget& tabs() const { return control<QTabWidget>("Tab_Credit"); }
};

TEST_F(FrmTenderMenuSettingTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program Payment Media"));
  expect_captions({{"F_Payment(0)", "TOTAL"}, {"F_Payment(1)", "CHECK"}, {"F_Payment(2)", "CHARGE"}});
  ASSERT_EQ(tabs().count(), 6);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(tabs().tabText(i), QStringLiteral("CARD %1").arg(i + 1));
  EXPECT_EQ(tabs().currentIndex(), 0);
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(caption(member_name("L_Nome", i)), QStringLiteral("Name"));
    EXPECT_EQ(caption(member_name("L_Hdlo", i)), QStringLiteral("HDLO"));
    EXPECT_EQ(caption(member_name("L_TenderingAmount", i)), QStringLiteral("Amount"));
    EXPECT_EQ(caption(member_name("L_ChangeAllowed", i)), QStringLiteral("Change Allowed"));
    EXPECT_EQ(caption(member_name("L_Drawer", i)), QStringLiteral("Drawer"));
  }
}

TEST_F(FrmTenderMenuSettingTest, CaptionsComeFromTheCatalogue) {
  name_every_key();
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_TENDER_MENU_SETTING_TITLE"));
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(caption(member_name("F_Payment", i)), QStringLiteral("FRM_TENDER_MENU_SETTING_F_PAYMENT%1").arg(i));
  }
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(tabs().tabText(i), QStringLiteral("FRM_TENDER_MENU_SETTING_F_PAYMENT%1").arg(i + 3));
  }
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(caption(member_name("L_Nome", i)), QStringLiteral("FRM_TENDER_MENU_SETTING_L_NOME"));
    EXPECT_EQ(caption(member_name("L_Hdlo", i)), QStringLiteral("FRM_TENDER_MENU_SETTING_L_HDLO"));
    EXPECT_EQ(entries_of(list(member_name("Cmb_TenderingAmount", i))),
              QStringList({"0. FRM_TENDER_MENU_SETTING_CMB_TENDERING_AMOUNT_0_MSG",
                           "1. FRM_TENDER_MENU_SETTING_CMB_TENDERING_AMOUNT_1_MSG"}));
    EXPECT_EQ(entries_of(list(member_name("Cmb_ChangeAllowed", i))),
              QStringList({"0. FRM_TENDER_MENU_SETTING_CMB_CHANGE_ALLOWED_0_MSG",
                           "1. FRM_TENDER_MENU_SETTING_CMB_CHANGE_ALLOWED_1_MSG"}));
    EXPECT_EQ(entries_of(list(member_name("Cmb_Drawer", i))), QStringList({"0. FRM_ALL_OPEN", "1. FRM_ALL_CLOSED"}));
  }
}

TEST_F(FrmTenderMenuSettingTest, NamesAreShownTrimmed) {
  PrgMode.Tender[0].Name.set("  CASH");
  PrgMode.Tender[8].Name.set("CR\xDBME \xF8");
  open_editor();
  EXPECT_EQ(shown("E_Name(0)"), QStringLiteral("CASH"));
  EXPECT_EQ(shown("E_Name(5)"), QStringLiteral("MEDIUM 5"));
  EXPECT_EQ(shown("E_Name(8)"), QStringLiteral("CRÈME €"));
}

TEST_F(FrmTenderMenuSettingTest, ALongerNameIsCutAtOnce) {
  open_editor();
  click("E_Name(1)");
  paste_over(QStringLiteral("ABCDEFGHIJKLMN"));
  EXPECT_EQ(shown("E_Name(1)"), QStringLiteral("ABCDEFGHIJKL"));
  type(QStringLiteral("Z"));
  EXPECT_EQ(shown("E_Name(1)"), QStringLiteral("ABCDEFGHIJKL"));
  press(Qt::Key_Home);
  type(QStringLiteral("12"));
  EXPECT_EQ(shown("E_Name(1)"), QStringLiteral("12ABCDEFGHIJ")) << "the last letters make room";
  EXPECT_EQ(field("E_Name(1)").cursorPosition(), 2);
  save();
  EXPECT_EQ(record(1).substr(0, 12), "12ABCDEFGHIJ");
}

TEST_F(FrmTenderMenuSettingTest, ASaveWritesAllNineRecordsAndNoOtherByte) {
  for (auto& medium : PrgMode.Tender) medium.Name.set("  OLD");
  lay_down(PrgMode);
  open_editor();
  const std::string before = image_file();
  tabs().setCurrentIndex(5);
  enter("E_Name(8)", QStringLiteral("LAST"));
  pick(list("Cmb_Halo(8)"), 3);
  pick(list("Cmb_Drawer(8)"), 1);
  save();
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(record(i), std::string("OLD         \0\0", 14)) << i;
  EXPECT_EQ(record(8), "LAST        " + bytes_of({3, 4}));
  expect_untouched_outside(before, first_at, 9 * width);
  EXPECT_EQ(top(), screen);
  EXPECT_EQ(tabs().currentIndex(), 5) << "the screen stays as it is";
}

TEST_F(FrmTenderMenuSettingTest, TheUpperBitsSurviveASave) {
  for (auto& medium : PrgMode.Tender) medium.Options = 0xF8;
  open_editor();
  pick(list("Cmb_ChangeAllowed(0)"), 1);
  save();
  EXPECT_EQ(record(0)[13], '\xFA');
  for (std::size_t i = 1; i < 9; ++i) EXPECT_EQ(record(i)[13], '\xF8');
}

TEST_F(FrmTenderMenuSettingTest, AnUnknownLimitShowsNothingAndSavesAsZero) {
  PrgMode.Tender[2].Halo = 5;
  open_editor();
  EXPECT_EQ(list("Cmb_Halo(2)").text(), QString{});
  save();
  EXPECT_EQ(record(2)[12], 0);
}

TEST_F(FrmTenderMenuSettingTest, AllNineCanBeReachedByTab) {
  open_editor();
  EXPECT_TRUE(control("E_Name(0)").hasFocus());
  for (const char* next :
       {"Cmb_Halo(0)", "Cmb_TenderingAmount(0)", "Cmb_ChangeAllowed(0)", "Cmb_Drawer(0)", "E_Name(1)"}) {
    press(Qt::Key_Tab);
    EXPECT_TRUE(control(QString::fromLatin1(next)).hasFocus()) << next;
  }
}

TEST_F(FrmTenderMenuSettingTest, SendSendsWhatWasSavedLast) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  enter("E_Name(0)", QStringLiteral("TYPED"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], before);
}

}  // namespace
}  // namespace ecr::test::tender_menu_setting_cases
