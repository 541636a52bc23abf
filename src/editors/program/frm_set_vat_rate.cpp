#include "editors/program/frm_set_vat_rate.h"

#include <QGridLayout>

#include "core/codecs.h"
#include "editors/store_field.h"
#include "image/prg_mode.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

// A rate is stored in thousandths of a percent.
constexpr int scale_digits = 3;
constexpr int shown_decimals = 3;
const QString unit = QStringLiteral(" %");

struct RateRow {
  Key key;
  const char* built_in;
};
constexpr RateRow rate_rows[] = {{Key::FRM_SET_VAT_RATE_L_VAT_RATE1, "VAT Rate 1:"},
                                 {Key::FRM_SET_VAT_RATE_L_VAT_RATE2, "VAT Rate 2:"},
                                 {Key::FRM_SET_VAT_RATE_L_VAT_RATE3, "VAT Rate 3"},
                                 {Key::FRM_SET_VAT_RATE_L_VAT_RATE4, "VAT Rate 4"}};

/// The number in front of the unit, in thousandths of a percent.
Decimal stored_rate(const QString& shown) {
  return Decimal::from_text(page_bytes(shown.chopped(unit.size()))).scaled(scale_digits);
}

NumberRules rate_rules(QWidget* enter_goes_to) {
  NumberRules rules;
  rules.maximum = Decimal{99999};
  // A rate from elsewhere may be higher and is shown as it is.
  rules.check_typing_only = true;
  rules.to_raw = stored_rate;
  // Not the three decimals of the load: 22000 comes back as 22 %.
  rules.to_shown = [](const QString& raw) {
    return screen_text(Decimal::from_text(page_bytes(raw)).scaled(-scale_digits).text()) + unit;
  };
  rules.enter_goes_to = enter_goes_to;
  return rules;
}

}  // namespace

FrmSetVatRate::FrmSetVatRate() : Screen{QStringLiteral("FrmSetVatRate")}, frame_{*this, ScreenFrame::Corner::picture} {
  frame_.captions.add(*this, Key::FRM_SET_VAT_RATE_TITLE, "Set VAT Rate");
  frame_.captions.add(*frame_.top.L_Titolo, Key::FRM_SET_VAT_RATE_L_TITOLO, "SET VAT RATE");
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(12);
  grid->setColumnStretch(3, 1);
  for (int i = 0; i < 4; ++i) {
    const auto place = static_cast<std::size_t>(i);
    auto* field = new Field{member_name("E_VatRate", i + 1), this};
    auto* label = make_label(member_name("L_VatRate", i + 1), this, field);
    auto* most = make_label(member_name("L_MaxValue", i + 1), this);
    make_hint(*most);
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(140);
    make_number_field(*field, rate_rules(frame_.C_Salva));
    frame_.captions.add(*label, rate_rows[place].key, rate_rows[place].built_in);
    frame_.captions.add(*most, Key::FRM_SET_VAT_RATE_L_MAX_VALUE, "(Max Value 99999)");
    grid->addWidget(label, i, 0);
    grid->addWidget(field, i, 1);
    grid->addWidget(most, i, 2);
    E_VatRate[place] = field;
    L_VatRate[place] = label;
    L_MaxValue[place] = most;
  }
  frame_.body->addLayout(grid);
  frame_.body->addStretch(1);
  frame_.on_save([this] { save(); });
}

void FrmSetVatRate::load() {
  frame_.load([this] {
    for (std::size_t i = 0; i < E_VatRate.size(); ++i) {
      frame_.load_field(*E_VatRate[i], [i] {
        const Decimal rate = Decimal::from_text(bcds_to_number(PrgMode.VatRate[i])).scaled(-scale_digits);
        return screen_text(rate.text(shown_decimals)) + unit;
      });
    }
  });
}

void FrmSetVatRate::save() {
  for (std::size_t i = 0; i < E_VatRate.size(); ++i) {
    store_number(*E_VatRate[i], PrgMode.VatRate[i], stored_rate);
  }
  frame_.write_file();
}

}  // namespace ecr
