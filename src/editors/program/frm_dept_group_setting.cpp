#include "editors/program/frm_dept_group_setting.h"

#include "core/register_text.h"
#include "core/run_log.h"
#include "editors/form_grid.h"
#include "editors/program/record_at.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int groups = 10;
constexpr int group_name_width = 12;

}  // namespace

FrmDeptGroupSetting::FrmDeptGroupSetting()
    : Screen{QStringLiteral("FrmDeptGroupSetting")},
      frame_{*this, ScreenFrame::Corner::picture},
      Cmb_DeptGroupNumber{
          new ChoiceList{QStringLiteral("Cmb_DeptGroupNumber"), this, ChoiceList::Typing::finds_entries}},
      E_Name{new Field{QStringLiteral("E_Name"), this}} {
  frame_.captions.add(*this, Key::FRM_DEPT_GROUP_SETTING_TITLE, "Program Dept. Groups");
  frame_.captions.add(*frame_.top.L_Titolo, Key::FRM_DEPT_GROUP_SETTING_L_TITOLO, "PROGRAM DEPT. GROUPS");
  FormGrid form{*this, frame_.captions};
  form.place(0, 0, QStringLiteral("L_DeptGroupNumber"), Key::FRM_DEPT_GROUP_SETTING_L_DEPT_GROUP_NUMBER,
             "Dept Group Number", Cmb_DeptGroupNumber);
  form.place(1, 0, QStringLiteral("L_Name"), Key::FRM_DEPT_GROUP_SETTING_L_NAME, "Name", E_Name);
  form.layout()->setColumnStretch(2, 1);
  Cmb_DeptGroupNumber->setFixedWidth(240);
  E_Name->setFixedWidth(240);
  frame_.body->addLayout(form.layout());
  frame_.body->addStretch(1);

  make_name_field(*E_Name, group_name_width);
  Cmb_DeptGroupNumber->on_click([this] { Carica_DeptGroup(Cmb_DeptGroupNumber->whole_number()); });
  frame_.log_prefixes("FrmDeptGroupSetting Form_Load: ", "FrmDeptGroupSetting Salva: ");
  frame_.on_save([this] { save(); });
  set_tab_chain({Cmb_DeptGroupNumber, E_Name, frame_.C_Salva, frame_.C_Invia_Ecr, frame_.C_Annulla, frame_.top.I_Help});
}

void FrmDeptGroupSetting::load() {
  frame_.load([this] {
    Cmb_DeptGroupNumber->fill(bare_numbers(1, groups));
    Cmb_DeptGroupNumber->show_text(QStringLiteral("1"));
    Carica_DeptGroup(1);
  });
}

void FrmDeptGroupSetting::Carica_DeptGroup(int group) {
  guarded("FrmDeptGroupSetting Carica_DeptGroup: ", [&] {
    E_Name->show_text(field_text(sostituzione_from_ecr(record_at(PrgMode.DeptGroupName, group).view())));
  });
}

void FrmDeptGroupSetting::save() {
  auto& name = record_at(PrgMode.DeptGroupName, Cmb_DeptGroupNumber->whole_number());
  name.set(sostituzione_to_ecr(codes_of(E_Name->text())));
  frame_.write_file();
}

}  // namespace ecr
