#include "editors/program/frm_department_program.h"

#include <utility>

#include <QGridLayout>

#include "core/amount_text.h"
#include "core/codecs.h"
#include "core/global.h"
#include "core/register_text.h"
#include "core/run_log.h"
#include "editors/program/number_texts.h"
#include "editors/program/shared_choices.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int departments = 99;
constexpr int department_name_width = 12;
constexpr int group_ten_stored = 16;
constexpr int group_ten = 10;

// Columns of the grid.
struct DepartmentColumn {
  enum : int { number, name, status1, status2, group, tax, take_out_tax, limit, price, columns };
};

int halo_of(const DeptRecord& record) {
  return record.Status1 >> 4;
}
int price_type_of(const DeptRecord& record) {
  return record.Status2 & 3;
}
int shown_group(const DeptRecord& record) {
  return record.Group == group_ten_stored ? group_ten : record.Group;
}

QString shown_name(const DeptRecord& record) {
  return field_text(sostituzione_from_ecr(record.Name.view()));
}

QString shown_price(const DeptRecord& record) {
  return screen_text(Amount_Text(bcds_to_number(record.Price), Global::DecimalPoint));
}

/// Sets a cell to the label of a choice; a value that no choice has leaves the cell as it stood.
void set_label(RecordModel& cells, int row, int column, const QStringList& choices, int value) {
  if (value < choices.size()) cells.set_cell(row, column, label_of(choices[value]));
}

}  // namespace

FrmDepartmentProgram::FrmDepartmentProgram()
    : Screen{QStringLiteral("FrmDepartmentProgram")},
      frame_{*this, ScreenFrame::Corner::none},
      Cmb_DepartmentNumber{new NumberList{QStringLiteral("Cmb_DepartmentNumber"), departments, this}},
      Fg_Department{new RecordGrid{QStringLiteral("Fg_Department"), this}},
      table_{*Cmb_DepartmentNumber, *Fg_Department, [this](int n) { Carica_Department(n); }},
      E_DeptName{new Field{QStringLiteral("E_DeptName"), this}},
      Cmb_Status1{new ChoiceList{QStringLiteral("Cmb_Status1"), this}},
      Cmb_Status2{new ChoiceList{QStringLiteral("Cmb_Status2"), this}},
      Cmb_Halo{new ChoiceList{QStringLiteral("Cmb_Halo"), this}},
      Cmb_PriceType{new ChoiceList{QStringLiteral("Cmb_PriceType"), this}},
      E_DeptGroupNumber{new Field{QStringLiteral("E_DeptGroupNumber"), this}},
      Cmb_Tax{new ChoiceList{QStringLiteral("Cmb_Tax"), this}},
      Cmb_TakeOutTax{new ChoiceList{QStringLiteral("Cmb_TakeOutTax"), this}},
      E_Price{new Field{QStringLiteral("E_Price"), this}} {
  lay_out();
  wire();
}

