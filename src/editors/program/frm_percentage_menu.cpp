#include "editors/program/frm_percentage_menu.h"

#include <cstddef>
#include <utility>

#include "core/codecs.h"
#include "editors/form_grid.h"
#include "editors/store_field.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

// A rate is stored in hundredths of a percent.
constexpr int scale_digits = 2;
const QString unit = QStringLiteral(" %");

constexpr std::size_t percentage_options = offsetof(PrgModeImage, KeyOpt4);

// The entries stand crosswise: the built-in texts have the other digit than the place at which they stand, and the
// catalogue's words for the two keys are turned against each other. Load goes by the place, save by the digit, so with
// an empty catalogue each of them flips the sign.
constexpr Choice signs_of_key1[] = {
    {.digit = 0, .literal = "1. DISCOUNT", .text = Key::FRM_ALL_ADDON, .prefix = Prefix::point},
    {.digit = 1, .literal = "0. ADD ON", .text = Key::FRM_ALL_DISCOUNT, .prefix = Prefix::point}};
constexpr Choice signs_of_key2[] = {{.digit = 0,
                                     .literal = "1. DISCOUNT",
                                     .text = Key::FRM_ALL_DISCOUNT,
                                     .decides = Key::FRM_ALL_ADDON,
                                     .prefix = Prefix::point},
                                    {.digit = 1,
                                     .literal = "0. ADD ON",
                                     .text = Key::FRM_ALL_ADDON,
                                     .decides = Key::FRM_ALL_DISCOUNT,
                                     .prefix = Prefix::point}};

constexpr OptionRow percentage_signs[] = {
    {.control = "Cmb_P1Sign",
     .label = "L_P1Sign",
     .key = Key::FRM_PERCENTAGE_MENU_L_P1_SIGN,
     .caption = "Key %1 Function:",
     .choices = signs_of_key1,
     .place = bit_at(percentage_options, 0)},
    {.control = "Cmb_P2Sign",
     .label = "L_P2Sign",
     .key = Key::FRM_PERCENTAGE_MENU_L_P2_SIGN,
     .caption = "Key %2 Function:",
     .choices = signs_of_key2,
     .place = bit_at(percentage_options, 1)},
};
static_assert(sound(percentage_signs, prg_mode_size));
static_assert(owned_bits(percentage_signs, percentage_options) == 0x03,
              "bits 2 to 5 belong to the PO, RA and plus-minus keys");

/// The number in front of the unit, in hundredths of a percent.
Decimal stored_rate(const QString& shown) {
  return Decimal::from_text(page_bytes(shown.chopped(unit.size()))).scaled(scale_digits);
}

QString shown_rate(std::string_view hundredths) {
  return screen_text(Decimal::from_text(hundredths).scaled(-scale_digits).text(scale_digits)) + unit;
}

NumberRules rate_rules(QWidget* enter_goes_to) {
  NumberRules rules;
  rules.maximum = Decimal{9999};
  rules.to_raw = stored_rate;
  rules.to_shown = [](const QString& raw) { return shown_rate(page_bytes(raw)); };
  rules.enter_goes_to = enter_goes_to;
  return rules;
}

}  // namespace

FrmPercentageMenu::FrmPercentageMenu()
    : Screen{QStringLiteral("FrmPercentageMenu")},
      frame_{*this, ScreenFrame::Corner::picture},
      E_P1KeyRate{new Field{QStringLiteral("E_P1KeyRate"), this}},
      E_P1KeyRateLimit{new Field{QStringLiteral("E_P1KeyRateLimit"), this}},
      E_P2KeyRate{new Field{QStringLiteral("E_P2KeyRate"), this}},
      E_P2KeyRateLimit{new Field{QStringLiteral("E_P2KeyRateLimit"), this}},
      signs_{*this, frame_.captions, percentage_signs} {
  frame_.captions.add(*this, Key::FRM_PERCENTAGE_MENU_TITLE, "Program % Key");
  frame_.captions.add(*frame_.top.L_Titolo, Key::FRM_PERCENTAGE_MENU_L_TITOLO, "PROGRAM % KEY");
  FormGrid form{*this, frame_.captions};
  form.place(0, 0, QStringLiteral("L_P1KeyRate"), Key::FRM_PERCENTAGE_MENU_L_P1_KEY_RATE, "Key %1 Rate", E_P1KeyRate);
  form.place(1, 0, QStringLiteral("L_P1KeyRateLimit"), Key::FRM_PERCENTAGE_MENU_L_P1_KEY_RATE_LIMIT,
             "Key %1 Rate Limit", E_P1KeyRateLimit);
  form.place(0, 1, QStringLiteral("L_P2KeyRate"), Key::FRM_PERCENTAGE_MENU_L_P2_KEY_RATE, "Key %2 Rate", E_P2KeyRate);
  form.place(1, 1, QStringLiteral("L_P2KeyRateLimit"), Key::FRM_PERCENTAGE_MENU_L_P2_KEY_RATE_LIMIT,
             "Key %2 Rate Limit", E_P2KeyRateLimit);
  // One note for the two fields of its line.
  form.fixed_note(0, 1, QStringLiteral("L_RateMax"), "(Max Value 9999)");
  form.fixed_note(1, 1, QStringLiteral("L_RateLimitMax"), "(Max Value 9999)");
  QGridLayout& grid = *form.layout();
  signs_.lay_out(grid, 2, 0, 0, 1);
  signs_.lay_out(grid, 2, 3, 1, 1);
  grid.setVerticalSpacing(12);
  grid.setColumnMinimumWidth(2, 24);
  grid.setColumnStretch(6, 1);
  for (Field* field : {E_P1KeyRate, E_P1KeyRateLimit, E_P2KeyRate, E_P2KeyRateLimit}) {
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(160);
    make_number_field(*field, rate_rules(frame_.C_Salva));
  }
  for (ChoiceList* list : signs_.lists()) list->setFixedWidth(160);
  frame_.body->addLayout(&grid);
  frame_.body->addStretch(1);
  frame_.log_prefixes("FrmPercentageMenu form_load: ", "FrmPercentageMenu Salva: ");
  frame_.on_save([this] { save(); });
  set_tab_chain({E_P1KeyRate, E_P1KeyRateLimit, signs_.list("Cmb_P1Sign"), E_P2KeyRate, E_P2KeyRateLimit,
                 signs_.list("Cmb_P2Sign"), frame_.C_Salva, frame_.C_Invia_Ecr, frame_.C_Annulla, frame_.top.I_Help});
}

void FrmPercentageMenu::load() {
  frame_.load([this] {
    signs_.load();
    for (const auto& [field, rate] : rates()) {
      frame_.load_field(*field, [stored = rate] { return shown_rate(bcds_to_number(*stored)); });
    }
  });
}

std::array<std::pair<Field*, Bcd<2>*>, 4> FrmPercentageMenu::rates() const {
  return {{{E_P1KeyRate, &PrgMode.PercentA[0]},
           {E_P1KeyRateLimit, &PrgMode.PercentA[1]},
           {E_P2KeyRate, &PrgMode.PercentB[0]},
           {E_P2KeyRateLimit, &PrgMode.PercentB[1]}}};
}

void FrmPercentageMenu::save() {
  for (const auto& [field, rate] : rates()) store_number(*field, *rate, stored_rate);
  signs_.save();
  frame_.write_file();
}

}  // namespace ecr
