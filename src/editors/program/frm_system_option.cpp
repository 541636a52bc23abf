#include "editors/program/frm_system_option.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include <QGridLayout>
#include <QGroupBox>

#include "core/codecs.h"
#include "core/fault.h"
#include "editors/form_grid.h"
#include "editors/program/number_texts.h"
#include "editors/store_field.h"
#include "image/prg_mode.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr Choice decimal_positions[] = {
    {.digit = 0, .literal = "0. (ex x)", .text = Key::FRM_SYSTEM_OPTION_DECIMAL_POINT_POSITION_SETTING_0_MSG},
    {.digit = 1, .literal = "1. (ex x.x)", .text = Key::FRM_SYSTEM_OPTION_DECIMAL_POINT_POSITION_SETTING_1_MSG},
    {.digit = 2, .literal = "2. (ex x.xx)", .text = Key::FRM_SYSTEM_OPTION_DECIMAL_POINT_POSITION_SETTING_2_MSG},
    {.digit = 3, .literal = "3. (ex x.xxx)", .text = Key::FRM_SYSTEM_OPTION_DECIMAL_POINT_POSITION_SETTING_3_MSG}};
constexpr Choice roundings[] = {
    {.digit = 0, .literal = "0. ROUND DOWN", .text = Key::FRM_SYSTEM_OPTION_FRACTION_ROUNDING_SETTING_0_MSG},
    {.digit = 1, .literal = "1. ROUND OFF", .text = Key::FRM_SYSTEM_OPTION_FRACTION_ROUNDING_SETTING_1_MSG},
    {.digit = 2, .literal = "2. ROUND UP", .text = Key::FRM_SYSTEM_OPTION_FRACTION_ROUNDING_SETTING_2_MSG}};
// The numbers in the keys' names count the uses, not the ports.
constexpr Choice port_uses[] = {{.digit = 1, .literal = "1. PC", .text = Key::FRM_SYSTEM_OPTION_COM_PORT_1_MSG},
                                {.digit = 2, .literal = "2. BCR", .text = Key::FRM_SYSTEM_OPTION_COM_PORT_2_MSG},
                                {.digit = 3, .literal = "3. EFT", .text = Key::FRM_SYSTEM_OPTION_COM_PORT_3_MSG}};

constexpr std::size_t ports = offsetof(PrgModeImage, SysOpt2);
constexpr OptionRow port_rows[] = {
    {.control = "Cmb_DecimalPosition",
     .label = "L_DecimalPosition",
     .key = Key::FRM_SYSTEM_OPTION_L_DECIMAL_POSITION,
     .caption = "Decimal Position",
     .choices = decimal_positions,
     .place = byte_at(offsetof(PrgModeImage, SysOpt0))},
    {.control = "Cmb_FractionRound",
     .label = "L_FractionRound",
     .key = Key::FRM_SYSTEM_OPTION_L_FRACTION_ROUND,
     .caption = "Fraction Rounding ",
     .choices = roundings,
     .place = bcd_byte_at(offsetof(PrgModeImage, SysOpt1))},
    {.control = "Cmb_ComPort1",
     .label = "L_ComPort1",
     .key = Key::FRM_SYSTEM_OPTION_L_COM_PORT_1,
     .caption = "Com port 1",
     .choices = port_uses,
     .place = byte_at(ports)},
    {.control = "Cmb_ComPort2",
     .label = "L_ComPort2",
     .key = Key::FRM_SYSTEM_OPTION_L_COM_PORT_2,
     .caption = "Com port 2",
     .choices = port_uses,
     .place = byte_at(ports + 1)},
};
static_assert(sound(port_rows, prg_mode_size));
static_assert(owned_bits(port_rows, ports + 2) == 0, "the third byte is nobody's");

/// What becomes of a text that is no number when its field is left.
enum class Leaving {
  as_far_as_it_is_a_number,  ///< nothing is 0
  stored_value_back,         ///< and the log tells
};

struct CounterRow {
  const char* field;
  const char* label;
  Key key;
  const char* built_in;
  int digits;
  std::size_t offset;
  std::size_t bytes;
  int note;  ///< its index in L_Max
  Key note_key;
  const char* note_built_in;
  Leaving leaving;
};
// In the order in which they are loaded and saved.
constexpr CounterRow counter_rows[] = {
    {"E_ConsecutiveReceipt", "L_ConsecutiveReceipt", Key::FRM_SYSTEM_OPTION_L_CONSECUTIVE_RECEIPT,
     "Consecutive Receipt #", 7, offsetof(PrgModeImage, SysOpt3), 4, 1, Key::MSG_MAX_9999999, "(Max Value 9999999)",
     Leaving::as_far_as_it_is_a_number},
    {"E_InvoiceNumber", "L_InvoiceNumber", Key::FRM_SYSTEM_OPTION_L_INVOICE_NUMBER, "Invoice Number", 7,
     offsetof(PrgModeImage, SysOpt4), 4, 0, Key::MSG_MAX_9999999, "(Max Value 9999999)",
     Leaving::as_far_as_it_is_a_number},
    {"E_Z1CounterSetting", "L_Z1CounterSetting", Key::FRM_SYSTEM_OPTION_L_Z1_COUNTER_SETTING, "Z1 Counter Setting", 4,
     offsetof(PrgModeImage, SysOpt5), 2, 2, Key::MSG_MAX_9999, "(Max Value 9999)", Leaving::as_far_as_it_is_a_number},
    {"E_Z2CounterSetting", "L_Z2CounterSetting", Key::FRM_SYSTEM_OPTION_L_Z2_COUNTER_SETTING, "Z2 Counter Setting", 4,
     offsetof(PrgModeImage, SysOpt6), 2, 3, Key::MSG_MAX_9999, "(Max Value 9999)", Leaving::stored_value_back},
    {"E_GTCounterSetting", "L_GTCounterSetting", Key::FRM_SYSTEM_OPTION_L_GT_COUNTER_SETTING, "GT Counter Setting", 16,
     offsetof(PrgModeImage, SysOpt7), 8, 4, Key::MSG_MAX_9999999999999999, "(Max Value 9999999999999999)",
     Leaving::stored_value_back},
};

