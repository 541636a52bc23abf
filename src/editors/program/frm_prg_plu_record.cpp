// One item between the table and the fields: loading, erasing, saving. And the table between the program and a file.

#include <algorithm>

#include "core/amount_text.h"
#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/files.h"
#include "core/global.h"
#include "core/register_text.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "editors/program/frm_prg_plu.h"
#include "editors/program/number_texts.h"
#include "image/plu_csv.h"
#include "image/plu_order.h"
#include "widgets/choose_file.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr std::uint8_t stock_used_bit = 5;
constexpr std::uint8_t price1_bit = 6;
constexpr std::uint8_t price2_bit = 7;

/// A pop-up list by its number, from 1; nullptr for a number that no list has.
PopUpList* pop_up_list(int number) {
  if (number < 1 || number > static_cast<int>(PrgPlu.Lists.size())) return nullptr;
  return &PrgPlu.Lists[static_cast<std::size_t>(number - 1)];
}

Bcd<8>* find_entry(PopUpList& list, const Bcd<8>& code) {
  const auto entry = std::find(list.begin(), list.end(), code);
  return entry == list.end() ? nullptr : &*entry;
}

/// A price out of its field, and the bit that says whether there is one.
void take_price(Bcd<4>& price, Flags& flags, std::uint8_t bit, const Field& field) {
  const Decimal amount = amount_in(field);
  if (field.is_unread()) return;
  number_to_bcds(price, amount);
  byte_bit_change(flags, bit, amount > Decimal{});
}

Chooser csv_chooser() {
  return {.title = QStringLiteral("Percorso Immagine"),
          .filter = QStringLiteral("File CSV(*.csv)"),
          .name = QStringLiteral("Comm_Percorso")};
}

}  // namespace

void FrmPrgPlu::Carica_Plu(int number) {
  guarded("FrmPrgPlu Carica_Plu: ", [&] {
    if (number < 1 || number > Global::MaxPlu) throw FaultError{FaultCode::out_of_range};
    PluRecord& record = PrgPlu.Row[static_cast<std::size_t>(number - 1)];
    // A type that no entry has: the list keeps the one of the item before, and a new item takes that over.
    if (number > PrgPlu.PluCount) record.Flags1 |= 3;
    E_FreeCode->show_stored(shown_code(record));
    E_Name->show_text(shown_name(record));
    E_StockCount->show_stored(shown_stock(record));
    Cmb_Status->show_number(type_of(record));
    Cmb_LinkDept->show_text(screen_text(link_dept_text(record.LinkDept)));
    // A value that a list does not have leaves it as it stands.
    Cmb_Tax->show_number(record.Tax);
    Cmb_TakeOutTax->show_number(record.TakeOutTax);
    E_Price1->show_stored(shown_price(record.Price1));
    E_Price2->show_stored(shown_price(record.Price2));
    Cmb_PluListLink->show_text(QString::number(record.PluListLink));
    Cmb_StockUsed->show_number(byte_bit_tst(record.Flags1, stock_used_bit) ? 1 : 0);
  });
}

void FrmPrgPlu::Azzera_Plu() {
  guarded("FrmPrgPlu Azzera_Plu: ", [this] {
    const QString zero = QStringLiteral("0");
    E_FreeCode->show_text(zero);
    E_Name->show_text({});
    for (Field* field : {E_Price1, E_Price2, E_StockCount}) field->show_text(zero);
    Cmb_LinkDept->show_text(zero);
    Cmb_Status->show_number(1);
    Cmb_TakeOutTax->show_number(0);
    Cmb_Tax->show_number(0);
    // The pop-up list stays, and so does the item's entry in it.
    mark_changed();
  });
}

void FrmPrgPlu::save() {
  PluRecord& record = record_shown();
  const int number = Cmb_PluNumber->number();
  const auto index = static_cast<std::size_t>(number - 1);
  const int list = list_link();
  if (list != record.PluListLink) change_list(record, list);
  const int following = following_number(number);
  encode(record);
  record.SendFlag = changed_.test(index) ? 1 : 0;
  record.PluListLink = static_cast<std::uint8_t>(list);
  // A setting of the whole table that is kept in each record.
  const bool stock_used = Cmb_StockUsed->number() > 0;
  for (int i = 0; i < Global::MaxPlu; ++i) {
    byte_bit_change(PrgPlu.Row[static_cast<std::size_t>(i)].Flags1, stock_used_bit, stock_used);
  }
  changed_.reset(index);
  Ordina(static_cast<int>(index));
  frame_.write_file();
  table_.go_to(following);
  Fg_Plu->bring_to_top(std::max(1, following - 1));
}

