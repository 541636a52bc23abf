#include "screens/frm_setting_mode.h"

namespace ecr {
namespace {

// clang-format off
constexpr MenuRow setting_menu[] = {
    {.control = "C_Initial_Setup", .key = Key::FRM_SETTING_C_INITIAL_SETUP, .built_in = "Initial Setup",
     .opens = "FrmInitialMenu"},
    {.control = "C_Working_Mode", .key = Key::FRM_SETTING_C_WORKING_MODE, .built_in = "Operating Mode",
     .opens = "FrmWorkingMode"},
    {.control = "C_Print_Out_Mode", .key = Key::FRM_SETTING_C_PRINTOUT_MODE, .built_in = "Print Mode",
     .opens = "FrmPrintMode"},
    {.control = "C_Report_Setup", .key = Key::FRM_SETTING_C_REPORT_SETUP, .built_in = "Report Setup",
     .opens = "FrmReportSetup"},
    {.control = "C_EJ_Setup", .key = Key::FRM_SETTING_C_EJ_SETUP, .built_in = "EJ Setup", .opens = "FrmEJSetup"},
    {.control = "C_Hospitality_Setup", .key = Key::FRM_SETTING_C_HOSPITALITY, .built_in = "Hospitality Setup",
     .opens = "FrmHospitalitySetup", .models = Models::z320_only},
    {.control = "C_Clerk_Setup", .key = Key::FRM_SETTING_C_CLERK_SETUP, .built_in = "Clerk Setup",
     .opens = "FrmClerkMenuSetup"},
};
// clang-format on

}  // namespace

FrmSettingMode::FrmSettingMode()
    : MenuScreen{QStringLiteral("FrmSettingMode"), setting_menu, 2, Key::FRM_SETTING_C_EXIT, "BACK"} {
  captions_.add(*this, Key::FRM_SETTING_MODE_TITLE, "Setup Mode");
}

}  // namespace ecr
