#include "editors/program/frm_poramp_key_menu.h"

#include <cstddef>

#include "editors/program/shared_choices.h"
#include "image/prg_mode.h"

namespace ecr {
namespace {

constexpr std::size_t poramp_options = offsetof(PrgModeImage, KeyOpt4);

// A discount is number 0 here and 1 where the percentage keys have their built-in texts.
constexpr Choice signs[] = {{.digit = 0, .literal = "0. DISCOUNT", .text = Key::FRM_ALL_DISCOUNT},
                            {.digit = 1, .literal = "1. ADD ON", .text = Key::FRM_ALL_ADDON}};

constexpr OptionRow poramp_rows[] = {
    {.control = "Cmb_RAKeyHDLOSetting",
     .label = "L_RAKeyHDLOSetting",
     .key = Key::FRM_PO_RA_MP_KEY_MENU_L_RA_KEY_HDLO_SETTING,
     .caption = "RA Key HDLO Setting",
     .choices = digit_limits,
     .place = byte_at(offsetof(PrgModeImage, KeyOpt0))},
    {.control = "Cmb_POKeyHDLOSetting",
     .label = "L_POKeyHDLOSetting",
     .key = Key::FRM_PO_RA_MP_KEY_MENU_L_PO_KEY_HDLO_SETTING,
     .caption = "PO Key HDLO Setting",
     .choices = digit_limits,
     .place = byte_at(offsetof(PrgModeImage, KeyOpt1))},
    {.control = "Cmb_PM1KeyHDLOSetting",
     .label = "L_PM1KeyHDLOSetting",
     .key = Key::FRM_PO_RA_MP_KEY_MENU_L_PM1_KEY_HDLO_SETTING,
     .caption = "+/- 1 Key HDLO Setting",
     .choices = digit_limits,
     .place = byte_at(offsetof(PrgModeImage, KeyOpt2))},
    {.control = "Cmb_PM2KeyHDLOSetting",
     .label = "L_PM2KeyHDLOSetting",
     .key = Key::FRM_PO_RA_MP_KEY_MENU_L_PM2_KEY_HDLO_SETTING,
     .caption = "+/- 2 Key HDLO Setting",
     .choices = digit_limits,
     .place = byte_at(offsetof(PrgModeImage, KeyOpt3))},
    {.control = "Cmb_PM1Sign",
     .label = "L_PM1Sign",
     .key = Key::FRM_PO_RA_MP_KEY_MENU_L_PM1_SIGN,
     .caption = "+/-1 Sign",
     .choices = signs,
     .place = bit_at(poramp_options, 2)},
    {.control = "Cmb_PM2Sign",
     .label = "L_PM2Sign",
     .key = Key::FRM_PO_RA_MP_KEY_MENU_L_PM2_SIGN,
     .caption = "+/-2 Sign",
     .choices = signs,
     .place = bit_at(poramp_options, 3)},
    {.control = "Cmb_RAHeaderPrint",
     .label = "L_RAHeaderPrint",
     .key = Key::FRM_PO_RA_MP_KEY_MENU_L_RA_HEADER_PRINT,
     .caption = "RA Header Print",
     .choices = printing,
     .place = bit_at(poramp_options, 4)},
    {.control = "Cmb_POHeaderPrint",
     .label = "L_POHeaderPrint",
     .key = Key::FRM_PO_RA_MP_KEY_MENU_L_PO_HEADER_PRINT,
     .caption = "PO Header Print",
     .choices = printing,
     .place = bit_at(poramp_options, 5)},
};
static_assert(sound(poramp_rows, prg_mode_size));
static_assert(owned_bits(poramp_rows, poramp_options) == 0x3C, "bits 0 and 1 belong to the percentage keys");

}  // namespace

const OptionScreenTable poramp_key_menu = {
    .name = "FrmPORAMPKeyMenu",
    .title = Key::FRM_PO_RA_MP_KEY_MENU_TITLE,
    .title_caption = "Program PO, RA and -/+ Keys",
    .heading = Key::FRM_PO_RA_MP_KEY_MENU_L_TITOLO,
    .heading_caption = "PROGRAM PO, RA AND -/+ KEYS",
    .rows = poramp_rows,
    .load_prefix = "FrmPORAMPKeyMenu form_load: ",
    .save_prefix = "FrmPORAMPKeyMenu Salva: ",
};

}  // namespace ecr
