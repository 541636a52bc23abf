#include "editors/program/frm_instore_barcode_setting.h"

#include "core/codecs.h"
#include "core/run_log.h"
#include "editors/form_grid.h"
#include "editors/program/number_texts.h"
#include "editors/program/record_at.h"
#include "editors/store_field.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int rules = 10;

// Columns of the grid.
struct BarcodeColumn {
  enum : int {
    number,
    flag_code,
    digits_of_flag,
    digits_of_price,
    number_of_fc,
    code_length,
    price_check,
    news_paper,
    columns
  };
};

/// Which of two choices a byte stands for: 0 the first, everything else the second.
int second_unless_zero(std::uint8_t byte) {
  return byte == 0 ? 0 : 1;
}

QString shown_flag_code(const InstoreBarcodeRecord& record) {
  return screen_text(bcds_to_number(record.FlagCode));
}

}  // namespace

FrmInstoreBarcodeSetting::FrmInstoreBarcodeSetting()
    : Screen{QStringLiteral("FrmInstoreBarcodeSetting")},
      frame_{*this, ScreenFrame::Corner::none},
      Cmb_InstoreBarcodeSettingNumber{
          new ChoiceList{QStringLiteral("Cmb_InstoreBarcodeSettingNumber"), this, ChoiceList::Typing::finds_entries}},
      FG_InstoreBarcode{new RecordGrid{QStringLiteral("FG_InstoreBarcode"), this}},
      table_{*Cmb_InstoreBarcodeSettingNumber, rules, *FG_InstoreBarcode, [this](int rule) { Carica_IBS(rule); }},
      E_FlagCode{new Field{QStringLiteral("E_FlagCode"), this}},
      Cmb_DigitsOfFlag{new ChoiceList{QStringLiteral("Cmb_DigitsOfFlag"), this}},
      Cmb_DigitsOfPrice{new ChoiceList{QStringLiteral("Cmb_DigitsOfPrice"), this}},
      Cmb_NumberOfFc{new ChoiceList{QStringLiteral("Cmb_NumberOfFc"), this}},
      Cmb_CodeLenght{new ChoiceList{QStringLiteral("Cmb_CodeLenght"), this}},
      Cmb_PriceCheckDigit{new ChoiceList{QStringLiteral("Cmb_PriceCheckDigit"), this}},
      Cmb_NewsPaper{new ChoiceList{QStringLiteral("Cmb_NewsPaper"), this}} {
  lay_out();
  wire();
}

void FrmInstoreBarcodeSetting::lay_out() {
  frame_.captions.add(*this, Key::FRM_INSTORE_BARCODE_SETTING_TITLE, "Program Instore Barcodes");
  FormGrid form{*this, frame_.captions};
  form.place(0, 0, QStringLiteral("L_InstoreBarcodeSettingNumber"),
             Key::FRM_INSTORE_BARCODE_SETTING_L_INSTORE_BARCODE_SETTING_NUMBER, "Instore Barcode Setting Number",
             Cmb_InstoreBarcodeSettingNumber);
  form.place(1, 0, QStringLiteral("L_Instore"), Key::FRM_INSTORE_BARCODE_SETTING_L_INSTORE, "Flag Code", E_FlagCode);
  form.place(2, 0, QStringLiteral("L_DigitsOfFlag"), Key::FRM_INSTORE_BARCODE_SETTING_L_DIGITS_OF_FLAG,
             "Digits in Flag", Cmb_DigitsOfFlag);
  form.place(3, 0, QStringLiteral("L_DigitsOfPrice"), Key::FRM_INSTORE_BARCODE_SETTING_L_DIGITS_OF_PRICE,
             "Digits in Price", Cmb_DigitsOfPrice);
  form.place(0, 1, QStringLiteral("L_NumberOfFc"), Key::FRM_INSTORE_BARCODE_SETTING_L_NUMBER_OF_FC, "FC Number",
             Cmb_NumberOfFc);
  // Its built-in caption says "Version", though it sets a length.
  form.place(1, 1, QStringLiteral("L_CodeLenght"), Key::FRM_INSTORE_BARCODE_SETTING_L_CODE_LENGHT, "Version",
             Cmb_CodeLenght);
  form.place(2, 1, QStringLiteral("L_PriceCheckDigit"), Key::FRM_INSTORE_BARCODE_SETTING_L_PRICE_CHECK_DIGIT,
             "Price Check Digit", Cmb_PriceCheckDigit);
  form.place(3, 1, QStringLiteral("L_NewPaper"), Key::FRM_INSTORE_BARCODE_SETTING_L_NEWS_PAPER, "News paper",
             Cmb_NewsPaper);
  form.layout()->setColumnStretch(1, 3);
  form.layout()->setColumnStretch(4, 3);
  form.layout()->setColumnMinimumWidth(2, 12);
  frame_.body->addLayout(form.layout());
  frame_.body->addWidget(FG_InstoreBarcode, 1);
  E_FlagCode->setAlignment(Qt::AlignRight);
  set_tab_chain({Cmb_InstoreBarcodeSettingNumber, E_FlagCode, Cmb_DigitsOfFlag, Cmb_DigitsOfPrice, Cmb_NumberOfFc,
                 Cmb_CodeLenght, Cmb_PriceCheckDigit, Cmb_NewsPaper, frame_.C_Salva, frame_.C_Invia_Ecr,
                 frame_.C_Annulla, FG_InstoreBarcode, frame_.top.I_Help});
}