void FrmDepartmentProgram::lay_out() {
  frame_.captions.add(*this, Key::FRM_DEPARTMENT_PROGRAM_TITLE, "Department Program");
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(1, 3);
  grid->setColumnStretch(4, 3);

  const auto place = [&](int row, int side, const char* label_name, Key key, const char* built_in, QWidget* control) {
    QLabel* label = make_label(QString::fromLatin1(label_name), this, control);
    frame_.captions.add(*label, key, built_in);
    grid->addWidget(label, row, side * 3);
    grid->addWidget(control, row, side * 3 + 1);
  };
  const auto hint = [&](int row, int side, const char* label_name, Key key, const char* built_in) {
    QLabel* label = make_label(QString::fromLatin1(label_name), this);
    make_hint(*label);
    frame_.captions.add(*label, key, built_in);
    grid->addWidget(label, row, side * 3 + 2);
  };
  place(0, 0, "L_DepartmentNumber", Key::FRM_DEPARTMENT_PROGRAM_L_DEPARTMENT_NUMBER,
        "Department Number:", Cmb_DepartmentNumber);
  place(1, 0, "L_DeptName", Key::FRM_DEPARTMENT_PROGRAM_L_DEPT_NAME, "Department Name:", E_DeptName);
  place(2, 0, "L_Price", Key::FRM_DEPARTMENT_PROGRAM_L_PRICE, "Price :", E_Price);
  hint(2, 0, "L_PriceMax", Key::FRM_DEPARTMENT_PROGRAM_L_PRICE_MAX, "(Max Value 9999999)");
  place(3, 0, "L_PriceType", Key::FRM_DEPT_PRICE_TYPE_MSG, "Price Type", Cmb_PriceType);
  place(4, 0, "L_DeptGroupNumber", Key::FRM_DEPARTMENT_PROGRAM_L_DEPT_GROUP_NUMBER, "Dept Group Number",
        E_DeptGroupNumber);
  hint(4, 0, "L_DeptGroupMax", Key::FRM_DEPARTMENT_PROGRAM_L_DEPT_GROUP_MAX, "(Max Value 10)");
  place(0, 1, "L_Tax", Key::FRM_DEPARTMENT_PROGRAM_L_TAX, "TAX", Cmb_Tax);
  place(1, 1, "L_TakeOutTax", Key::FRM_DEPARTMENT_PROGRAM_L_TAKE_OUT_TAX, "Take Out Tax", Cmb_TakeOutTax);
  place(2, 1, "L_Status1", Key::FRM_DEPARTMENT_PROGRAM_L_STATUS1, "Status 1", Cmb_Status1);
  place(3, 1, "L_Status2", Key::FRM_DEPARTMENT_PROGRAM_L_STATUS2, "Status 2", Cmb_Status2);
  place(4, 1, "L_Halo", Key::FRM_DEPARTMENT_PROGRAM_L_HALO, "HDLO", Cmb_Halo);

  frame_.body->addLayout(grid);
  frame_.body->addWidget(Fg_Department, 1);
  E_Price->setAlignment(Qt::AlignRight);
  E_DeptGroupNumber->setAlignment(Qt::AlignRight);

  // Down the left side, then down the right one.
  set_tab_chain({Cmb_DepartmentNumber, E_DeptName, E_Price, Cmb_PriceType, E_DeptGroupNumber, Cmb_Tax, Cmb_TakeOutTax,
                 Cmb_Status1, Cmb_Status2, Cmb_Halo, frame_.C_Salva, frame_.C_Invia_Ecr, frame_.C_Annulla,
                 Fg_Department, frame_.top.I_Help});
}

void FrmDepartmentProgram::wire() {
  make_name_field(*E_DeptName, department_name_width);
  E_DeptName->on_change([this] {
    if (E_DeptName->text() != shown_name(record_shown())) mark_changed();
  });

  NumberRules price_rules = amount_rules(Decimal{9999999});
  price_rules.changed = [this] {
    // The display form is compared: entering the field with a price in it marks the record already.
    if (!E_Price->text().isEmpty() && E_Price->text() != shown_price(record_shown())) mark_changed();
  };
  make_number_field(*E_Price, std::move(price_rules));

  E_DeptGroupNumber->let_in(Field::Keys::digits);
  E_DeptGroupNumber->on_entered([this] {
    if (value_of(E_DeptGroupNumber->text()).is_zero()) E_DeptGroupNumber->clear();
  });
  E_DeptGroupNumber->on_change([this] { group_changed(); });

  compare(Cmb_Status1, [](const DeptRecord& record) { return byte_bit_tst(record.Status1, 0) ? 1 : 0; });
  compare(Cmb_Status2, [](const DeptRecord& record) { return byte_bit_tst(record.Status1, 1) ? 1 : 0; });
  compare(Cmb_Halo, halo_of);
  compare(Cmb_Tax, [](const DeptRecord& record) -> int { return record.Tax; });
  compare(Cmb_TakeOutTax, [](const DeptRecord& record) -> int { return record.TakeOutTax; });
  compare(Cmb_PriceType, price_type_of);

  frame_.log_prefixes("FrmDepartmentProgram form_load: ", "FrmDepartmentProgram Salva: ");
  frame_.on_save([this] { save(); });
}