std::span<std::uint8_t> bytes_of_counter(const CounterRow& row) {
  return {&image_byte(row.offset), row.bytes};
}

QString stored_counter(const CounterRow& row) {
  const auto bytes = bytes_of_counter(row);
  const bool is_grand_total = row.bytes == sizeof PrgMode.SysOpt7;
  return with_zeros(screen_text(is_grand_total ? bcds_to_number_str(bytes) : bcds_to_number(bytes)), row.digits);
}

/// What a text says as a counter; a fault for one that is no number, is below 0 or has more digits than its bytes have
/// room for: one more than can be typed, in some.
Decimal counter_of(const QString& text, const CounterRow& row) {
  const Decimal value = Decimal::from_text(page_bytes(text));
  if (value.is_negative() || value.text(0).size() > 2 * row.bytes) {
    throw FaultError{FaultCode::overflow};
  }
  return value;
}

void counter_entered(Field& field) {
  field.show_text(through_double(field.text()));
}

void counter_left(Field& field, const CounterRow& row) {
  if (row.leaving == Leaving::as_far_as_it_is_a_number) {
    field.show_text(screen_text(numeric_value(field.text()).text(0, row.digits)));
    return;
  }
  try {
    field.show_text(screen_text(counter_of(field.text(), row).text(0, row.digits)));
  } catch (const FaultError&) {
    field.show_stored(stored_counter(row));
    throw;
  }
}

}  // namespace

FrmSystemOption::FrmSystemOption()
    : Screen{QStringLiteral("FrmSystemOption")},
      frame_{*this, ScreenFrame::Corner::picture},
      lists_{*this, frame_.captions, port_rows} {
  frame_.captions.add(*this, Key::FRM_SYSTEM_OPTION_TITLE, "System Options");
  frame_.captions.add(*frame_.top.L_Titolo, Key::FRM_SYSTEM_OPTION_L_TITOLO, "SYSTEM OPTIONS");
  auto* values = make_lists(QStringLiteral("F_ValueDescription"), 0);
  frame_.captions.add(*values, Key::FRM_SYSTEM_OPTION_F_VALUE_DESCRIPTION, "Value Description");
  auto* serial_ports = make_lists(QStringLiteral("F_Seriali"), 2);
  Captions::fix(*serial_ports, "Serial ports");
  auto* counters = make_counters();
  frame_.captions.add(*counters, Key::FRM_SYSTEM_OPTION_F_COUNTER, "Advanced Counter Setting");

  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(20);
  grid->setVerticalSpacing(16);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  grid->addWidget(values, 0, 0);
  grid->addWidget(serial_ports, 0, 1);
  grid->addWidget(counters, 1, 0, 1, 2);
  frame_.body->addLayout(grid);
  frame_.body->addStretch(1);
  frame_.log_prefixes("FrmSystemOption form_load: ", "FrmSystemOption Salva: ");
  frame_.on_save([this] { save(); });
  set_tab_chain({lists_.list("Cmb_DecimalPosition"), lists_.list("Cmb_FractionRound"), lists_.list("Cmb_ComPort1"),
                 lists_.list("Cmb_ComPort2"), counters_[0], counters_[1], counters_[2], counters_[3], counters_[4],
                 frame_.C_Salva, frame_.C_Invia_Ecr, frame_.C_Annulla, frame_.top.I_Help});
}

QWidget* FrmSystemOption::make_lists(const QString& name, std::size_t first_row) {
  auto* box = new QGroupBox{this};
  box->setObjectName(name);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(1, 1);
  lists_.lay_out(*grid, 0, 0, first_row, 2);
  box->setLayout(grid);
  return box;
}

QWidget* FrmSystemOption::make_counters() {
  auto* box = new QGroupBox{this};
  box->setObjectName(QStringLiteral("F_Counter"));
  FormGrid form{*box, frame_.captions};
  for (std::size_t i = 0; i < counters_.size(); ++i) {
    const CounterRow& row = counter_rows[i];
    auto* field = new Field{QString::fromLatin1(row.field), box};
    const int line = static_cast<int>(i);
    form.place(line, 0, QString::fromLatin1(row.label), row.key, row.built_in, field);
    form.note(line, 0, member_name("L_Max", row.note), row.note_key, row.note_built_in);
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(220);
    field->limit_typing(row.digits);
    field->let_in(Field::Keys::digits);
    field->on_entered([field] { counter_entered(*field); });
    field->on_left([field, &row] { counter_left(*field, row); });
    counters_[i] = field;
  }
  form.layout()->setColumnStretch(2, 1);
  box->setLayout(form.layout());
  return box;
}

void FrmSystemOption::load() {
  frame_.load([this] {
    for (std::size_t i = 0; i < counters_.size(); ++i) counters_[i]->show_stored(stored_counter(counter_rows[i]));
    lists_.load();
  });
}

void FrmSystemOption::save() {
  for (std::size_t i = 0; i < counters_.size(); ++i) {
    const CounterRow& row = counter_rows[i];
    store_number(*counters_[i], bytes_of_counter(row), [&row](const QString& text) { return counter_of(text, row); });
  }
  lists_.save();
  take_decimal_point();
  frame_.write_file();
}

}  // namespace ecr
