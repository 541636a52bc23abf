#include "editors/program/frm_clerk_system_program.h"

#include <cstddef>
#include <utility>

#include <QHBoxLayout>

#include "core/codecs.h"
#include "core/model.h"
#include "core/register_text.h"
#include "core/run_log.h"
#include "core/text.h"
#include "editors/form_grid.h"
#include "editors/program/number_texts.h"
#include "editors/program/record_at.h"
#include "editors/store_field.h"
#include "image/prg_mode.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int clerks = 15;
constexpr int clerk_name_width = 24;
constexpr int password_digits = 3;

// A bit that is set forbids.
constexpr Choice permissions[] = {{.digit = 0, .literal = "0. ENABLE", .text = Key::FRM_ALL_ENABLE},
                                  {.digit = 1, .literal = "1. DISABLE", .text = Key::FRM_ALL_DISABLE}};
constexpr Choice modes[] = {
    {.digit = 0, .literal = "0. NORMAL", .text = Key::FRM_CLERK_SYSTEM_PROGRAM_CMB_MODE_0_MSG},
    {.digit = 1, .literal = "1. TRAINING", .text = Key::FRM_CLERK_SYSTEM_PROGRAM_CMB_MODE_1_MSG}};

// Places count from the clerk's record; the rows stand in the order of their bits.
constexpr std::size_t rights = offsetof(ClerkRecord, Rights);
constexpr OptionRow clerk_rights[] = {
    {.control = "Cmb_Void",
     .label = "L_Void",
     .key = Key::FRM_CLERK_SYSTEM_PROGRAM_L_VOID,
     .caption = "Void",
     .choices = permissions,
     .place = bit_at(rights, 0)},
    {.control = "Cmb_Refund",
     .label = "L_Refund",
     .key = Key::FRM_CLERK_SYSTEM_PROGRAM_L_REFUND,
     .caption = "Refund",
     .choices = permissions,
     .place = bit_at(rights, 1)},
    {.control = "Cmb_Discount",
     .label = "L_Discount",
     .key = Key::FRM_CLERK_SYSTEM_PROGRAM_L_DISCOUNT,
     .caption = "Discount",
     .choices = permissions,
     .place = bit_at(rights, 2)},
    {.control = "Cmb_PaidOut",
     .label = "L_PaidOut",
     .key = Key::FRM_CLERK_SYSTEM_PROGRAM_L_PAID_OUT,
     .caption = "Paid Out",
     .choices = permissions,
     .place = bit_at(rights, 3)},
    {.control = "Cmb_NegativeDeptPlu",
     .label = "L_NegativeDeptPlu",
     .key = Key::FRM_CLERK_SYSTEM_PROGRAM_L_NEGATIVE_DEPT_PLU,
     .caption = "Negative Dept && PLU",
     .choices = permissions,
     .place = bit_at(rights, 4)},
    {.control = "Cmb_Coupon",
     .label = "L_Coupon",
     .key = Key::FRM_CLERK_SYSTEM_PROGRAM_L_COUPON,
     .caption = "Coupon",
     .choices = permissions,
     .place = bit_at(rights, 5)},
    {.control = "Cmb_ExtraInvoice",
     .label = "L_ExtraInvoice",
     .key = Key::FRM_CLERK_SYSTEM_PROGRAM_L_EXTRA_INVOICE,
     .caption = "Extra Invoice",
     .choices = permissions,
     .place = bit_at(rights, 6),
     .models = Models::z320_only},
    {.control = "Cmb_Mode",
     .label = "L_Mode",
     .key = Key::FRM_CLERK_SYSTEM_PROGRAM_L_MODE,
     .caption = "Mode",
     .choices = modes,
     .place = bit_at(rights, 7)},
};
static_assert(sound(clerk_rights, sizeof(ClerkRecord)));
static_assert(owned_bits(clerk_rights, rights) == 0xFF);

// Columns of the grid.
struct ClerkColumn {
  enum : int {
    number,
    name,
    password,
    void_sale,
    refund,
    discount,
    coupon,
    extra_invoice,
    paid_out,
    negative,
    mode,
    columns
  };
};
// The columns that show a right, with its row above.
constexpr std::pair<int, std::size_t> right_columns[] = {
    {ClerkColumn::void_sale, 0}, {ClerkColumn::refund, 1},   {ClerkColumn::discount, 2},      {ClerkColumn::coupon, 5},
    {ClerkColumn::paid_out, 3},  {ClerkColumn::negative, 4}, {ClerkColumn::extra_invoice, 6}, {ClerkColumn::mode, 7}};