void FrmDepartmentProgram::load() {
  frame_.load([this] {
    frame_.top.L_Titolo->setText(windowTitle());
    Fg_Department->setAccessibleName(windowTitle());
    carica_messaggi();
    Carica_Griglia();
    Fg_Department->fit_columns(DepartmentColumn::name);
    Cmb_Status1->fill(choices_.status1);
    Cmb_Status2->fill(choices_.status2);
    Cmb_Halo->fill(choices_.halo);
    Cmb_PriceType->fill(choices_.price_type);
    Cmb_Tax->fill(choices_.tax);
    Cmb_TakeOutTax->fill(choices_.tax);
    Cmb_DepartmentNumber->show_number(1);
    E_DeptGroupNumber->show_text(QStringLiteral("0"));
    E_Price->show_text(QStringLiteral("0"));
    table_.load_record(1);
    changed_.reset();
  });
}

void FrmDepartmentProgram::carica_messaggi() {
  choices_.status1 = {choice(0, Key::FRM_ALL_POSITIVE, "0. POSITIVE"), choice(1, Key::FRM_ALL_NEGATIVE, "1. NEGATIVE")};
  choices_.status2 = {choice(0, Key::FRM_ALL_NORMAL, "0. NORMAL"), choice(1, Key::FRM_ALL_SINGLE, "1. SINGLE")};
  choices_.halo = limit_choices();
  // Each of the first two asks whether the other one has a text.
  choices_.price_type = {crossed_choice(0, Key::FRM_ALL_OPEN, Key::FRM_ALL_NORMAL, "0. OPEN"),
                         crossed_choice(1, Key::FRM_ALL_NORMAL, Key::FRM_ALL_OPEN, "1. NORMAL"),
                         choice(2, Key::FRM_ALL_PRESET, "2. PRESET")};
  choices_.tax = tax_choices();
  Fg_Department->cells().resize(departments, DepartmentColumn::columns);
  Fg_Department->cells().align_right({DepartmentColumn::number, DepartmentColumn::group, DepartmentColumn::price});
  Fg_Department->cells().set_headings(
      {caption_text(Key::FRM_DEPT_COL_DEPT_MSG, "Dept"), caption_text(Key::FRM_DEPT_COL_NAME_MSG, "Name"),
       caption_text(Key::FRM_DEPT_COL_STATUS1_MSG, "Status 1"), caption_text(Key::FRM_DEPT_COL_STATUS2_MSG, "Status 2"),
       caption_text(Key::FRM_DEPT_COL_DEPT_GROUP_NUMBER_MSG, "Group"), caption_text(Key::FRM_DEPT_COL_TAX_MSG, "Tax"),
       caption_text(Key::FRM_DEPT_COL_TAKEOUTTAX_MSG, "Take Out Tax"), caption_text(Key::FRM_DEPT_COL_HDLO_MSG, "HDLO"),
       caption_text(Key::FRM_DEPT_COL_PRICE_MSG, "Price")});
}

void FrmDepartmentProgram::Carica_Griglia() {
  guarded("FrmDepartmentProgram Carica_Griglia: ", [this] {
    Cmb_DepartmentNumber->fill();
    RecordModel& cells = Fg_Department->cells();
    for (int row = 1; row <= departments; ++row) {
      const DeptRecord& record = PrgMode.Dept[static_cast<std::size_t>(row - 1)];
      cells.set_cell(row, DepartmentColumn::number, QString::number(row));
      cells.set_cell(row, DepartmentColumn::name, shown_name(record));
      set_label(cells, row, DepartmentColumn::status1, choices_.status1, byte_bit_tst(record.Status1, 0) ? 1 : 0);
      set_label(cells, row, DepartmentColumn::status2, choices_.status2, byte_bit_tst(record.Status1, 1) ? 1 : 0);
      cells.set_cell(row, DepartmentColumn::group, QString::number(shown_group(record)));
      set_label(cells, row, DepartmentColumn::tax, choices_.tax, record.Tax);
      set_label(cells, row, DepartmentColumn::take_out_tax, choices_.tax, record.TakeOutTax);
      set_label(cells, row, DepartmentColumn::limit, choices_.halo, halo_of(record));
      cells.set_cell(row, DepartmentColumn::price, shown_price(record));
    }
    cells.refreshed();
  });
}

