#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>

#include "core/catalogue.h"
#include "core/global.h"
#include "screens/menu.h"
#include "screens/screen_factory.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

struct Button {
  const char* control;
  const char* key;  ///< empty: no key
  const char* built_in;
  const char* opens;  ///< empty: a routine of its own
};

struct Menu {
  const char* screen;
  const char* title_key;
  const char* title;
  std::vector<Button> buttons;
};

const std::vector<Menu> menus = {
    {"FrmSetup",
     "",
     "Vermanto ECR programming Utility",
     {{"C_ProgramMode", "FRM_SETUP_C_PROGRAM_MODE", "Program Mode", "FrmProgramMode"},
      {"C_SettingMode", "FRM_SETUP_C_SETTING_MODE", "Setup Mode", "FrmSettingMode"},
      {"C_MessageSetup", "FRM_SETUP_C_MESSAGE_SETUP", "Caption Setup Mode", "FrmCaptionSetting"},
      {"C_Report", "FRM_SETUP_C_REPORT", "Reports", "FrmReportExport"},
      {"C_AdvancedSetting", "FRM_ADVANCED_SETTING_TITLE_MSG", "Advanced Setting", "FrmAdvancedSetting"},
      {"C_Reset", "FRM_SETUP_C_RESET", "RESET", ""},
      {"C_ExportCaption", "", "Export_Caption", ""},
      {"C_Exit", "FRM_SETUP_C_EXIT", "BACK", ""}}},
    {"FrmProgramMode",
     "FRM_PROGRAM_MODE_TITLE",
     "Program Mode",
     {{"C_SetVatRate", "FRM_PROGRAM_MODE_C_SET_VAT_RATE", "Set VAT Rate", "FrmSetVatRate"},
      {"C_DepartmentProgram", "FRM_PROGRAM_MODE_C_DEPARTMENT_PROGRAM", "Program Departments", "FrmDepartmentProgram"},
      {"C_DeptGroupProgram", "FRM_PROGRAM_MODE_C_DEPT_GROUP_PROGRAM", "Program Dept. Groups", "FrmDeptGroupSetting"},
      {"C_PluProgram", "FRM_PROGRAM_MODE_C_PLU_PROGRAM", "Program PLUs", "FrmPrgPlu"},
      {"C_PluPageProgram", "FRM_PROGRAM_MODE_C_PLUPAGEPROGRAM", "Program PLU Pages", "FrmPluPageProgram"},
      {"C_PercentageProgram", "FRM_PROGRAM_MODE_C_PERCENTAGE_PROGRAM", "Program % Key", "FrmPercentageMenu"},
      {"C_PO_RA_M_P_Key_Program", "FRM_PROGRAM_MODE_C_PO_RA_M_P_KEY_PROGRAM", "Program PO, RA, +/- Keys",
       "FrmPORAMPKeyMenu"},
      {"C_TenderProgram", "FRM_PROGRAM_MODE_C_TENDER_PROGRAM", "Program Payment Media", "FrmTenderMenuSetting"},
      {"C_NSProgram", "FRM_PROGRAM_MODE_C_NS_PROGRAM", "Program #/NS key", "FrmNSMenuSetting"},
      {"C_ForeignCurrencyProgram", "FRM_PROGRAM_MODE_C_FOREIGN_CURRENCY_PROGRAM", "Program Foreign Currencies ",
       "FrmFCRatingSetting"},
      {"C_ClerkSystemProgram", "FRM_PROGRAM_MODE_C_CLERK_SYSTEM_PROGRAM", "Program Clerk System",
       "FrmClerkSystemProgram"},
      {"C_PermissionProgram", "FRM_PROGRAM_MODE_C_PERMISSION_PROGRAM", "Set Passwords", "FrmPermissionProgram"},
      {"C_InstoreBarcodeSetting", "FRM_PROGRAM_MODE_C_INSTORE_BARCODE_SETTING", "Program Instore Barcodes",
       "FrmInstoreBarcodeSetting"},
      {"C_SystemOption", "FRM_PROGRAM_MODE_C_SYSTEM_OPTION", "System Options", "FrmSystemOption"},
      {"C_PopUpPluList", "FRM_PROGRAM_MODE_C_POP_UP_PLU_LIST", "Program Pop Up Plu LIST", "FrmPopUpPluList"},
      {"C_Custom_Import", "", "Customization Import", ""},
      {"C_Exit", "FRM_ALL_C_ANNULLA", "Back", ""}}},
    {"FrmSettingMode",
     "FRM_SETTING_MODE_TITLE",
     "Setup Mode",
     {{"C_Initial_Setup", "FRM_SETTING_C_INITIAL_SETUP", "Initial Setup", "FrmInitialMenu"},
      {"C_Working_Mode", "FRM_SETTING_C_WORKING_MODE", "Operating Mode", "FrmWorkingMode"},
      {"C_Print_Out_Mode", "FRM_SETTING_C_PRINTOUT_MODE", "Print Mode", "FrmPrintMode"},
      {"C_Report_Setup", "FRM_SETTING_C_REPORT_SETUP", "Report Setup", "FrmReportSetup"},
      {"C_EJ_Setup", "FRM_SETTING_C_EJ_SETUP", "EJ Setup", "FrmEJSetup"},
      {"C_Hospitality_Setup", "FRM_SETTING_C_HOSPITALITY", "Hospitality Setup", "FrmHospitalitySetup"},
      {"C_Clerk_Setup", "FRM_SETTING_C_CLERK_SETUP", "Clerk Setup", "FrmClerkMenuSetup"},
      {"C_Exit", "FRM_SETTING_C_EXIT", "BACK", ""}}}};