void FrmInstoreBarcodeSetting::wire() {
  make_whole_number_field(*E_FlagCode, 9999);
  E_FlagCode->on_left([this] {
    if (E_FlagCode->text().isEmpty()) E_FlagCode->show_text(QStringLiteral("0"));
  });
  frame_.log_prefixes("FrmInstoreBarcodeSetting form_load: ", "FrmInstoreBarcodeSetting C_Salva: ");
  frame_.on_save([this] { save(); });
}

void FrmInstoreBarcodeSetting::load() {
  frame_.load([this] {
    frame_.top.L_Titolo->setText(windowTitle());
    FG_InstoreBarcode->setAccessibleName(windowTitle());
    carica_messaggi();
    Cmb_DigitsOfFlag->fill(bare_numbers(0, 3));
    Cmb_DigitsOfPrice->fill(bare_numbers(0, 8));
    Cmb_NumberOfFc->fill(bare_numbers(0, 4));
    Cmb_CodeLenght->fill(code_lengths_);
    Cmb_PriceCheckDigit->fill(yes_no_);
    Cmb_NewsPaper->fill(yes_no_);
    Carica_Griglia();
    FG_InstoreBarcode->fit_columns(BarcodeColumn::news_paper);
    table_.go_to(1);
  });
}

void FrmInstoreBarcodeSetting::carica_messaggi() {
  code_lengths_ = {choice(0, Key::FRM_INSTORE_BARCODE_SETTING_CMB_CODE_LENGHT_0_MSG, "0. LONG"),
                   choice(1, Key::FRM_INSTORE_BARCODE_SETTING_CMB_CODE_LENGHT_1_MSG, "1. SHORT")};
  yes_no_ = {choice(0, Key::FRM_ALL_NO, "0. NO"), choice(1, Key::FRM_ALL_YES, "1. YES")};
  RecordModel& cells = FG_InstoreBarcode->cells();
  cells.resize(rules, BarcodeColumn::columns);
  cells.align_right({BarcodeColumn::number, BarcodeColumn::flag_code, BarcodeColumn::digits_of_flag,
                     BarcodeColumn::digits_of_price, BarcodeColumn::number_of_fc});
  cells.set_headings({caption_text(Key::FRM_INSTORE_BARCODE_COL_N_MSG, "Inst.Bar N\xB0"),
                      caption_text(Key::FRM_INSTORE_BARCODE_COL_FLAG_CODE_MSG, "Flag Code"),
                      caption_text(Key::FRM_INSTORE_BARCODE_COL_DIGIT_OF_FLAG_MSG, "Digits in Flag"),
                      caption_text(Key::FRM_INSTORE_BARCODE_COL_DIGIT_OF_PRICE_MSG, "Digits in Price"),
                      caption_text(Key::FRM_INSTORE_BARCODE_COL_NUMBER_OF_FC_MSG, "FC Number"),
                      caption_text(Key::FRM_INSTORE_BARCODE_COL_CODE_LENGHT_MSG, "Code length"),
                      caption_text(Key::FRM_INSTORE_BARCODE_COL_PRICE_CHEK_DIGIT_MSG, "Price check"),
                      caption_text(Key::FRM_INSTORE_BARCODE_COL_NEWS_PAPER_MSG, "Newspaper")});
}

