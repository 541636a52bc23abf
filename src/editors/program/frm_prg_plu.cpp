#include "editors/program/frm_prg_plu.h"

#include <utility>

#include <QGridLayout>

#include "core/global.h"
#include "core/run_log.h"
#include "editors/program/shared_choices.h"
#include "link/transfer.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int code_width = 13;
constexpr int item_name_width = 16;

/// Bare numbers, from the first to the last.
QStringList numbers(int first, int last) {
  QStringList entries;
  for (int number = first; number <= last; ++number) entries.append(QString::number(number));
  return entries;
}

QString trimmed(const QString& text) {
  qsizetype start = 0;
  while (start < text.size() && text[start] == u' ') ++start;
  return trim_end(text.mid(start));
}

}  // namespace

FrmPrgPlu::FrmPrgPlu()
    : Screen{QStringLiteral("FrmPrgPlu")},
      frame_{*this, ScreenFrame::Corner::none},
      Cmb_PluNumber{new NumberList{QStringLiteral("Cmb_PluNumber"), Global::MaxPlu, this}},
      Fg_Plu{new RecordGrid{QStringLiteral("Fg_Plu"), this}},
      grid_{*Fg_Plu},
      table_{*Cmb_PluNumber, *Fg_Plu, [this](int n) { Carica_Plu(n); }},
      E_FreeCode{new Field{QStringLiteral("E_FreeCode"), this}},
      E_Name{new Field{QStringLiteral("E_Name"), this}},
      E_Price1{new Field{QStringLiteral("E_Price1"), this}},
      E_Price2{new Field{QStringLiteral("E_Price2"), this}},
      E_StockCount{new Field{QStringLiteral("E_StockCount"), this}},
      Cmb_Status{new ChoiceList{QStringLiteral("Cmb_Status"), this}},
      Cmb_LinkDept{new ChoiceList{QStringLiteral("Cmb_LinkDept"), this}},
      Cmb_Tax{new ChoiceList{QStringLiteral("Cmb_Tax"), this, ChoiceList::Typing::finds_entries}},
      Cmb_TakeOutTax{new ChoiceList{QStringLiteral("Cmb_TakeOutTax"), this}},
      Cmb_PluListLink{new ChoiceList{QStringLiteral("Cmb_PluListLink"), this}},
      Cmb_StockUsed{new ChoiceList{QStringLiteral("Cmb_StockUsed"), this, ChoiceList::Typing::finds_entries}},
      C_Erase{new CommandButton{QStringLiteral("C_Erase"), this}},
      C_Import{new CommandButton{QStringLiteral("C_Import"), this}},
      C_Export{new CommandButton{QStringLiteral("C_Export"), this}} {
  lay_out();
  wire();
}

void FrmPrgPlu::lay_out() {
  frame_.captions.add(*this, Key::FRM_PRG_PLU_TITLE, "Program PLUs");
  frame_.captions.add(*C_Erase, Key::FRM_PRG_PLU_C_ERASE, "Erase PLU");
  frame_.captions.add(*C_Import, Key::FRM_PRG_PLU_C_IMPORT, "Import");
  frame_.captions.add(*C_Export, Key::FRM_PRG_PLU_C_EXPORT, "Export");
  auto* fields = new QGridLayout;
  lay_out_fields(*fields);
  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(8);
  for (CommandButton* button : {C_Erase, C_Import, C_Export}) buttons->addWidget(button);
  buttons->addStretch(1);
  auto* top = new QHBoxLayout;
  top->setSpacing(20);
  top->addLayout(fields, 1);
  top->addLayout(buttons);
  frame_.body->addLayout(top);
  frame_.body->addWidget(Fg_Plu, 1);

  // Down the left side, then down the right one.
  set_tab_chain({Cmb_PluNumber,   E_FreeCode,         E_Name,           E_Price1, E_Price2,
                 E_StockCount,    Cmb_Status,         Cmb_LinkDept,     Cmb_Tax,  Cmb_TakeOutTax,
                 Cmb_PluListLink, Cmb_StockUsed,      frame_.C_Salva,   C_Erase,  C_Import,
                 C_Export,        frame_.C_Invia_Ecr, frame_.C_Annulla, Fg_Plu,   frame_.top.I_Help});
}

