#pragma once
// The register's item table: a table editor with a number list, a grid of 3000 rows, and one item in the fields. The
// table is kept sorted by code, so that a save can move the item; it also keeps the pop-up lists in step.

#include <bitset>
#include <functional>
#include <string>

#include <QStringList>

#include "editors/program/plu_grid.h"
#include "image/prg_plu.h"
#include "widgets/choice_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"
#include "widgets/record_grid.h"
#include "widgets/table_frame.h"

class QGridLayout;

namespace ecr {

class FrmPrgPlu : public Screen {
  Q_OBJECT

 public:
  FrmPrgPlu();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return Cmb_PluNumber; }

 private:
  void lay_out();
  void lay_out_fields(QGridLayout& grid);
  void wire();
  void wire_fields();
  void carica_messaggi();
  void Carica_Griglia();
  void Carica_Plu(int number);
  void Azzera_Plu();
  void Ordina(int index);

  void save();
  /// Takes the item out of the list that holds it and puts it into another one; 0 is none.
  void change_list(const PluRecord& record, int list) const;
  void encode(PluRecord& record) const;
  /// The number that a save goes on to.
  [[nodiscard]] int following_number(int number) const;

  void import_file();
  void export_file();

  void list_link_picked();
  [[nodiscard]] int list_link() const;

  /// The record that the number list names; FaultError(out_of_range) if it names none.
  [[nodiscard]] PluRecord& record_shown() const;
  void mark_changed();
  /// Marks the record changed, from a list's Click handler, if the list shows something else than is stored.
  void compare(ChoiceList* list, std::function<bool(const PluRecord&)> differs);

  EditorFrame frame_;
  NumberList* Cmb_PluNumber;
  RecordGrid* Fg_Plu;
  PluGrid grid_;
  TableFrame table_;
  Field* E_FreeCode;
  Field* E_Name;
  Field* E_Price1;
  Field* E_Price2;
  Field* E_StockCount;
  ChoiceList* Cmb_Status;
  ChoiceList* Cmb_LinkDept;
  ChoiceList* Cmb_Tax;
  ChoiceList* Cmb_TakeOutTax;
  ChoiceList* Cmb_PluListLink;
  ChoiceList* Cmb_StockUsed;
  CommandButton* C_Erase;
  CommandButton* C_Import;
  CommandButton* C_Export;

  std::bitset<plu_rows> changed_;  ///< by row, from 0; differs from the stored form since the last save
  std::string exchange_file_;      ///< what the file chooser was last told, with backslashes
};

}  // namespace ecr