class MenusTest : public ScreenTest {
 protected:
  MenusTest() { start_session(Global::model_z320); }

  [[nodiscard]] QStringList seen_buttons() const {
    QStringList names;
    for (const auto* button : stage.top()->findChildren<CommandButton*>()) {
      if (button->isVisible()) names.append(button->objectName());
    }
    return names;
  }
};

TEST_F(MenusTest, ButtonsHaveTheirBuiltInCaptionsWithoutACatalogue) {
  for (const Menu& menu : menus) {
    open(menu.screen);
    EXPECT_EQ(stage.windowTitle(), QString::fromLatin1(menu.title));
    for (const Button& button : menu.buttons) {
      EXPECT_EQ(caption(button.control), QString::fromLatin1(button.built_in)) << menu.screen;
    }
    EXPECT_EQ(control("I_Help").toolTip(), QStringLiteral("Click here for open the guide"));
  }
}

TEST_F(MenusTest, ButtonsTakeTheTextsOfTheirOwnKeys) {
  for (std::size_t i = 0; i < key_count; ++i) {
    const auto key = static_cast<Key>(i);
    set_message(key, "text of " + std::string{name_of(key)});
  }
  const auto text_of = [](const char* key, const char* built_in) {
    return *key == '\0' ? QString::fromLatin1(built_in) : QStringLiteral("text of ") + QString::fromLatin1(key);
  };
  for (const Menu& menu : menus) {
    open(menu.screen);
    EXPECT_EQ(stage.windowTitle(), text_of(menu.title_key, menu.title));
    for (const Button& button : menu.buttons) {
      EXPECT_EQ(caption(button.control), text_of(button.key, button.built_in)) << menu.screen;
    }
  }
}

TEST_F(MenusTest, AMenuHasTheseButtonsAndNoOthers) {
  Global::DebugMode = true;
  for (const Menu& menu : menus) {
    open(menu.screen);
    QStringList expected;
    for (const Button& button : menu.buttons) expected.append(QString::fromLatin1(button.control));
    QStringList seen = seen_buttons();
    expected.sort();
    seen.sort();
    EXPECT_EQ(seen, expected) << menu.screen;
  }
}

TEST_F(MenusTest, TheZ300LacksTwoButtonsAndNothingElse) {
  Global::choose_model(Global::model_z320);
  QStringList on_z320;
  QStringList on_z300;
  for (const Menu& menu : menus) {
    open(menu.screen);
    on_z320 += seen_buttons();
  }
  Global::choose_model(Global::model_z300);
  for (const Menu& menu : menus) {
    open(menu.screen);
    on_z300 += seen_buttons();
  }
  EXPECT_EQ(on_z320.removeAll(QStringLiteral("C_PluPageProgram")), 1);
  EXPECT_EQ(on_z320.removeAll(QStringLiteral("C_Hospitality_Setup")), 1);
  EXPECT_EQ(on_z300, on_z320);
}

