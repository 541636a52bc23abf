#include "editors/setting/frm_ej_setup.h"

#include "editors/setting/ej_setup_rows.h"

namespace ecr {

const OptionScreenTable ej_setup = {
    .name = "FrmEJSetup",
    .title = Key::FRM_EJ_SETUP_TITLE,
    .title_caption = "EJ SETUP",
    .heading = Key::FRM_EJ_SETUP_L_TITOLO,
    .heading_caption = "EJ SETUP",
    .rows = setting::ej_setup_rows,
    .load_prefix = "FrmEjSetup Form load: ",
    .save_prefix = "FrmEjSetup : ",
};

}  // namespace ecr
