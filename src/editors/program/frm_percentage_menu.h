#pragma once
// The register's two percentage keys: rate, highest rate, and whether the key adds or takes off.

#include <array>

#include "editors/option_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmPercentageMenu : public Screen {
  Q_OBJECT

 public:
  FrmPercentageMenu();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return frame_.C_Annulla; }

 private:
  void save();

  EditorFrame frame_;
  Field* E_P1KeyRate;
  Field* E_P1KeyRateLimit;
  Field* E_P2KeyRate;
  Field* E_P2KeyRateLimit;
  OptionLists signs_;
};

}  // namespace ecr