std::size_t place_of(int clerk) {
  return offsetof(PrgModeImage, Clerk) + sizeof(ClerkRecord) * static_cast<std::size_t>(clerk - 1);
}

QString shown_name(const ClerkRecord& record) {
  return field_text(sostituzione_from_ecr(trim_end(record.Name.view())));
}

QString shown_password(const ClerkRecord& record) {
  return with_zeros(screen_text(bcds_to_number(record.Password)), password_digits);
}

}  // namespace

FrmClerkSystemProgram::FrmClerkSystemProgram()
    : Screen{QStringLiteral("FrmClerkSystemProgram")},
      frame_{*this, ScreenFrame::Corner::none},
      Cmb_ClerkNumber{new ChoiceList{QStringLiteral("Cmb_ClerkNumber"), this}},
      Fg_Clerk{new RecordGrid{QStringLiteral("Fg_Clerk"), this}},
      table_{*Cmb_ClerkNumber, clerks, *Fg_Clerk, [this](int clerk) { Carica_Clerk(clerk); }},
      E_Name{new Field{QStringLiteral("E_Name"), this}},
      E_Password{new Field{QStringLiteral("E_Password"), this}},
      rights_{*this, frame_.captions, clerk_rights} {
  lay_out();
  wire();
}

void FrmClerkSystemProgram::lay_out() {
  frame_.captions.add(*this, Key::FRM_CLERK_SYSTEM_PROGRAM_TITLE, "Program Clerk System");
  FormGrid form{*this, frame_.captions};
  form.place(0, 0, QStringLiteral("L_ClerkNumber"), Key::FRM_CLERK_SYSTEM_PROGRAM_L_CLERK_NUMBER,
             "Clerk Number:", Cmb_ClerkNumber);
  form.place(1, 0, QStringLiteral("L_DeptName"), Key::FRM_CLERK_SYSTEM_PROGRAM_L_DEPT_NAME, "Clerk Name:", E_Name);
  QGridLayout& grid = *form.layout();
  // The note shares the field's place: a column of its own would leave the longest words no room in a narrow window.
  QLabel* password = make_label(QStringLiteral("L_Password"), this, E_Password);
  frame_.captions.add(*password, Key::FRM_CLERK_SYSTEM_PROGRAM_L_PASSWORD, "Password:");
  QLabel* most = make_label(QStringLiteral("L_PswMax"), this);
  make_hint(*most);
  frame_.captions.add(*most, Key::FRM_CLERK_SYSTEM_PROGRAM_L_PSW_MAX, "(Max 999)");
  auto* password_line = new QHBoxLayout;
  password_line->setSpacing(8);
  password_line->addWidget(E_Password, 1);
  password_line->addWidget(most);
  grid.addWidget(password, 2, 0);
  grid.addLayout(password_line, 2, 1);
  // Clerk and mode at the left, what the clerk may do beside them. The one that a Z300 lacks stands last.
  const auto put = [&](int line, int column, std::string_view control) {
    grid.addWidget(rights_.label(control), line, column);
    grid.addWidget(rights_.list(control), line, column + 1);
  };
  put(3, 0, "Cmb_Mode");
  put(0, 3, "Cmb_Void");
  put(1, 3, "Cmb_Refund");
  put(2, 3, "Cmb_Discount");
  put(3, 3, "Cmb_PaidOut");
  put(0, 6, "Cmb_NegativeDeptPlu");
  put(1, 6, "Cmb_Coupon");
  put(2, 6, "Cmb_ExtraInvoice");
  for (const int column : {2, 5}) grid.setColumnMinimumWidth(column, 4);
  for (const int column : {1, 4, 7}) grid.setColumnStretch(column, 3);
  E_Password->setAlignment(Qt::AlignRight);
  frame_.body->addLayout(&grid);
  frame_.body->addWidget(Fg_Clerk, 1);
  set_tab_chain({Cmb_ClerkNumber, E_Name, E_Password, rights_.list("Cmb_Mode"), rights_.list("Cmb_Void"),
                 rights_.list("Cmb_Refund"), rights_.list("Cmb_Discount"), rights_.list("Cmb_PaidOut"),
                 rights_.list("Cmb_NegativeDeptPlu"), rights_.list("Cmb_Coupon"), rights_.list("Cmb_ExtraInvoice"),
                 frame_.C_Salva, frame_.C_Invia_Ecr, frame_.C_Annulla, Fg_Clerk, frame_.top.I_Help});
}

