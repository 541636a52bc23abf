#include "editors/program/frm_fc_rating_setting.h"

#include <algorithm>

#include <QGroupBox>

#include "core/codecs.h"
#include "core/register_text.h"
#include "core/text.h"
#include "editors/form_grid.h"
#include "editors/program/number_texts.h"
#include "editors/store_field.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int currency_name_width = 10;
// As many as 999999 has; a point takes one more.
constexpr int rate_digits = 6;
constexpr std::int64_t largest_rate = 99999999;

struct FrameRow {
  Key key;
  const char* built_in;
};
constexpr FrameRow frame_rows[] = {{Key::FRM_FC_RATING_SETTING_F_FC1_TITLE, "Foreign Currency 1 Setting"},
                                   {Key::FRM_FC_RATING_SETTING_F_FC2_TITLE, "Foreign Currency 2 Setting"},
                                   {Key::FRM_FC_RATING_SETTING_F_FC3_TITLE, "Foreign Currency 3 Setting"},
                                   {Key::FRM_FC_RATING_SETTING_F_FC4_TITLE, "Foreign Currency 4 Setting"}};

/// The exact decimal of a rate's text; an empty one is 0.
Decimal exact(const QString& text) {
  return text.isEmpty() ? Decimal{} : Decimal::from_text(page_bytes(text));
}

}  // namespace

FrmFCRatingSetting::FrmFCRatingSetting()
    : Screen{QStringLiteral("FrmFCRatingSetting")}, frame_{*this, ScreenFrame::Corner::none} {
  frame_.captions.add(*this, Key::FRM_FC_RATING_SETTING_TITLE, "Program Foreign Currencies");
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(20);
  grid->setVerticalSpacing(16);
  for (std::size_t i = 0; i < currencies_.size(); ++i) {
    grid->addWidget(make_frame(i), static_cast<int>(i / 2), static_cast<int>(i % 2));
  }
  frame_.body->addLayout(grid);
  frame_.body->addStretch(1);
  frame_.log_prefixes("FrmEcRatingSetting Form load: ", "FrmEcRatingSetting Salva: ");
  frame_.on_save([this] { save(); });
  // The controls follow each other as they were made; the frame's own come behind them.
  set_tab_chain({currencies_.back().Cmb_DecimalPositionForExchangedRate, frame_.C_Salva, frame_.C_Invia_Ecr,
                 frame_.C_Annulla, frame_.top.I_Help});
}

QWidget* FrmFCRatingSetting::make_frame(std::size_t index) {
  const int number = static_cast<int>(index);
  auto* box = new QGroupBox{this};
  box->setObjectName(member_name("F_FC", number));
  frame_.captions.add(*box, frame_rows[index].key, frame_rows[index].built_in);
  Currency& currency = currencies_[index];
  currency.E_Name = new Field{member_name("E_Name", number), box};
  currency.E_ExchangeRate = new Field{member_name("E_ExchangeRate", number), box};
  currency.Cmb_DecimalPositionForRate = new ChoiceList{member_name("Cmb_DecimalPositionForRate", number), box};
  currency.Cmb_DecimalPositionForExchangedRate =
      new ChoiceList{member_name("Cmb_DecimalPositionForExchangedRate", number), box};

  FormGrid form{*box, frame_.captions};
  form.place(0, 0, member_name("L_Nome", number), Key::FRM_FC_RATING_SETTING_L_NOME, "Name", currency.E_Name);
  form.place(1, 0, member_name("L_ExchangeRate", number), Key::FRM_FC_RATING_SETTING_L_EXCHANGE_RATE, "Exchange Rate",
             currency.E_ExchangeRate);
  form.place(2, 0, member_name("L_DecimalPositionForRate", number),
             Key::FRM_FC_RATING_SETTING_L_DECIMAL_POSITION_FOR_RATE, "Decimal Position for Rate",
             currency.Cmb_DecimalPositionForRate);
  form.place(3, 0, member_name("L_DecimalPositionForExchangedRate", number),
             Key::FRM_FC_RATING_SETTING_L_DECIMAL_POSITION_FOR_EXCHANGED_RATE, "Decimal Position for Exchanged Rate",
             currency.Cmb_DecimalPositionForExchangedRate);
  form.layout()->setColumnStretch(1, 1);
  box->setLayout(form.layout());

  make_name_field(*currency.E_Name, currency_name_width);
  Field& rate = *currency.E_ExchangeRate;
  rate.setAlignment(Qt::AlignRight);
  rate.let_in(Field::Keys::digits);
  rate.enter_goes_to(frame_.C_Salva);
  rate.on_entered([&currency] { rate_entered(currency); });
  rate.on_left([&currency] { rate_left(currency); });
  // The digits stay, only the point moves. What the moved point leaves no room for is lost: the length that the field
  // takes is that of the load.
  currency.Cmb_DecimalPositionForExchangedRate->on_click([&currency] {
    if (currency.E_ExchangeRate->is_unread()) return;
    currency.E_ExchangeRate->show_text(QString::number(currency.Rate));
    rate_left(currency);
  });
  return box;
}

