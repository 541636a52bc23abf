#pragma once
// The four passwords that the register asks for when its mode is changed. They are values of the register's; the
// program compares them with nothing.

#include <array>

#include "image/prg_mode.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmPermissionProgram : public Screen {
  Q_OBJECT

 public:
  FrmPermissionProgram();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return frame_.C_Annulla; }

 private:
  void save();

  EditorFrame frame_;
  Field* E_Prg_ZModePasswordSetting;
  Field* E_XModePasswordSetting;
  Field* E_TrainingModePasswordSetting;
  Field* E_ManagerModePassword;

  /// Where each password stands, in the order in which they are loaded and saved: the manager's last.
  struct Place {
    Field* field;
    Bcd<2> PrgModeImage::*password;
  };
  std::array<Place, 4> places_;
};

}  // namespace ecr