void FrmClerkSystemProgram::wire() {
  make_name_field(*E_Name, clerk_name_width);
  make_whole_number_field(*E_Password, 999);
  E_Password->on_left(
      [this] { E_Password->show_text((QStringLiteral("000") + E_Password->text()).right(password_digits)); });
  frame_.log_prefixes("FrmClerkSystemProgram Form_Load: ", "FrmClerkSystemProgram Salva: ");
  frame_.on_save([this] { save(); });
}

void FrmClerkSystemProgram::load() {
  frame_.load([this] {
    frame_.top.L_Titolo->setText(windowTitle());
    Fg_Clerk->setAccessibleName(windowTitle());
    carica_messaggi();
    Carica_Griglia();
    Fg_Clerk->fit_columns(ClerkColumn::name);
    rights_.load();
    table_.go_to(1);
  });
}

void FrmClerkSystemProgram::carica_messaggi() {
  RecordModel& cells = Fg_Clerk->cells();
  cells.resize(clerks, ClerkColumn::columns);
  cells.align_right({ClerkColumn::number, ClerkColumn::password});
  cells.set_headings({caption_text(Key::FRM_CLERK_SYSTEM_COL_TITOLO_MSG, "Clerk"),
                      caption_text(Key::FRM_CLERK_SYSTEM_COL_NAME_MSG, "Name"),
                      caption_text(Key::FRM_CLERK_SYSTEM_COL_PASSWORD_MSG, "Pdw"),
                      caption_text(Key::FRM_CLERK_SYSTEM_COL_VOID_MSG, "Void"),
                      caption_text(Key::FRM_CLERK_SYSTEM_COL_REFUND_MSG, "Refund"),
                      caption_text(Key::FRM_CLERK_SYSTEM_COL_DISCOUNT_MSG, "Discount"),
                      caption_text(Key::FRM_CLERK_SYSTEM_COL_COUPON_MSG, "Coupon"),
                      chosen_model().has_extra_invoice ? QStringLiteral("E.Invoice") : QString{},
                      QStringLiteral("Paid Out"), QStringLiteral("N. Dep&PLU"), QStringLiteral("Mode")});
  Fg_Clerk->setColumnHidden(ClerkColumn::extra_invoice, !chosen_model().has_extra_invoice);
}

void FrmClerkSystemProgram::Carica_Griglia() {
  guarded("FrmClerkSystemProgram Carica_Griglia: ", [this] {
    Cmb_ClerkNumber->fill(bare_numbers(1, clerks));
    const QStringList permission_entries = entries_of(permissions);
    const QStringList mode_entries = entries_of(modes);
    RecordModel& cells = Fg_Clerk->cells();
    for (int clerk = 1; clerk <= clerks; ++clerk) {
      const ClerkRecord& record = record_at(PrgMode.Clerk, clerk);
      cells.set_cell(clerk, ClerkColumn::number, QString::number(clerk));
      cells.set_cell(clerk, ClerkColumn::name, shown_name(record));
      cells.set_cell(clerk, ClerkColumn::password, shown_password(record));
      for (const auto& [column, row] : right_columns) {
        const QStringList& entries = column == ClerkColumn::mode ? mode_entries : permission_entries;
        const int entry = byte_bit_tst(record.Rights, clerk_rights[row].place.bit) ? 1 : 0;
        cells.set_cell(clerk, column, label_of(entries[entry]));
      }
    }
    cells.refreshed();
  });
}

void FrmClerkSystemProgram::Carica_Clerk(int clerk) {
  guarded("FrmClerkSystemProgram Carica_Clerk: ", [&] {
    const ClerkRecord& record = record_at(PrgMode.Clerk, clerk);
    E_Name->show_text(shown_name(record));
    rights_.show(place_of(clerk));
    E_Password->show_stored(shown_password(record));
  });
}

void FrmClerkSystemProgram::save() {
  const int clerk = Cmb_ClerkNumber->whole_number();
  ClerkRecord& record = record_at(PrgMode.Clerk, clerk);
  record.Name.set(sostituzione_to_ecr(codes_of(E_Name->text())));
  rights_.save(place_of(clerk));
  store_digits(*E_Password, record.Password);
  frame_.write_file();
  Carica_Griglia();
  table_.go_to(table_.following_number(clerk - 1));
}

}  // namespace ecr