void FrmPrgPlu::lay_out_fields(QGridLayout& grid) {
  grid.setHorizontalSpacing(12);
  grid.setVerticalSpacing(8);
  grid.setColumnStretch(1, 3);
  grid.setColumnStretch(4, 3);
  const auto place = [&](int row, int side, const char* label_name, Key key, const char* built_in, QWidget* control) {
    QLabel* label = make_label(QString::fromLatin1(label_name), this, control);
    frame_.captions.add(*label, key, built_in);
    grid.addWidget(label, row, side * 3);
    grid.addWidget(control, row, side * 3 + 1);
  };
  place(0, 0, "L_PluNumber", Key::FRM_PRG_PLU_L_PLU_NUMBER, "Number:", Cmb_PluNumber);
  place(1, 0, "L_FreeCode", Key::FRM_PRG_PLU_L_FREECODE, "PLU :", E_FreeCode);
  place(2, 0, "L_Name", Key::FRM_PRG_PLU_L_NAME, "PLU Name:", E_Name);
  place(3, 0, "L_Price1", Key::FRM_PRG_PLU_L_PRICE1, "Price 1", E_Price1);
  place(4, 0, "L_Price2", Key::FRM_PRG_PLU_L_PRICE2, "Price 2", E_Price2);
  place(5, 0, "L_StockCount", Key::FRM_PRG_PLU_L_STOCK_COUNT, "Stock Count", E_StockCount);
  place(0, 1, "L_Status", Key::FRM_PRG_PLU_L_STATUS, "Type", Cmb_Status);
  place(1, 1, "L_LinkDept", Key::FRM_PRG_PLU_L_LINK_DEPT, "Link Dept:", Cmb_LinkDept);
  place(2, 1, "L_Tax", Key::FRM_PRG_PLU_L_TAX, "TAX", Cmb_Tax);
  place(3, 1, "L_TakeOutTax", Key::FRM_PRG_PLU_L_TAKE_OUT_TAX, "Take Out Tax", Cmb_TakeOutTax);
  place(4, 1, "L_PluListLink", Key::FRM_PRG_PLU_PLU_LIST_LINK, "PLU list Link:", Cmb_PluListLink);
  place(5, 1, "L_StockUsed", Key::FRM_PRG_PLU_L_STOCK_USED, "Stock USED:", Cmb_StockUsed);
  QLabel* most = make_label(QStringLiteral("L_PriceMax"), this);
  make_hint(*most);
  frame_.captions.add(*most, Key::MSG_MAX_9999999999999, "(Max Value 9999999999999)");
  grid.addWidget(most, 1, 2);
  for (Field* field : {E_FreeCode, E_Price1, E_Price2, E_StockCount}) field->setAlignment(Qt::AlignRight);
}

void FrmPrgPlu::wire() {
  wire_fields();
  compare(Cmb_Status, [this](const PluRecord& record) { return Cmb_Status->number() != type_of(record); });
  compare(Cmb_LinkDept, [this](const PluRecord& record) {
    return link_dept_of(page_bytes(Cmb_LinkDept->text())) != record.LinkDept;
  });
  compare(Cmb_Tax, [this](const PluRecord& record) { return Cmb_Tax->number() != record.Tax; });
  compare(Cmb_TakeOutTax, [this](const PluRecord& record) { return Cmb_TakeOutTax->number() != record.TakeOutTax; });
  Cmb_PluListLink->on_click([this] { guarded("FrmPrgPlu Cmb_PluListLink: ", [this] { list_link_picked(); }); });
  // Cmb_StockUsed has no handler: a change of it alone marks no record.

  C_Erase->on_click([this] { Azzera_Plu(); });
  C_Import->on_click([this] { import_file(); });
  C_Export->on_click([this] { export_file(); });
  frame_.log_prefixes("FrmPrgPlu form_load: ", "FrmPrgPlu Salva: ");
  frame_.saves_to(SavesTo::item_file);
  frame_.on_save([this] { save(); });
  frame_.send_with(Send_PrgPluToEcr, EditorFrame::WhileSending::buttons_disabled);
}

