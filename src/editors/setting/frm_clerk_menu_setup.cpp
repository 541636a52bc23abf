#include "editors/setting/frm_clerk_menu_setup.h"

#include "editors/setting/clerk_menu_setup_rows.h"

namespace ecr {

const OptionScreenTable clerk_menu_setup = {
    .name = "FrmClerkMenuSetup",
    .title = Key::FRM_CLERK_MENU_SETUP_TITLE,
    .title_caption = "Clerk Setup",
    .heading = Key::FRM_CLERK_MENU_SETUP_L_TITOLO,
    .heading_caption = "CLERK SETUP",
    .rows = setting::clerk_menu_setup_rows,
    .load_prefix = "FrmClerkMenuSetup form_load: ",
    .save_prefix = "FrmClerkMenuSetup Salva: ",
};

}  // namespace ecr
