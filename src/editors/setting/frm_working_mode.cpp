#include "editors/setting/frm_working_mode.h"

#include "editors/setting/working_mode_rows.h"

namespace ecr {

const OptionScreenTable working_mode = {
    .name = "FrmWorkingMode",
    .title = Key::FRM_WORKING_MODE_TITLE,
    .title_caption = "Operating Mode",
    .heading = Key::FRM_WORKING_MODE_L_TITOLO,
    .heading_caption = "OPERATING MODE",
    .rows = setting::working_mode_rows,
    .load_prefix = "FrmWorkingMode form_load: ",
    .save_prefix = "FrmWorkingMode Salva: ",
};

}  // namespace ecr