void FrmPrgPlu::change_list(const PluRecord& record, int list) const {
  if (PopUpList* const left = pop_up_list(record.PluListLink)) {
    if (Bcd<8>* const entry = find_entry(*left, record.Code)) *entry = {};
  }
  if (PopUpList* const joined = pop_up_list(list)) {
    // A full list takes nothing in; the person was told when it was picked.
    if (Bcd<8>* const entry = find_entry(*joined, {})) number_to_bcds(*entry, page_bytes(E_FreeCode->text()));
  }
}

int FrmPrgPlu::following_number(int number) const {
  const std::string before = grid_.code_text(number);
  const std::string after = page_bytes(E_FreeCode->text());
  // As texts: a code that comes behind the old one moves the item down and brings the next one here. 20 that becomes 5
  // stays here too, and 20 that becomes 100 goes on.
  if (code_number(before) != 0 && after > before) return number;
  return std::min<int>(number + 1, Global::MaxPlu);
}

void FrmPrgPlu::encode(PluRecord& record) const {
  // Its place in the table goes by its code. One that nobody can read is not taken for the 0 of an empty row.
  if (E_FreeCode->is_unread()) throw FaultError{FaultCode::type_mismatch};
  if (!E_StockCount->is_unread()) Stock_To_Bcds(page_bytes(E_StockCount->text()), record.Stock);
  number_to_bcds(record.Code, page_bytes(E_FreeCode->text()));
  record.Name.set(sostituzione_to_ecr(codes_of(E_Name->text())));
  for (const std::uint8_t bit : {std::uint8_t{0}, std::uint8_t{1}}) {
    byte_bit_change(record.Flags1, bit, byte_bit_tst(Cmb_Status->number(), bit));
  }
  record.LinkDept = link_dept_of(page_bytes(Cmb_LinkDept->text()));
  record.Tax = Cmb_Tax->number();
  record.TakeOutTax = Cmb_TakeOutTax->number();
  take_price(record.Price1, record.Flags1, price1_bit, *E_Price1);
  take_price(record.Price2, record.Flags1, price2_bit, *E_Price2);
}

void FrmPrgPlu::Ordina(int index) {
  const BusyPointer busy;
  // The rows are sorted by the codes that the grid shows, the saved one by the code in its field.
  std::vector<std::uint64_t> codes = grid_.codes();
  codes.at(static_cast<std::size_t>(index)) = code_number(page_bytes(E_FreeCode->text()));
  Ordina_Plu(std::move(codes), index);
  Carica_Griglia();
}

int FrmPrgPlu::list_link() const {
  return static_cast<int>(leading_number(page_bytes(Cmb_PluListLink->text())));
}

void FrmPrgPlu::list_link_picked() {
  const PluRecord& record = record_shown();
  PopUpList* const list = list_link() != record.PluListLink ? pop_up_list(list_link()) : nullptr;
  if (list != nullptr && find_entry(*list, {}) == nullptr) {
    tell(BoxKind::warning, message_or(Key::PLU_LIST_LINK_FULL_MSG, "Plu List Full. PLU not put in the List"));
    Cmb_PluListLink->show_text(QStringLiteral("0"));
  }
  // With the department, not with the list that is stored; that is how it stays.
  if (list_link() != record.LinkDept) mark_changed();
}

void FrmPrgPlu::import_file() {
  const std::optional<std::string> chosen = choose_file_to_open(this, csv_chooser(), exchange_file_);
  // A cancelled chooser changes nothing: the file of the last time is read once more.
  if (chosen) exchange_file_ = *chosen;
  std::string text;
  if (read_file(exchange_file_, text, plu_csv_limit).stands()) return;
  const PluImport import = import_plu_csv(text);
  for (int row = 0; row < import.lines; ++row) changed_.set(static_cast<std::size_t>(row));
  if (!import.finished || PrgPlu.PluCount <= 0) return;
  Carica_Griglia();
  table_.go_to(1);
  Fg_Plu->bring_to_top(1);
}

void FrmPrgPlu::export_file() {
  const std::optional<std::string> chosen = choose_file_to_save(this, csv_chooser(), exchange_file_);
  // As with the import: cancelled, the file of the last time is written once more.
  if (chosen) exchange_file_ = *chosen;
  guarded("FrmPrgPlu Errore: ", [this] {
    const Fault fault =
        exchange_file_.empty() ? Fault{FaultCode::path_access} : save_file(exchange_file_, plu_csv_text());
    if (fault.stands()) throw FaultError{fault};
  });
}

}  // namespace ecr
