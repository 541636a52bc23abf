// The words in front of a fault in the run log are each screen's own, and not all of one form.

#include <gtest/gtest.h>
#include <string_view>

#include "core/fault.h"
#include "core/global.h"
#include "editors/setting/frm_clerk_menu_setup.h"
#include "editors/setting/frm_ej_setup.h"
#include "editors/setting/frm_hospitality_setup.h"
#include "editors/setting/frm_report_setup.h"
#include "editors/setting/frm_working_mode.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

void expect_prefixes(const OptionScreenTable& table, std::string_view load, std::string_view save) {
  EXPECT_EQ(table.load_prefix, load);
  EXPECT_EQ(table.save_prefix, save);
}

TEST(SettingLogPrefixes, AreThoseOfEachScreen) {
  expect_prefixes(working_mode, "FrmWorkingMode form_load: ", "FrmWorkingMode Salva: ");
  expect_prefixes(report_setup, "FrmReportSetup form_load: ", "FrmReportSetup Salva: ");
  expect_prefixes(ej_setup, "FrmEjSetup Form load: ", "FrmEjSetup : ");
  expect_prefixes(hospitality_setup, "FrmHospitalitySetup Form_load: ", "FrmHospitalitySetup Salva: ");
  expect_prefixes(clerk_menu_setup, "FrmClerkMenuSetup form_load: ", "FrmClerkMenuSetup Salva: ");
}

using SettingFaults = ScreenTest;

TEST_F(SettingFaults, AFaultInTheSaveOfTheInitialMenuIsLoggedAndTheScreenStays) {
  start_session(Global::model_z320);
  open("FrmInitialMenu");
  const std::string before = image_file();
  list("Cmb_Lingua").show_entry(1);
  watched.answer = [](const WatchedShell::Box&) -> Answer { throw FaultError{FaultCode::overflow}; };
  click("C_Salva");
  EXPECT_EQ(log(), std::vector<std::string>{"FrmInitialMenu Salva: Overflow"});
  EXPECT_EQ(top(), QStringLiteral("FrmInitialMenu"));
  EXPECT_EQ(image_file(), before);
}

}  // namespace
}  // namespace ecr::test
