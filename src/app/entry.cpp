#include "app/entry.h"

#include <QEvent>
#include <QIcon>
#include <QTimer>

#include "captions/frm_caption_setting.h"
#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/text.h"
#include "editors/program/frm_clerk_system_program.h"
#include "editors/program/frm_department_program.h"
#include "editors/program/frm_dept_group_setting.h"
#include "editors/program/frm_fc_rating_setting.h"
#include "editors/program/frm_instore_barcode_setting.h"
#include "editors/program/frm_ns_menu_setting.h"
#include "editors/program/frm_percentage_menu.h"
#include "editors/program/frm_permission_program.h"
#include "editors/program/frm_plu_page_program.h"
#include "editors/program/frm_pop_up_plu_list.h"
#include "editors/program/frm_poramp_key_menu.h"
#include "editors/program/frm_prg_plu.h"
#include "editors/program/frm_set_vat_rate.h"
#include "editors/program/frm_system_option.h"
#include "editors/program/frm_tender_menu_setting.h"
#include "editors/setting/frm_clerk_menu_setup.h"
#include "editors/setting/frm_ej_setup.h"
#include "editors/setting/frm_hospitality_setup.h"
#include "editors/setting/frm_initial_menu.h"
#include "editors/setting/frm_print_mode.h"
#include "editors/setting/frm_report_setup.h"
#include "editors/setting/frm_working_mode.h"
#include "keyboard/frm_advanced_setting.h"
#include "lang/language.h"
#include "logo/frm_set_logo.h"
#include "reports/frm_report_export.h"
#include "reports/frm_report_view.h"
#include "screens/frm_pres.h"
#include "screens/frm_program_mode.h"
#include "screens/frm_setting_mode.h"
#include "screens/screen_factory.h"
#include "widgets/pictures.h"
#include "widgets/screen.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

template <typename AnyScreen>
void register_one(const char* name) {
  register_screen(QString::fromLatin1(name), [] { return new AnyScreen; });
}

QIcon window_icon() {
  QIcon icon;
  for (const char* file : {"vermanto-16.png", "vermanto-32.png", "vermanto-48.png", "vermanto.png"}) {
    icon.addFile(setup_file(QString::fromLatin1(file)));
  }
  return icon;
}

/// Does what can wait until the start screen is to be seen: it reads the window's icon, clears away what an earlier run
/// left, and searches for the port, whose colours the screen shows.
class BehindFirstPaint : public QObject {
 public:
  explicit BehindFirstPaint(FrmPres& screen) : QObject{&screen}, screen_{screen} { screen.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      screen_.removeEventFilter(this);
      QTimer::singleShot(0, &screen_, [&screen = screen_] {
        screen.window()->setWindowIcon(window_icon());
        Global::remove_unfinished_saves();
        screen.first_discovery();
      });
      deleteLater();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  FrmPres& screen_;
};

}  // namespace

void register_screens() {
  register_one<FrmProgramMode>("FrmProgramMode");
  register_one<FrmSettingMode>("FrmSettingMode");
  register_one<FrmSetVatRate>("FrmSetVatRate");
  register_one<FrmDepartmentProgram>("FrmDepartmentProgram");
  register_one<FrmNSMenuSetting>("FrmNSMenuSetting");
  register_one<FrmInitialMenu>("FrmInitialMenu");
  register_one<FrmWorkingMode>("FrmWorkingMode");
  register_one<FrmPrintMode>("FrmPrintMode");
  register_one<FrmReportSetup>("FrmReportSetup");
  register_one<FrmEJSetup>("FrmEJSetup");
  register_one<FrmHospitalitySetup>("FrmHospitalitySetup");
  register_one<FrmClerkMenuSetup>("FrmClerkMenuSetup");
  register_one<FrmSetLogo>("FrmSetLogo");
  register_one<FrmDeptGroupSetting>("FrmDeptGroupSetting");
  register_one<FrmInstoreBarcodeSetting>("FrmInstoreBarcodeSetting");
  register_one<FrmFCRatingSetting>("FrmFCRatingSetting");
  register_one<FrmPermissionProgram>("FrmPermissionProgram");
  register_one<FrmTenderMenuSetting>("FrmTenderMenuSetting");
  register_one<FrmClerkSystemProgram>("FrmClerkSystemProgram");
  register_one<FrmPercentageMenu>("FrmPercentageMenu");
  register_one<FrmPORAMPKeyMenu>("FrmPORAMPKeyMenu");
  register_one<FrmSystemOption>("FrmSystemOption");
  register_one<FrmAdvancedSetting>("FrmAdvancedSetting");
  register_one<FrmPrgPlu>("FrmPrgPlu");
  register_one<FrmPluPageProgram>("FrmPluPageProgram");
  register_one<FrmPopUpPluList>("FrmPopUpPluList");
  register_one<FrmCaptionSetting>("FrmCaptionSetting");
  register_one<FrmReportExport>("FrmReportExport");
  register_one<FrmReportView>("FrmReportView");
}

void Main(Stage& stage, const QString& application_folder, const QString& command_line) {
  register_screens();
  Global::set_folders(backslash_path(path_of_toolkit(application_folder)));
  const std::string words = upper_ascii(command_line.toStdString());
  Global::DebugMode = words == "DEBUG";
  Global::crea_cartelle();
  Read_Language();
  selezione_lingua(LanguageNumber);
  read_pictures_ahead(
      {"ECRZ300.png", "ECRZ320.png", "Logo_Angolo.jpg", "vermanto.bmp", "help.png", FlagPicture.c_str()},
      stage.devicePixelRatioF());
  carica_messaggi_default();

  auto* start = new FrmPres;
  stage.open(start);
  if (words == "STOP") {
    Global::remove_unfinished_saves();
    start->first_discovery();
    start->unload();
  }
  new BehindFirstPaint{*start};
  stage.show();
}

}  // namespace ecr
