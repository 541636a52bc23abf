#include "screens/frm_program_mode.h"

#include <optional>
#include <string>

#include "captions/text_files.h"
#include "core/files.h"
#include "core/global.h"
#include "widgets/choose_file.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

// clang-format off
constexpr MenuRow program_menu[] = {
    {.control = "C_SetVatRate", .key = Key::FRM_PROGRAM_MODE_C_SET_VAT_RATE, .built_in = "Set VAT Rate",
     .opens = "FrmSetVatRate"},
    {.control = "C_DepartmentProgram", .key = Key::FRM_PROGRAM_MODE_C_DEPARTMENT_PROGRAM,
     .built_in = "Program Departments", .opens = "FrmDepartmentProgram"},
    {.control = "C_DeptGroupProgram", .key = Key::FRM_PROGRAM_MODE_C_DEPT_GROUP_PROGRAM,
     .built_in = "Program Dept. Groups", .opens = "FrmDeptGroupSetting"},
    {.control = "C_PluProgram", .key = Key::FRM_PROGRAM_MODE_C_PLU_PROGRAM, .built_in = "Program PLUs",
     .opens = "FrmPrgPlu"},
    {.control = "C_PluPageProgram", .key = Key::FRM_PROGRAM_MODE_C_PLUPAGEPROGRAM, .built_in = "Program PLU Pages",
     .opens = "FrmPluPageProgram", .models = Models::z320_only},
    {.control = "C_PercentageProgram", .key = Key::FRM_PROGRAM_MODE_C_PERCENTAGE_PROGRAM,
     .built_in = "Program % Key", .opens = "FrmPercentageMenu"},
    {.control = "C_PO_RA_M_P_Key_Program", .key = Key::FRM_PROGRAM_MODE_C_PO_RA_M_P_KEY_PROGRAM,
     .built_in = "Program PO, RA, +/- Keys", .opens = "FrmPORAMPKeyMenu"},
    {.control = "C_TenderProgram", .key = Key::FRM_PROGRAM_MODE_C_TENDER_PROGRAM,
     .built_in = "Program Payment Media", .opens = "FrmTenderMenuSetting"},
    {.control = "C_NSProgram", .key = Key::FRM_PROGRAM_MODE_C_NS_PROGRAM, .built_in = "Program #/NS key",
     .opens = "FrmNSMenuSetting"},
    {.control = "C_ForeignCurrencyProgram", .key = Key::FRM_PROGRAM_MODE_C_FOREIGN_CURRENCY_PROGRAM,
     .built_in = "Program Foreign Currencies ", .opens = "FrmFCRatingSetting"},
    {.control = "C_ClerkSystemProgram", .key = Key::FRM_PROGRAM_MODE_C_CLERK_SYSTEM_PROGRAM,
     .built_in = "Program Clerk System", .opens = "FrmClerkSystemProgram"},
    {.control = "C_PermissionProgram", .key = Key::FRM_PROGRAM_MODE_C_PERMISSION_PROGRAM,
     .built_in = "Set Passwords", .opens = "FrmPermissionProgram"},
    {.control = "C_InstoreBarcodeSetting", .key = Key::FRM_PROGRAM_MODE_C_INSTORE_BARCODE_SETTING,
     .built_in = "Program Instore Barcodes", .opens = "FrmInstoreBarcodeSetting"},
    {.control = "C_SystemOption", .key = Key::FRM_PROGRAM_MODE_C_SYSTEM_OPTION, .built_in = "System Options",
     .opens = "FrmSystemOption"},
    {.control = "C_PopUpPluList", .key = Key::FRM_PROGRAM_MODE_C_POP_UP_PLU_LIST,
     .built_in = "Program Pop Up Plu LIST", .opens = "FrmPopUpPluList"},
    {.control = "C_Custom_Import", .built_in = "Customization Import"},
};
// clang-format on

}  // namespace

FrmProgramMode::FrmProgramMode()
    : MenuScreen{QStringLiteral("FrmProgramMode"), program_menu, 3, Key::FRM_ALL_C_ANNULLA, "Back"} {
  captions_.add(*this, Key::FRM_PROGRAM_MODE_TITLE, "Program Mode");
  set_routine("C_Custom_Import", [this] { import_captions(); });
}

void FrmProgramMode::import_captions() {
  const std::optional<std::string> file =
      choose_file_to_open(this, {.title = QStringLiteral("File Import Selection"),
                                 .filter = QStringLiteral("File (*.txt)"),
                                 .name = QStringLiteral("Comm_Percorso"),
                                 .folder = path_for_toolkit(host_path(Global::PathApp)),
                                 .must_be_there = true});
  if (file.has_value()) Import_Caption(*file);
}

}  // namespace ecr