void FrmFCRatingSetting::load() {
  frame_.load([this] {
    frame_.top.L_Titolo->setText(windowTitle());
    for (std::size_t i = 0; i < currencies_.size(); ++i) {
      frame_.load_part([this, i] { load_currency(currencies_[i], PrgMode.ForeignCurrency[i]); });
    }
  });
}

void FrmFCRatingSetting::load_currency(Currency& currency, ForeignCurrencyRecord& record) {
  const std::string name{trim_both(record.Name.view())};
  // The trimmed name goes back into the image, whether it is saved or not.
  record.Name.set(name);
  currency.E_Name->show_text(field_text(sostituzione_from_ecr(name)));
  currency.Cmb_DecimalPositionForRate->fill(bare_numbers(0, 8));
  currency.Cmb_DecimalPositionForRate->show_text(QString::number(record.DecimalPositionForRate));
  currency.Cmb_DecimalPositionForExchangedRate->fill(bare_numbers(0, 3));
  currency.Cmb_DecimalPositionForExchangedRate->show_text(QString::number(record.DecimalPositionForExchangedRate));
  currency.E_ExchangeRate->limit_typing(rate_digits + (record.DecimalPositionForExchangedRate != 0 ? 1 : 0));
  const std::string rate = bcds_to_number(record.Rate);
  currency.Rate = static_cast<std::int32_t>(leading_number(rate));
  currency.E_ExchangeRate->show_stored(screen_text(rate));
  if (!currency.E_ExchangeRate->is_unread()) rate_left(currency);
}

void FrmFCRatingSetting::rate_entered(const Currency& currency) {
  currency.E_ExchangeRate->show_text(
      screen_text(exact(currency.E_ExchangeRate->text()).scaled(currency.decimals()).text()));
}

void FrmFCRatingSetting::rate_left(Currency& currency) {
  const QString text = currency.E_ExchangeRate->text();
  const Decimal whole = std::min(numeric_value(text).rounded(), Decimal{largest_rate});
  currency.Rate = static_cast<std::int32_t>(leading_number(whole.text()));
  const int decimals = currency.decimals();
  if (decimals == 0) return;
  currency.E_ExchangeRate->show_text(screen_text(exact(text).scaled(-decimals).text(decimals)));
}

void FrmFCRatingSetting::save() {
  for (std::size_t i = 0; i < currencies_.size(); ++i) {
    const Currency& currency = currencies_[i];
    ForeignCurrencyRecord& record = PrgMode.ForeignCurrency[i];
    record.Name.set(sostituzione_to_ecr(codes_of(currency.E_Name->text())));
    store_number(*currency.E_ExchangeRate, record.Rate,
                 [&currency](const QString& text) { return numeric_value(text).scaled(currency.decimals()); });
    record.DecimalPositionForRate = static_cast<std::uint8_t>(currency.Cmb_DecimalPositionForRate->whole_number());
    record.DecimalPositionForExchangedRate = static_cast<std::uint8_t>(currency.decimals());
  }
  frame_.write_file();
}

}  // namespace ecr
