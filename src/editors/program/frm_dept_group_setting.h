#pragma once
// The names of the register's ten department groups.

#include "image/prg_mode.h"
#include "widgets/choice_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmDeptGroupSetting : public Screen {
  Q_OBJECT

 public:
  FrmDeptGroupSetting();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return Cmb_DeptGroupNumber; }

 private:
  /// What was typed for another group and not saved is lost.
  void Carica_DeptGroup(int group);
  void save();

  EditorFrame frame_;
  ChoiceList* Cmb_DeptGroupNumber;
  Field* E_Name;
};

}  // namespace ecr
