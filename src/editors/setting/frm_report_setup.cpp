#include "editors/setting/frm_report_setup.h"

#include "editors/setting/report_setup_rows.h"

namespace ecr {

const OptionScreenTable report_setup = {
    .name = "FrmReportSetup",
    .title = Key::FRM_REPORT_SETUP_TITLE,
    .title_caption = "Report Setup",
    .heading = Key::FRM_REPORT_SETUP_L_TITOLO,
    .heading_caption = "REPORT SETUP",
    .rows = setting::report_setup_rows,
    .load_prefix = "FrmReportSetup form_load: ",
    .save_prefix = "FrmReportSetup Salva: ",
};

}  // namespace ecr
