#include "editors/setting/frm_hospitality_setup.h"

#include "editors/setting/hospitality_setup_rows.h"

namespace ecr {

const OptionScreenTable hospitality_setup = {
    .name = "FrmHospitalitySetup",
    .title = Key::FRM_HOSPITALITY_SETUP_TITLE,
    .title_caption = "Hospitality Setup",
    .heading = Key::FRM_HOSPITALITY_SETUP_L_TITOLO,
    .heading_caption = "HOSPITALITY SETUP",
    .rows = setting::hospitality_setup_rows,
    .load_prefix = "FrmHospitalitySetup Form_load: ",
    .save_prefix = "FrmHospitalitySetup Salva: ",
    .saves_to = SavesTo::no_file,
};

}  // namespace ecr