void FrmPrgPlu::wire_fields() {
  E_FreeCode->let_in(Field::Keys::digits);
  E_FreeCode->on_change([this] {
    if (value_of(E_FreeCode->text()) > Decimal{9'999'999'999'999}) refuse_value(*E_FreeCode);
    const QString text = E_FreeCode->text();
    if (!text.isEmpty() && text != shown_code(record_shown())) mark_changed();
  });

  make_name_field(*E_Name, item_name_width);
  E_Name->on_change([this] {
    if (trimmed(E_Name->text()) != trimmed(shown_name(record_shown()))) mark_changed();
  });
  E_Name->on_left([this] { E_Name->show_text(E_Name->text().leftJustified(item_name_width)); });

  const auto wire_price = [this](Field* field, Bcd<4> PluRecord::*price) {
    NumberRules rules = amount_rules(Decimal{9'999'999});
    rules.enter_goes_to = frame_.C_Salva;
    rules.changed = [this, field, price] {
      // The display form is compared: entering the field with a price in it marks the record already.
      if (!field->text().isEmpty() && field->text() != shown_price(record_shown().*price)) mark_changed();
    };
    make_number_field(*field, std::move(rules));
  };
  wire_price(E_Price1, &PluRecord::Price1);
  wire_price(E_Price2, &PluRecord::Price2);

  E_StockCount->on_change([this] {
    if (E_StockCount->text() != shown_stock(record_shown())) mark_changed();
  });
}

void FrmPrgPlu::load() {
  frame_.load([this] {
    frame_.top.L_Titolo->setText(windowTitle());
    Fg_Plu->setAccessibleName(windowTitle());
    carica_messaggi();
    Carica_Griglia();
    grid_.fit_columns();
    Cmb_PluNumber->show_number(1);
    Cmb_LinkDept->fill(numbers(1, 99));
    E_Price1->show_text(QStringLiteral("0"));
    E_Price2->show_text(QStringLiteral("0"));
    E_FreeCode->setMaxLength(code_width);
    Cmb_PluListLink->fill(numbers(0, static_cast<int>(PrgPlu.Lists.size())));
    Cmb_StockUsed->fill({choice(0, Key::FRM_ALL_NO, "0. NOT USED"), choice(1, Key::FRM_ALL_YES, "1. USED")});
    table_.load_record(1);
    changed_.reset();
  });
}

void FrmPrgPlu::carica_messaggi() {
  const QStringList types = {choice(0, Key::FRM_PRG_PLU_CMB_STATUS_0_MSG, "0. OPEN"),
                             choice(1, Key::FRM_PRG_PLU_CMB_STATUS_1_MSG, "1. NORMAL"),
                             choice(2, Key::FRM_PRG_PLU_CMB_STATUS_2_MSG, "2. PRESET")};
  const QStringList taxes = tax_choices();
  Cmb_Status->fill(types);
  Cmb_Tax->fill(taxes);
  Cmb_TakeOutTax->fill(taxes);
  grid_.begin(
      {caption_text(Key::FRM_PRG_PLU_COL_N_MSG, ""), caption_text(Key::FRM_PRG_PLU_COL_FREECODE_MSG, "PLU #"),
       caption_text(Key::FRM_PRG_PLU_COL_NAME_MSG, "PLU Name"), caption_text(Key::FRM_PRG_PLU_COL_STATUS_MSG, "Status"),
       caption_text(Key::FRM_PRG_PLU_COL_LINK_DEPT_MSG, "Dept"), caption_text(Key::FRM_PRG_PLU_COL_TAX_MSG, "Tax"),
       caption_text(Key::FRM_PRG_PLU_COL_TAKE_OUT_TAX_MSG, "T.O.Tax"),
       caption_text(Key::FRM_PRG_PLU_COL_PRICE1_MSG, "Price 1"),
       caption_text(Key::FRM_PRG_PLU_COL_PRICE2_MSG, "Price 2"),
       // The same words as above the take-out tax, on purpose.
       caption_text(Key::FRM_PRG_PLU_COL_STOCK_MSG, "T.O.Tax")},
      types, taxes);
}

void FrmPrgPlu::Carica_Griglia() {
  guarded("FrmPrgPlu Carica_Griglia: ", [this] {
    Cmb_PluNumber->fill();
    grid_.fill();
  });
}

void FrmPrgPlu::compare(ChoiceList* list, std::function<bool(const PluRecord&)> differs) {
  list->on_click([this, list, differs = std::move(differs)] {
    guarded(page_bytes(objectName() + u' ' + list->objectName()) + ": ", [&] {
      if (differs(record_shown())) mark_changed();
    });
  });
}

PluRecord& FrmPrgPlu::record_shown() const {
  const int number = Cmb_PluNumber->number();
  if (number < 1 || number > Global::MaxPlu) throw FaultError{FaultCode::out_of_range};
  return PrgPlu.Row[static_cast<std::size_t>(number - 1)];
}

void FrmPrgPlu::mark_changed() {
  changed_.set(static_cast<std::size_t>(&record_shown() - PrgPlu.Row.data()));
}

}  // namespace ecr