void FrmDepartmentProgram::Carica_Department(int department) {
  guarded("FrmDepartmentProgram Carica_Department: ", [&] {
    if (department < 1 || department > departments) throw FaultError{FaultCode::out_of_range};
    const DeptRecord& record = PrgMode.Dept[static_cast<std::size_t>(department - 1)];
    E_DeptName->show_text(shown_name(record));
    Cmb_Status1->show_number(byte_bit_tst(record.Status1, 0) ? 1 : 0);
    Cmb_Status2->show_number(byte_bit_tst(record.Status1, 1) ? 1 : 0);
    // A value that a list does not have leaves it as it stands, here and below.
    Cmb_Halo->show_number(halo_of(record));
    const QString group_text = QString::number(shown_group(record));
    const bool stands_already = E_DeptGroupNumber->text() == group_text;
    E_DeptGroupNumber->show_text(group_text);
    // A department of group 10 counts as changed whenever it is loaded, also behind another one of that group.
    if (stands_already) group_changed();
    Cmb_Tax->show_number(record.Tax);
    Cmb_TakeOutTax->show_number(record.TakeOutTax);
    E_Price->show_stored(shown_price(record));
    Cmb_PriceType->show_number(price_type_of(record));
  });
}

void FrmDepartmentProgram::group_changed() {
  const Decimal value = value_of(E_DeptGroupNumber->text());
  if (value == Decimal{group_ten_stored}) {
    // The same group, as the register stores it.
    E_DeptGroupNumber->show_text(QString::number(group_ten));
  } else if (value.is_negative() || value > Decimal{group_ten}) {
    refuse_value(*E_DeptGroupNumber);
  }
  const QString text = E_DeptGroupNumber->text();
  if (!text.isEmpty() && value_of(text) != Decimal{record_shown().Group}) mark_changed();
}

void FrmDepartmentProgram::save() {
  const int index = Cmb_DepartmentNumber->number() - 1;
  DeptRecord& record = record_shown();
  record.Name.set(sostituzione_to_ecr(codes_of(E_DeptName->text())));
  byte_bit_change(record.Status1, 0, Cmb_Status1->number() > 0);
  byte_bit_change(record.Status1, 1, Cmb_Status2->number() > 0);
  byte_bit_change(record.Status1, 3, true);
  for (std::uint8_t bit = 0; bit < 4; ++bit) {
    byte_bit_change(record.Status1, static_cast<std::uint8_t>(bit + 4), byte_bit_tst(Cmb_Halo->number(), bit));
  }
  byte_bit_change(record.Status2, 0, byte_bit_tst(Cmb_PriceType->number(), 0));
  byte_bit_change(record.Status2, 1, byte_bit_tst(Cmb_PriceType->number(), 1));
  const std::int64_t typed_group = leading_number(page_bytes(E_DeptGroupNumber->text()));
  record.Group = static_cast<std::uint8_t>(typed_group == group_ten ? group_ten_stored : typed_group);
  record.Tax = Cmb_Tax->number();
  record.TakeOutTax = Cmb_TakeOutTax->number();
  const Decimal price = amount_in(*E_Price);
  if (!E_Price->is_unread()) number_to_bcds(record.Price, price);
  const auto department = static_cast<std::size_t>(index + 1);
  record.Changed = changed_.test(department) ? 1 : 0;
  changed_.reset(department);
  frame_.write_file();
  Carica_Griglia();
  table_.go_to(table_.following_number(index));
}

DeptRecord& FrmDepartmentProgram::record_shown() const {
  const int department = Cmb_DepartmentNumber->number();
  if (department < 1 || department > departments) throw FaultError{FaultCode::out_of_range};
  return PrgMode.Dept[static_cast<std::size_t>(department - 1)];
}

void FrmDepartmentProgram::mark_changed() {
  changed_.set(static_cast<std::size_t>(Cmb_DepartmentNumber->number()));
}

void FrmDepartmentProgram::compare(ChoiceList* list, std::function<int(const DeptRecord&)> stored) {
  list->on_click([this, list, stored = std::move(stored)] {
    guarded(page_bytes(objectName() + u' ' + list->objectName()) + ": ", [&] {
      if (list->number() != stored(record_shown())) mark_changed();
    });
  });
}

}  // namespace ecr
