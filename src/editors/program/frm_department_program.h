#pragma once
// The register's 99 departments: a table editor with a number list, a grid, and one department in the fields.

#include <bitset>

#include <QStringList>

#include "image/prg_mode.h"
#include "widgets/choice_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"
#include "widgets/record_grid.h"
#include "widgets/table_frame.h"

namespace ecr {

class FrmDepartmentProgram : public Screen {
  Q_OBJECT

 public:
  FrmDepartmentProgram();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return Cmb_DepartmentNumber; }

 private:
  void lay_out();
  void wire();
  void carica_messaggi();
  void Carica_Griglia();
  void Carica_Department(int number);
  void save();
  void group_changed();

  /// The record that the number list names; FaultError(out_of_range) if it names none.
  [[nodiscard]] DeptRecord& record_shown() const;
  void mark_changed();
  /// Marks the record changed, from a list's Click handler, if the list shows another digit than is stored.
  void compare(ChoiceList* list, std::function<int(const DeptRecord&)> stored);

  EditorFrame frame_;
  NumberList* Cmb_DepartmentNumber;
  RecordGrid* Fg_Department;
  TableFrame table_;
  Field* E_DeptName;
  ChoiceList* Cmb_Status1;
  ChoiceList* Cmb_Status2;
  ChoiceList* Cmb_Halo;
  ChoiceList* Cmb_PriceType;
  Field* E_DeptGroupNumber;
  ChoiceList* Cmb_Tax;
  ChoiceList* Cmb_TakeOutTax;
  Field* E_Price;

  // The finished choices, built once a load; a grid shows their labels.
  struct Choices {
    QStringList status1;
    QStringList status2;
    QStringList halo;
    QStringList price_type;
    QStringList tax;
  };
  Choices choices_;
  std::bitset<100> changed_;  ///< by department number; differs from the stored form since the last save
};

}  // namespace ecr
