#include "editors/program/frm_permission_program.h"

#include "core/codecs.h"
#include "editors/form_grid.h"
#include "editors/program/number_texts.h"
#include "editors/store_field.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int digits = 4;

}  // namespace

FrmPermissionProgram::FrmPermissionProgram()
    : Screen{QStringLiteral("FrmPermissionProgram")},
      frame_{*this, ScreenFrame::Corner::picture},
      E_Prg_ZModePasswordSetting{new Field{QStringLiteral("E_Prg_ZModePasswordSetting"), this}},
      E_XModePasswordSetting{new Field{QStringLiteral("E_XModePasswordSetting"), this}},
      E_TrainingModePasswordSetting{new Field{QStringLiteral("E_TrainingModePasswordSetting"), this}},
      E_ManagerModePassword{new Field{QStringLiteral("E_ManagerModePassword"), this}},
      places_{{{E_Prg_ZModePasswordSetting, &PrgModeImage::Perm0},
               {E_XModePasswordSetting, &PrgModeImage::Perm1},
               {E_TrainingModePasswordSetting, &PrgModeImage::Perm3},
               {E_ManagerModePassword, &PrgModeImage::Perm2}}} {
  frame_.captions.add(*this, Key::FRM_PERMISSION_PROGRAM_TITLE, "Set Passwords");
  frame_.captions.add(*frame_.top.L_Titolo, Key::FRM_PERMISSION_PROGRAM_L_TITOLO, "SET PASSWORDS");
  FormGrid form{*this, frame_.captions};
  form.place(0, 0, QStringLiteral("L_Prg_ZModePasswordSetting"),
             Key::FRM_PERMISSION_PROGRAM_L_PRG_Z_MODE_PASSWORD_SETTING, "PRG/Z Mode Password Setting",
             E_Prg_ZModePasswordSetting);
  form.place(1, 0, QStringLiteral("L_XModePasswordSetting"), Key::FRM_PERMISSION_PROGRAM_L_X_MODE_PASSWORD_SETTING,
             "X Mode Password Setting", E_XModePasswordSetting);
  form.place(2, 0, QStringLiteral("L_TrainingModePasswordSetting"),
             Key::FRM_PERMISSION_PROGRAM_L_TRAINING_MODE_PASSWORD_SETTING, "Training Mode Password Setting",
             E_TrainingModePasswordSetting);
  form.place(3, 0, QStringLiteral("L_ManagerModePassword"), Key::FRM_PERMISSION_PROGRAM_L_MANAGER_MODE_PASSWORD,
             "Manager Mode Password Setting", E_ManagerModePassword);
  for (int i = 0; i < 4; ++i) {
    form.note(i, 0, member_name("L_MaxValue", i + 1), Key::MSG_MAX_9999, "(Max Value 9999)");
  }
  form.layout()->setVerticalSpacing(12);
  form.layout()->setColumnStretch(2, 1);
  frame_.body->addLayout(form.layout());
  frame_.body->addStretch(1);

  for (const Place& place : places_) {
    place.field->setAlignment(Qt::AlignRight);
    place.field->setFixedWidth(120);
    // The manager's password takes any text, and shows it as it was typed.
    if (place.field == E_ManagerModePassword) continue;
    make_whole_number_field(*place.field, 9999);
    place.field->on_left([field = place.field] {
      field->show_text(with_zeros(field->text().isEmpty() ? QStringLiteral("0") : field->text(), digits));
    });
  }
  frame_.log_prefixes("FrmPermissionProgram form_load: ", "FrmPermissionProgram Salva: ");
  // A word in the manager's field comes too late for the three passwords before it: they are in the image by then.
  frame_.on_save([this] { save(); }, EditorFrame::AfterFault::memory_stays);
  frame_.after_send([this] { E_Prg_ZModePasswordSetting->setFocus(Qt::OtherFocusReason); });
  set_tab_chain({E_Prg_ZModePasswordSetting, E_XModePasswordSetting, E_TrainingModePasswordSetting,
                 E_ManagerModePassword, frame_.C_Salva, frame_.C_Invia_Ecr, frame_.C_Annulla, frame_.top.I_Help});
}

void FrmPermissionProgram::load() {
  frame_.load([this] {
    for (const Place& place : places_) {
      place.field->show_stored(with_zeros(screen_text(bcds_to_number(PrgMode.*place.password)), digits));
    }
  });
}

void FrmPermissionProgram::save() {
  for (const Place& place : places_) {
    store_number(*place.field, PrgMode.*place.password,
                 [](const QString& text) { return Decimal::from_text(page_bytes(text)); });
  }
  frame_.write_file();
}

}  // namespace ecr
