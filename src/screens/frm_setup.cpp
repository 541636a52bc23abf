#include "screens/frm_setup.h"

#include "captions/text_files.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "image/prg_mode.h"
#include "link/transfer.h"
#include "screens/screen_factory.h"

namespace ecr {
namespace {

// clang-format off
constexpr MenuRow main_menu[] = {
    {.control = "C_ProgramMode", .key = Key::FRM_SETUP_C_PROGRAM_MODE, .built_in = "Program Mode",
     .opens = "FrmProgramMode"},
    {.control = "C_SettingMode", .key = Key::FRM_SETUP_C_SETTING_MODE, .built_in = "Setup Mode",
     .opens = "FrmSettingMode"},
    {.control = "C_MessageSetup", .key = Key::FRM_SETUP_C_MESSAGE_SETUP, .built_in = "Caption Setup Mode",
     .opens = "FrmCaptionSetting"},
    {.control = "C_Report", .key = Key::FRM_SETUP_C_REPORT, .built_in = "Reports", .opens = "FrmReportExport"},
    {.control = "C_AdvancedSetting", .key = Key::FRM_ADVANCED_SETTING_TITLE_MSG, .built_in = "Advanced Setting",
     .opens = "FrmAdvancedSetting"},
    {.control = "C_Reset", .key = Key::FRM_SETUP_C_RESET, .built_in = "RESET"},
    {.control = "C_ExportCaption", .built_in = "Export_Caption", .shown = MenuRow::Shown::debug_only},
};
// clang-format on

}  // namespace

FrmSetup::FrmSetup() : MenuScreen{QStringLiteral("FrmSetup"), main_menu, 2, Key::FRM_SETUP_C_EXIT, "BACK"} {
  setWindowTitle(QStringLiteral("Vermanto ECR programming Utility"));
  set_routine("C_Reset", [this] { reset_register(); });
  set_routine("C_ExportCaption", [this] { export_captions(); });
}

void FrmSetup::load() {
  take_decimal_point();
  MenuScreen::load();
}

void FrmSetup::reset_register() {
  guarded("FrmSetup Reset_click: ", [] {
    const Answer answer =
        shell().box(BoxKind::plain, BoxButtons::yes_no,
                    message_or(Key::FRM_SETUP_RESET_MSG, "Are you sure you want to RESET the cash register?"),
                    message(Key::MSG_TITLE_RESET));
    if (answer != Answer::yes) return;
    const BusyPointer busy;
    copia_def_file();
    // The image in memory stays as it is: the menus and editors show the values from before until the next way in.
    if (!Send_PrgModeToEcr(true, true)) tell(BoxKind::critical, MsgProgramKo);
  });
}

void FrmSetup::export_captions() {
  if (Export_Caption()) open(make_screen(QStringLiteral("FrmCaptionSetting")));
}

}  // namespace ecr