void FrmInstoreBarcodeSetting::Carica_Griglia() {
  guarded("FrmInstoreBarcodeSetting carica_griglia_err:", [this] {
    Cmb_InstoreBarcodeSettingNumber->fill(bare_numbers(1, rules));
    RecordModel& cells = FG_InstoreBarcode->cells();
    for (int row = 1; row <= rules; ++row) {
      const InstoreBarcodeRecord& record = record_at(PrgMode.InstoreBarcode, row);
      cells.set_cell(row, BarcodeColumn::number, QString::number(row));
      cells.set_cell(row, BarcodeColumn::flag_code, shown_flag_code(record));
      cells.set_cell(row, BarcodeColumn::digits_of_flag, QString::number(record.DigitsOfFlag));
      cells.set_cell(row, BarcodeColumn::digits_of_price, QString::number(record.DigitsOfPrice));
      cells.set_cell(row, BarcodeColumn::number_of_fc, QString::number(record.NumberOfFc));
      cells.set_cell(row, BarcodeColumn::code_length, label_of(code_lengths_[second_unless_zero(record.CodeLenght)]));
      cells.set_cell(row, BarcodeColumn::price_check, label_of(yes_no_[second_unless_zero(record.PriceCheckDigit)]));
      cells.set_cell(row, BarcodeColumn::news_paper, label_of(yes_no_[second_unless_zero(record.NewsPaper)]));
    }
    cells.refreshed();
  });
}

void FrmInstoreBarcodeSetting::Carica_IBS(int rule) {
  guarded("FrmInstoreBarcodeSetting Carica_IBS: ", [&] {
    const InstoreBarcodeRecord& record = record_at(PrgMode.InstoreBarcode, rule);
    Cmb_CodeLenght->show_number(second_unless_zero(record.CodeLenght));
    Cmb_PriceCheckDigit->show_number(second_unless_zero(record.PriceCheckDigit));
    Cmb_DigitsOfPrice->show_text(QString::number(record.DigitsOfPrice));
    Cmb_DigitsOfFlag->show_text(QString::number(record.DigitsOfFlag));
    Cmb_NumberOfFc->show_text(QString::number(record.NumberOfFc));
    Cmb_NewsPaper->show_number(second_unless_zero(record.NewsPaper));
    E_FlagCode->show_stored(shown_flag_code(record));
  });
}

void FrmInstoreBarcodeSetting::save() {
  const int rule = Cmb_InstoreBarcodeSettingNumber->whole_number();
  InstoreBarcodeRecord& record = record_at(PrgMode.InstoreBarcode, rule);
  record.CodeLenght = Cmb_CodeLenght->number();
  record.PriceCheckDigit = Cmb_PriceCheckDigit->number();
  // They were read from a byte, or picked.
  record.DigitsOfFlag = static_cast<std::uint8_t>(Cmb_DigitsOfFlag->whole_number());
  record.DigitsOfPrice = static_cast<std::uint8_t>(Cmb_DigitsOfPrice->whole_number());
  record.NumberOfFc = static_cast<std::uint8_t>(Cmb_NumberOfFc->whole_number());
  record.NewsPaper = Cmb_NewsPaper->number();
  store_digits(*E_FlagCode, record.FlagCode);
  frame_.write_file();
  Carica_Griglia();
  table_.go_to(table_.following_number(rule - 1));
}

}  // namespace ecr
