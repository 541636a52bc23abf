#pragma once
// The register's 15 clerks: name, password, and what each of them may do.
//
// A clerk's record has no changed byte, so the screen keeps no marks of what was changed.

#include <QStringList>

#include "editors/option_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"
#include "widgets/record_grid.h"
#include "widgets/table_frame.h"

namespace ecr {

class FrmClerkSystemProgram : public Screen {
  Q_OBJECT

 public:
  FrmClerkSystemProgram();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return Cmb_ClerkNumber; }

 private:
  void lay_out();
  void wire();
  void carica_messaggi();
  void Carica_Griglia();
  void Carica_Clerk(int clerk);
  void save();

  EditorFrame frame_;
  ChoiceList* Cmb_ClerkNumber;
  RecordGrid* Fg_Clerk;
  TableFrame table_;
  Field* E_Name;
  Field* E_Password;
  /// On the Z300 the one of the extra invoice is out of sight; it keeps the bit of each clerk all the same.
  OptionLists rights_;
};

}  // namespace ecr