TEST_F(MenusTest, TheProgramMenuHas15EditorsOnTheZ320And14OnTheZ300) {
  for (const auto& [model, count] : {std::pair{Global::model_z320, 15}, std::pair{Global::model_z300, 14}}) {
    Global::choose_model(model);
    open("FrmProgramMode");
    // The import and the way back open no editor.
    EXPECT_EQ(seen_buttons().size() - 2, count);
  }
}

TEST_F(MenusTest, ThePlacesOfHiddenButtonsAreClosedUp) {
  Global::choose_model(Global::model_z300);
  open("FrmProgramMode");
  std::vector<QPoint> corners;
  for (const QString& name : seen_buttons()) {
    if (name != QStringLiteral("C_Exit")) corners.push_back(control(name).pos());
  }
  // Three in a row, without a gap.
  for (std::size_t i = 3; i < corners.size(); ++i) EXPECT_EQ(corners[i].x(), corners[i - 3].x());
  for (std::size_t i = 0; i < corners.size(); ++i) EXPECT_EQ(corners[i].y(), corners[i - i % 3].y());
}

TEST_F(MenusTest, TheExportOfCaptionsIsForDebuggingAlone) {
  open("FrmSetup");
  EXPECT_FALSE(control("C_ExportCaption").isVisible());
  Global::DebugMode = true;
  open("FrmSetup");
  EXPECT_TRUE(control("C_ExportCaption").isVisible());
}

TEST_F(MenusTest, TheSetupMenuTakesTheDecimalsOfTheProgramming) {
  for (const std::uint8_t decimals : {std::uint8_t{0}, std::uint8_t{3}, std::uint8_t{2}}) {
    PrgMode.SysOpt0 = decimals;
    open("FrmSetup");
    EXPECT_EQ(Global::DecimalPoint, decimals);
  }
}

TEST_F(MenusTest, AButtonOpensItsScreenHidesTheMenuAndClosingBringsItBack) {
  // One of the screens tells of its absence in a box.
  write("Setup/DescCaption.ini", "");
  for (const Menu& menu : menus) {
    for (const Button& one : menu.buttons) {
      const QString target = QString::fromLatin1(one.opens);
      if (target.isEmpty()) continue;
      Screen& screen = open(menu.screen);
      click(one.control);
      EXPECT_EQ(top(), target);
      EXPECT_FALSE(screen.isVisible());
      stage.close();
      let_screens_settle();
      EXPECT_EQ(stage.top(), &screen);
      EXPECT_TRUE(screen.isVisible());
      EXPECT_TRUE(control(one.control).hasFocus()) << "the keyboard goes on from there";
    }
  }
}

TEST_F(MenusTest, BackClosesEachMenu) {
  Screen& below = open("FrmPrincipale");
  for (const Menu& menu : menus) {
    open(menu.screen);
    click("C_Exit");
    let_screens_settle();
    EXPECT_EQ(stage.top(), &below);
  }
}

TEST_F(MenusTest, MenusHoldNoDataOfTheProgramming) {
  const std::string before = image_file();
  for (const Menu& menu : menus) {
    open(menu.screen);
    stage.close();
  }
  EXPECT_EQ(image_file(), before);
  EXPECT_EQ(file_bytes(PrgMode), before);
}

TEST_F(MenusTest, EveryButtonCanBePressed) {
  Global::DebugMode = true;
  for (const char* name : {"FrmPrincipale", "FrmSetup", "FrmProgramMode", "FrmSettingMode"}) {
    open(name);
    for (const auto* button : stage.top()->findChildren<CommandButton*>()) {
      EXPECT_TRUE(button->isEnabled()) << name << ' ' << button->objectName().toStdString();
    }
  }
}

TEST_F(MenusTest, TheFocusIsOnTheFirstButtonThatCanBePressed) {
  open("FrmProgramMode");
  EXPECT_TRUE(control("C_SetVatRate").hasFocus());
  open("FrmSettingMode");
  const QWidget* focus = QApplication::focusWidget();
  ASSERT_NE(focus, nullptr);
  EXPECT_TRUE(focus->isEnabled());
}

TEST_F(MenusTest, HelpIsTheMenusOwnPage) {
  write("help/eng/contents.html", "<html></html>");
  write("help/eng/FrmSetup.html", "<html><head><title>Setup menu page</title></head></html>");
  open("FrmSetup");
  press(Qt::Key_F1);
  const auto* window = stage.findChild<QDialog*>(QStringLiteral("Help"));
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Setup menu page"));
}

}  // namespace
}  // namespace ecr::test
