#include "editors/program/frm_ns_menu_setting.h"

#include <cstddef>

#include "editors/program/shared_choices.h"
#include "image/prg_mode.h"

namespace ecr {
namespace {

constexpr std::size_t no_sale = offsetof(PrgModeImage, NoSaleOpt);

constexpr Choice drawer[] = {{.digit = 0, .literal = "0. OPEN", .text = Key::FRM_ALL_OPEN},
                             {.digit = 1, .literal = "1. CLOSED", .text = Key::FRM_ALL_CLOSED}};
constexpr Choice key_positions[] = {
    {.digit = 0, .literal = "0. REG & MGR", .text = Key::FRM_NS_MENU_SETTING_CMB_CONTROL_KEY_POSITIONING_0_MSG},
    {.digit = 1, .literal = "1. MGR ONLY", .text = Key::FRM_NS_MENU_SETTING_CMB_CONTROL_KEY_POSITIONING_1_MSG}};
constexpr Choice input[] = {{.digit = 0, .literal = "0. INPUT", .text = Key::FRM_ALL_INPUT},
                            {.digit = 1, .literal = "1. NOT INPUT", .text = Key::FRM_ALL_NOINPUT}};
constexpr Choice increments[] = {
    {.digit = 0, .literal = "0. UPDATE", .text = Key::FRM_NS_MENU_SETTING_CMB_CONSECUTIVE_INCREMENT_0_MSG},
    {.digit = 1, .literal = "1. NOT UPDATE", .text = Key::FRM_NS_MENU_SETTING_CMB_CONSECUTIVE_INCREMENT_1_MSG}};

constexpr OptionRow no_sale_rows[] = {
    {.control = "Cmb_DrawerOpen",
     .label = "L_DrawerOpen",
     .key = Key::FRM_NS_MENU_SETTING_L_DRAWER_OPEN,
     .caption = "Drawer Open",
     .choices = drawer,
     .place = bit_at(no_sale, 0)},
    {.control = "Cmb_ControlKeyPositioning",
     .label = "L_ControlKeyPositioning",
     .key = Key::FRM_NS_MENU_SETTING_L_CONTROL_KEY_POSITIONING,
     .caption = "Control Key Positioning",
     .choices = key_positions,
     .place = bit_at(no_sale, 1)},
    {.control = "Cmb_ReceiptPrint",
     .label = "L_ReceiptPrint",
     .key = Key::FRM_NS_MENU_SETTING_L_RECEIPT_PRINT,
     .caption = "Receipt Print",
     .choices = printing,
     .place = bit_at(no_sale, 2)},
    {.control = "Cmb_ReceiptHeaderPrint",
     .label = "L_ReceiptHeaderPrint",
     .key = Key::FRM_NS_MENU_SETTING_L_RECEIPT_HEADER_PRINT,
     .caption = "Receipt Header Print",
     .choices = printing,
     .place = bit_at(no_sale, 3)},
    {.control = "Cmb_EJInput",
     .label = "L_EJInput",
     .key = Key::FRM_NS_MENU_SETTING_L_EJ_INPUT,
     .caption = "EJ Input",
     .choices = input,
     .place = bit_at(no_sale, 4)},
    {.control = "Cmb_ConsecutiveIncrement",
     .label = "L_ConsecutiveIncrement",
     .key = Key::FRM_NS_MENU_SETTING_L_CONSECUTIVE_INCREMENT,
     .caption = "Consecutive # Increment",
     .choices = increments,
     .place = bit_at(no_sale, 5)},
};
static_assert(sound(no_sale_rows, prg_mode_size));

}  // namespace

const OptionScreenTable ns_menu_setting = {
    .name = "FrmNSMenuSetting",
    .title = Key::FRM_NS_MENU_SETTING_TITLE,
    .title_caption = "Program #/NS Key",
    .heading = Key::FRM_NS_MENU_SETTING_L_TITOLO,
    .heading_caption = "PROGRAM #/NS KEY",
    .rows = no_sale_rows,
    .load_prefix = "FrmNsMenuSetting form_load: ",
    .save_prefix = "FrmNsMenuSetting Salva: ",
};

}  // namespace ecr
